// The coefficients of both algebras: an exact fraction as long as its numerator and denominator
// stay within MáximosBits, otherwise a Double, and a Double from then on.
//
// A fraction is in lowest terms with a positive denominator. One whose numerator fits 63 bits and
// whose denominator fits 32 is held in place (16 bytes, nothing allocated); larger ones have their
// whole numbers elsewhere. A value is always finite: what no Double can hold ends in run-time error
// 6, also a number that is not 0 and too small for one, and a division by zero in 11.
#pragma once

#include "engine/numeros/entero.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quiralto {

class Coeficiente {
public:
    // Of the numerator and of the denominator: every number that a text of the language can hold is
    // exact, and arithmetic stays a matter of a few dozen words.
    static constexpr std::size_t MáximosBits = 1200;

    Coeficiente(std::int64_t entero = 0); // NOLINT: a number stands for itself
    Coeficiente(Entero numerador, Entero denominador);

    // The number that the general form writes for a finite Double: at most 15 digits, or a whole
    // number up to 2^53.
    static Coeficiente DesdeDouble(double valor);

    // The Double to its last bit. Faults: run-time error 5 or 6 for what is not finite.
    static Coeficiente DesdeBits(double valor);

    // The Double itself, not exact. Faults: run-time error 5 or 6 for what is not finite.
    static Coeficiente Inexacto(double valor);

    // The decimal number at the front of the text, every digit of it; 0 where there is none. Fault:
    // run-time error 6 beyond the Double range.
    static Coeficiente DesdeTexto(std::string_view texto);

    Coeficiente(const Coeficiente& otro) { Copia(otro); }
    Coeficiente(Coeficiente&& otro) noexcept { Roba(otro); }
    Coeficiente& operator=(const Coeficiente& otro) {
        if (otro.clase_ == Clase::Grande)
            return *this = Coeficiente(otro); // the copy may fail
        Libera();
        Copia(otro);
        return *this;
    }
    Coeficiente& operator=(Coeficiente&& otro) noexcept {
        if (this != &otro) {
            Libera();
            Roba(otro);
        }
        return *this;
    }
    ~Coeficiente() { Libera(); }

    bool EsExacto() const { return clase_ != Clase::Real; }
    bool EsEntero() const;
    bool EsCero() const { return clase_ == Clase::Pequeño ? valor_.pequeño == 0 : Signo() == 0; }
    bool EsUno() const { return clase_ == Clase::Pequeño ? EsPequeño(1) : EsReal(1); }
    bool EsMenosUno() const { return clase_ == Clase::Pequeño ? EsPequeño(-1) : EsReal(-1); }
    int Signo() const;

    // Whether it is a whole number of 63 bits held in place, and that number.
    bool EsEnteroPequeño() const { return clase_ == Clase::Pequeño && denominador_ == 1; }
    std::int64_t EnteroPequeño() const { return valor_.pequeño; }

    // The nearest Double.
    double ADouble() const;

    // Of an exact one.
    Entero Numerador() const;
    Entero Denominador() const;

    // Rounded half away from zero at 0 to 15 decimal places; exact.
    Coeficiente Redondeado(int dígitos) const;

    // What is left of it in a text: rounded, and with the digits of the general form.
    Coeficiente Escrito(int dígitos) const;

    // The text of Escrito(dígitos).
    std::string Texto(int dígitos) const;

    void CambiaSigno();
    Coeficiente Absoluto() const { return Signo() < 0 ? -*this : *this; }
    Coeficiente operator-() const {
        Coeficiente opuesto = *this;
        opuesto.CambiaSigno();
        return opuesto;
    }
    Coeficiente& operator+=(const Coeficiente& otro) {
        std::int64_t suma = 0;
        if (EsEnteroPequeño() && otro.EsEnteroPequeño() &&
            !__builtin_add_overflow(valor_.pequeño, otro.valor_.pequeño, &suma) && suma != Mínimo) {
            valor_.pequeño = suma;
            return *this;
        }
        return SumaGeneral(otro);
    }
    Coeficiente& operator-=(const Coeficiente& otro) { return *this += -otro; }
    Coeficiente& operator*=(const Coeficiente& otro) { return *this = *this * otro; }
    Coeficiente& operator/=(const Coeficiente& otro) { return *this *= otro.Inverso(); }
    Coeficiente Inverso() const;

    // Raised to a whole exponent of either sign; 0^0 is 1.
    Coeficiente Potencia(std::int64_t exponente) const;

    friend Coeficiente operator+(Coeficiente a, const Coeficiente& b) { return a += b; }
    friend Coeficiente operator-(Coeficiente a, const Coeficiente& b) { return a -= b; }
    friend Coeficiente operator*(const Coeficiente& a, const Coeficiente& b) {
        std::int64_t producto = 0;
        if (a.EsEnteroPequeño() && b.EsEnteroPequeño() &&
            !__builtin_mul_overflow(a.valor_.pequeño, b.valor_.pequeño, &producto) &&
            producto != Mínimo)
            return producto;
        return Multiplica(a, b);
    }
    friend Coeficiente operator/(const Coeficiente& a, const Coeficiente& b) {
        return a * b.Inverso();
    }
    friend bool operator==(const Coeficiente& a, const Coeficiente& b);

private:
    enum class Clase : std::uint32_t { Pequeño, Grande, Real };
    struct Fracción {
        Entero numerador;
        Entero denominador;
    };
    static constexpr std::int64_t Mínimo = INT64_MIN; // has no negative: never held

    bool EsPequeño(std::int64_t entero) const {
        return valor_.pequeño == entero && denominador_ == 1;
    }
    bool EsReal(double valor) const { return clase_ == Clase::Real && valor_.real == valor; }
    void Copia(const Coeficiente& otro) {
        if (otro.clase_ == Clase::Grande)
            return CopiaGrande(otro);
        valor_ = otro.valor_;
        denominador_ = otro.denominador_;
        clase_ = otro.clase_;
    }
    void Roba(Coeficiente& otro) noexcept {
        valor_ = otro.valor_;
        denominador_ = otro.denominador_;
        clase_ = otro.clase_;
        otro.clase_ = Clase::Pequeño;
    }
    void Libera() {
        if (clase_ == Clase::Grande)
            delete valor_.grande;
    }
    void CopiaGrande(const Coeficiente& otro);
    Coeficiente& SumaGeneral(Coeficiente otro);
    static Coeficiente Multiplica(const Coeficiente& a, const Coeficiente& b);
    static Coeficiente DesdeFracción(Entero numerador, Entero denominador); // lowest terms

    union Valor {
        std::int64_t pequeño; // the numerator
        double real;
        Fracción* grande;
    };
    Valor valor_{};
    std::uint32_t denominador_ = 1;
    Clase clase_ = Clase::Pequeño;
};

// The greatest rational number of which both are whole multiples, never negative: gcd(a/b, c/d) for
// exact ones; that of 0 and 0 is 0.
Coeficiente DevMCD(const Coeficiente& a, const Coeficiente& b);

} // namespace quiralto
