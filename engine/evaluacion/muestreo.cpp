#include "engine/evaluacion/muestreo.h"

#include "engine/evaluacion/evalua.h"

namespace quiralto {
namespace {

constexpr double FueraDeMarco = MediaEscala + 1;

float DevYMarcada(const Ventana& ventana, double valor) {
    const double s = DevYlógico(ventana, valor);
    if (s > MediaEscala)
        return static_cast<float>(FueraDeMarco);
    if (s < -MediaEscala)
        return static_cast<float>(-FueraDeMarco);
    return static_cast<float>(s);
}

// Whatever lies inside a window that passes has a finite place in the drawing scale.
void CompruebaVentana(const Ventana& ventana) {
    CompruebaFinito(2 * MediaEscala * (ventana.XMáx - ventana.XMín));
    if (CompruebaFinito(2 * MediaEscala * (ventana.YMáx - ventana.YMín)) == 0)
        throw ErrorEjecución(Desbordamiento);
}

// The values of X that are sampled.
std::vector<double> DevEquis(const Ventana& ventana, int cantidadPuntos) {
    const double paso = (ventana.XMáx - ventana.XMín) / cantidadPuntos;
    std::vector<double> equis;
    equis.reserve(static_cast<std::size_t>(cantidadPuntos) + 2);
    double x = ventana.XMín;
    while (x <= ventana.XMáx) {
        equis.push_back(x);
        if (x + paso == x)
            throw ErrorEjecución(Desbordamiento);
        x += paso;
    }
    return equis;
}

} // namespace

double DevXlógico(const Ventana& ventana, double x) {
    return 2 * MediaEscala * (x - ventana.XMín) / (ventana.XMáx - ventana.XMín) - MediaEscala;
}

double DevYlógico(const Ventana& ventana, double y) {
    return 2 * MediaEscala * (y - ventana.YMín) / (ventana.YMáx - ventana.YMín) - MediaEscala;
}

double DevXfísico(const Ventana& ventana, double s) {
    return (ventana.XMáx - ventana.XMín) * (s + MediaEscala) / (2 * MediaEscala) + ventana.XMín;
}

std::vector<Punto> CargaPuntos(Contexto& contexto, const Programa& programa, const Ventana& ventana,
                               int cantidadPuntos) {
    CompruebaVentana(ventana);
    const std::vector<double> equis = DevEquis(ventana, cantidadPuntos);
    std::vector<double> valores(equis.size());
    std::vector<std::int16_t> fallos(equis.size());
    EvalúaBloque(contexto, programa, equis, valores, fallos, Causa::Ninguna);
    std::vector<Punto> puntos;
    puntos.reserve(equis.size());
    for (std::size_t i = 0; i < equis.size(); ++i)
        if (fallos[i] == SinFallo)
            puntos.push_back({static_cast<float>(DevXlógico(ventana, equis[i])),
                              DevYMarcada(ventana, valores[i])});
    return puntos;
}

} // namespace quiralto
