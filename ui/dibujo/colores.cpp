#include "ui/dibujo/colores.h"

#include "ui/grafica/funciones.h"

namespace quiralto {
namespace {

constexpr PorFunción<QColor> Colores = {QColor(0, 0, 0), QColor(255, 0, 255), QColor(255, 0, 0),
                                        QColor(0, 0, 255)};

} // namespace

QColor DevColor(int índice) {
    return índice >= 0 && índice < CantidadFunciones ? Colores.at(static_cast<std::size_t>(índice))
                                                     : QColor(0, 0, 0);
}

QColor DevColorAtenuado(int índice) {
    constexpr int Partes = 4; // one of them in the curve's colour, the others paper
    const QColor color = DevColor(índice);
    const auto mezcla = [](int uno, int papel) { return (uno + (Partes - 1) * papel) / Partes; };
    return {mezcla(color.red(), Papel.red()), mezcla(color.green(), Papel.green()),
            mezcla(color.blue(), Papel.blue())};
}

} // namespace quiralto
