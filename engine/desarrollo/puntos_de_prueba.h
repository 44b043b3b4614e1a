// The points at which an expansion tries its terms, and what every base is worth there. One pool
// serves a whole expansion; every base is evaluated at most once a point, from its terms.
//
// The first set is drawn on demand: X from [-10, 11), spread evenly, while letters are worth their
// codes. The second set has ten points, X from (-1, 1), one in each tenth of it; there letters that
// stand inside a function, a group or an exponent take such values too, because functions saturate
// at the letters' codes, while letters in products of powers keep their codes.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/puntos_sorteados.h"
#include "engine/desarrollo/simbolos.h"
#include "engine/lenguaje/programa.h"

#include <array>
#include <span>
#include <unordered_map>

namespace quiralto {

enum class Conjunto : std::uint8_t { Primero, Segundo };

class PuntosDePrueba {
public:
    static constexpr std::size_t Decena = PuntosSorteados::Decena;
    static constexpr std::size_t MáximosPuntos = 300; // of the first set

    explicit PuntosDePrueba(const TablaSímbolos& tabla)
        : tabla_(tabla), sorteados_(tabla.contexto) {}

    // What a literal part is worth at points that follow each other (at most ten, from a multiple
    // of ten on, below MáximosPuntos; the second set has ten); not a number where it has no value.
    void Da(Conjunto conjunto, const Literal& literal, std::size_t desde,
            std::span<double> valores);
    std::array<double, Decena> En(Conjunto conjunto, const Literal& literal, std::size_t desde) {
        std::array<double, Decena> valores{};
        Da(conjunto, literal, desde, valores);
        return valores;
    }

private:
    // How letters are seen: in the second set from outside or from inside a function.
    enum class Vista : std::uint8_t { Primera, SegundaFuera, SegundaDentro };
    using Valores = std::vector<double>;

    static Vista Dentro(Vista vista) {
        return vista == Vista::SegundaFuera ? Vista::SegundaDentro : vista;
    }
    double X(Vista vista, std::size_t punto) const;
    double Letra(Vista vista, double lugar, std::size_t punto);
    void Asegura(Vista vista, const Literal& literal, std::size_t hasta);
    bool Faltan(Vista vista, const Literal& literal, std::size_t hasta);
    bool Faltan(Vista vista, const Términos& suma, std::size_t hasta);
    bool FaltanDentro(Vista vista, const Base& base, std::size_t hasta);
    Vista VistaDelNumerador(Vista vista, const Base& cociente) const {
        return cociente.contenido.size() > 1 ? Dentro(vista) : vista;
    }
    // At the points from `desde` on, as many as there are values.
    void DeLiteral(Vista vista, const Literal& literal, std::size_t desde,
                   std::span<double> valores);
    void DeSuma(Vista vista, const Términos& suma, std::size_t desde, std::span<double> valores);
    void MultiplicaPotencia(Vista vista, std::span<const Factor> factores, std::size_t desde,
                            std::span<double> valores);
    void Calcula(Vista vista, const Base& base, std::size_t desde, std::span<double> valores);
    double CalculaOpaca(Vista vista, const Base& base, std::size_t punto);

    const TablaSímbolos& tabla_;
    PuntosSorteados sorteados_;
    std::array<std::vector<Valores>, 3> bases_; // a row a base, as far as it was needed
    std::unordered_map<IdBase, Programa> opacas_;
    std::vector<std::pair<Vista, IdBase>> pendientes_;
};

// The pool of the expansion, drawn when it is first asked for.
PuntosDePrueba& DevPuntos(TablaSímbolos& tabla);

} // namespace quiralto
