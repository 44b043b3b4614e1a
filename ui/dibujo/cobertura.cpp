#include "ui/dibujo/cobertura.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quiralto {
namespace {

constexpr float Entero = 255;

// Both channels that stand in `pares` (0x00AA00BB), `parte` of 255 of each.
QRgb DevParte(QRgb pares, QRgb parte) {
    const QRgb producto = pares * parte;
    return ((producto + ((producto >> 8) & 0xff00ff) + 0x800080) >> 8) & 0xff00ff;
}

QRgb DevEncima(QRgb debajo, QRgb color, QRgb parte) {
    const QRgb resto = 255 - parte;
    const QRgb impares = DevParte(color & 0xff00ff, parte) + DevParte(debajo & 0xff00ff, resto);
    const QRgb pares =
        DevParte((color >> 8) & 0xff00ff, parte) + DevParte((debajo >> 8) & 0xff00ff, resto);
    return impares | (pares << 8);
}

} // namespace

// A segment with a radius: everything that lies no further from it.
struct Cobertura::Cápsula {
    Cápsula(const QLineF& segmento, float grosor)
        : x(static_cast<float>(segmento.x1())), y(static_cast<float>(segmento.y1())),
          dx(static_cast<float>(segmento.dx())), dy(static_cast<float>(segmento.dy())),
          longitud(std::sqrt(dx * dx + dy * dy)), radio(grosor / 2) {
        const float alcance = radio + Borde;
        desde = std::min(x, x + dx) - alcance;
        hasta = std::max(x, x + dx) + alcance;
        if (longitud == 0) { // a dot has any direction
            dx = 1;
            return;
        }
        dx /= longitud;
        dy /= longitud;
        if (std::fabs(dy) > std::fabs(dx) / 4) { // a row does not see the whole length of it
            pendiente = dx / dy;
            mitad = alcance / std::fabs(dy);
        }
    }

    // How far the edge is from a place, positive inside.
    float DevHondura(float px, float py) const {
        const float largo = (px - x) * dx + (py - y) * dy;
        const float ancho = (px - x) * dy - (py - y) * dx;
        const float sobra = std::max(-largo, largo - longitud);
        return radio - (sobra > 0 ? std::sqrt(ancho * ancho + sobra * sobra) : std::fabs(ancho));
    }

    // Where the row at that height may be covered, from and to.
    std::pair<float, float> DevTramo(float py) const {
        const float centro = x + (py - y) * pendiente;
        return {std::max(desde, centro - mitad), std::min(hasta, centro + mitad)};
    }

    static constexpr float Borde = 0.5F; // a pixel is half covered where the edge crosses it

    float x, y;   // where it begins
    float dx, dy; // of length 1, or no direction at all
    float longitud;
    float radio;
    float desde, hasta; // columns
    float pendiente = 0;
    float mitad = std::numeric_limits<float>::infinity(); // of what a row sees
};

Cobertura::Cobertura(const QSize& tamaño)
    : ancho_(tamaño.width()), alto_(tamaño.height()),
      cubierto_(static_cast<std::size_t>(ancho_) * static_cast<std::size_t>(alto_)),
      tramos_(static_cast<std::size_t>(alto_)) {
}

void Cobertura::CubreFila(const Cápsula& cápsula, int fila) {
    const float py = static_cast<float>(fila) + 0.5F;
    const auto [desde, hasta] = cápsula.DevTramo(py);
    if (!(hasta > 0 && desde < static_cast<float>(ancho_)))
        return;
    const int primera = std::max(0, static_cast<int>(desde));
    const int última = static_cast<int>(std::min(static_cast<float>(ancho_ - 1), hasta));
    Tramo& tramo = tramos_[static_cast<std::size_t>(fila)];
    tramo.desde = std::min(tramo.desde, primera);
    tramo.hasta = std::max(tramo.hasta, última);
    std::uint8_t* const píxeles = DevFila(fila);
    for (int i = primera; i <= última; ++i) {
        const float parte = cápsula.DevHondura(static_cast<float>(i) + 0.5F, py) + Cápsula::Borde;
        const int tanto = static_cast<int>(std::clamp(parte, 0.0F, 1.0F) * Entero + 0.5F);
        píxeles[i] = static_cast<std::uint8_t>(std::max<int>(píxeles[i], tanto));
    }
}

void Cobertura::Traza(const QLineF& segmento, qreal grosor) {
    const qreal alcance = grosor / 2 + Cápsula::Borde;
    const qreal arriba = std::min(segmento.y1(), segmento.y2()) - alcance;
    const qreal abajo = std::max(segmento.y1(), segmento.y2()) + alcance;
    if (!(abajo > 0 && arriba < alto_))
        return;
    const Cápsula cápsula(segmento, static_cast<float>(grosor));
    const int primera = static_cast<int>(std::max(0.0, arriba));
    const int última = static_cast<int>(std::min(alto_ - 1.0, abajo));
    for (int fila = primera; fila <= última; ++fila)
        CubreFila(cápsula, fila);
}

void Cobertura::Vierte(QImage& capa, const QColor& color) {
    const QRgb tinta = color.rgba();
    for (int fila = 0; fila < alto_; ++fila) {
        const Tramo tramo = std::exchange(tramos_[static_cast<std::size_t>(fila)], Tramo());
        if (tramo.hasta < 0)
            continue;
        auto* const destino = reinterpret_cast<QRgb*>(capa.scanLine(fila));
        std::uint8_t* const píxeles = DevFila(fila);
        for (int i = tramo.desde; i <= tramo.hasta; ++i)
            if (const QRgb parte = std::exchange(píxeles[i], std::uint8_t{0}))
                destino[i] = parte == 255 ? tinta : DevEncima(destino[i], tinta, parte);
    }
}

} // namespace quiralto
