#include "engine/numeros/entero.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <numeric>
#include <span>
#include <utility>

namespace quiralto {
namespace {

constexpr std::int64_t Mínimo = std::numeric_limits<std::int64_t>::min(); // has no negative
constexpr Palabra MáximoPequeño = std::numeric_limits<std::int64_t>::max();

Palabra MagnitudDe(std::int64_t valor) {
    return valor < 0 ? Palabra{0} - static_cast<Palabra>(valor) : static_cast<Palabra>(valor);
}

} // namespace

// The magnitude and sign of a number, small or large. It points into itself or into the number.
class Entero::Vista {
public:
    explicit Vista(const Entero& número) : una_(MagnitudDe(número.pequeño_)), número_(número) {}
    Vista(const Vista&) = delete;
    Vista& operator=(const Vista&) = delete;

    std::span<const Palabra> Palabras() const {
        if (!número_.grande_.empty())
            return número_.grande_;
        return {&una_, una_ == 0 ? std::size_t{0} : std::size_t{1}};
    }
    bool Negativo() const { return número_.pequeño_ < 0; }

private:
    Palabra una_;
    const Entero& número_;
};

Entero::Entero(std::int64_t valor) : pequeño_(valor) {
    if (valor == Mínimo)
        *this = DesdeMagnitud({MagnitudDe(valor)}, true);
}

Entero Entero::DesdeDouble(double valor) {
    int exponente = 0;
    const double fracción = std::frexp(std::fabs(valor), &exponente);
    constexpr int BitsMantisa = std::numeric_limits<double>::digits;
    const auto mantisa = static_cast<std::int64_t>(std::ldexp(fracción, BitsMantisa));
    const int sobra = exponente - BitsMantisa;
    Entero entero = sobra < 0 ? Entero(mantisa >> std::min(-sobra, 63))
                              : Entero(mantisa).Desplazado(static_cast<std::size_t>(sobra));
    if (valor < 0)
        entero.CambiaSigno();
    return entero;
}

Entero Entero::DesdeAncho(Entero128 valor) {
    if (const auto corto = static_cast<std::int64_t>(valor); Entero128{corto} == valor)
        return corto;
    constexpr int BitsDePalabra = 64;
    auto baja = static_cast<Palabra>(valor);
    auto alta = static_cast<Palabra>(valor >> BitsDePalabra);
    const bool negativo = valor < 0;
    if (negativo) { // the opposite of the lowest one is no Entero128
        baja = ~baja + 1;
        alta = ~alta + (baja == 0 ? 1 : 0);
    }
    return DesdeMagnitud({baja, alta}, negativo);
}

Entero Entero::DesdeMagnitud(Magnitud magnitud, bool negativo) {
    QuitaCerosAltos(magnitud);
    Entero entero;
    if (magnitud.size() > 1 || (magnitud.size() == 1 && magnitud[0] > MáximoPequeño)) {
        entero.grande_ = std::move(magnitud);
        entero.pequeño_ = 1;
    } else if (!magnitud.empty()) {
        entero.pequeño_ = static_cast<std::int64_t>(magnitud[0]);
    }
    if (negativo)
        entero.pequeño_ = -entero.pequeño_;
    return entero;
}

std::size_t Entero::Bits() const {
    if (grande_.empty())
        return static_cast<std::size_t>(std::bit_width(MagnitudDe(pequeño_)));
    return (grande_.size() - 1) * BitsPalabra +
           static_cast<std::size_t>(std::bit_width(grande_.back()));
}

double Entero::ADouble() const {
    if (grande_.empty())
        return static_cast<double>(pequeño_);
    // The 64 highest bits round as the whole number would, once the lowest of them tells whether
    // anything stands below.
    const std::size_t sobra = Bits() - BitsPalabra;
    const std::size_t palabra = sobra / BitsPalabra;
    const auto bits = static_cast<unsigned>(sobra % BitsPalabra);
    Palabra cabeza = grande_[palabra] >> bits;
    bool hayResto = bits != 0 && grande_[palabra] << (BitsPalabra - bits) != 0;
    if (bits != 0)
        cabeza |= grande_[palabra + 1] << (BitsPalabra - bits);
    for (std::size_t i = 0; i < palabra && !hayResto; ++i)
        hayResto = grande_[i] != 0;
    if (hayResto)
        cabeza |= 1;
    const double valor = sobra > std::numeric_limits<double>::max_exponent
                             ? std::numeric_limits<double>::infinity()
                             : std::ldexp(static_cast<double>(cabeza), static_cast<int>(sobra));
    return pequeño_ < 0 ? -valor : valor;
}

Palabra Entero::Módulo(Palabra módulo) const {
    Palabra resto = MagnitudDe(pequeño_) % módulo;
    if (!grande_.empty()) {
        resto = 0;
        for (std::size_t i = grande_.size(); i-- > 0;)
            resto = Baja((DoblePalabra{resto} << BitsPalabra | grande_[i]) % módulo);
    }
    return pequeño_ < 0 && resto != 0 ? módulo - resto : resto;
}

void Entero::CambiaSigno() {
    pequeño_ = -pequeño_; // never the least of its type
}

void Entero::SumaConSigno(const Vista& otro, bool negativo) {
    const std::span<const Palabra> sumando = otro.Palabras();
    const bool negativoEste = pequeño_ < 0;
    Magnitud suma = grande_.empty() ? Magnitud(1, MagnitudDe(pequeño_)) : std::move(grande_);
    QuitaCerosAltos(suma);
    bool signo = negativoEste;
    if (negativoEste == negativo) {
        SumaEn(suma, sumando);
    } else if (!EsMenor(suma, sumando)) {
        RestaEn(suma, sumando);
    } else {
        Magnitud resta(sumando.begin(), sumando.end());
        RestaEn(resta, suma);
        suma = std::move(resta);
        signo = negativo;
    }
    *this = DesdeMagnitud(std::move(suma), signo);
}

Entero& Entero::operator+=(const Entero& otro) {
    std::int64_t suma = 0;
    if (grande_.empty() && otro.grande_.empty() &&
        !__builtin_add_overflow(pequeño_, otro.pequeño_, &suma) && suma != Mínimo) {
        pequeño_ = suma;
        return *this;
    }
    if (this == &otro)
        return *this = Desplazado(1);
    SumaConSigno(Vista(otro), otro.pequeño_ < 0);
    return *this;
}

Entero& Entero::operator-=(const Entero& otro) {
    std::int64_t resta = 0;
    if (grande_.empty() && otro.grande_.empty() &&
        !__builtin_sub_overflow(pequeño_, otro.pequeño_, &resta) && resta != Mínimo) {
        pequeño_ = resta;
        return *this;
    }
    if (this == &otro)
        return *this = Entero();
    SumaConSigno(Vista(otro), otro.pequeño_ > 0);
    return *this;
}

Entero operator*(const Entero& a, const Entero& b) {
    std::int64_t producto = 0;
    if (a.grande_.empty() && b.grande_.empty() &&
        !__builtin_mul_overflow(a.pequeño_, b.pequeño_, &producto))
        return producto;
    const Entero::Vista va(a);
    const Entero::Vista vb(b);
    return Entero::DesdeMagnitud(Multiplica(va.Palabras(), vb.Palabras()),
                                 va.Negativo() != vb.Negativo());
}

Entero& Entero::operator*=(const Entero& otro) {
    return *this = *this * otro;
}

void Entero::SumaProducto(const Entero& a, const Entero& b) {
    *this += a * b;
}

void Entero::RestaProducto(const Entero& a, const Entero& b) {
    *this -= a * b;
}

Entero Entero::Desplazado(std::size_t bits) const {
    const Vista vista(*this);
    return DesdeMagnitud(Desplaza(vista.Palabras(), bits), vista.Negativo());
}

Entero::División Entero::Divide(const Entero& dividendo, const Entero& divisor) {
    if (dividendo.grande_.empty() && divisor.grande_.empty())
        return {dividendo.pequeño_ / divisor.pequeño_, dividendo.pequeño_ % divisor.pequeño_};
    const Vista vn(dividendo);
    const Vista vd(divisor);
    const std::span<const Palabra> d = vd.Palabras();
    Magnitud resto(vn.Palabras().begin(), vn.Palabras().end());
    Magnitud cociente;
    if (d.size() == 1)
        cociente = DivideCorta(resto, d[0]);
    else if (!EsMenor(resto, d))
        cociente = DivideLarga(resto, d);
    return {DesdeMagnitud(std::move(cociente), vn.Negativo() != vd.Negativo()),
            DesdeMagnitud(std::move(resto), vn.Negativo())};
}

Entero DevMCD(Entero a, Entero b) {
    constexpr std::size_t BitsPequeño = 63;
    while (!b.EsCero() && (a.Bits() > BitsPequeño || b.Bits() > BitsPequeño))
        a = std::exchange(b, Entero::Divide(a, b).resto);
    if (b.EsCero()) {
        if (a.Signo() < 0)
            a.CambiaSigno();
        return a;
    }
    constexpr Palabra Módulo = Palabra{1} << BitsPequeño;
    const auto pequeño = [](Entero& n) {
        if (n.Signo() < 0)
            n.CambiaSigno();
        return static_cast<std::int64_t>(n.Módulo(Módulo));
    };
    return std::gcd(pequeño(a), pequeño(b));
}

Entero DevPotenciaDeDiez(int exponente) {
    Entero potencia = 1;
    Entero base = 10;
    for (int e = exponente; e > 0; e /= 2) {
        if (e % 2 == 1)
            potencia *= base;
        if (e > 1)
            base = base * base;
    }
    return potencia;
}

double DevCociente(const Entero& dividendo, const Entero& divisor) {
    constexpr std::size_t BitsExactos = std::numeric_limits<double>::digits;
    if (divisor.EsUno())
        return dividendo.ADouble();
    if (dividendo.Bits() <= BitsExactos && divisor.Bits() <= BitsExactos)
        return dividendo.ADouble() / divisor.ADouble();
    if (dividendo.EsCero())
        return 0;
    // A quotient of 65 bits or more, its lowest bit set where a remainder is left, rounds as the
    // whole quotient would.
    const auto bits = [](const Entero& n) { return static_cast<std::int64_t>(n.Bits()); };
    const std::int64_t escala = bits(divisor) - bits(dividendo) + std::int64_t{BitsPalabra} + 2;
    auto [cociente, resto] =
        escala > 0
            ? Entero::Divide(dividendo.Desplazado(static_cast<std::size_t>(escala)), divisor)
            : Entero::Divide(dividendo, divisor.Desplazado(static_cast<std::size_t>(-escala)));
    cociente = cociente.Desplazado(1);
    if (!resto.EsCero())
        cociente += dividendo.Signo() == divisor.Signo() ? 1 : -1;
    constexpr std::int64_t MuyLejos = 8192; // beyond every exponent of a Double
    return std::ldexp(cociente.ADouble(),
                      static_cast<int>(std::clamp(-escala - 1, -MuyLejos, MuyLejos)));
}

} // namespace quiralto
