#include "ui/dibujo/grafica.h"

#include "ui/dibujo/colores.h"
#include "ui/dibujo/ejes.h"
#include "ui/dibujo/hallados.h"
#include "ui/dibujo/trazo.h"

namespace quiralto {

void DibujaCurvas(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro) {
    Trazos trazos(pintor, lienzo);
    for (int i = 0; i < CantidadFunciones; ++i)
        if (const Curva& curva = cuadro.curvas.at(static_cast<std::size_t>(i)); curva.puntos)
            trazos.Traza(*curva.puntos, cuadro.método,
                         curva.atenuada ? DevColorAtenuado(i) : DevColor(i));
    trazos.Pinta();
}

void DibujaGráfica(QPainter& pintor, const Lienzo& lienzo, const Cuadro& cuadro) {
    pintor.save();
    pintor.setClipRect(lienzo.área);
    pintor.fillRect(lienzo.área, Papel);
    Ejes ejes(pintor, lienzo, cuadro.ventana);
    ejes.DibujaRejilla();
    DibujaÁreas(pintor, lienzo, cuadro);
    DibujaCurvas(pintor, lienzo, cuadro);
    ejes.Dibuja();
    DibujaLugares(pintor, lienzo, cuadro);
    pintor.restore();
}

} // namespace quiralto
