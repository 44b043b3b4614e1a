#include "engine/desarrollo/producto_empaquetado.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/semejantes.h"

#include <algorithm>
#include <bit>
#include <random>
#include <utility>

namespace quiralto {
namespace {

using Clave = std::uint64_t;

// The exponents of one symbol: a field of the word, wide enough for those of the product.
struct Campo {
    IdSímbolo símbolo;
    double máximo = 0; // of the sums so far, then of the product
    double suyo = 0;   // of the sum at hand
    int desplazamiento = 0;
    int ancho = 0;
};

// The fields in the order of the factors; none where they do not fit.
std::optional<std::vector<Campo>> DevCampos(const TablaSímbolos& tabla, const Términos& a,
                                            const Términos& b) {
    constexpr std::size_t MáximosCampos = 16;
    constexpr double MáximoExponente = 1 << 30;
    std::vector<Campo> campos;
    for (const Términos* const suma : {&a, &b}) {
        for (const Término& término : *suma) {
            if (tabla.HayCocientes() && DevCocienteDe(tabla, término.literal) != nullptr)
                return std::nullopt;
            for (const auto& [símbolo, exponente] : término.literal) {
                if (exponente < 0 || exponente > MáximoExponente || !EsEntero(exponente))
                    return std::nullopt;
                auto campo = std::ranges::find(campos, símbolo, &Campo::símbolo);
                if (campo == campos.end()) {
                    if (campos.size() == MáximosCampos)
                        return std::nullopt;
                    campo = campos.insert(campo, {.símbolo = símbolo});
                }
                campo->suyo = std::max(campo->suyo, exponente);
            }
        }
        for (Campo& campo : campos)
            campo.máximo += std::exchange(campo.suyo, 0);
    }
    std::ranges::sort(campos, [&](const Campo& x, const Campo& y) {
        return tabla.Precede(x.símbolo, y.símbolo);
    });
    constexpr int Bits = 64;
    int bits = 0;
    for (Campo& campo : campos) {
        campo.desplazamiento = bits;
        campo.ancho = static_cast<int>(std::bit_width(static_cast<Clave>(campo.máximo)));
        bits += campo.ancho;
        if (bits > Bits)
            return std::nullopt;
    }
    return campos;
}

std::vector<Clave> Empaqueta(const std::vector<Campo>& campos, const Términos& suma) {
    std::vector<Clave> claves;
    claves.reserve(suma.size());
    for (const Término& término : suma) {
        Clave clave = 0;
        auto campo = campos.begin();
        for (const auto& [símbolo, exponente] : término.literal) {
            while (campo->símbolo != símbolo) // both in the same order
                ++campo;
            clave += static_cast<Clave>(exponente) << campo->desplazamiento;
        }
        claves.push_back(clave);
    }
    return claves;
}

Literal Desempaqueta(const std::vector<Campo>& campos, Clave clave) {
    Literal literal;
    for (const Campo& campo : campos) {
        const Clave exponente =
            clave >> campo.desplazamiento & ((Clave{1} << campo.ancho) - 1); // narrower than 32
        if (exponente != 0)
            literal.push_back({campo.símbolo, static_cast<double>(exponente)});
    }
    return literal;
}

// Numbers keys in the order in which they first come.
class Numerador {
public:
    explicit Numerador(std::size_t esperadas) {
        casillas_.resize(std::bit_ceil(2 * std::min(esperadas, PrimerasCasillas) + 2));
    }

    // Fault: run-time error 14 past MáximoTérminos.
    std::uint32_t Numera(Clave clave) {
        Casilla* casilla = &Busca(clave);
        if (casilla->número != 0)
            return casilla->número - 1;
        if (claves_.size() == MáximoTérminos)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        if (2 * (claves_.size() + 1) > casillas_.size()) {
            Crece();
            casilla = &Busca(clave);
        }
        claves_.push_back(clave);
        *casilla = {clave, static_cast<std::uint32_t>(claves_.size())};
        return casilla->número - 1;
    }
    const std::vector<Clave>& Claves() const { return claves_; }

private:
    static constexpr std::size_t PrimerasCasillas = 1 << 12;

    struct Casilla {
        Clave clave = 0;
        std::uint32_t número = 0; // from 1; 0: free
    };

    Casilla& Busca(Clave clave) {
        const std::size_t máscara = casillas_.size() - 1;
        const Clave mezcla = clave * 0x9E3779B97F4A7C15U;
        std::size_t i = (mezcla ^ mezcla >> 32) & máscara;
        while (casillas_[i].número != 0 && casillas_[i].clave != clave)
            i = (i + 1) & máscara;
        return casillas_[i];
    }

    void Crece() {
        casillas_.assign(casillas_.size() * 4, {});
        for (std::uint32_t i = 0; i < claves_.size(); ++i)
            Busca(claves_[i]) = {claves_[i], i + 1};
    }

    std::vector<Casilla> casillas_; // a power of two, at most half full
    std::vector<Clave> claves_;
};

// So many kinds are found among a few million pairs picked at random that a long product is known
// to pass the bound on terms before it is begun.
void CompruebaProductoLargo(Contexto& contexto, const std::vector<Clave>& a,
                            const std::vector<Clave>& b) {
    constexpr std::size_t ProductoLargo = std::size_t{1} << 26;
    constexpr std::size_t Muestras = std::size_t{1} << 24;
    if (a.size() * b.size() < ProductoLargo)
        return;
    std::mt19937_64 azar; // NOLINT(cert-msc*): always the same pairs
    Numerador numerador(MáximoTérminos);
    for (std::size_t i = 0; i < Muestras; ++i) {
        if (i % EntreVigilias == 0)
            contexto.Vigila();
        const std::uint64_t pareja = azar();
        numerador.Numera(a[(pareja >> 32) % a.size()] + b[(pareja & 0xFFFFFFFFU) % b.size()]);
    }
}

} // namespace

std::optional<Términos> MultiplicaEmpaquetados(const TablaSímbolos& tabla, const Términos& a,
                                               const Términos& b) {
    const auto campos = DevCampos(tabla, a, b);
    if (!campos)
        return std::nullopt;
    const std::vector<Clave> deA = Empaqueta(*campos, a);
    const std::vector<Clave> deB = Empaqueta(*campos, b);
    CompruebaProductoLargo(tabla.contexto, deA, deB);
    Numerador numerador(a.size() * b.size());
    std::vector<double> coeficientes;
    std::size_t sinVigilar = 0;
    for (std::size_t i = 0; i < a.size(); ++i) {
        if ((sinVigilar += b.size()) >= EntreVigilias) {
            tabla.contexto.Vigila();
            sinVigilar = 0;
        }
        for (std::size_t j = 0; j < b.size(); ++j) {
            const double coeficiente = a[i].coeficiente * b[j].coeficiente;
            const std::uint32_t número = numerador.Numera(deA[i] + deB[j]);
            if (número == coeficientes.size())
                coeficientes.push_back(coeficiente);
            else
                coeficientes[número] += coeficiente;
        }
    }
    Términos producto;
    producto.reserve(coeficientes.size());
    for (std::size_t i = 0; i < coeficientes.size(); ++i)
        if (CompruebaFinito(coeficientes[i]) != 0)
            producto.push_back({coeficientes[i], Desempaqueta(*campos, numerador.Claves()[i])});
    return producto;
}

} // namespace quiralto
