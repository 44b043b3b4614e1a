// Whole numbers of 128 bits, with and without sign, for compilers that have none of their own
// (those of 32-bit processors): the operations that the engine needs of them, with the same
// results, modulo 2^128. Dividing goes bit by bit.
#pragma once

#include <compare>
#include <concepts>
#include <cstdint>

namespace quiralto {

template <bool ConSigno> class Ancho128 {
public:
    constexpr Ancho128() = default;
    template <std::integral Entero>
    constexpr Ancho128(Entero valor)
        : bajo_(static_cast<std::uint64_t>(valor)),
          alto_(valor < Entero{0} ? ~std::uint64_t{0} : 0) {}

    template <std::integral Entero> constexpr explicit operator Entero() const {
        return static_cast<Entero>(bajo_);
    }

    friend constexpr Ancho128 operator+(Ancho128 a, Ancho128 b) {
        const std::uint64_t bajo = a.bajo_ + b.bajo_;
        return Ancho128(a.alto_ + b.alto_ + (bajo < a.bajo_ ? 1 : 0), bajo);
    }
    constexpr Ancho128 operator-() const {
        return Ancho128(~alto_, ~bajo_) + Ancho128(std::uint64_t{0}, std::uint64_t{1});
    }
    friend constexpr Ancho128 operator-(Ancho128 a, Ancho128 b) { return a + -b; }
    friend constexpr Ancho128 operator|(Ancho128 a, Ancho128 b) {
        return Ancho128(a.alto_ | b.alto_, a.bajo_ | b.bajo_);
    }

    friend constexpr Ancho128 operator*(Ancho128 a, Ancho128 b) {
        constexpr std::uint64_t Mitad = 0xFFFFFFFF;
        const std::uint64_t a0 = a.bajo_ & Mitad;
        const std::uint64_t a1 = a.bajo_ >> 32;
        const std::uint64_t b0 = b.bajo_ & Mitad;
        const std::uint64_t b1 = b.bajo_ >> 32;
        const std::uint64_t medio = a1 * b0 + (a0 * b0 >> 32);
        const std::uint64_t cruzado = a0 * b1 + (medio & Mitad);
        return Ancho128(a1 * b1 + (medio >> 32) + (cruzado >> 32) + a.alto_ * b.bajo_ +
                            a.bajo_ * b.alto_,
                        a.bajo_ * b.bajo_);
    }

    // By 0 to 127 bits.
    template <std::integral Entero> friend constexpr Ancho128 operator<<(Ancho128 a, Entero bits) {
        if (bits == 0)
            return a;
        if (bits >= 64)
            return Ancho128(a.bajo_ << (bits - 64), std::uint64_t{0});
        return Ancho128(a.alto_ << bits | a.bajo_ >> (64 - bits), a.bajo_ << bits);
    }
    template <std::integral Entero> friend constexpr Ancho128 operator>>(Ancho128 a, Entero bits) {
        const std::uint64_t signo = a.EsNegativo() ? ~std::uint64_t{0} : 0;
        if (bits == 0)
            return a;
        if (bits >= 64)
            return Ancho128(signo,
                            bits == 64 ? a.alto_ : a.alto_ >> (bits - 64) | signo << (128 - bits));
        return Ancho128(a.alto_ >> bits | signo << (64 - bits),
                        a.bajo_ >> bits | a.alto_ << (64 - bits));
    }

    // Towards zero; the divisor is not 0.
    friend constexpr Ancho128 operator/(Ancho128 a, Ancho128 b) { return Divide(a, b).cociente; }
    friend constexpr Ancho128 operator%(Ancho128 a, Ancho128 b) { return Divide(a, b).resto; }

    constexpr Ancho128& operator+=(Ancho128 b) { return *this = *this + b; }
    constexpr Ancho128& operator-=(Ancho128 b) { return *this = *this - b; }
    constexpr Ancho128& operator/=(Ancho128 b) { return *this = *this / b; }
    constexpr Ancho128& operator--() { return *this = *this - Ancho128(1); }

    friend constexpr bool operator==(Ancho128 a, Ancho128 b) = default;
    friend constexpr std::strong_ordering operator<=>(Ancho128 a, Ancho128 b) {
        if (a.EsNegativo() != b.EsNegativo())
            return a.EsNegativo() ? std::strong_ordering::less : std::strong_ordering::greater;
        return a.alto_ != b.alto_ ? a.alto_ <=> b.alto_ : a.bajo_ <=> b.bajo_;
    }

private:
    struct División {
        Ancho128 cociente;
        Ancho128 resto;
    };

    constexpr Ancho128(std::uint64_t alto, std::uint64_t bajo) : bajo_(bajo), alto_(alto) {}

    constexpr bool EsNegativo() const { return ConSigno && alto_ >> 63 != 0; }
    constexpr bool CabeEnUnaPalabra() const { return alto_ == 0; }

    static constexpr División Divide(Ancho128 a, Ancho128 b) {
        const bool restoNegativo = a.EsNegativo();
        const bool cocienteNegativo = a.EsNegativo() != b.EsNegativo();
        División d = DivideNaturales(restoNegativo ? -a : a, b.EsNegativo() ? -b : b);
        if (cocienteNegativo)
            d.cociente = -d.cociente;
        if (restoNegativo)
            d.resto = -d.resto;
        return d;
    }

    // Both without sign, whatever their type.
    static constexpr División DivideNaturales(Ancho128 a, Ancho128 b) {
        if (a.CabeEnUnaPalabra() && b.CabeEnUnaPalabra())
            return {Ancho128(a.bajo_ / b.bajo_), Ancho128(a.bajo_ % b.bajo_)};
        División d{};
        for (int bit = 127; bit >= 0; --bit) {
            const bool sale = d.resto.alto_ >> 63 != 0; // the rest would need a bit more
            d.resto = d.resto << 1;
            d.resto.bajo_ |= (bit >= 64 ? a.alto_ >> (bit - 64) : a.bajo_ >> bit) & 1;
            if (!sale && d.resto.EsMenorSinSigno(b))
                continue;
            d.resto -= b;
            (bit >= 64 ? d.cociente.alto_ : d.cociente.bajo_) |= std::uint64_t{1} << (bit & 63);
        }
        return d;
    }

    constexpr bool EsMenorSinSigno(Ancho128 b) const {
        return alto_ != b.alto_ ? alto_ < b.alto_ : bajo_ < b.bajo_;
    }

    std::uint64_t bajo_ = 0;
    std::uint64_t alto_ = 0;
};

#ifdef __SIZEOF_INT128__
__extension__ using Natural128 = unsigned __int128;
__extension__ using Entero128 = __int128;
#else
using Natural128 = Ancho128<false>;
using Entero128 = Ancho128<true>;
#endif

} // namespace quiralto
