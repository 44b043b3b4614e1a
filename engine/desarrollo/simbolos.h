// The values that an expansion computes with: sums of terms, each a number times powers of symbols.
//
// A base is what can stand in front of "^": a variable, a number, a function call, a group in
// parentheses; also a whole quotient, which is never raised. A symbol is a base together with one
// literal exponent: X^(A+2) is the symbol (X, A) to the 1 times the symbol (X, 1) to the 2. So
// every exponent in a literal part is a plain number, and equal bases multiply by adding numbers.
//
// Symbols and bases are numbered by the table that made them; sums of two tables do not mix. Every
// text that a base holds is final: its numbers are rounded. Nothing here is nested, so nothing
// recurs with the depth of the input.
#pragma once

#include "engine/base/contexto.h"

#include <cstdint>
#include <deque>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace quiralto {

using IdSímbolo = std::uint32_t;
using IdBase = std::uint32_t;

struct Factor {
    IdSímbolo símbolo;
    double exponente; // not 0
    bool operator==(const Factor&) const = default;
};

// Factors in the order of their texts: variables by their letters (or numbers), then everything
// else by the text of its base; of one base the plain symbol last. Each symbol once.
using Literal = std::vector<Factor>;

struct Término {
    double coeficiente;
    Literal literal;
};

// Terms in the order in which they are written; no two with the same literal part, none 0.
using Términos = std::vector<Término>;

enum class ClaseBase : std::uint8_t { Variable, Número, Función, Grupo, Cociente, Opaca };

struct Base {
    ClaseBase clase;
    std::string texto;         // as it stands in front of "^"
    double número = 0;         // Número: its value; Variable: its place in the alphabet
    Términos numerador = {};   // Grupo: its contents; Cociente
    Términos denominador = {}; // Cociente: one term (coefficient positive, not a number) or several
    IdSímbolo símbolo{};       // its plain symbol
    std::uint64_t clave{};     // orders bases; equal for some bases of which the text decides
};

struct Símbolo {
    IdBase base;
    std::uint32_t exponente; // a literal exponent of the table; 0 is 1
};

// How an expansion treats quotients: as terms of a sum, or as one fraction around everything.
enum class ClaseDesarrollo : std::uint8_t { Simplificado, Completo };

class TablaSímbolos {
public:
    TablaSímbolos(Contexto& contextoDeLaOrden, ClaseDesarrollo claseDelDesarrollo);

    Contexto& contexto;
    const ClaseDesarrollo clase;

    // The plain symbol of the base with that text; it is made where there is none. Fault: run-time
    // error 14 once the table's texts are too long together.
    IdSímbolo DevVariable(double lugar, std::string texto);
    IdSímbolo DevBase(Base base);

    // The same base with a literal part as its exponent; `texto` is the literal part's.
    IdSímbolo ConExponente(IdBase base, const Literal& literal, const std::string& texto);

    const Base& BaseDe(IdSímbolo s) const { return bases_[símbolos_[s].base]; }
    IdBase IdDe(IdSímbolo s) const { return símbolos_[s].base; }
    IdSímbolo SímboloDe(IdBase b) const { return bases_[b].símbolo; }
    bool EsLlano(IdSímbolo s) const { return símbolos_[s].exponente == 0; }
    const std::string& TextoExponente(IdSímbolo s) const {
        return exponentes_[símbolos_[s].exponente].texto;
    }
    const Literal& LiteralExponente(IdSímbolo s) const {
        return exponentes_[símbolos_[s].exponente].literal;
    }

    // The order of the factors of a literal part.
    bool Precede(IdSímbolo a, IdSímbolo b) const {
        return claves_[a] != claves_[b] ? claves_[a] < claves_[b] : PrecedePorTexto(a, b);
    }

    // Like terms only to the letter: for unknowns that no value stands for.
    bool soloPorLetra = false;

    // How deep the quotients and groups at work stand inside each other.
    int profundidad = 0;

    // Whether a product can meet a group or a number that has become a whole power.
    bool HayBasesReducibles() const { return hayReducibles_; }
    bool HayCocientes() const { return hayCocientes_; }

private:
    struct Exponente {
        std::string texto;
        Literal literal;
    };

    bool PrecedePorTexto(IdSímbolo a, IdSímbolo b) const;
    void CuentaTexto(std::size_t longitud);

    std::deque<Base> bases_; // references to them stay valid
    std::vector<Símbolo> símbolos_;
    std::vector<std::uint64_t> claves_; // of the base of each symbol
    std::deque<Exponente> exponentes_;
    std::unordered_map<std::string, IdSímbolo> porTexto_;
    std::unordered_map<std::string, std::uint32_t> exponentePorTexto_;
    std::unordered_map<std::uint64_t, IdSímbolo> porPareja_; // base and literal exponent
    std::size_t longitudTextos_ = 0;
    bool hayReducibles_ = false;
    bool hayCocientes_ = false;
};

// Held by whatever works on the inside of a quotient or group: recursion that follows the input's
// depth ends in run-time error 14.
class GuardaProfundidad {
public:
    explicit GuardaProfundidad(TablaSímbolos& tabla);
    ~GuardaProfundidad() { --tabla_.profundidad; }
    GuardaProfundidad(const GuardaProfundidad&) = delete;
    GuardaProfundidad& operator=(const GuardaProfundidad&) = delete;

private:
    TablaSímbolos& tabla_;
};

// The fraction with a denominator up to 1000 that a number is, but for the noise of rounding. The
// denominator is positive, 1 for a whole number, and 0 where there is none.
struct FracciónPequeña {
    double numerador;
    double denominador;
};
FracciónPequeña DevFracciónPequeña(double valor);

// An exponent without the noise of sums and products of thirds and decimals, which would keep equal
// powers apart.
double LimpiaExponente(double exponente);

// The whole number that the noise of a power or a quotient keeps a coefficient from being.
double LimpiaEntero(double valor);

// The product of two literal parts, into `producto` (not one of the two).
void MultiplicaLiterales(const TablaSímbolos& tabla, const Literal& a, const Literal& b,
                         Literal& producto);

std::uint64_t DevHash(const Literal& literal);

// The factors of one base that stand together from literal[desde]: the position behind them.
std::size_t FinDeBase(const TablaSímbolos& tabla, const Literal& literal, std::size_t desde);

// The quotient that a term is, or nullptr. A term of a sum that holds a quotient holds nothing
// else but its coefficient.
const Base* DevCocienteDe(const TablaSímbolos& tabla, const Literal& literal);

inline Términos SumaNúmero(double valor) {
    return valor == 0 ? Términos{} : Términos{{valor, {}}};
}
inline Términos SumaSímbolo(IdSímbolo símbolo, double exponente = 1) {
    return {{1, {{símbolo, exponente}}}};
}
inline bool EsNúmero(const Términos& suma) {
    return suma.empty() || (suma.size() == 1 && suma[0].literal.empty());
}
inline double DevNúmero(const Términos& suma) {
    return suma.empty() ? 0 : suma[0].coeficiente;
}
bool EsEntero(double valor);

} // namespace quiralto
