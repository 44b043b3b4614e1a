#include "engine/desarrollo/algebra_suma.h"

#include "engine/desarrollo/division_suma.h"
#include "engine/desarrollo/escribe_suma.h"
#include "engine/desarrollo/multinomio.h"
#include "engine/desarrollo/producto_empaquetado.h"
#include "engine/desarrollo/semejantes.h"
#include "engine/lenguaje/aritmetica.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quiralto {
namespace {

Términos MultiplicaCociente(TablaSímbolos& tabla, const Término& a, const Término& b);

// A factor that does not stay a power: a number or a group of one term to a whole power, a group of
// several to one from 1 up, none with more to its exponent. Its position, or the end.
std::size_t BuscaReducible(const TablaSímbolos& tabla, const Literal& literal) {
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla, literal, i);
        const Factor& factor = literal[i];
        if (fin == i + 1 && tabla.EsLlano(factor.símbolo) && EsEntero(factor.exponente)) {
            const Base& base = tabla.BaseDe(factor.símbolo);
            if (base.clase == ClaseBase::Número ||
                (base.clase == ClaseBase::Grupo &&
                 (factor.exponente > 0 || base.numerador.size() == 1)))
                return i;
        }
        i = fin;
    }
    return literal.size();
}

bool HayReducibles(const TablaSímbolos& tabla, const Términos& suma) {
    return tabla.HayBasesReducibles() && std::ranges::any_of(suma, [&](const Término& t) {
               return BuscaReducible(tabla, t.literal) < t.literal.size();
           });
}

Términos MultiplicaSinReducir(TablaSímbolos& tabla, const Términos& a, const Términos& b) {
    constexpr std::size_t ProductoCorto = 8;
    if (a.size() * b.size() > ProductoCorto)
        if (auto producto = MultiplicaEmpaquetados(tabla, a, b))
            return *std::move(producto);
    Recolector producto(tabla.contexto);
    Literal literal;
    for (const Término& ta : a) {
        const bool cocienteA = tabla.HayCocientes() && DevCocienteDe(tabla, ta.literal) != nullptr;
        for (const Término& tb : b) {
            const bool cocienteB =
                tabla.HayCocientes() && DevCocienteDe(tabla, tb.literal) != nullptr;
            const double coeficiente = ta.coeficiente * tb.coeficiente;
            if (cocienteA && tb.literal.empty() && EstáReducido(tabla, coeficiente, ta.literal)) {
                producto.Añade(coeficiente, ta.literal);
                continue;
            }
            if (cocienteB && ta.literal.empty() && EstáReducido(tabla, coeficiente, tb.literal)) {
                producto.Añade(coeficiente, tb.literal);
                continue;
            }
            if (cocienteA || cocienteB) {
                producto.Añade(MultiplicaCociente(tabla, ta, tb));
                continue;
            }
            MultiplicaLiterales(tabla, ta.literal, tb.literal, literal);
            producto.Añade(coeficiente, literal);
        }
    }
    return producto.Toma();
}

Términos Reduce(TablaSímbolos& tabla, Términos suma) {
    while (HayReducibles(tabla, suma)) {
        const GuardaProfundidad guarda(tabla);
        Recolector reducida(tabla.contexto);
        for (Término& término : suma) {
            const std::size_t i = BuscaReducible(tabla, término.literal);
            if (i == término.literal.size()) {
                reducida.Añade(término.coeficiente, término.literal);
                continue;
            }
            const Factor factor = término.literal[i];
            const Base& base = tabla.BaseDe(factor.símbolo);
            const Términos contenido =
                base.clase == ClaseBase::Número ? SumaNúmero(base.número) : base.numerador;
            término.literal.erase(término.literal.begin() + static_cast<std::ptrdiff_t>(i));
            const Términos potencia = ElevaAEntero(tabla, contenido, factor.exponente);
            reducida.Añade(MultiplicaSinReducir(tabla, {término}, potencia));
        }
        suma = reducida.Toma();
    }
    return suma;
}

Términos Multiplica(TablaSímbolos& tabla, const Términos& a, const Términos& b) {
    return Reduce(tabla, MultiplicaSinReducir(tabla, a, b));
}

// What a term is made of: coefficient * numerator / denominator.
Fracción Abre(const TablaSímbolos& tabla, const Término& término) {
    if (const Base* const cociente = DevCocienteDe(tabla, término.literal))
        return {cociente->numerador, cociente->denominador};
    return {{{1, término.literal}}, SumaNúmero(1)};
}

Términos MultiplicaCociente(TablaSímbolos& tabla, const Término& a, const Término& b) {
    const GuardaProfundidad guarda(tabla);
    const Fracción fa = Abre(tabla, a);
    const Fracción fb = Abre(tabla, b);
    const Fracción x = ReduceFracción(tabla, fa.numerador, fb.denominador);
    const Fracción y = ReduceFracción(tabla, fb.numerador, fa.denominador);
    const Términos numerador = Multiplica(tabla, x.numerador, y.numerador);
    const Términos coeficiente = SumaNúmero(a.coeficiente * b.coeficiente);
    return DevCociente(tabla, Multiplica(tabla, coeficiente, numerador),
                       Multiplica(tabla, x.denominador, y.denominador));
}

// A sum times a lone quotient whose denominator it divides, or is divided by.
std::optional<Términos> MultiplicaCancelando(TablaSímbolos& tabla, const Términos& suma,
                                             const Términos& otra) {
    if (!tabla.HayCocientes() || suma.size() < 2 || otra.size() != 1)
        return std::nullopt;
    const Base* const cociente = DevCocienteDe(tabla, otra[0].literal);
    if (cociente == nullptr || cociente->denominador.size() < 2)
        return std::nullopt;
    const Términos numerador = cociente->numerador;
    const std::size_t términos = cociente->denominador.size();
    const Fracción reducida = ReduceFracción(tabla, suma, cociente->denominador);
    if (reducida.denominador.size() == términos)
        return std::nullopt;
    const Términos coeficiente = SumaNúmero(otra[0].coeficiente);
    return DevCociente(
        tabla, Multiplica(tabla, Multiplica(tabla, coeficiente, numerador), reducida.numerador),
        reducida.denominador);
}

Términos ElevaTérmino(TablaSímbolos& tabla, const Término& término, double n) {
    if (const Base* const cociente = DevCocienteDe(tabla, término.literal)) {
        Términos numerador =
            Multiplica(tabla, SumaNúmero(término.coeficiente), cociente->numerador);
        Términos denominador = cociente->denominador;
        if (n < 0)
            std::swap(numerador, denominador);
        numerador = ElevaAEntero(tabla, numerador, std::fabs(n));
        return DevCociente(tabla, numerador, ElevaAEntero(tabla, denominador, std::fabs(n)));
    }
    const double coeficiente = LimpiaEntero(CompruebaFinito(DevPotencia(término.coeficiente, n)));
    if (coeficiente == 0)
        return {};
    Literal literal = término.literal;
    for (Factor& factor : literal)
        factor.exponente = LimpiaExponente(CompruebaFinito(factor.exponente * n));
    return Reduce(tabla, {{coeficiente, std::move(literal)}});
}

Términos ElevaProducto(TablaSímbolos& tabla, const Términos& base, double n) {
    if (n > 1)
        if (auto potencia = ElevaPorMultinomio(tabla, base, n))
            return Reduce(tabla, std::move(*potencia));
    // From the highest binary digit of n down: square, and multiply by the base where it is 1.
    double dígito = std::exp2(std::floor(std::log2(n)));
    Términos potencia = base;
    n -= dígito;
    dígito /= 2;
    while (dígito >= 1) {
        potencia = Multiplica(tabla, potencia, potencia);
        if (n >= dígito) {
            n -= dígito;
            potencia = Multiplica(tabla, potencia, base);
        }
        dígito /= 2;
    }
    return potencia;
}

// The plain symbol of a sum that is a base as it stands.
std::optional<IdSímbolo> DevBaseSimple(const TablaSímbolos& tabla, const Términos& suma) {
    if (suma.size() != 1 || suma[0].coeficiente != 1 || suma[0].literal.size() != 1)
        return std::nullopt;
    const Factor& factor = suma[0].literal[0];
    if (factor.exponente != 1 || !tabla.EsLlano(factor.símbolo) ||
        tabla.BaseDe(factor.símbolo).clase == ClaseBase::Cociente)
        return std::nullopt;
    return factor.símbolo;
}

// The symbol of a sum as a base: itself, a number, or a group.
IdSímbolo DevBaseDe(TablaSímbolos& tabla, const Términos& suma) {
    if (const auto simple = DevBaseSimple(tabla, suma))
        return *simple;
    const std::string texto = EscribeSuma(tabla, suma);
    if (EsNúmero(suma))
        return tabla.DevBase({.clase = ClaseBase::Número,
                              .texto = DevNúmero(suma) < 0 ? "(" + texto + ")" : texto,
                              .número = DevNúmero(suma)});
    return tabla.DevBase(
        {.clase = ClaseBase::Grupo, .texto = "(" + texto + ")", .numerador = suma});
}

Términos ElevaNúmero(double base, double exponente) {
    if (base == 0 && exponente < 0)
        throw ErrorEjecución(DivisiónPorCero);
    return SumaNúmero(LimpiaEntero(CompruebaFinito(DevPotencia(base, exponente))));
}

Términos ElevaAFraccionario(TablaSímbolos& tabla, const Términos& base, double exponente) {
    if (EsNúmero(base) && (base.empty() || DevNúmero(base) == 1))
        return ElevaNúmero(DevNúmero(base), exponente);
    // (X^.5)^.5 is X^.25; (X^2)^.5 is not X.
    if (base.size() == 1 && base[0].coeficiente == 1 && base[0].literal.size() == 1 &&
        tabla.EsLlano(base[0].literal[0].símbolo) && !EsEntero(base[0].literal[0].exponente)) {
        const Factor& factor = base[0].literal[0];
        return Reduce(tabla,
                      SumaSímbolo(factor.símbolo, LimpiaExponente(factor.exponente * exponente)));
    }
    return SumaSímbolo(DevBaseDe(tabla, base), exponente);
}

Términos ElevaASuma(TablaSímbolos& tabla, const Términos& base, const Términos& exponente) {
    if (EsNúmero(base) && DevNúmero(base) == 1)
        return base;
    const IdBase id = tabla.IdDe(DevBaseDe(tabla, base));
    return {{1, DevPotenciaDe(tabla, id, AsientaSuma(tabla, exponente))}};
}

} // namespace

Términos MultiplicaSumas(TablaSímbolos& tabla, const Términos& a, const Términos& b) {
    if (auto producto = MultiplicaCancelando(tabla, a, b))
        return std::move(*producto);
    if (auto producto = MultiplicaCancelando(tabla, b, a))
        return std::move(*producto);
    return Multiplica(tabla, a, b);
}

Literal DevPotenciaDe(TablaSímbolos& tabla, IdBase base, const Términos& exponente) {
    Literal literal;
    for (const Término& término : exponente)
        literal.push_back(
            {tabla.ConExponente(base, término.literal, EscribeLiteral(tabla, término.literal)),
             término.coeficiente});
    std::ranges::sort(literal, [&](const Factor& a, const Factor& b) {
        return tabla.Precede(a.símbolo, b.símbolo);
    });
    return literal;
}

Términos ElevaAEntero(TablaSímbolos& tabla, const Términos& base, double exponente) {
    if (exponente == 0)
        return SumaNúmero(1);
    if (EsNúmero(base))
        return ElevaNúmero(DevNúmero(base), exponente);
    if (base.size() == 1)
        return ElevaTérmino(tabla, base[0], exponente);
    if (exponente < 0)
        return SumaSímbolo(DevBaseDe(tabla, base), exponente);
    return ElevaProducto(tabla, base, exponente);
}

Términos ElevaSuma(TablaSímbolos& tabla, const Términos& base, const Términos& exponente) {
    if (EsNúmero(exponente) && EsEntero(DevNúmero(exponente)) &&
        (DevNúmero(exponente) >= 0 || base.size() < 2))
        return ElevaAEntero(tabla, base, DevNúmero(exponente));
    // The base becomes part of a text, and is what the text says.
    const Términos redondeada = RedondeaSuma(tabla, base);
    if (!EsNúmero(exponente))
        return ElevaASuma(tabla, redondeada, exponente);
    const double n = DevNúmero(exponente);
    return EsEntero(n) ? ElevaAEntero(tabla, redondeada, n)
                       : ElevaAFraccionario(tabla, redondeada, n);
}

} // namespace quiralto
