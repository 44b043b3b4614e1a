#include "engine/polinomio.h"

#include "engine/numero.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <unordered_map>

namespace quiralto {
namespace {

// Up to here every whole number is a Double.
constexpr double MáximoEnteroExacto = 9007199254740992;

bool EsEntero(double valor) {
    return valor == std::floor(valor);
}

// Above the whole numbers that a Double tells apart, an exponent that is off would collect terms
// that are not alike.
double SumaExponentes(double a, double b) {
    const double suma = a + b;
    if (std::fabs(suma) >= MáximoEnteroExacto && (suma - a != b || suma - b != a))
        throw ErrorEjecución(Desbordamiento);
    return suma;
}

double SumaExponentes(double a, double b, double c) {
    return SumaExponentes(SumaExponentes(a, b), c);
}

// --- The two kinds of coefficient

bool EsNulo(double c) {
    return c == 0;
}
bool EsNulo(const Entero& c) {
    return c.EsCero();
}
void SumaProducto(double& suma, double a, double b) {
    suma += a * b;
}
void SumaProducto(Entero& suma, const Entero& a, const Entero& b) {
    suma.SumaProducto(a, b);
}

// --- Numbers

bool EsDecimalCorto(double valor, int dígitos) {
    return DecimalesNúmero(valor) <= dígitos;
}

// The exact polynomial with these coefficients, each as the general form writes it.
Polinomio DevExactoDeDecimales(const Términos<double>& términos) {
    std::vector<FormaEntera> formas;
    formas.reserve(términos.size());
    int lugares = 0;
    for (const auto& término : términos) {
        formas.push_back(DevFormaEntera(término.coeficiente));
        lugares = std::max(lugares, -formas.back().exponente);
    }
    Términos<Entero> enteros;
    enteros.reserve(términos.size());
    for (std::size_t i = 0; i < términos.size(); ++i) {
        Entero entero = términos[i].coeficiente < 0 ? -formas[i].mantisa : formas[i].mantisa;
        if (const int ceros = lugares + formas[i].exponente; ceros > 0)
            entero *= DevPotenciaDeDiez(ceros);
        enteros.push_back({términos[i].exponente, std::move(entero)});
    }
    return DevExacto(std::move(enteros), DevPotenciaDeDiez(lugares));
}

// --- Terms of either kind

void CompruebaCantidad(std::size_t términos) {
    if (términos > MáximoTérminos)
        throw ErrorEjecución(EspacioDeCadenasInsuficiente);
}

// Takes a list in order: no zeros, not too many, all in range.
Polinomio DevReal(PolinomioReal términos) {
    for (const auto& término : términos)
        CompruebaFinito(término.coeficiente);
    std::erase_if(términos, [](const auto& t) { return t.coeficiente == 0; });
    CompruebaCantidad(términos.size());
    return términos;
}

// Adds up neighbours of equal exponents in an ordered list.
template <typename C> void Agrupa(Términos<C>& términos) {
    std::size_t escritos = 0;
    for (std::size_t i = 0; i < términos.size(); ++i) {
        if (escritos > 0 && términos[escritos - 1].exponente == términos[i].exponente)
            términos[escritos - 1].coeficiente += términos[i].coeficiente;
        else if (escritos++ != i)
            términos[escritos - 1] = std::move(términos[i]);
    }
    términos.erase(términos.begin() + static_cast<std::ptrdiff_t>(escritos), términos.end());
}

template <typename C> void Ordena(Términos<C>& términos) {
    std::ranges::stable_sort(términos, std::ranges::greater{}, &Término<C>::exponente);
}

// p * factorP + q * factorQ, one pass over both.
template <typename C>
Términos<C> Combina(const Términos<C>& p, const C& factorP, const Términos<C>& q,
                    const C& factorQ) {
    Términos<C> suma;
    suma.reserve(p.size() + q.size());
    auto i = p.begin();
    auto j = q.begin();
    while (i != p.end() || j != q.end()) {
        if (j == q.end() || (i != p.end() && i->exponente > j->exponente)) {
            suma.push_back({i->exponente, i->coeficiente * factorP});
            ++i;
        } else if (i == p.end() || j->exponente > i->exponente) {
            suma.push_back({j->exponente, j->coeficiente * factorQ});
            ++j;
        } else {
            C coeficiente = i->coeficiente * factorP;
            SumaProducto(coeficiente, j->coeficiente, factorQ);
            suma.push_back({i->exponente, std::move(coeficiente)});
            ++i;
            ++j;
        }
    }
    return suma;
}

// Calls `par(i, j)` for every pair, and the watcher now and then.
template <typename C, typename Par>
void RecorrePares(Contexto& contexto, const Términos<C>& p, const Términos<C>& q, Par par) {
    constexpr std::size_t ParesEntreAvisos = 4096;
    std::size_t pares = 0;
    for (const Término<C>& a : p) {
        for (const Término<C>& b : q) {
            par(a, b);
            if (++pares % ParesEntreAvisos == 0)
                contexto.Vigila();
        }
    }
}

// Cells of a product whose exponents go in steps of one; 0 where they do not, or are too far apart.
template <typename C> std::size_t DevCeldas(const Términos<C>& p, const Términos<C>& q) {
    constexpr double MáximoCeldas = 262144;
    constexpr double CeldasPorPar = 8;
    const double base = q.back().exponente;
    const auto conPasoUno = [](const Términos<C>& términos) {
        return std::ranges::all_of(términos, [&](const Término<C>& t) {
            return EsEntero(t.exponente - términos.back().exponente);
        });
    };
    const double celdas =
        p.front().exponente - p.back().exponente + (q.front().exponente - base) + 1;
    const double pares = static_cast<double>(p.size()) * static_cast<double>(q.size());
    if (!(celdas <= std::min(MáximoCeldas, 64 + CeldasPorPar * pares)) || !conPasoUno(p) ||
        !conPasoUno(q))
        return 0;
    return static_cast<std::size_t>(celdas);
}

template <typename C>
Términos<C> Multiplica(Contexto& contexto, const Términos<C>& p, const Términos<C>& q) {
    Términos<C> producto;
    if (p.empty() || q.empty())
        return producto;
    if (const std::size_t celdas = DevCeldas(p, q)) {
        std::vector<C> suma(celdas, C(0));
        const double baseP = p.back().exponente;
        const double baseQ = q.back().exponente;
        RecorrePares(contexto, p, q, [&](const Término<C>& a, const Término<C>& b) {
            const double celda = (a.exponente - baseP) + (b.exponente - baseQ);
            SumaProducto(suma[static_cast<std::size_t>(celda)], a.coeficiente, b.coeficiente);
        });
        for (std::size_t i = celdas; i-- > 0;)
            if (!EsNulo(suma[i]))
                producto.push_back(
                    {SumaExponentes(baseP, baseQ, static_cast<double>(i)), std::move(suma[i])});
        return producto;
    }
    std::unordered_map<double, std::size_t> lugares;
    RecorrePares(contexto, p, q, [&](const Término<C>& a, const Término<C>& b) {
        const double exponente = SumaExponentes(a.exponente, b.exponente);
        const auto [lugar, nuevo] = lugares.try_emplace(exponente, producto.size());
        if (nuevo) {
            CompruebaCantidad(producto.size());
            producto.push_back({exponente, C(0)});
        }
        SumaProducto(producto[lugar->second].coeficiente, a.coeficiente, b.coeficiente);
    });
    Ordena(producto);
    return producto;
}

const PolinomioExacto* SiExacto(const Polinomio& p) {
    return std::get_if<PolinomioExacto>(&p);
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

// --- Long division

template <typename C> using Resto = std::map<double, C, std::greater<>>;

template <typename C> Resto<C> DevResto(const Términos<C>& términos) {
    Resto<C> resto;
    for (const Término<C>& t : términos)
        resto.emplace_hint(resto.end(), t.exponente, t.coeficiente);
    return resto;
}

template <typename C> Términos<C> DevTérminos(const Resto<C>& resto) {
    Términos<C> términos;
    términos.reserve(resto.size());
    for (const auto& [exponente, coeficiente] : resto)
        términos.push_back({exponente, coeficiente});
    return términos;
}

// Subtracts factor * X^salto * divisor but for the leading term, which is gone already; `arregla`
// sees every coefficient that has changed.
template <typename C, typename Arregla>
void RestaMúltiplo(Resto<C>& resto, const Términos<C>& divisor, double salto, const C& menosFactor,
                   Arregla arregla) {
    for (std::size_t i = 1; i < divisor.size(); ++i) {
        const auto lugar =
            resto.try_emplace(SumaExponentes(divisor[i].exponente, salto), C(0)).first;
        SumaProducto(lugar->second, divisor[i].coeficiente, menosFactor);
        arregla(lugar->second);
        if (EsNulo(lugar->second))
            resto.erase(lugar);
    }
    CompruebaCantidad(resto.size());
}

División DivideReales(Contexto& contexto, const PolinomioReal& dividendo,
                      const PolinomioReal& divisor) {
    const auto redondea = [&](double& c) {
        c = Redondea(CompruebaFinito(c), contexto.DígitosRedondeo);
    };
    Resto<double> resto = DevResto(dividendo);
    PolinomioReal cociente;
    const Término<double>& principal = divisor.front();
    while (!resto.empty() && resto.begin()->first >= principal.exponente) {
        contexto.Vigila();
        const double exponente = resto.begin()->first;
        const double factor = CompruebaFinito(resto.begin()->second / principal.coeficiente);
        const double salto = SumaExponentes(exponente, -principal.exponente);
        resto.erase(resto.begin());
        if (cociente.empty()) {
            for (auto& [e, c] : resto)
                redondea(c);
            std::erase_if(resto, [](const auto& t) { return t.second == 0; });
        }
        cociente.push_back({salto, factor});
        CompruebaCantidad(cociente.size());
        RestaMúltiplo(resto, divisor, salto, -factor, redondea);
        // Real exponents may be too close together for a step to lower them.
        if (!resto.empty() && resto.begin()->first >= exponente)
            throw ErrorEjecución(Desbordamiento);
    }
    return {DevReal(std::move(cociente)), DevReal(DevTérminos(resto))};
}

// None where the coefficients outgrow what is held exactly.
std::optional<División> DivideExactos(Contexto& contexto, const PolinomioExacto& dividendo,
                                      const PolinomioExacto& divisor) {
    // escala * dividendo = divisor * cociente + resto, all over whole numbers.
    Resto<Entero> resto = DevResto(dividendo.términos);
    Términos<Entero> cociente;
    Entero escala = 1;
    const auto& [exponentePrincipal, principal] = divisor.términos.front();
    while (!resto.empty() && resto.begin()->first >= exponentePrincipal) {
        contexto.Vigila();
        const double exponente = resto.begin()->first;
        Entero factor = resto.begin()->second;
        const double salto = SumaExponentes(exponente, -exponentePrincipal);
        resto.erase(resto.begin());
        const Entero común = DevMCD(factor, principal);
        Entero sube = Entero::Divide(principal, común).cociente;
        factor = Entero::Divide(factor, común).cociente;
        if (sube.Signo() < 0) {
            sube.CambiaSigno();
            factor.CambiaSigno();
        }
        if (!sube.EsUno()) {
            escala *= sube;
            for (auto& t : resto)
                t.second *= sube;
            for (auto& t : cociente)
                t.coeficiente *= sube;
        }
        if (escala.Bits() > MáximoBitsExactos || factor.Bits() > MáximoBitsExactos)
            return std::nullopt;
        cociente.push_back({salto, factor});
        CompruebaCantidad(cociente.size());
        factor.CambiaSigno();
        RestaMúltiplo(resto, divisor.términos, salto, factor, [](const Entero&) {});
        if (!resto.empty() && resto.begin()->first >= exponente)
            throw ErrorEjecución(Desbordamiento);
    }
    Términos<Entero> restoFinal = DevTérminos(resto);
    // dividendo / d1 = (divisor / d2) * (cociente * d2 / (d1 * escala)) + resto / (d1 * escala)
    const Entero denominador = escala * dividendo.denominador;
    for (auto& t : cociente)
        t.coeficiente *= divisor.denominador;
    return División{DevExacto(std::move(cociente), denominador),
                    DevExacto(std::move(restoFinal), denominador)};
}

// --- Text

// A sign that neither begins the text nor stands behind "^" or an exponent letter.
bool EsFrontera(std::string_view texto, std::size_t i) {
    return (texto[i] == '+' || texto[i] == '-') && i > 0 && texto[i - 1] != '^' &&
           texto[i - 1] != 'E';
}

Término<double> LeeTérmino(std::string_view término) {
    double coeficiente = 0;
    if (término.starts_with("+X") || término.starts_with("X^") || término == "X")
        coeficiente = 1;
    else if (término.starts_with("-X"))
        coeficiente = -1;
    else
        coeficiente = Val(término);
    const std::size_t x = término.find('X');
    if (x == std::string_view::npos)
        return {0, coeficiente};
    const std::string_view trasX = término.substr(x + 1);
    return {trasX.empty() ? 1 : Val(trasX.substr(1)), coeficiente};
}

void EscribeTérmino(std::string& texto, double coeficiente, double exponente) {
    if (coeficiente > 0 && !texto.empty())
        texto += '+';
    if (exponente == 0) {
        texto += TextoNúmero(coeficiente);
        return;
    }
    if (coeficiente == -1)
        texto += '-';
    else if (coeficiente != 1)
        (texto += TextoNúmero(coeficiente)) += '*';
    texto += 'X';
    if (exponente != 1)
        (texto += '^') += TextoNúmero(exponente);
}

} // namespace

// --- Text

Términos<double> LeePolinomio(std::string_view texto) {
    Términos<double> términos;
    std::size_t comienzo = 0;
    for (std::size_t i = 1; i <= texto.size(); ++i) {
        if (i != texto.size() && !EsFrontera(texto, i))
            continue;
        términos.push_back(LeeTérmino(texto.substr(comienzo, i - comienzo)));
        comienzo = i;
    }
    return términos;
}

Polinomio ReduceTérminos(const Contexto& contexto, Términos<double> términos) {
    Ordena(términos);
    if (std::ranges::all_of(términos, [&](const Término<double>& t) {
            return EsDecimalCorto(t.coeficiente, contexto.DígitosRedondeo);
        }))
        return DevExactoDeDecimales(términos);
    Agrupa(términos);
    return DevReal(std::move(términos));
}

std::string EscribePolinomio(const Contexto& contexto, const Términos<double>& términos) {
    std::string texto;
    for (const auto& [exponente, coeficiente] : términos) {
        const double redondeado = Redondea(coeficiente, contexto.DígitosRedondeo);
        if (redondeado != 0)
            EscribeTérmino(texto, redondeado, Redondea(exponente, contexto.DígitosRedondeo));
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
    Términos<double> términos = AReal(p);
    for (Término<double>& t : términos)
        t.coeficiente = Redondea(t.coeficiente, contexto.DígitosRedondeo);
    return DevExactoDeDecimales(términos);
}

// --- Values

Polinomio DevExacto(Términos<Entero> términos, Entero denominador) {
    Agrupa(términos);
    std::erase_if(términos, [](const auto& t) { return t.coeficiente.EsCero(); });
    CompruebaCantidad(términos.size());
    Entero común = denominador;
    for (const Término<Entero>& t : términos) {
        if (común.EsUno())
            break;
        común = DevMCD(común, t.coeficiente);
    }
    if (denominador.Signo() < 0 && común.Signo() > 0)
        común.CambiaSigno();
    if (!común.EsUno()) {
        denominador = Entero::Divide(denominador, común).cociente;
        for (Término<Entero>& t : términos)
            t.coeficiente = Entero::Divide(t.coeficiente, común).cociente;
    }
    constexpr std::size_t BitsDeDouble = 1023; // within them every quotient is a finite Double
    std::size_t bits = 0;
    for (const Término<Entero>& t : términos) {
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
    const auto natural = [](const auto& t) { return t.exponente >= 0 && EsEntero(t.exponente); };
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
        for (Término<Entero>& t : exacto->términos)
            t.coeficiente.CambiaSigno();
    } else {
        for (Término<double>& t : std::get<PolinomioReal>(p))
            t.coeficiente = -t.coeficiente;
    }
    return p;
}

División DividePolinomios(Contexto& contexto, const Polinomio& dividendo,
                          const Polinomio& divisor) {
    if (EsCero(divisor))
        throw ErrorEjecución(DivisiónPorCero);
    const PolinomioExacto* const a = SiExacto(dividendo);
    const PolinomioExacto* const b = SiExacto(divisor);
    if (a != nullptr && b != nullptr)
        if (auto división = DivideExactos(contexto, *a, *b))
            return *std::move(división);
    return DivideReales(contexto, AReal(dividendo), AReal(divisor));
}

} // namespace quiralto
