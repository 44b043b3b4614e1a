#include "ui/hoja/filtro_teclas.h"

#include "engine/evaluacion/validadores.h"

#include <QApplication>

namespace quiralto {

void PitaEscritorio() {
    QApplication::beep();
}

QString FiltraTecleado(const QString& texto, const Pitido& pitido) {
    QString filtrado;
    bool tragada = false;
    for (const uint código : texto.toUcs4()) {
        const char32_t tecla = FiltraTecla(código);
        if (tecla == 0)
            tragada = true;
        else
            filtrado += QChar(static_cast<char16_t>(tecla)); // at most 254
    }
    if (tragada)
        pitido();
    return filtrado;
}

QString EnMayúsculas(QStringView texto) {
    QString mayúsculas = texto.toString();
    for (QChar& carácter : mayúsculas)
        if (const char32_t tecla = FiltraTecla(carácter.unicode()); tecla != 0)
            carácter = QChar(static_cast<char16_t>(tecla));
    return mayúsculas;
}

QString ConviertePegado(QStringView delante, const QString& texto) {
    QString convertido;
    convertido.reserve(texto.size());
    bool enComentario = delante.contains(u'\'');
    for (const QChar carácter : texto) {
        if (carácter == u'\n' || carácter == u'\r' || carácter == QChar::ParagraphSeparator)
            enComentario = false;
        else if (carácter == u'\'')
            enComentario = true;
        const char32_t tecla = enComentario ? 0 : FiltraTecla(carácter.unicode());
        convertido += tecla == 0 ? carácter : QChar(static_cast<char16_t>(tecla));
    }
    return convertido;
}

bool EsTecleado(const QKeyEvent& tecla) {
    const QString texto = tecla.text();
    if (texto.isEmpty())
        return false;
    const Qt::KeyboardModifiers modificadores = tecla.modifiers() & ~Qt::KeypadModifier;
    if (modificadores == Qt::ControlModifier ||
        modificadores == (Qt::ControlModifier | Qt::ShiftModifier))
        return false;
    const QChar primero = texto.front();
    return primero.isPrint() || primero.isSurrogate() ||
           primero.category() == QChar::Other_Format ||
           primero.category() == QChar::Other_PrivateUse;
}

bool EsMnemónico(const QKeyEvent& tecla) {
    const Qt::KeyboardModifiers modificadores =
        tecla.modifiers() & (Qt::ControlModifier | Qt::AltModifier);
    return modificadores == Qt::AltModifier && EsTecleado(tecla);
}

QKeyEvent FiltraSuceso(const QKeyEvent& tecla, const Pitido& pitido) {
    return {tecla.type(),
            tecla.key(),
            tecla.modifiers(),
            tecla.nativeScanCode(),
            tecla.nativeVirtualKey(),
            tecla.nativeModifiers(),
            FiltraTecleado(tecla.text(), pitido),
            tecla.isAutoRepeat(),
            static_cast<quint16>(tecla.count())};
}

void FiltraSuceso(QInputMethodEvent& suceso, const Pitido& pitido) {
    suceso.setCommitString(FiltraTecleado(suceso.commitString(), pitido), suceso.replacementStart(),
                           suceso.replacementLength());
}

} // namespace quiralto
