#include "engine/desarrollo/escribe.h"

#include "engine/desarrollo/escribe_dentro.h"
#include "engine/desarrollo/numero_escrito.h"
#include "engine/lenguaje/termino_texto.h"

#include <algorithm>
#include <span>

namespace quiralto {
namespace {

class Escritor {
public:
    explicit Escritor(const TablaSímbolos& tabla) : tabla_(tabla) {}

    void EscribeSuma(const Términos& suma);
    void EscribeLiteral(std::string& destino, const Literal& literal) const;
    void EscribeFracción(const Términos& numerador, const Términos& denominador);

    std::string texto;

private:
    void EscribeTérmino(const Término& término, std::size_t principio);
    void EscribeCociente(const Coeficiente& coeficiente, const Término& numerador,
                         const Literal& denominador, std::size_t principio);
    void EscribeCociente(const Término& término, const Base& cociente, std::size_t principio);
    void EscribeDenominador(const Coeficiente& número, const Literal& literal);
    bool SePliega(const Coeficiente& número, const Literal& literal) const;
    bool EsUnaBase(const Literal& literal) const {
        return !literal.empty() && FinDeBase(tabla_, literal, 0) == literal.size();
    }

    const TablaSímbolos& tabla_;
    std::string literal_; // of the term at hand
};

void Escritor::EscribeSuma(const Términos& suma) {
    const std::size_t principio = texto.size();
    std::size_t escritos = 0;
    for (const Término& término : suma) {
        EscribeTérmino(término, principio);
        if (texto.size() - principio > MáximoTexto)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        if (++escritos % 1024 == 0)
            tabla_.contexto.Vigila();
    }
    if (texto.size() == principio)
        texto += '0';
}

void Escritor::EscribeTérmino(const Término& término, std::size_t principio) {
    if (tabla_.HayCocientes())
        if (const Base* const cociente = DevCocienteDe(tabla_, término.literal);
            cociente != nullptr && término.literal[0].exponente == 1)
            return EscribeCociente(término, *cociente, principio);
    if (!EsDecimal(tabla_, término.coeficiente))
        return EscribeCociente(DevFracciónEscrita(término.coeficiente), {1, término.literal}, {},
                               principio);
    literal_.clear();
    EscribeLiteral(literal_, término.literal);
    quiralto::EscribeTérmino(texto, término.coeficiente.ADouble(), literal_, principio);
}

void Escritor::EscribeCociente(const Término& término, const Base& cociente,
                               std::size_t principio) {
    Coeficiente coeficiente = DevFracciónEscrita(término.coeficiente);
    bool signoAbajo = cociente.signoAbajo;
    if (signoAbajo && coeficiente.Signo() < 0) {
        coeficiente.CambiaSigno();
        signoAbajo = false;
    }
    if (cociente.contenido.size() == 1 && !signoAbajo)
        return EscribeCociente(coeficiente, cociente.contenido[0], cociente.denominador, principio);
    if (texto.size() > principio && (cociente.contenido.size() > 1 || coeficiente.Signo() > 0))
        texto += '+';
    Términos numerador = cociente.contenido;
    EscalaSuma(numerador, Coeficiente(coeficiente.Numerador(), 1));
    if (numerador.size() > 1)
        texto += '(';
    EscribeSuma(numerador);
    if (numerador.size() > 1)
        texto += ')';
    texto += '/';
    const Coeficiente abajo(coeficiente.Denominador(), 1);
    EscribeDenominador(signoAbajo ? -abajo : abajo, cociente.denominador);
}

void Escritor::EscribeCociente(const Coeficiente& coeficiente, const Término& numerador,
                               const Literal& denominador, std::size_t principio) {
    literal_.clear();
    EscribeLiteral(literal_, numerador.literal);
    quiralto::EscribeTérmino(texto, coeficiente.Numerador().ADouble(), literal_, principio);
    texto += '/';
    EscribeDenominador({coeficiente.Denominador(), 1}, denominador);
}

// Whether a number and a lone group are written as one group.
bool Escritor::SePliega(const Coeficiente& número, const Literal& literal) const {
    if (número.EsUno() || literal.size() != 1 || literal[0].exponente != 1 ||
        !tabla_.EsLlano(literal[0].símbolo))
        return false;
    const Base& base = tabla_.BaseDe(literal[0].símbolo);
    return base.clase == ClaseBase::Grupo && base.contenido.size() > 1 &&
           std::ranges::all_of(base.contenido, [&](const Término& t) {
               return t.coeficiente.EsExacto() && DevCocienteDe(tabla_, t.literal) == nullptr &&
                      SeEscribeEntero((t.coeficiente * número).Numerador());
           });
}

// "/" binds closer than "*", so only a lone number, base or power goes without parentheses.
void Escritor::EscribeDenominador(const Coeficiente& número, const Literal& literal) {
    if (SePliega(número, literal)) {
        Términos contenido = tabla_.BaseDe(literal[0].símbolo).contenido;
        EscalaSuma(contenido, número);
        texto += '(';
        EscribeSuma(contenido);
        texto += ')';
        return;
    }
    const bool solo = literal.empty() ? número.Signo() > 0 : número.EsUno() && EsUnaBase(literal);
    std::string factores;
    EscribeLiteral(factores, literal);
    if (!solo)
        texto += '(';
    quiralto::EscribeTérmino(texto, número.ADouble(), factores, texto.size());
    if (!solo)
        texto += ')';
}

void Escritor::EscribeLiteral(std::string& destino, const Literal& literal) const {
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla_, literal, i);
        if (i > 0)
            destino += '*';
        const Base& base = tabla_.BaseDe(literal[i].símbolo);
        const auto factores = std::span(literal).subspan(i, fin - i);
        const bool encerrado = base.clase == ClaseBase::Cociente && literal[i].exponente != 1;
        if (encerrado)
            destino += '(';
        destino += base.texto;
        if (encerrado)
            destino += ')';
        if (base.clase == ClaseBase::Euler) {
            EscribeSumaExponente(tabla_, destino, factores);
            destino += ')';
        } else {
            EscribeExponente(tabla_, destino, factores);
        }
        i = fin;
    }
}

void Escritor::EscribeFracción(const Términos& numerador, const Términos& denominador) {
    const bool varios = numerador.size() > 1;
    if (varios)
        texto += '(';
    EscribeSuma(numerador);
    texto += varios ? ")/" : "/";
    const Término& primero = denominador.front();
    const bool solo =
        denominador.size() == 1 &&
        (primero.literal.empty() ? primero.coeficiente.Signo() > 0
                                 : primero.coeficiente.EsUno() && EsUnaBase(primero.literal) &&
                                       DevCocienteDe(tabla_, primero.literal) == nullptr);
    if (!solo)
        texto += '(';
    EscribeSuma(denominador);
    if (!solo)
        texto += ')';
}

} // namespace

std::string EscribeSuma(const TablaSímbolos& tabla, const Términos& suma) {
    Escritor escritor(tabla);
    escritor.EscribeSuma(suma);
    return std::move(escritor.texto);
}

std::string EscribeDentro(const TablaSímbolos& tabla, const Términos& suma) {
    const auto entero = [](const Término& t) { return t.coeficiente.EsEnteroPequeño(); };
    if (std::ranges::all_of(suma, entero) || HayCocientes(tabla, suma))
        return EscribeSuma(tabla, suma);
    std::vector<std::string> literales;
    for (const Término& término : suma)
        literales.push_back(EscribeLiteral(tabla, término.literal));
    std::vector<Sumando> sumandos;
    for (std::size_t i = 0; i < suma.size(); ++i)
        sumandos.push_back({suma[i].coeficiente, literales[i]});
    std::string texto;
    EscribeSumandos(tabla, texto, std::move(sumandos));
    return texto;
}

std::string EscribeLiteral(const TablaSímbolos& tabla, const Literal& literal) {
    Escritor escritor(tabla);
    escritor.EscribeLiteral(escritor.texto, literal);
    return std::move(escritor.texto);
}

std::string EscribeFracción(const TablaSímbolos& tabla, const Términos& numerador,
                            const Términos& denominador) {
    Escritor escritor(tabla);
    escritor.EscribeFracción(numerador, denominador);
    return std::move(escritor.texto);
}

Coeficiente DevCoeficienteEscrito(const TablaSímbolos& tabla, const Término& término) {
    if (!tabla.HayCocientes() || DevCocienteDe(tabla, término.literal) == nullptr) {
        Coeficiente escrito = término.coeficiente.Escrito(tabla.contexto.DígitosRedondeo);
        if (!escrito.EsCero())
            return escrito;
    }
    return término.coeficiente.EsCero() ? término.coeficiente
                                        : DevFracciónEscrita(término.coeficiente);
}

} // namespace quiralto
