// The symbols of one expansion: what can stand in front of "^", numbered.
//
// A base is a variable, a number, a function call, a group in parentheses or a whole quotient. EXP
// is the number e raised to its argument, so that its powers multiply like those of any base; SQR
// knows its argument as a base, of which it is the power to the one half (producto.h). Every text
// that a base holds is final: its numbers are rounded. Nothing here is nested, so nothing recurs
// with the depth of the input.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/base/contexto.h"
#include "engine/desarrollo/suma.h"
#include "engine/lenguaje/operaciones.h"

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quiralto {

enum class ClaseBase : std::uint8_t { Variable, Número, Función, Euler, Grupo, Cociente, Opaca };

struct Base {
    ClaseBase clase;
    std::string texto;       // as it stands in front of "^"
    double lugar = 0;        // Variable: its place in the alphabet, and what a letter is worth
    Términos contenido = {}; // Número, Grupo: its value; Función: the argument; Cociente: the
                             // numerator, its content 1 and its first coefficient positive
    const DescripciónOperación* función = nullptr; // Función
    Literal denominador = {};                      // Cociente: exponents above 0
    bool signoAbajo = false;                       // Cociente: the denominator is the opposite
    IdSímbolo radicando{}; // Función SQR: the plain symbol of its argument as a base
    IdSímbolo símbolo{};   // its plain symbol
    std::uint64_t clave{}; // orders bases; equal for some bases of which the text decides
};

inline bool EsRaíz(const Base& base) {
    return base.clase == ClaseBase::Función && base.función->código == Operación::Sqr;
}

struct Símbolo {
    IdBase base;
    std::uint32_t exponente; // a literal exponent of the table; 0 is 1
};

// How an expansion treats quotients (as terms of a sum, or as one fraction around everything), and
// which terms are alike in it: those whose values agree too, or, in the equations of a linear
// system, where an unknown has no value, only those that are equal to the letter. There what has a
// value (a function of a number, a power of two numbers) is evaluated at once.
enum class ClaseDesarrollo : std::uint8_t { Simplificado, Completo, EcuaciónLineal };

class PuntosDePrueba;

class TablaSímbolos {
public:
    TablaSímbolos(Contexto& contextoDeLaOrden, ClaseDesarrollo claseDelDesarrollo);

    Contexto& contexto;
    const ClaseDesarrollo clase;

    // The plain symbol of the base with that text; it is made where there is none. Fault: run-time
    // error 14 once the table's texts are too long together.
    IdSímbolo DevVariable(double lugar, std::string texto);
    IdSímbolo DevBase(Base base);

    // The base whose powers EXP writes.
    IdBase DevEuler();

    // The same base with a literal part as its exponent; `texto` is the literal part's. Fault:
    // run-time error 14 for exponents too deep in exponents.
    IdSímbolo ConExponente(IdBase base, const Literal& literal, const std::string& texto);

    const Base& BaseDe(IdSímbolo s) const { return bases_[símbolos_[s].base]; }
    const Base& BasePorId(IdBase b) const { return bases_[b]; }
    IdBase IdDe(IdSímbolo s) const { return símbolos_[s].base; }
    bool EsLlano(IdSímbolo s) const { return símbolos_[s].exponente == 0; }
    const std::string& TextoExponente(IdSímbolo s) const {
        return exponentes_[símbolos_[s].exponente].texto;
    }
    const Literal& LiteralExponente(IdSímbolo s) const {
        return exponentes_[símbolos_[s].exponente].literal;
    }
    // Which literal exponent it is; 0 is 1.
    std::uint32_t IdExponente(IdSímbolo s) const { return símbolos_[s].exponente; }

    // The order of the factors of a literal part.
    bool Precede(IdSímbolo a, IdSímbolo b) const {
        return claves_[a] != claves_[b] ? claves_[a] < claves_[b] : PrecedePorTexto(a, b);
    }
    void Ordena(Literal& literal) const;

    // Whether a product can meet a group or a number that has become a whole power, a root, a
    // quotient.
    bool HayBasesReducibles() const { return hayReducibles_; }
    bool HayRaíces() const { return hayRaíces_; }
    bool HayCocientes() const { return hayCocientes_; }
    bool SoloPorLetra() const { return clase == ClaseDesarrollo::EcuaciónLineal; }

    // A Double that stands for another number, as SQR(2), to its last bit: it is remembered.
    Coeficiente DevRedondeado(double valor) {
        hayRedondeados_ = true;
        return Coeficiente::DesdeBits(valor);
    }
    bool HayRedondeados() const { return hayRedondeados_; }

    // One more level of quotients and groups at work inside each other; see GuardaProfundidad.
    void Entra();
    void Sale() { --profundidad_; }

    // The points of puntos_de_prueba.h, once they are drawn.
    const std::shared_ptr<PuntosDePrueba>& Puntos() const { return puntos_; }
    void PonPuntos(std::shared_ptr<PuntosDePrueba> puntos) { puntos_ = std::move(puntos); }

private:
    struct ExponenteLiteral {
        std::string texto;
        Literal literal;
        int hondura = 0; // how deep exponents stand in it
    };

    bool PrecedePorTexto(IdSímbolo a, IdSímbolo b) const;
    void CuentaTexto(std::size_t longitud);

    std::deque<Base> bases_; // references to them stay valid
    std::vector<Símbolo> símbolos_;
    std::vector<std::uint64_t> claves_; // of the base of each symbol
    std::deque<ExponenteLiteral> exponentes_;
    std::unordered_map<std::string_view, IdSímbolo> porTexto_; // the texts of bases_
    std::unordered_map<std::string_view, std::uint32_t> exponentePorTexto_;
    std::unordered_map<std::uint64_t, IdSímbolo> porPareja_; // base and literal exponent
    std::shared_ptr<PuntosDePrueba> puntos_;
    std::size_t longitudTextos_ = 0;
    int profundidad_ = 0;
    bool hayReducibles_ = false;
    bool hayRaíces_ = false;
    bool hayCocientes_ = false;
    bool hayRedondeados_ = false;
};

// Held by whatever works on the inside of a quotient or group: recursion that follows the input's
// depth ends in run-time error 14.
class GuardaProfundidad {
public:
    explicit GuardaProfundidad(TablaSímbolos& tabla) : tabla_(tabla) { tabla.Entra(); }
    ~GuardaProfundidad() { tabla_.Sale(); }
    GuardaProfundidad(const GuardaProfundidad&) = delete;
    GuardaProfundidad& operator=(const GuardaProfundidad&) = delete;

private:
    TablaSímbolos& tabla_;
};

// The factors of one base that stand together from literal[desde]: the position behind them.
std::size_t FinDeBase(const TablaSímbolos& tabla, const Literal& literal, std::size_t desde);

// Whether the factor is the only one of its base, to a whole exponent.
inline bool EsPotenciaEntera(const TablaSímbolos& tabla, const Literal& literal, std::size_t i) {
    const Factor& factor = literal[i];
    return tabla.EsLlano(factor.símbolo) && factor.exponente.EsEntero() &&
           (i == 0 || tabla.IdDe(literal[i - 1].símbolo) != tabla.IdDe(factor.símbolo));
}

// Whether a literal part has no power of that base with more than a number as its exponent.
bool EsBaseLlana(const TablaSímbolos& tabla, const Literal& literal, IdBase base);

// The quotient that a term is, or nullptr. A term of a sum that holds a quotient holds nothing
// else but its coefficient, save for quotients that stay nested inside a numerator or denominator.
const Base* DevCocienteDe(const TablaSímbolos& tabla, const Literal& literal);
bool HayCocientes(const TablaSímbolos& tabla, const Términos& suma);

} // namespace quiralto
