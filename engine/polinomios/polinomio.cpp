#include "engine/polinomios/polinomio.h"

#include "engine/lenguaje/termino_texto.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <utility>

namespace quiralto {
namespace {

// --- Numbers

bool EsDecimalCorto(double valor, int dígitos) {
    return DecimalesNúmero(valor) <= dígitos;
}

// The exact polynomial with these coefficients, each as the general form writes it.
Polinomio DevExactoDeDecimales(const Monomios<double>& términos) {
    std::vector<FormaEntera> formas;
    formas.reserve(términos.size());
    int lugares = 0;
    for (const auto& término : términos) {
        formas.push_back(DevFormaEntera(término.coeficiente));
        lugares = std::max(lugares, -formas.back().exponente);
    }
    Monomios<Entero> enteros;
    enteros.reserve(términos.size());
    for (std::size_t i = 0; i < términos.size(); ++i) {
        Entero entero = términos[i].coeficiente < 0 ? -formas[i].mantisa : formas[i].mantisa;
        if (const int ceros = lugares + formas[i].exponente; ceros > 0)
            entero *= DevPotenciaDeDiez(ceros);
        enteros.push_back({términos[i].exponente, std::move(entero)});
    }
    return DevExacto(std::move(enteros), DevPotenciaDeDiez(lugares));
}

Polinomio Suma(const Polinomio& p, const Polinomio& q, std::int64_t signo) {
    const PolinomioExacto* const a = SiExacto(p);
    const PolinomioExacto* const b = SiExacto(q);
    if (a == nullptr || b == nullptr)
        return DevReal(Combina<double>(AReal(p), 1, AReal(q), static_cast<double>(signo)));
    if (a->denominador == b->denominador)
        return DevExacto(Combina<Entero>(a->términos, 1, b->términos, signo), a->denominador);
    const Entero común = DevMCD(a->denominador, b->denominador);
    const Entero factorA = Entero::Divide(b->denominador, común).cociente;
    const Entero factorB = Entero::Divide(a->denominador, común).cociente * signo;
    return DevExacto(Combina(a->términos, factorA, b->términos, factorB), a->denominador * factorA);
}

// --- Text

// The power of X that a term holds: 0 without an X.
double LeeExponente(std::string_view término) {
    const std::size_t x = término.find('X');
    if (x == std::string_view::npos)
        return 0;
    const std::string_view trasX = término.substr(x + 1);
    return trasX.empty() ? 1 : Val(trasX.substr(1));
}

std::string DevLiteral(double exponente) {
    if (exponente == 0)
        return {};
    std::string literal = "X";
    if (exponente != 1)
        EscribeNúmero(literal += '^', exponente);
    return literal;
}

} // namespace

// --- Text

Monomios<double> LeePolinomio(std::string_view texto) {
    Monomios<double> términos;
    RecorreTérminos(texto, [&](std::string_view término) {
        términos.push_back({LeeExponente(término), LeeTérmino(término).coeficiente});
    });
    return términos;
}

PolinomiosLeídos LeePolinomios(std::string_view p, std::string_view q) {
    return {LeePolinomio(p), LeePolinomio(q)};
}

Polinomio ReduceTérminos(const Contexto& contexto, Monomios<double> términos) {
    Ordena(términos);
    if (std::ranges::all_of(términos, [&](const Monomio<double>& t) {
            return EsDecimalCorto(t.coeficiente, contexto.DígitosRedondeo);
        }))
        return DevExactoDeDecimales(términos);
    Agrupa(términos);
    return DevReal(std::move(términos));
}

std::string EscribePolinomio(const Contexto& contexto, const Monomios<double>& términos) {
    std::string texto;
    for (const auto& [exponente, coeficiente] : términos) {
        const double redondeado = Redondea(coeficiente, contexto.DígitosRedondeo);
        EscribeTérmino(texto, redondeado,
                       DevLiteral(Redondea(exponente, contexto.DígitosRedondeo)));
    }
    return texto.empty() ? "0" : texto;
}

std::string EscribePolinomio(const Contexto& contexto, const Polinomio& p) {
    return EscribePolinomio(contexto, AReal(p));
}

std::string EscribePolinomio(const Contexto& contexto, std::string_view texto) {
    return EscribePolinomio(contexto, LeePolinomio(texto));
}

Polinomio RedondeaPolinomio(const Contexto& contexto, const Polinomio& p) {
    if (EsDeCoeficientesEnteros(p))
        return p;
    Monomios<double> términos = AReal(p);
    for (Monomio<double>& t : términos)
        t.coeficiente = Redondea(t.coeficiente, contexto.DígitosRedondeo);
    return DevExactoDeDecimales(términos);
}

Polinomio QuitaPrincipalesNulos(const Contexto& contexto, Polinomio p) {
    const PolinomioReal real = AReal(p);
    const auto esNulo = [&](const Monomio<double>& t) {
        return Redondea(t.coeficiente, contexto.DígitosRedondeo) == 0;
    };
    const auto nulos = std::ranges::find_if_not(real, esNulo) - real.begin();
    if (auto* const exacto = std::get_if<PolinomioExacto>(&p))
        exacto->términos.erase(exacto->términos.begin(), exacto->términos.begin() + nulos);
    else
        std::get<PolinomioReal>(p).erase(std::get<PolinomioReal>(p).begin(),
                                         std::get<PolinomioReal>(p).begin() + nulos);
    return p;
}

bool EsDeDecimales(const Contexto& contexto, const Polinomio& p) {
    const PolinomioExacto* const exacto = SiExacto(p);
    if (exacto == nullptr)
        return false;
    constexpr int DígitosSignificativos = 15;
    const Entero tope = DevPotenciaDeDiez(DígitosSignificativos);
    const Entero escala = DevPotenciaDeDiez(contexto.DígitosRedondeo);
    return std::ranges::all_of(exacto->términos, [&](const Monomio<Entero>& t) {
        auto [escalado, sobra] = Entero::Divide(t.coeficiente * escala, exacto->denominador);
        if (!sobra.EsCero())
            return false;
        if (escalado.Signo() < 0)
            escalado.CambiaSigno();
        while ((escalado - tope).Signo() >= 0) {
            auto [décima, cifra] = Entero::Divide(escalado, 10);
            if (!cifra.EsCero())
                return false;
            escalado = std::move(décima);
        }
        return true;
    });
}

// --- Values

Polinomio DevExacto(Monomios<Entero> términos, Entero denominador) {
    Agrupa(términos);
    std::erase_if(términos, [](const auto& t) { return t.coeficiente.EsCero(); });
    CompruebaCantidad(términos.size());
    Entero común = DevContenido(términos, &Monomio<Entero>::coeficiente, denominador);
    if (denominador.Signo() < 0 && común.Signo() > 0)
        común.CambiaSigno();
    if (!común.EsUno()) {
        denominador = Entero::Divide(denominador, común).cociente;
        for (Monomio<Entero>& t : términos)
            t.coeficiente = Entero::Divide(t.coeficiente, común).cociente;
    }
    constexpr std::size_t BitsDeDouble = 1023; // within them every quotient is a finite Double
    std::size_t bits = 0;
    for (const Monomio<Entero>& t : términos) {
        const std::size_t suyos = t.coeficiente.Bits();
        bits = std::max(bits, suyos);
        if (suyos > BitsDeDouble)
            CompruebaFinito(DevCociente(t.coeficiente, denominador));
    }
    PolinomioExacto exacto{std::move(términos), std::move(denominador)};
    if (bits > MáximoBitsExactos || exacto.denominador.Bits() > MáximoBitsExactos)
        return DevReal(AReal(exacto));
    return exacto;
}

Polinomio DevPrimitivo(const Polinomio& p) {
    const PolinomioExacto* const exacto = SiExacto(p);
    if (exacto == nullptr || EsCero(p))
        return p;
    Entero contenido = DevContenido(exacto->términos);
    if (exacto->términos.front().coeficiente.Signo() < 0)
        contenido.CambiaSigno();
    return DevExacto(exacto->términos, std::move(contenido));
}

Polinomio DevReal(PolinomioReal términos) {
    for (const auto& término : términos)
        CompruebaFinito(término.coeficiente);
    std::erase_if(términos, [](const auto& t) { return t.coeficiente == 0; });
    CompruebaCantidad(términos.size());
    return términos;
}

Polinomio DevConstante(double valor) {
    return DevExactoDeDecimales({{0, valor}});
}

Polinomio DevConstanteCalculada(const Contexto& contexto, double valor) {
    if (EsDecimalCorto(valor, contexto.DígitosRedondeo))
        return DevConstante(valor);
    return PolinomioReal{{0, valor}};
}

Polinomio DevPotenciaDeX(double exponente) {
    return PolinomioExacto{{{exponente, 1}}};
}

PolinomioReal AReal(const Polinomio& p) {
    const PolinomioExacto* const exacto = SiExacto(p);
    if (exacto == nullptr)
        return std::get<PolinomioReal>(p);
    PolinomioReal real;
    real.reserve(exacto->términos.size());
    for (const auto& [exponente, coeficiente] : exacto->términos)
        real.push_back({exponente, DevCociente(coeficiente, exacto->denominador)});
    return real;
}

bool EsCero(const Polinomio& p) {
    const PolinomioExacto* const exacto = SiExacto(p);
    return exacto != nullptr ? exacto->términos.empty() : std::get<PolinomioReal>(p).empty();
}

bool EsConstante(const Polinomio& p) {
    if (EsCero(p))
        return true;
    return std::visit(
        [](const auto& valor) {
            if constexpr (std::is_same_v<std::decay_t<decltype(valor)>, PolinomioExacto>)
                return valor.términos.size() == 1 && valor.términos.front().exponente == 0;
            else
                return valor.size() == 1 && valor.front().exponente == 0;
        },
        p);
}

bool EsUno(const Polinomio& p) {
    const PolinomioExacto* const exacto = SiExacto(p);
    return exacto != nullptr && EsConstante(p) && !EsCero(p) && exacto->denominador.EsUno() &&
           exacto->términos.front().coeficiente.EsUno();
}

double DevGrado(const Polinomio& p) {
    if (EsCero(p))
        return 0;
    const PolinomioExacto* const exacto = SiExacto(p);
    return exacto != nullptr ? exacto->términos.front().exponente
                             : std::get<PolinomioReal>(p).front().exponente;
}

bool TieneExponentesNaturales(const Polinomio& p) {
    const auto natural = [](const auto& t) {
        return t.exponente >= 0 && EsEntero(t.exponente);
    };
    const PolinomioExacto* const exacto = SiExacto(p);
    return exacto != nullptr ? std::ranges::all_of(exacto->términos, natural)
                             : std::ranges::all_of(std::get<PolinomioReal>(p), natural);
}

bool EsDeCoeficientesEnteros(const Polinomio& p) {
    const PolinomioExacto* const exacto = SiExacto(p);
    return exacto != nullptr && exacto->denominador.EsUno();
}

int SignoPrincipal(const Polinomio& p) {
    if (EsCero(p))
        return 0;
    const PolinomioExacto* const exacto = SiExacto(p);
    if (exacto != nullptr)
        return exacto->términos.front().coeficiente.Signo();
    return std::get<PolinomioReal>(p).front().coeficiente < 0 ? -1 : 1;
}

Polinomio SumaPolinomios(const Polinomio& p, const Polinomio& q) {
    return Suma(p, q, 1);
}

Polinomio RestaPolinomios(const Polinomio& p, const Polinomio& q) {
    return Suma(p, q, -1);
}

Polinomio MultiplicaPolinomios(Contexto& contexto, const Polinomio& p, const Polinomio& q) {
    const PolinomioExacto* const a = SiExacto(p);
    const PolinomioExacto* const b = SiExacto(q);
    if (a == nullptr || b == nullptr)
        return DevReal(Multiplica(contexto, AReal(p), AReal(q)));
    return DevExacto(Multiplica(contexto, a->términos, b->términos),
                     a->denominador * b->denominador);
}

Polinomio CambiaSigno(Polinomio p) {
    if (auto* const exacto = std::get_if<PolinomioExacto>(&p)) {
        for (Monomio<Entero>& t : exacto->términos)
            t.coeficiente.CambiaSigno();
    } else {
        for (Monomio<double>& t : std::get<PolinomioReal>(p))
            t.coeficiente = -t.coeficiente;
    }
    return p;
}

} // namespace quiralto
