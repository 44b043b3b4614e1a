#include "engine/desarrollo/escribe_dentro.h"

#include "engine/desarrollo/numero_escrito.h"
#include "engine/lenguaje/termino_texto.h"

#include <algorithm>

namespace quiralto {
namespace {

// The least number that makes all coefficients whole, where one of them is no decimal and all can
// be written so; otherwise 1.
Coeficiente DevDenominadorComún(const TablaSímbolos& tabla, std::span<const Sumando> suma) {
    if (std::ranges::all_of(suma,
                            [&](const Sumando& s) { return EsDecimal(tabla, s.coeficiente); }))
        return 1;
    Coeficiente común = 1;
    for (const auto& [coeficiente, literal] : suma) {
        if (!coeficiente.EsExacto())
            return 1;
        común = DevMcm(común, {coeficiente.Denominador(), 1});
        if (!SeEscribeEntero(común.Numerador()))
            return 1;
    }
    const bool caben = std::ranges::all_of(suma, [&](const Sumando& s) {
        return SeEscribeEntero((s.coeficiente * común).Numerador());
    });
    return caben ? común : Coeficiente(1);
}

void EscribeSumando(const TablaSímbolos& tabla, std::string& texto, const Coeficiente& coeficiente,
                    std::string_view literal, std::size_t principio) {
    if (EsDecimal(tabla, coeficiente))
        return EscribeTérmino(texto, coeficiente.ADouble(), literal, principio);
    const Coeficiente fracción = DevFracciónEscrita(coeficiente);
    EscribeTérmino(texto, fracción.Numerador().ADouble(), literal, principio);
    if (fracción.EsEntero())
        return;
    texto += '/';
    EscribeNúmero(texto, fracción.Denominador().ADouble());
}

void EscribeExponenteNúmero(const TablaSímbolos& tabla, std::string& texto,
                            const Coeficiente& valor) {
    const Coeficiente escrito = DevEscritoDentro(tabla, valor);
    const bool entre = !EsDecimal(tabla, escrito);
    if (entre)
        texto += '(';
    EscribeSumando(tabla, texto, escrito, "", texto.size());
    if (entre)
        texto += ')';
}

// A lone variable or function, which needs no parentheses behind "^".
bool EsSimple(const TablaSímbolos& tabla, const Literal& literal) {
    if (literal.size() != 1 || literal[0].exponente != 1)
        return false;
    const ClaseBase clase = tabla.BaseDe(literal[0].símbolo).clase;
    return clase == ClaseBase::Euler ||
           (tabla.EsLlano(literal[0].símbolo) &&
            (clase == ClaseBase::Variable || clase == ClaseBase::Función));
}

} // namespace

void EscribeSumandos(const TablaSímbolos& tabla, std::string& texto, std::vector<Sumando> suma) {
    for (Sumando& sumando : suma)
        sumando.coeficiente = DevEscritoDentro(tabla, sumando.coeficiente);
    const Coeficiente común = DevDenominadorComún(tabla, suma);
    const bool encerrada = !común.EsUno() && suma.size() > 1;
    if (encerrada)
        texto += '(';
    const std::size_t principio = texto.size();
    for (const auto& [coeficiente, literal] : suma) {
        EscribeSumando(tabla, texto, coeficiente * común, literal, principio);
        if (texto.size() - principio > MáximoTexto)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
    }
    if (texto.size() == principio)
        texto += '0';
    if (encerrada)
        texto += ')';
    if (!común.EsUno()) {
        texto += '/';
        EscribeNúmero(texto, común.ADouble());
    }
}

void EscribeExponente(const TablaSímbolos& tabla, std::string& texto,
                      std::span<const Factor> factores) {
    const Factor& primero = factores.front();
    if (factores.size() == 1 && tabla.EsLlano(primero.símbolo)) {
        if (primero.exponente == 1)
            return;
        texto += '^';
        if (primero.exponente.EsEntero() && primero.exponente.Numerador() >= 0 &&
            primero.exponente.Numerador() < 10) { // most are
            texto += static_cast<char>('0' + primero.exponente.Numerador());
            return;
        }
        return EscribeExponenteNúmero(tabla, texto, primero.exponente.Valor());
    }
    texto += '^';
    if (factores.size() == 1 && (primero.exponente == 1 || primero.exponente == -1) &&
        EsSimple(tabla, tabla.LiteralExponente(primero.símbolo))) {
        if (primero.exponente.Signo() < 0)
            texto += '-';
        texto += tabla.TextoExponente(primero.símbolo);
        return;
    }
    texto += '(';
    EscribeSumaExponente(tabla, texto, factores);
    texto += ')';
}

void EscribeSumaExponente(const TablaSímbolos& tabla, std::string& texto,
                          std::span<const Factor> factores) {
    std::vector<Sumando> suma;
    suma.reserve(factores.size());
    for (const Factor& factor : factores)
        suma.push_back({factor.exponente.Valor(), tabla.TextoExponente(factor.símbolo)});
    EscribeSumandos(tabla, texto, std::move(suma));
}

} // namespace quiralto
