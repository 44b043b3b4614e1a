#include "ui/hoja/filtro_teclas.h"

#include "commands/lineas.h"
#include "engine/evaluacion/validadores.h"
#include "ui/dibujo/texto_qt.h"

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
    QString mayúsculas;
    mayúsculas.reserve(texto.size());
    for (const QChar carácter : texto) {
        const char32_t tecla = FiltraTecla(carácter.unicode());
        if (!carácter.isSpace())
            mayúsculas += tecla == 0 ? carácter : QChar(static_cast<char16_t>(tecla));
    }
    return mayúsculas;
}

namespace {

// The columns of a table become fields: a tabulator is a comma, unless there is nothing to be
// parted on one of its sides.
QString ConComas(QStringView datos) {
    const auto hayAlLado = [&](qsizetype tabulador, int sentido, QStringView sinParte) {
        qsizetype i = tabulador + sentido;
        while (i >= 0 && i < datos.size() && datos[i] == u' ')
            i += sentido;
        return i >= 0 && i < datos.size() && !sinParte.contains(datos[i]);
    };
    QString texto = datos.toString();
    for (qsizetype i = 0; i < datos.size(); ++i)
        if (datos[i] == u'\t' && hayAlLado(i, -1, u",(+-*/^=") && hayAlLado(i, 1, u",)+*/^="))
            texto[i] = u',';
    return texto;
}

// One line without its line break, behind `delante`.
QString ConvierteLínea(QStringView delante, QStringView línea) {
    if (delante.contains(u'\'') || EsDelPrograma(DevUtf8(delante.toString() + línea.toString())))
        return línea.toString();
    const qsizetype apóstrofo = línea.indexOf(u'\'');
    if (apóstrofo < 0)
        return EnMayúsculas(ConComas(línea));
    return EnMayúsculas(ConComas(línea.left(apóstrofo))) + línea.mid(apóstrofo).toString();
}

} // namespace

QString ConviertePegado(QStringView delante, const QString& texto) {
    const auto esSalto = [](QChar c) {
        return c == u'\n' || c == u'\r' || c == u'\v' || c == u'\f' ||
               c == QChar::ParagraphSeparator || c == QChar::LineSeparator;
    };
    QString convertido;
    convertido.reserve(texto.size());
    qsizetype comienzo = 0;
    for (qsizetype i = 0; i <= texto.size(); ++i) {
        if (i < texto.size() && !esSalto(texto[i]))
            continue;
        convertido += ConvierteLínea(comienzo == 0 ? delante : QStringView(),
                                     QStringView(texto).mid(comienzo, i - comienzo));
        if (i < texto.size())
            convertido += texto[i] == u'\r' ? texto[i] : QChar(u'\n');
        comienzo = i + 1;
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
