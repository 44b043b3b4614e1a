// The palettes that the window is looked at in.
#pragma once

#include <QApplication>
#include <QPalette>

namespace quiralto {

// As a desktop may set it that knows nothing of the newer colours: that of an example line is left
// as it is on white paper.
inline QPalette DevPaletaOscura() {
    QPalette paleta(QColor(49, 54, 59));
    for (const QPalette::ColorRole papel : {QPalette::Base, QPalette::Window, QPalette::Button})
        paleta.setColor(papel, papel == QPalette::Base ? QColor(35, 38, 41) : QColor(49, 54, 59));
    for (const QPalette::ColorRole texto :
         {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
        paleta.setColor(texto, QColor(239, 240, 241));
    paleta.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    return paleta;
}

inline QPalette DevPaletaClara() {
    QPalette paleta(QColor(239, 239, 239));
    paleta.setColor(QPalette::Base, Qt::white);
    paleta.setColor(QPalette::Text, Qt::black);
    return paleta;
}

// The application's palette, until it goes.
class ConPaleta {
public:
    explicit ConPaleta(const QPalette& paleta) : anterior_(QApplication::palette()) { Pon(paleta); }
    ~ConPaleta() { Pon(anterior_); }
    ConPaleta(const ConPaleta&) = delete;
    ConPaleta& operator=(const ConPaleta&) = delete;

private:
    static void Pon(const QPalette& paleta) {
        QApplication::setPalette(paleta);
        QApplication::processEvents(); // by which the widgets are told
    }

    QPalette anterior_;
};

} // namespace quiralto
