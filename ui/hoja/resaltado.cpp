#include "ui/hoja/resaltado.h"

#include "commands/lineas.h"
#include "ui/dibujo/contraste.h"
#include "ui/dibujo/texto_qt.h"

namespace quiralto {
namespace {

// Whichever is read better.
QColor DevLegible(const QColor& sobreClaro, const QColor& sobreOscuro, const QPalette& paleta) {
    const QColor papel = paleta.color(QPalette::Base);
    return DevContraste(sobreClaro, papel) >= DevContraste(sobreOscuro, papel) ? sobreClaro
                                                                               : sobreOscuro;
}

// Where the part begins that is no data; the length of the text where all of it is.
qsizetype DevComienzo(const QString& texto) {
    const std::string línea = DevUtf8(texto);
    if (ClasificaLínea(línea).clase == ClaseLínea::Comentario || EsDelPrograma(línea))
        return 0;
    const qsizetype apóstrofo = texto.indexOf(u'\'');
    return apóstrofo < 0 ? texto.size() : apóstrofo;
}

} // namespace

QColor DevColorComentario(const QPalette& paleta) {
    return DevLegible(QColor(0, 105, 75), QColor(130, 215, 175), paleta);
}

QColor DevColorErrónea(const QPalette& paleta) {
    return DevLegible(QColor(200, 0, 0), QColor(255, 120, 120), paleta);
}

void Resaltado::PonColor(const QColor& color) {
    if (color == color_)
        return;
    color_ = color;
    rehighlight();
}

void Resaltado::highlightBlock(const QString& texto) {
    const qsizetype comienzo = DevComienzo(texto);
    if (comienzo < texto.size())
        setFormat(static_cast<int>(comienzo), static_cast<int>(texto.size() - comienzo), color_);
}

} // namespace quiralto
