// A scroll bar in a frame with its title.
#pragma once

#include <QScrollBar>

#include <functional>

namespace quiralto {

struct DatosBarra {
    QString nombre;      // of the bar
    QString título;      // of its frame
    QString explicación; // what it does, as tool tip
    int mitad;           // it runs from -mitad to mitad
    int página;
};

// Makes the frame; its bar calls `alCambiar` with every value that the user gives it, at once or,
// where it is to be a pair of step buttons (`vuelveA0`), once it is let go, and then goes back to
// 0.
QWidget* CreaMarcoBarra(const DatosBarra& datos, Qt::Orientation orientación, bool vuelveA0,
                        const std::function<void(int)>& alCambiar);

// Moves a bar without its being taken for the user's doing.
void PonBarra(QScrollBar& barra, int valor);

} // namespace quiralto
