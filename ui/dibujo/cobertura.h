// How much of each pixel of an area the strokes of one colour cover. Where two of them meet, the
// pixel has what the better one covers: segments of any length join without a speck or a seam, as
// they would not if each were painted over the one before.
#pragma once

#include <QColor>
#include <QImage>
#include <QLineF>

#include <cstdint>
#include <limits>
#include <vector>

namespace quiralto {

class Cobertura {
public:
    explicit Cobertura(const QSize& tamaño);

    // A stroke with round ends, in pixels from the area's corner; what lies outside is cut off.
    void Traza(const QLineF& segmento, qreal grosor);

    // Paints what is covered in that colour over the image (ARGB32 premultiplied, of the same
    // size), and covers nothing from there on.
    void Vierte(QImage& capa, const QColor& color);

private:
    struct Cápsula;
    struct Tramo { // of a row, the columns that may be covered
        int desde = std::numeric_limits<int>::max();
        int hasta = -1;
    };
    void CubreFila(const Cápsula& cápsula, int fila);
    std::uint8_t* DevFila(int fila) {
        return cubierto_.data() + static_cast<std::size_t>(fila) * static_cast<std::size_t>(ancho_);
    }

    int ancho_;
    int alto_;
    std::vector<std::uint8_t> cubierto_; // 255 is all of a pixel; rows below each other
    std::vector<Tramo> tramos_;          // one of each row
};

} // namespace quiralto
