#include "ui/dibujo/fuentes.h"

#include <QFontDatabase>
#include <QFontInfo>

namespace quiralto {

// With several families installed, the desktop's alias may lead to one that does not call itself
// fixed; the numbers of two lines would then not be sure to stand below each other.
QFont DevFuenteFija() {
    QFont fuente = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (QFontInfo(fuente).fixedPitch())
        return fuente;
    fuente.setStyleHint(QFont::TypeWriter);
    fuente.setFixedPitch(true);
    for (const char* familia : {"DejaVu Sans Mono", "Liberation Mono", "Noto Sans Mono", "Cousine",
                                "Nimbus Mono PS", "FreeMono", "Courier New"}) {
        QFont otra = fuente;
        otra.setFamily(QString::fromLatin1(familia));
        if (const QFontInfo cuál(otra); cuál.fixedPitch() && cuál.family() == otra.family())
            return otra;
    }
    return fuente;
}

} // namespace quiralto
