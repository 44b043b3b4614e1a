// What the pointer does with the window, and how it is fitted, taken back and written down.

#include "engine/evaluacion/validadores.h"
#include "engine/numeros/numero.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/formularios/control_grafica.h"
#include "ui/grafica/marcas_eje.h"
#include "ui/grafica/recorrido.h"

namespace quiralto {
namespace {

constexpr int DuraciónAviso = 4000; // milliseconds

using C = ControlGráfica;

} // namespace

void ControlGráfica::ConectaGestos() {
    VisorFunciones* const visor = &partes_.visor;
    connect(visor, &VisorFunciones::rueda, this, [this](const QPointF& centro, int sentido) {
        ConTrampa(
            [this, centro, sentido] {
                gesto_ = Gesto::Rueda;
                return vista_.Rueda({centro.x(), centro.y()}, sentido, DevSeparación());
            },
            {&C::DibujarActivadas});
    });
    connect(visor, &VisorFunciones::desplaza, this, [this](const QPointF& distancia) {
        ConTrampa(
            [this, distancia] {
                gesto_ = Gesto::Arrastre;
                return vista_.Desplaza(distancia.x(), distancia.y());
            },
            {&C::DibujarActivadas});
    });
    connect(visor, &VisorFunciones::encuadra, this,
            [this](const QPointF& arriba, const QPointF& abajo) {
                const auto aproxima = [](double valor, double separación) {
                    return Val(TextoCoordenada(valor, separación));
                };
                const Lugar s = DevSeparación();
                const Ventana v{aproxima(abajo.x(), s.x), aproxima(arriba.x(), s.x),
                                aproxima(arriba.y(), s.y), aproxima(abajo.y(), s.y)};
                ConTrampa([this, v] { return vista_.FijaExtremos(v); }, {&C::DibujarActivadas});
            });
    connect(visor, &VisorFunciones::gestoAcabado, this, [this] { historia_.Corta(); });
}

Lugar ControlGráfica::DevSeparación() const {
    const QPointF separación = partes_.visor.DevSeparación();
    return {separación.x(), separación.y()};
}

void ControlGráfica::AjustarEjeY_Click() {
    const auto ajusta = [this] {
        const std::optional<Ventana> ventana =
            DevAjustada(funciones_, vista_.DevVentana(), opciones_.CantidadPuntos);
        return ventana && vista_.FijaExtremos(*ventana);
    };
    ConTrampa(ajusta, {&C::DibujarActivadas}, [this](bool bien) {
        if (!bien)
            partes_.avisos.showMessage(QStringLiteral("No hay curva a la que ajustar el eje"),
                                       DuraciónAviso);
    });
}

void ControlGráfica::EjesIguales_Click() {
    ConTrampa([this] { return vista_.IgualaEjes(partes_.visor.width(), partes_.visor.height()); },
              {&C::DibujarActivadas});
}

void ControlGráfica::VistaAnterior_Click() {
    const auto vuelve = [this] {
        gesto_ = Gesto::Vuelta;
        const std::optional<Vista::Estado> anterior = historia_.Saca(vista_.DevEstado());
        return anterior && vista_.Vuelve(*anterior);
    };
    ConTrampa(vuelve, {&C::DibujarActivadas});
}

void ControlGráfica::DevTablaValores(const std::function<void(const QString&)>& luego) {
    ejecutor_.CuandoAcabe([this, luego] {
        luego(DevQString(DevTabla(funciones_, vista_.DevVentana(), opciones_.CantidadPuntos)));
    });
}

// A number is taken as it stands, anything else as a constant expression.
void ControlGráfica::AlPedirPuntoX(const QString& texto) {
    const auto cambia = [this, texto] {
        std::string dato = DevUtf8(texto);
        if (dato.empty())
            return false;
        const NúmeroLeído leído = LeeNúmero(dato);
        const bool número =
            leído.longitud == dato.size() && !leído.desborda && dato.find('D') == std::string::npos;
        if (!número && !DevValorDato(contexto_, dato)) {
            partes_.panel.VuelveAlPuntoX();
            return false;
        }
        return vista_.PonPuntoX(número ? leído.valor : Val(dato));
    };
    ConTrampa(cambia, {&C::ActualizaX, &C::ActualizaZoom, &C::ActualizaFunciones},
              [this, texto](bool bien) {
                  if (bien || texto.isEmpty())
                      partes_.panel.RestauraPuntoX();
              });
}

} // namespace quiralto
