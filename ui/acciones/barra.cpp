#include "ui/acciones/barra.h"

namespace quiralto {

void CreaBarraHerramientas(QToolBar& barra, const Acciones& acciones) {
    constexpr std::size_t Ampliar = 0;
    constexpr std::size_t Reducir = 3;
    barra.setObjectName(QStringLiteral("Toolbar1"));
    barra.setMovable(false);
    barra.setContextMenuPolicy(Qt::PreventContextMenu); // which would only hide it
    barra.toggleViewAction()->setObjectName(QStringLiteral("VerToolbar1"));
    int número = 0;
    const auto nombra = [&](QObject& objeto) {
        objeto.setObjectName(QStringLiteral("Toolbar1_%1").arg(++número));
    };
    for (const Zooms* zooms :
         {&acciones.ZoomEjeX, &acciones.ZoomEjeY, &acciones.ZoomEjesXY, &acciones.ZoomGráfica}) {
        if (número > 0)
            nombra(*barra.addSeparator());
        for (const std::size_t índice : {Ampliar, Reducir}) {
            barra.addAction(zooms->at(índice));
            nombra(*barra.widgetForAction(zooms->at(índice)));
        }
    }
}

} // namespace quiralto
