#include "engine/desarrollo/fraccion_abierta.h"

#include "engine/base/fallos.h"
#include "engine/desarrollo/division_exacta.h"
#include "engine/desarrollo/potencia.h"
#include "engine/desarrollo/producto.h"
#include "engine/desarrollo/recursion.h"

#include <algorithm>
#include <optional>

namespace quiralto {
namespace {

bool EsGrupoDeVarios(const TablaSímbolos& tabla, const Literal& literal, std::size_t i) {
    const Base& base = tabla.BaseDe(literal[i].símbolo);
    return base.clase == ClaseBase::Grupo && base.contenido.size() > 1 &&
           EsPotenciaEntera(tabla, literal, i);
}

// A number, or a group of one term.
bool EntraEnElTérmino(const TablaSímbolos& tabla, const Literal& literal, std::size_t i) {
    const Base& base = tabla.BaseDe(literal[i].símbolo);
    return (base.clase == ClaseBase::Número ||
            (base.clase == ClaseBase::Grupo && base.contenido.size() == 1 &&
             !HayCocientes(tabla, base.contenido))) &&
           EsPotenciaEntera(tabla, literal, i);
}

// What a factor stands for that is a whole power of a group with quotients in it, as a fraction:
// nothing for another factor, and where its sum with quotients is multiplied out or stays nested.
std::optional<FracciónAbierta> DevAnidada(TablaSímbolos& tabla, const Literal& literal,
                                          std::size_t i, int signo) {
    const Factor factor = literal[i];
    const Base& base = tabla.BaseDe(factor.símbolo);
    if (base.clase != ClaseBase::Grupo || !EsPotenciaEntera(tabla, literal, i) ||
        !HayCocientes(tabla, base.contenido))
        return std::nullopt;
    const std::int64_t exponente = signo * factor.exponente.Numerador();
    const bool esSuma = base.contenido.size() > 1;
    if (esSuma && exponente > 0)
        return std::nullopt;
    const GuardaProfundidad guarda(tabla);
    FracciónAbierta dentro = SobreUnDenominadorSiCabe(tabla, base.contenido);
    if (esSuma && dentro.sumas.size() == 1 && dentro.sumas[0].suma == base.contenido)
        return std::nullopt;
    return Eleva(tabla, std::move(dentro), exponente);
}

// Opens the first such factor of a side (1 above, -1 below). Whether there was one.
bool AbreAnidada(TablaSímbolos& tabla, FracciónAbierta& f, int signo) {
    if (!tabla.HayCocientes())
        return false;
    Literal& lado = signo > 0 ? f.arriba : f.abajo;
    for (std::size_t i = 0; i < lado.size(); ++i)
        if (auto anidada = DevAnidada(tabla, lado, i, signo)) {
            lado.erase(lado.begin() + static_cast<std::ptrdiff_t>(i));
            f = Multiplica(tabla, std::move(f), *std::move(anidada));
            return true;
        }
    return false;
}

// What such a factor holds becomes part of the literal part; its number is returned.
Coeficiente SacaDelLiteral(TablaSímbolos& tabla, Literal& literal, std::size_t i) {
    const Factor factor = literal[i];
    literal.erase(literal.begin() + static_cast<std::ptrdiff_t>(i));
    const Términos potencia =
        ElevaAEntero(tabla, tabla.BaseDe(factor.símbolo).contenido, factor.exponente.Numerador());
    if (potencia.empty())
        return 0;
    Literal unido;
    MultiplicaLiterales(tabla, literal, potencia[0].literal, unido);
    JuntaRaíces(tabla, unido);
    literal = std::move(unido);
    return potencia[0].coeficiente;
}

// A group of several whose terms have a number in common gives it out. Whether it had one; it
// stands above with an exponent below 0 (signo 1), or below.
bool SacaNúmero(TablaSímbolos& tabla, FracciónAbierta& f, std::size_t i, int signo) {
    Literal& lado = signo > 0 ? f.arriba : f.abajo;
    const Factor factor = lado[i];
    const Términos& contenido = tabla.BaseDe(factor.símbolo).contenido;
    if (DevContenido(contenido).EsUno())
        return false;
    const ConNúmero grupo = DevGrupo(tabla, contenido);
    f.coeficiente *= grupo.número.Potencia(signo * factor.exponente.Numerador());
    lado.erase(lado.begin() + static_cast<std::ptrdiff_t>(i));
    Literal unido;
    MultiplicaLiterales(tabla, lado, {{grupo.grupo, factor.exponente}}, unido);
    JuntaRaíces(tabla, unido);
    lado = std::move(unido);
    return true;
}

// A group below 0 meets a sum that is proportional to it. Whether it did.
bool JuntaNegativo(TablaSímbolos& tabla, FracciónAbierta& f, std::size_t i) {
    const Factor factor = f.arriba[i];
    for (std::size_t k = 0; k < f.sumas.size(); ++k) {
        const auto proporción =
            DevProporción(f.sumas[k].suma, tabla.BaseDe(factor.símbolo).contenido);
        if (!proporción)
            continue;
        const std::int64_t n = f.sumas[k].exponente;
        f.coeficiente *= proporción->Potencia(n);
        f.sumas.erase(f.sumas.begin() + static_cast<std::ptrdiff_t>(k));
        const std::int64_t total = n + factor.exponente.Numerador();
        if (total > 0)
            PonPotencia(f, tabla.BaseDe(factor.símbolo).contenido, total);
        if (total < 0)
            f.arriba[i].exponente = total;
        else
            f.arriba.erase(f.arriba.begin() + static_cast<std::ptrdiff_t>(i));
        return true;
    }
    return false;
}

} // namespace

void PonPotencia(FracciónAbierta& f, Términos suma, std::int64_t exponente) {
    for (Potencia& potencia : f.sumas)
        if (const auto proporción = DevProporción(suma, potencia.suma)) {
            potencia.exponente += exponente;
            f.coeficiente *= proporción->Potencia(exponente);
            return;
        }
    f.sumas.push_back({std::move(suma), exponente});
}

void AbreGrupos(TablaSímbolos& tabla, FracciónAbierta& f) {
    if (!tabla.HayBasesReducibles())
        return;
    if (AbreAnidada(tabla, f, -1) || AbreAnidada(tabla, f, 1))
        return AbreGrupos(tabla, f);
    for (std::size_t i = 0; i < f.abajo.size();) {
        if (EntraEnElTérmino(tabla, f.abajo, i)) {
            f.coeficiente /= SacaDelLiteral(tabla, f.abajo, i);
            i = 0;
        } else if (EsGrupoDeVarios(tabla, f.abajo, i) && SacaNúmero(tabla, f, i, -1)) {
            i = 0;
        } else {
            ++i;
        }
    }
    for (std::size_t i = 0; i < f.arriba.size();) {
        if (EntraEnElTérmino(tabla, f.arriba, i)) {
            f.coeficiente *= SacaDelLiteral(tabla, f.arriba, i);
            i = 0;
            continue;
        }
        if (!EsGrupoDeVarios(tabla, f.arriba, i)) {
            ++i;
            continue;
        }
        const Factor factor = f.arriba[i];
        if (factor.exponente.Signo() > 0) {
            f.arriba.erase(f.arriba.begin() + static_cast<std::ptrdiff_t>(i));
            PonPotencia(f, tabla.BaseDe(factor.símbolo).contenido, factor.exponente.Numerador());
            i = 0;
        } else if (JuntaNegativo(tabla, f, i) || SacaNúmero(tabla, f, i, 1)) {
            i = 0;
        } else {
            ++i;
        }
    }
}

FracciónAbierta Abre(TablaSímbolos& tabla, Términos suma) {
    FracciónAbierta f;
    if (suma.empty()) {
        f.coeficiente = 0;
        return f;
    }
    if (suma.size() > 1) {
        f.sumas.push_back({std::move(suma), 1});
        return f;
    }
    Término& único = suma[0];
    if (const Base* const cociente = DevCocienteDe(tabla, único.literal);
        cociente != nullptr && único.literal[0].exponente == 1) {
        f = Abre(tabla, cociente->contenido); // no quotient itself
        f.coeficiente *= único.coeficiente;
        f.abajo = cociente->denominador;
        f.signoAbajo = cociente->signoAbajo;
    } else {
        f.coeficiente = std::move(único.coeficiente);
        f.arriba = std::move(único.literal);
        AbreGrupos(tabla, f);
    }
    return f;
}

FracciónAbierta Multiplica(TablaSímbolos& tabla, FracciónAbierta a, FracciónAbierta b) {
    FracciónAbierta producto = std::move(a);
    producto.coeficiente *= b.coeficiente;
    if (producto.coeficiente.EsCero())
        return {.coeficiente = 0};
    const auto multiplica = [&](Literal& x, Literal& y) {
        if (y.empty())
            return;
        if (x.empty()) {
            x = std::move(y);
            return JuntaRaíces(tabla, x);
        }
        Literal unido;
        MultiplicaLiterales(tabla, x, y, unido);
        JuntaRaíces(tabla, unido);
        x = std::move(unido);
    };
    multiplica(producto.arriba, b.arriba);
    multiplica(producto.abajo, b.abajo);
    for (Potencia& potencia : b.sumas)
        PonPotencia(producto, std::move(potencia.suma), potencia.exponente);
    producto.signoAbajo = producto.signoAbajo != b.signoAbajo;
    AbreGrupos(tabla, producto);
    if (producto.coeficiente.EsCero())
        return {.coeficiente = 0};
    Reduce(tabla, producto);
    return producto;
}

ConNúmero DevGrupo(TablaSímbolos& tabla, const Términos& suma) {
    Términos primitiva = suma;
    Coeficiente contenido = SacaContenido(primitiva);
    primitiva = DevFormaInterior(tabla, std::move(primitiva));
    // Numbers that the text cuts can have a factor in common again.
    while (primitiva.size() > 1 && !DevContenido(primitiva).EsUno()) {
        contenido *= SacaContenido(primitiva);
        primitiva = DevFormaInterior(tabla, std::move(primitiva));
    }
    return {DevBaseDe(tabla, primitiva), contenido};
}

FracciónAbierta DevInversa(TablaSímbolos& tabla, const FracciónAbierta& f) {
    if (f.coeficiente.EsCero())
        throw ErrorEjecución(DivisiónPorCero);
    FracciónAbierta inversa{.coeficiente = f.coeficiente.Inverso(), .arriba = f.abajo};
    inversa.signoAbajo = f.signoAbajo;
    if (inversa.coeficiente.Signo() < 0) {
        inversa.coeficiente.CambiaSigno();
        inversa.signoAbajo = !inversa.signoAbajo;
    }
    // A negative power below is one above, with all that its base is raised to.
    Literal arriba;
    for (std::size_t i = 0; i < f.arriba.size();) {
        const std::size_t fin = FinDeBase(tabla, f.arriba, i);
        const bool negativa =
            std::all_of(f.arriba.begin() + static_cast<std::ptrdiff_t>(i),
                        f.arriba.begin() + static_cast<std::ptrdiff_t>(fin),
                        [](const Factor& factor) { return factor.exponente.Signo() < 0; });
        for (; i < fin; ++i) {
            if (negativa)
                arriba.push_back({f.arriba[i].símbolo, -f.arriba[i].exponente});
            else
                inversa.abajo.push_back(f.arriba[i]);
        }
    }
    for (const auto& [suma, exponente] : f.sumas) {
        const ConNúmero grupo = DevGrupo(tabla, suma);
        inversa.coeficiente /= grupo.número.Potencia(exponente);
        Literal unido;
        MultiplicaLiterales(tabla, inversa.abajo, {{grupo.grupo, exponente}}, unido);
        inversa.abajo = std::move(unido);
    }
    FracciónAbierta deArriba;
    deArriba.arriba = std::move(arriba);
    return Multiplica(tabla, std::move(inversa), std::move(deArriba));
}

FracciónAbierta Eleva(TablaSímbolos& tabla, FracciónAbierta f, std::int64_t n) {
    if (n == 0)
        return {};
    if (n < 0 && (!f.abajo.empty() || f.signoAbajo))
        return Eleva(tabla, DevInversa(tabla, f), -n);
    if (f.coeficiente.EsCero() && n < 0)
        throw ErrorEjecución(DivisiónPorCero);
    FracciónAbierta potencia{.coeficiente = f.coeficiente.Potencia(n)};
    const auto eleva = [&](Literal literal) {
        for (Factor& factor : literal)
            factor.exponente = factor.exponente * n;
        JuntaRaíces(tabla, literal);
        return literal;
    };
    potencia.arriba = eleva(f.arriba);
    potencia.abajo = eleva(f.abajo);
    potencia.signoAbajo = f.signoAbajo && n % 2 != 0;
    for (Potencia& suya : f.sumas) {
        std::int64_t total = 0;
        if (__builtin_mul_overflow(suya.exponente, n, &total))
            throw ErrorEjecución(Desbordamiento);
        if (n > 0) {
            potencia.sumas.push_back({std::move(suya.suma), total});
            continue;
        }
        const ConNúmero grupo = DevGrupo(tabla, suya.suma);
        potencia.coeficiente *= grupo.número.Potencia(total);
        Literal unido;
        MultiplicaLiterales(tabla, potencia.arriba, {{grupo.grupo, total}}, unido);
        potencia.arriba = std::move(unido);
    }
    return Multiplica(tabla, std::move(potencia), {}); // roots can have left their groups
}

} // namespace quiralto
