#include "engine/numeros/magnitud.h"

#include <algorithm>
#include <bit>

namespace quiralto {

void QuitaCerosAltos(Magnitud& m) {
    while (!m.empty() && m.back() == 0)
        m.pop_back();
}

bool EsMenor(std::span<const Palabra> a, std::span<const Palabra> b) {
    if (a.size() != b.size())
        return a.size() < b.size();
    return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

void SumaEn(Magnitud& a, std::span<const Palabra> b) {
    if (a.size() < b.size())
        a.resize(b.size());
    Palabra acarreo = 0;
    for (std::size_t i = 0; i < a.size() && (i < b.size() || acarreo != 0); ++i) {
        const DoblePalabra suma = DoblePalabra{a[i]} + (i < b.size() ? b[i] : 0) + acarreo;
        a[i] = Baja(suma);
        acarreo = Alta(suma);
    }
    if (acarreo != 0)
        a.push_back(acarreo);
}

void RestaEn(Magnitud& a, std::span<const Palabra> b) {
    Palabra prestado = 0;
    for (std::size_t i = 0; i < a.size() && (i < b.size() || prestado != 0); ++i) {
        const DoblePalabra resta = DoblePalabra{a[i]} - (i < b.size() ? b[i] : 0) - prestado;
        a[i] = Baja(resta);
        prestado = Alta(resta) & 1;
    }
    QuitaCerosAltos(a);
}

Magnitud Multiplica(std::span<const Palabra> a, std::span<const Palabra> b) {
    Magnitud producto(a.size() + b.size());
    for (std::size_t i = 0; i < a.size(); ++i) {
        Palabra acarreo = 0;
        for (std::size_t j = 0; j < b.size(); ++j) {
            const DoblePalabra suma = DoblePalabra{a[i]} * b[j] + producto[i + j] + acarreo;
            producto[i + j] = Baja(suma);
            acarreo = Alta(suma);
        }
        producto[i + b.size()] = acarreo;
    }
    QuitaCerosAltos(producto);
    return producto;
}

Magnitud Desplaza(std::span<const Palabra> a, std::size_t bits) {
    const std::size_t palabras = bits / BitsPalabra;
    const auto resto = static_cast<unsigned>(bits % BitsPalabra);
    Magnitud desplazada(a.size() + palabras + 1);
    for (std::size_t i = 0; i < a.size(); ++i) {
        const DoblePalabra doble = DoblePalabra{a[i]} << resto;
        desplazada[i + palabras] |= Baja(doble);
        desplazada[i + palabras + 1] = Alta(doble);
    }
    return desplazada;
}

namespace {

// Subtracts q * v from the words of u from j on; true where that went below 0.
bool RestaMúltiploEn(Magnitud& u, std::size_t j, const Magnitud& v, Palabra q) {
    Palabra prestado = 0;
    Palabra acarreo = 0;
    for (std::size_t i = 0; i < v.size(); ++i) {
        const DoblePalabra producto = q * DoblePalabra{v[i]} + acarreo;
        acarreo = Alta(producto);
        const DoblePalabra resta = DoblePalabra{u[i + j]} - Baja(producto) - prestado;
        u[i + j] = Baja(resta);
        prestado = Alta(resta) & 1;
    }
    const DoblePalabra resta = DoblePalabra{u[j + v.size()]} - acarreo - prestado;
    u[j + v.size()] = Baja(resta);
    return Alta(resta) != 0;
}

// Adds v back to the words of u from j on, which have gone below 0.
void DevuelveEn(Magnitud& u, std::size_t j, const Magnitud& v) {
    Palabra acarreo = 0;
    for (std::size_t i = 0; i < v.size(); ++i) {
        const DoblePalabra total = DoblePalabra{u[i + j]} + v[i] + acarreo;
        u[i + j] = Baja(total);
        acarreo = Alta(total);
    }
    u[j + v.size()] += acarreo;
}

} // namespace

// Knuth's algorithm D.
Magnitud DivideLarga(Magnitud& dividendo, std::span<const Palabra> divisor) {
    const auto normal = static_cast<std::size_t>(std::countl_zero(divisor.back()));
    Magnitud u = Desplaza(dividendo, normal);
    Magnitud v = Desplaza(divisor, normal);
    v.pop_back();
    const std::size_t n = v.size();
    Magnitud cociente(u.size() - n);
    for (std::size_t j = cociente.size(); j-- > 0;) {
        const DoblePalabra cabeza = DoblePalabra{u[j + n]} << BitsPalabra | u[j + n - 1];
        DoblePalabra q = cabeza / v[n - 1];
        DoblePalabra r = cabeza % v[n - 1];
        while (Alta(q) != 0 ||
               Baja(q) * DoblePalabra{v[n - 2]} > (r << BitsPalabra | u[j + n - 2])) {
            --q;
            r += v[n - 1];
            if (Alta(r) != 0)
                break;
        }
        if (RestaMúltiploEn(u, j, v, Baja(q))) { // q was one too large
            --q;
            DevuelveEn(u, j, v);
        }
        cociente[j] = Baja(q);
    }
    // The remainder, shifted back.
    dividendo.assign(n, 0);
    for (std::size_t i = 0; i < n; ++i)
        dividendo[i] = Baja((DoblePalabra{u[i + 1]} << BitsPalabra | u[i]) >> normal);
    QuitaCerosAltos(dividendo);
    QuitaCerosAltos(cociente);
    return cociente;
}

Magnitud DivideCorta(Magnitud& dividendo, Palabra divisor) {
    Magnitud cociente(dividendo.size());
    Palabra resto = 0;
    for (std::size_t i = dividendo.size(); i-- > 0;) {
        const DoblePalabra cabeza = DoblePalabra{resto} << BitsPalabra | dividendo[i];
        cociente[i] = Baja(cabeza / divisor);
        resto = Baja(cabeza % divisor);
    }
    dividendo.assign(1, resto);
    QuitaCerosAltos(dividendo);
    QuitaCerosAltos(cociente);
    return cociente;
}

} // namespace quiralto
