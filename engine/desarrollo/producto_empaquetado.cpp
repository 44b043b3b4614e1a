#include "engine/desarrollo/producto_empaquetado.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/recolector.h"
#include "engine/numeros/ancho128.h"
#include "engine/numeros/producto_denso.h"

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
    std::int64_t máximo = 0; // of the sums so far, then of the product
    std::int64_t suyo = 0;   // of the sum at hand
    int desplazamiento = 0;
    int ancho = 0;
};

// The fields in the order of the factors; none where they do not fit.
std::optional<std::vector<Campo>> DevCampos(const TablaSímbolos& tabla, const Términos& a,
                                            const Términos& b) {
    constexpr std::size_t MáximosCampos = 16;
    constexpr std::int64_t MáximoExponente = 1 << 30;
    std::vector<Campo> campos;
    for (const Términos* const suma : {&a, &b}) {
        for (const Término& término : *suma) {
            for (const auto& [símbolo, exponente] : término.literal) {
                if (!exponente.EsEntero() || exponente.Signo() < 0 ||
                    exponente.Numerador() > MáximoExponente)
                    return std::nullopt;
                const Base& base = tabla.BaseDe(símbolo);
                if (base.clase == ClaseBase::Cociente || EsRaíz(base)) // not powers like others
                    return std::nullopt;
                auto campo = std::ranges::find(campos, símbolo, &Campo::símbolo);
                if (campo == campos.end()) {
                    if (campos.size() == MáximosCampos)
                        return std::nullopt;
                    campo = campos.insert(campo, {.símbolo = símbolo});
                }
                campo->suyo = std::max(campo->suyo, exponente.Numerador());
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
            clave += static_cast<Clave>(exponente.Numerador()) << campo->desplazamiento;
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
            literal.push_back({campo.símbolo, static_cast<std::int64_t>(exponente)});
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

namespace {

using EnteroDoble = Entero128;

Coeficiente ACoeficiente(EnteroDoble valor) {
    const auto corto = static_cast<std::int64_t>(valor);
    if (EnteroDoble{corto} == valor && corto != INT64_MIN)
        return corto;
    return {Entero::DesdeAncho(valor), 1};
}
const Coeficiente& ACoeficiente(const Coeficiente& valor) {
    return valor;
}

// Small whole numbers, whose products add up to less than 127 bits; none where there are others.
std::optional<std::vector<EnteroDoble>> DevEnteros(const Términos& suma, int máximosBits) {
    std::vector<EnteroDoble> enteros;
    enteros.reserve(suma.size());
    for (const Término& término : suma) {
        if (!término.coeficiente.EsEnteroPequeño())
            return std::nullopt;
        const std::int64_t entero = término.coeficiente.EnteroPequeño();
        if (entero >> máximosBits != 0 && entero >> máximosBits != -1)
            return std::nullopt;
        enteros.push_back(entero);
    }
    return enteros;
}

std::vector<Coeficiente> DevCoeficientes(const Términos& suma) {
    std::vector<Coeficiente> coeficientes;
    coeficientes.reserve(suma.size());
    for (const Término& término : suma)
        coeficientes.push_back(término.coeficiente);
    return coeficientes;
}

// The product of the sums whose keys and coefficients these are.
template <typename Número>
Términos Multiplica(Contexto& contexto, const std::vector<Campo>& campos,
                    const std::vector<Clave>& clavesA, const std::vector<Clave>& clavesB,
                    const std::vector<Número>& deA, const std::vector<Número>& deB) {
    Numerador numerador(clavesA.size() * clavesB.size());
    std::vector<Número> suma;
    std::size_t sinVigilar = 0;
    for (std::size_t i = 0; i < clavesA.size(); ++i) {
        if ((sinVigilar += clavesB.size()) >= EntreVigilias) {
            contexto.Vigila();
            sinVigilar = 0;
        }
        for (std::size_t j = 0; j < clavesB.size(); ++j) {
            const std::uint32_t número = numerador.Numera(clavesA[i] + clavesB[j]);
            if (número == suma.size())
                suma.push_back(deA[i] * deB[j]);
            else
                suma[número] += deA[i] * deB[j];
        }
    }
    Términos producto;
    producto.reserve(suma.size());
    for (std::size_t i = 0; i < suma.size(); ++i) {
        Coeficiente coeficiente = ACoeficiente(suma[i]);
        if (!coeficiente.EsCero())
            producto.push_back(
                {std::move(coeficiente), Desempaqueta(campos, numerador.Claves()[i])});
    }
    return producto;
}

// A polynomial of one symbol without gaps: exponents that fall by one step from term to term, and
// small whole coefficients.
struct Escalera {
    IdSímbolo símbolo = 0;
    std::int64_t máximo = 0;
    std::int64_t paso = 0;
    std::vector<std::int64_t> coeficientes;
};

std::optional<Escalera> DevEscalera(const TablaSímbolos& tabla, const Términos& suma) {
    Escalera escalera;
    escalera.coeficientes.reserve(suma.size());
    std::int64_t previo = 0;
    for (const auto& [coeficiente, literal] : suma) {
        const bool número = literal.empty();
        const std::int64_t exponente = número ? 0 : literal[0].exponente.Numerador();
        const std::size_t i = escalera.coeficientes.size();
        if (literal.size() > 1 || !coeficiente.EsEnteroPequeño() || exponente < 0 ||
            (!número && !literal[0].exponente.EsEntero()))
            return std::nullopt;
        if (i == 0) {
            const Base* const base = número ? nullptr : &tabla.BaseDe(literal[0].símbolo);
            if (número || base->clase == ClaseBase::Cociente || EsRaíz(*base))
                return std::nullopt;
            escalera.símbolo = literal[0].símbolo;
            escalera.máximo = exponente;
        } else if ((!número && literal[0].símbolo != escalera.símbolo) || exponente >= previo ||
                   (i > 1 && previo - exponente != escalera.paso)) {
            return std::nullopt;
        } else if (i == 1) {
            escalera.paso = previo - exponente;
        }
        previo = exponente;
        escalera.coeficientes.push_back(coeficiente.EnteroPequeño());
    }
    return escalera;
}

std::optional<Términos> MultiplicaEscaleras(const TablaSímbolos& tabla, const Términos& a,
                                            const Términos& b) {
    constexpr std::size_t MínimosTérminos = 4;
    if (std::min(a.size(), b.size()) < MínimosTérminos)
        return std::nullopt;
    const auto deA = DevEscalera(tabla, a);
    const auto deB = deA ? DevEscalera(tabla, b) : std::nullopt;
    if (!deB || deA->símbolo != deB->símbolo || deA->paso != deB->paso)
        return std::nullopt;
    const auto coeficientes = MultiplicaDensos(deA->coeficientes, deB->coeficientes);
    if (!coeficientes)
        return std::nullopt;
    if (coeficientes->size() > MáximoTérminos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    Términos producto;
    producto.reserve(coeficientes->size());
    std::int64_t exponente = deA->máximo + deB->máximo;
    for (const Entero& coeficiente : *coeficientes) {
        if (!coeficiente.EsCero())
            producto.push_back({coeficiente.EsPequeño() ? Coeficiente(coeficiente.Pequeño())
                                                        : Coeficiente(coeficiente, 1),
                                exponente == 0 ? Literal{} : Literal{{deA->símbolo, exponente}}});
        exponente -= deA->paso;
    }
    return producto;
}

} // namespace

std::optional<Términos> MultiplicaEmpaquetados(const TablaSímbolos& tabla, const Términos& a,
                                               const Términos& b) {
    if (auto producto = MultiplicaEscaleras(tabla, a, b))
        return producto;
    const auto campos = DevCampos(tabla, a, b);
    if (!campos)
        return std::nullopt;
    const std::vector<Clave> clavesA = Empaqueta(*campos, a);
    const std::vector<Clave> clavesB = Empaqueta(*campos, b);
    CompruebaProductoLargo(tabla.contexto, clavesA, clavesB);
    constexpr int BitsFactor = 53; // twice them, and 2^19 terms, stay below 127
    const auto enterosA = DevEnteros(a, BitsFactor);
    const auto enterosB = enterosA ? DevEnteros(b, BitsFactor) : std::nullopt;
    if (enterosB)
        return Multiplica(tabla.contexto, *campos, clavesA, clavesB, *enterosA, *enterosB);
    return Multiplica(tabla.contexto, *campos, clavesA, clavesB, DevCoeficientes(a),
                      DevCoeficientes(b));
}

} // namespace quiralto
