#include "engine/desarrollo/escribe_suma.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <span>

namespace quiralto {
namespace {

constexpr double MáximoDenominadorComún = 1000;

// An exponent that its decimals would cut short, in a complete expansion.
bool EsFracción(const TablaSímbolos& tabla, double exponente) {
    constexpr double Cerca = 1e-12;
    return tabla.clase == ClaseDesarrollo::Completo &&
           std::fabs(Redondea(exponente, tabla.contexto.DígitosRedondeo) - exponente) > Cerca &&
           DevFracciónPequeña(exponente).denominador > 1;
}

class Escritor {
public:
    explicit Escritor(const TablaSímbolos& tabla)
        : tabla_(tabla), dígitos_(tabla.contexto.DígitosRedondeo) {}

    void EscribeSuma(const Términos& suma);
    void EscribeTérmino(double coeficiente, const Literal& literal, bool primero);
    void EscribeLiteral(const Literal& literal);
    void EscribeFracción(const Términos& numerador, const Términos& denominador);

    std::string texto;

private:
    void EscribeNúmero(double valor);
    void EscribeExponente(std::span<const Factor> factores);
    double DevDenominadorComún(std::span<const Factor> factores) const;
    void EscribeSumaExponente(std::span<const Factor> factores, double escala);
    void EscribeDenominador(const Términos& denominador);
    bool EsSimple(const Literal& literal) const;
    double Redondeado(double coeficiente) const {
        return LimpiaEntero(Redondea(coeficiente, dígitos_)); // whose last bit may be off
    }

    const TablaSímbolos& tabla_;
    int dígitos_;
};

void Escritor::EscribeNúmero(double valor) {
    if (EsEntero(valor) && std::fabs(valor) < 1e15) {
        std::array<char, 24> búfer{};
        const auto fin = std::to_chars(búfer.data(), búfer.data() + búfer.size(),
                                       static_cast<std::int64_t>(valor));
        texto.append(búfer.data(), fin.ptr);
    } else {
        texto += TextoNúmero(valor);
    }
}

void Escritor::EscribeSuma(const Términos& suma) {
    const std::size_t principio = texto.size();
    std::size_t escritos = 0;
    for (const Término& término : suma) {
        const double coeficiente = Redondeado(término.coeficiente);
        if (coeficiente == 0)
            continue;
        EscribeTérmino(coeficiente, término.literal, texto.size() == principio);
        if (texto.size() - principio > MáximoTexto)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        if (++escritos % 1024 == 0)
            tabla_.contexto.Vigila();
    }
    if (texto.size() == principio)
        texto += '0';
}

void Escritor::EscribeTérmino(double coeficiente, const Literal& literal, bool primero) {
    if (coeficiente > 0 && !primero)
        texto += '+';
    if (literal.empty())
        return EscribeNúmero(coeficiente);
    if (coeficiente < 0)
        texto += '-';
    const double absoluto = std::fabs(coeficiente);
    const Base* const cociente = DevCocienteDe(tabla_, literal);
    if (absoluto != 1) {
        EscribeNúmero(absoluto);
        if (cociente != nullptr && EsNúmero(cociente->numerador)) { // 2*1/Y is 2/Y
            texto.append(cociente->texto, 1);
            return;
        }
        texto += '*';
    }
    EscribeLiteral(literal);
}

void Escritor::EscribeLiteral(const Literal& literal) {
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla_, literal, i);
        if (i > 0)
            texto += '*';
        texto += tabla_.BaseDe(literal[i].símbolo).texto;
        EscribeExponente(std::span(literal).subspan(i, fin - i));
        i = fin;
    }
}

void Escritor::EscribeExponente(std::span<const Factor> factores) {
    const Factor& primero = factores.front();
    if (factores.size() == 1 && tabla_.EsLlano(primero.símbolo)) {
        if (primero.exponente == 1)
            return;
        texto += '^';
        if (!EsFracción(tabla_, primero.exponente))
            return EscribeNúmero(Redondeado(primero.exponente));
        const FracciónPequeña fracción = DevFracciónPequeña(primero.exponente);
        texto += '(';
        EscribeNúmero(fracción.numerador);
        texto += '/';
        EscribeNúmero(fracción.denominador);
        texto += ')';
        return;
    }
    texto += '^';
    if (factores.size() == 1 && std::fabs(primero.exponente) == 1 &&
        EsSimple(tabla_.LiteralExponente(primero.símbolo))) {
        if (primero.exponente < 0)
            texto += '-';
        texto += tabla_.TextoExponente(primero.símbolo);
        return;
    }
    const double q = DevDenominadorComún(factores);
    texto += '(';
    if (q != 1 && factores.size() > 1)
        texto += '(';
    EscribeSumaExponente(factores, q);
    if (q != 1) {
        texto += factores.size() > 1 ? ")/" : "/";
        EscribeNúmero(q);
    }
    texto += ')';
}

// The least whole number that makes all exponents whole, where one of them is a fraction;
// otherwise 1.
double Escritor::DevDenominadorComún(std::span<const Factor> factores) const {
    if (std::ranges::none_of(factores,
                             [&](const Factor& f) { return EsFracción(tabla_, f.exponente); }))
        return 1;
    double q = 1;
    for (const Factor& factor : factores) {
        const double suyo = DevFracciónPequeña(factor.exponente * q).denominador;
        if (suyo == 0 || q * suyo > MáximoDenominadorComún)
            return 1;
        q *= suyo;
    }
    return q;
}

// A lone variable or function, which needs no parentheses behind "^".
bool Escritor::EsSimple(const Literal& literal) const {
    if (literal.size() != 1 || literal[0].exponente != 1 || !tabla_.EsLlano(literal[0].símbolo))
        return false;
    const ClaseBase clase = tabla_.BaseDe(literal[0].símbolo).clase;
    return clase == ClaseBase::Variable || clase == ClaseBase::Función;
}

void Escritor::EscribeSumaExponente(std::span<const Factor> factores, double escala) {
    bool esPrimero = true;
    for (const Factor& factor : factores) {
        double coeficiente = factor.exponente * escala;
        coeficiente = escala != 1 ? std::round(coeficiente) : Redondeado(coeficiente);
        if (coeficiente == 0)
            continue;
        if (coeficiente > 0 && !esPrimero)
            texto += '+';
        esPrimero = false;
        const std::string& literal = tabla_.TextoExponente(factor.símbolo);
        if (literal.empty()) {
            EscribeNúmero(coeficiente);
            continue;
        }
        if (coeficiente < 0)
            texto += '-';
        const bool esInverso = literal.starts_with("1/"); // 2*1/Y is 2/Y
        if (std::fabs(coeficiente) != 1) {
            EscribeNúmero(std::fabs(coeficiente));
            if (!esInverso)
                texto += '*';
        } else if (esInverso) {
            texto += '1';
        }
        texto.append(literal, esInverso ? 1 : 0);
    }
    if (esPrimero)
        texto += '0';
}

void Escritor::EscribeFracción(const Términos& numerador, const Términos& denominador) {
    const bool varios = numerador.size() > 1;
    if (varios)
        texto += '(';
    EscribeSuma(numerador);
    texto += varios ? ")/" : "/";
    EscribeDenominador(denominador);
}

// "/" binds closer than "*", so only a lone number, base or power goes without parentheses.
void Escritor::EscribeDenominador(const Términos& denominador) {
    const Término& primero = denominador.front();
    const bool número = EsNúmero(denominador) && primero.coeficiente >= 0;
    const bool base = denominador.size() == 1 && Redondeado(primero.coeficiente) == 1 &&
                      !primero.literal.empty() &&
                      FinDeBase(tabla_, primero.literal, 0) == primero.literal.size() &&
                      DevCocienteDe(tabla_, primero.literal) == nullptr;
    if (!número && !base)
        texto += '(';
    EscribeSuma(denominador);
    if (!número && !base)
        texto += ')';
}

} // namespace

std::string EscribeSuma(const TablaSímbolos& tabla, const Términos& suma) {
    Escritor escritor(tabla);
    escritor.EscribeSuma(suma);
    return std::move(escritor.texto);
}

std::string EscribeLiteral(const TablaSímbolos& tabla, const Literal& literal) {
    Escritor escritor(tabla);
    escritor.EscribeLiteral(literal);
    return std::move(escritor.texto);
}

std::string EscribeFracción(const TablaSímbolos& tabla, const Términos& numerador,
                            const Términos& denominador) {
    Escritor escritor(tabla);
    escritor.EscribeFracción(numerador, denominador);
    return std::move(escritor.texto);
}

double DevExponenteFinal(const TablaSímbolos& tabla, double exponente) {
    return EsEntero(exponente) || EsFracción(tabla, exponente)
               ? exponente
               : Redondea(exponente, tabla.contexto.DígitosRedondeo);
}

} // namespace quiralto
