#include "engine/numeros/producto_denso.h"

#include "engine/numeros/ancho128.h"
#include "engine/numeros/campo_primo.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace quiralto {
namespace {

using EnteroDoble = Entero128;

// A prime k * 2^n + 1 with n of 55 or more, and a generator of its multiplicative group.
struct PrimoDeTransformada {
    std::uint64_t primo;
    std::uint64_t generador;
};
constexpr PrimoDeTransformada Primero{4179340454199820289U, 3}; // 29 * 2^57 + 1
constexpr PrimoDeTransformada Segundo{1945555039024054273U, 5}; // 27 * 2^56 + 1

class Transformada {
public:
    using Resto = CampoPrimo::Resto;

    Transformada(const PrimoDeTransformada& primo, std::size_t tamaño)
        : campo_(primo.primo), tamaño_(tamaño) {
        const Resto raíz =
            campo_.Potencia(campo_.AResto(primo.generador), (primo.primo - 1) / tamaño);
        raíces_.reserve(tamaño / 2);
        Resto potencia = campo_.Uno();
        for (std::size_t i = 0; i < tamaño / 2; ++i) {
            raíces_.push_back(potencia);
            potencia = campo_.Producto(potencia, raíz);
        }
    }

    // The cyclic product, as remainders.
    std::vector<Resto> Multiplica(std::span<const std::int64_t> a,
                                  std::span<const std::int64_t> b) const {
        std::vector<Resto> deA = Lee(a);
        std::vector<Resto> deB = Lee(b);
        Transforma(deA);
        Transforma(deB);
        const Resto inverso = campo_.Inverso(campo_.AResto(tamaño_));
        for (std::size_t i = 0; i < tamaño_; ++i)
            deA[i] = campo_.Producto(campo_.Producto(deA[i], deB[i]), inverso);
        std::reverse(deA.begin() + 1, deA.end()); // the inverse is the transform of the reverse
        Transforma(deA);
        return deA;
    }

    const CampoPrimo& Campo() const { return campo_; }

private:
    std::vector<Resto> Lee(std::span<const std::int64_t> lista) const {
        std::vector<Resto> restos(tamaño_, 0);
        for (std::size_t i = 0; i < lista.size(); ++i) {
            const std::uint64_t magnitud = lista[i] < 0 ? 0 - static_cast<std::uint64_t>(lista[i])
                                                        : static_cast<std::uint64_t>(lista[i]);
            const Resto resto = campo_.AResto(magnitud);
            restos[i] = lista[i] < 0 ? campo_.Resta(0, resto) : resto;
        }
        return restos;
    }

    void Transforma(std::vector<Resto>& v) const {
        for (std::size_t i = 1, j = 0; i < tamaño_; ++i) {
            std::size_t bit = tamaño_ / 2;
            for (; (j & bit) != 0; bit /= 2)
                j ^= bit;
            j ^= bit;
            if (i < j)
                std::swap(v[i], v[j]);
        }
        for (std::size_t mitad = 1; mitad < tamaño_; mitad *= 2) {
            const std::size_t paso = tamaño_ / (2 * mitad);
            for (std::size_t i = 0; i < tamaño_; i += 2 * mitad)
                for (std::size_t k = 0; k < mitad; ++k) {
                    const Resto u = v[i + k];
                    const Resto w = campo_.Producto(v[i + k + mitad], raíces_[k * paso]);
                    v[i + k] = campo_.Suma(u, w);
                    v[i + k + mitad] = campo_.Resta(u, w);
                }
        }
    }

    CampoPrimo campo_;
    std::size_t tamaño_; // a power of two
    std::vector<Resto> raíces_;
};

std::vector<Entero> MultiplicaPorTérminos(std::span<const std::int64_t> a,
                                          std::span<const std::int64_t> b) {
    std::vector<EnteroDoble> sumas(a.size() + b.size() - 1, 0);
    for (std::size_t i = 0; i < a.size(); ++i)
        for (std::size_t j = 0; j < b.size(); ++j)
            sumas[i + j] += EnteroDoble{a[i]} * b[j];
    std::vector<Entero> producto;
    producto.reserve(sumas.size());
    for (const EnteroDoble suma : sumas)
        producto.push_back(Entero::DesdeAncho(suma));
    return producto;
}

std::vector<Entero> MultiplicaPorTransformadas(std::span<const std::int64_t> a,
                                               std::span<const std::int64_t> b) {
    const std::size_t longitud = a.size() + b.size() - 1;
    const std::size_t tamaño = std::bit_ceil(longitud);
    const Transformada primera(Primero, tamaño);
    const Transformada segunda(Segundo, tamaño);
    const auto deUna = primera.Multiplica(a, b);
    const auto deOtra = segunda.Multiplica(a, b);
    const CampoPrimo& campo = primera.Campo();
    const auto inverso = campo.Inverso(campo.AResto(Segundo.primo));
    const EnteroDoble módulo = EnteroDoble{Primero.primo} * Segundo.primo;
    std::vector<Entero> producto;
    producto.reserve(longitud);
    for (std::size_t i = 0; i < longitud; ++i) {
        // r + Segundo * t, with t such that it has the other remainder too
        const std::uint64_t r = segunda.Campo().DevValor(deOtra[i]);
        const auto t =
            campo.DevValor(campo.Producto(campo.Resta(deUna[i], campo.AResto(r)), inverso));
        EnteroDoble valor = EnteroDoble{t} * Segundo.primo + r;
        if (valor > módulo / 2)
            valor -= módulo;
        producto.push_back(Entero::DesdeAncho(valor));
    }
    return producto;
}

std::uint64_t DevMayor(std::span<const std::int64_t> lista) {
    std::uint64_t mayor = 0;
    for (const std::int64_t n : lista)
        mayor = std::max(mayor,
                         n < 0 ? 0 - static_cast<std::uint64_t>(n) : static_cast<std::uint64_t>(n));
    return mayor;
}

} // namespace

std::optional<std::vector<Entero>> MultiplicaDensos(std::span<const std::int64_t> a,
                                                    std::span<const std::int64_t> b) {
    constexpr int MáximosBits = 118;
    constexpr std::size_t ListaCorta = 64;
    const std::size_t corta = std::min(a.size(), b.size());
    if (std::bit_width(DevMayor(a)) + std::bit_width(DevMayor(b)) + std::bit_width(corta) >
        MáximosBits)
        return std::nullopt;
    return corta <= ListaCorta ? MultiplicaPorTérminos(a, b) : MultiplicaPorTransformadas(a, b);
}

} // namespace quiralto
