#include "engine/desarrollo/puntos_de_prueba.h"

#include "engine/lenguaje/aritmetica.h"
#include "engine/lenguaje/compila.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quiralto {
namespace {

constexpr double SinValor = std::numeric_limits<double>::quiet_NaN();

double SóloFinito(double valor) {
    return std::isfinite(valor) ? valor : SinValor;
}

// The general power takes longest where it has no value.
double DevPotenciaConValor(double base, double exponente) {
    return base < 0 && exponente != std::trunc(exponente) ? SinValor : DevPotencia(base, exponente);
}

// Not a number outside the domain and beyond the Double range.
double ValorDe(const DescripciónOperación& operación, double izquierdo, double derecho) {
    if (operación.fallo(izquierdo, derecho) != SinFallo)
        return SinValor;
    return SóloFinito(operación.valor(izquierdo, derecho, nullptr));
}

} // namespace

PuntosDePrueba& DevPuntos(TablaSímbolos& tabla) {
    if (!tabla.Puntos())
        tabla.PonPuntos(std::make_shared<PuntosDePrueba>(tabla));
    return *tabla.Puntos();
}

void PuntosDePrueba::Da(Conjunto conjunto, const Literal& literal, std::size_t desde,
                        std::span<double> valores) {
    const Vista vista = conjunto == Conjunto::Primero ? Vista::Primera : Vista::SegundaFuera;
    Asegura(vista, literal, desde + Decena);
    DeLiteral(vista, literal, desde, valores);
}

double PuntosDePrueba::X(Vista vista, std::size_t punto) const {
    return vista == Vista::Primera ? sorteados_.XAncha(punto) : sorteados_.XEstrecha(punto);
}

double PuntosDePrueba::Letra(Vista vista, double lugar, std::size_t punto) {
    return vista == Vista::SegundaDentro ? sorteados_.LetraEstrecha(lugar, punto) : lugar;
}

bool PuntosDePrueba::Faltan(Vista vista, const Literal& literal, std::size_t hasta) {
    const std::size_t antes = pendientes_.size();
    const auto mira = [&](Vista v, IdSímbolo símbolo) {
        const IdBase base = tabla_.IdDe(símbolo);
        std::vector<Valores>& filas = bases_[static_cast<std::size_t>(v)];
        if (filas.size() <= base)
            filas.resize(base + 1);
        if (filas[base].size() < hasta)
            pendientes_.emplace_back(v, base);
    };
    for (const Factor& factor : literal) {
        mira(vista, factor.símbolo);
        if (!tabla_.EsLlano(factor.símbolo)) // as deep as the table lets exponents stand
            Faltan(Dentro(vista), tabla_.LiteralExponente(factor.símbolo), hasta);
    }
    return pendientes_.size() != antes;
}

bool PuntosDePrueba::Faltan(Vista vista, const Términos& suma, std::size_t hasta) {
    bool faltan = false;
    for (const Término& término : suma)
        faltan = Faltan(vista, término.literal, hasta) || faltan;
    return faltan;
}

// What a base is made of and has no values yet is put on the list of what is to be done before.
bool PuntosDePrueba::FaltanDentro(Vista vista, const Base& base, std::size_t hasta) {
    if (base.clase == ClaseBase::Cociente) {
        const bool arriba = Faltan(VistaDelNumerador(vista, base), base.contenido, hasta);
        return Faltan(vista, base.denominador, hasta) || arriba;
    }
    return Faltan(Dentro(vista), base.contenido, hasta);
}

void PuntosDePrueba::Asegura(Vista vista, const Literal& literal, std::size_t hasta) {
    pendientes_.clear();
    Faltan(vista, literal, hasta);
    while (!pendientes_.empty()) {
        const auto [v, id] = pendientes_.back();
        const Base& base = tabla_.BasePorId(id);
        if (FaltanDentro(v, base, hasta))
            continue;
        Valores& fila = bases_[static_cast<std::size_t>(v)][id];
        for (std::size_t desde = fila.size(); desde < hasta; desde += Decena) {
            fila.resize(desde + Decena);
            const auto valores = std::span(fila).subspan(desde);
            Calcula(v, base, desde, valores);
            std::ranges::transform(valores, valores.begin(), SóloFinito);
        }
        pendientes_.pop_back();
    }
}

void PuntosDePrueba::Calcula(Vista vista, const Base& base, std::size_t desde,
                             std::span<double> valores) {
    const auto pon = [&](auto valor) {
        for (std::size_t k = 0; k < valores.size(); ++k)
            valores[k] = valor(k);
    };
    switch (base.clase) {
    case ClaseBase::Variable:
        return base.texto == "X"
                   ? pon([&](std::size_t k) { return X(vista, desde + k); })
                   : pon([&](std::size_t k) { return Letra(vista, base.lugar, desde + k); });
    case ClaseBase::Función:
        DeSuma(Dentro(vista), base.contenido, desde, valores);
        return pon([&](std::size_t k) { return ValorDe(*base.función, 0, valores[k]); });
    case ClaseBase::Euler:
        return pon([](std::size_t) { return std::exp(1.0); });
    case ClaseBase::Número:
    case ClaseBase::Grupo:
        return DeSuma(Dentro(vista), base.contenido, desde, valores);
    case ClaseBase::Cociente: {
        std::array<double, Decena> abajo{};
        DeSuma(VistaDelNumerador(vista, base), base.contenido, desde, valores);
        DeLiteral(vista, base.denominador, desde, std::span(abajo).first(valores.size()));
        return pon(
            [&](std::size_t k) { return valores[k] / abajo[k] * (base.signoAbajo ? -1 : 1); });
    }
    case ClaseBase::Opaca:
        break;
    }
    pon([&](std::size_t k) { return CalculaOpaca(vista, base, desde + k); });
}

void PuntosDePrueba::DeSuma(Vista vista, const Términos& suma, std::size_t desde,
                            std::span<double> valores) {
    std::array<double, Decena> búfer{};
    const auto deTérmino = std::span(búfer).first(valores.size());
    std::ranges::fill(valores, 0);
    for (const Término& término : suma) {
        DeLiteral(vista, término.literal, desde, deTérmino);
        const double coeficiente = término.coeficiente.ADouble();
        for (std::size_t k = 0; k < valores.size(); ++k)
            valores[k] += coeficiente * deTérmino[k];
    }
}

void PuntosDePrueba::DeLiteral(Vista vista, const Literal& literal, std::size_t desde,
                               std::span<double> valores) {
    std::ranges::fill(valores, 1);
    for (std::size_t i = 0; i < literal.size();) {
        const std::size_t fin = FinDeBase(tabla_, literal, i);
        MultiplicaPotencia(vista, std::span(literal).subspan(i, fin - i), desde, valores);
        i = fin;
    }
    std::ranges::transform(valores, valores.begin(), SóloFinito);
}

void PuntosDePrueba::MultiplicaPotencia(Vista vista, std::span<const Factor> factores,
                                        std::size_t desde, std::span<double> valores) {
    const IdSímbolo primero = factores.front().símbolo;
    const double* const base =
        &bases_[static_cast<std::size_t>(vista)][tabla_.IdDe(primero)][desde];
    if (factores.size() == 1 && tabla_.EsLlano(primero)) {
        const double exponente = factores.front().exponente.ADouble();
        if (exponente == 1)
            for (std::size_t k = 0; k < valores.size(); ++k)
                valores[k] *= base[k];
        else
            for (std::size_t k = 0; k < valores.size(); ++k)
                valores[k] *= DevPotenciaConValor(base[k], exponente);
        return;
    }
    std::array<double, Decena> exponentes{};
    std::array<double, Decena> búfer{};
    const auto suyos = std::span(búfer).first(valores.size());
    for (const Factor& factor : factores) {
        DeLiteral(Dentro(vista), tabla_.LiteralExponente(factor.símbolo), desde, suyos);
        const double coeficiente = factor.exponente.ADouble();
        for (std::size_t k = 0; k < suyos.size(); ++k)
            exponentes[k] += coeficiente * suyos[k];
    }
    const bool esEuler = tabla_.BaseDe(primero).clase == ClaseBase::Euler;
    for (std::size_t k = 0; k < valores.size(); ++k)
        valores[k] *=
            esEuler ? std::exp(exponentes[k]) : DevPotenciaConValor(base[k], exponentes[k]);
}

// A text of the language that was never taken apart: its letters all count as inside.
double PuntosDePrueba::CalculaOpaca(Vista vista, const Base& base, std::size_t punto) {
    const IdBase id = tabla_.IdDe(base.símbolo);
    auto programa = opacas_.find(id);
    if (programa == opacas_.end())
        programa = opacas_.emplace(id, CompilaExpresión(base.texto)).first;
    std::vector<double>& registros = programa->second.registros;
    registros[0] = X(vista, punto);
    for (const Instrucción& i : programa->second.instrucciones) {
        double& resultado = registros[static_cast<std::size_t>(i.resultado)];
        const DescripciónOperación& operación = *BuscaOperación(i.código);
        const double derecho = registros[static_cast<std::size_t>(i.derecho)];
        resultado =
            operación.familia == Familia::Símbolo
                ? Letra(Dentro(vista), derecho, punto)
                : ValorDe(operación, registros[static_cast<std::size_t>(i.izquierdo)], derecho);
    }
    return registros[programa->second.Resultado()];
}

} // namespace quiralto
