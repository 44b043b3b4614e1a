#include "engine/evaluacion/plan.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <map>
#include <utility>

namespace quiralto {
namespace {

constexpr std::size_t MáximoFilas = 4096; // 8 MiB of rows

// The steps with a row of its own for each, in Operando::fila: node n writes row n + 1.
struct Nodo {
    Paso paso;
    std::size_t lectores = 0;
    bool hecho = false; // the cosine of a pair
};

class Planificador {
public:
    explicit Planificador(const Programa& programa)
        : programa_(programa), operandos_(programa.registros.size()) {}

    bool Planea(Plan& plan) {
        nodos_.reserve(programa_.instrucciones.size());
        for (std::size_t r = 1; r < operandos_.size(); ++r)
            operandos_[r].valor = programa_.registros[r];
        operandos_[0].esFila = true;
        for (const Instrucción& instrucción : programa_.instrucciones)
            if (!Añade(instrucción))
                return false;
        const Operando resultado = operandos_[programa_.Resultado()];
        if (!resultado.esFila)
            return false;
        Nodo& último = nodos_[resultado.fila - 1];
        último.paso.vigilado = true;
        ++último.lectores; // so that its row is kept
        EmparejaSenosYCosenos();
        ReparteFilas(plan);
        plan.resultado = plan.pasos.back().destino;
        return plan.filas <= MáximoFilas;
    }

private:
    bool Añade(const Instrucción& instrucción) {
        const auto operando = [this](std::int16_t registro) -> const Operando& {
            return operandos_[static_cast<std::size_t>(registro)];
        };
        const DescripciónOperación* const operación = BuscaOperación(instrucción.código);
        // The random values of SLN have an order, and a code outside the table does nothing.
        if (operación == nullptr || operación->familia == Familia::Símbolo)
            return false;
        const Operando izquierdo =
            operación->EsBinaria() ? operando(instrucción.izquierdo) : Operando{};
        const Operando derecho = operando(instrucción.derecho);
        Operando& resultado = operandos_[static_cast<std::size_t>(instrucción.resultado)];
        if (!izquierdo.esFila && !derecho.esFila) {
            resultado.valor = operación->valor(izquierdo.valor, derecho.valor, nullptr);
            return std::isfinite(resultado.valor);
        }
        resultado = {.esFila = true,
                     .fila = DevNodo(instrucción.código, izquierdo, derecho) + 1,
                     .valor = 0};
        return true;
    }

    // The node of an instruction, an earlier one where it is the same.
    std::size_t DevNodo(Operación código, const Operando& izquierdo, Operando derecho) {
        if (código == Operación::Cociente && EsPotenciaDeDos(derecho)) {
            // The product is the same to the bit and many times faster.
            código = Operación::Producto;
            derecho.valor = 1 / derecho.valor;
        }
        if (const int exponente = ExponenteConstante(código, derecho))
            return DevPotenciaEntera(izquierdo, exponente).fila - 1;
        if (const std::size_t igual = BuscaIgual(código, izquierdo, derecho);
            igual != nodos_.size())
            return igual;
        const Oculta oculta = BuscaOperación(código)->oculta;
        AnotaLector(izquierdo, oculta == Oculta::Ambos);
        AnotaLector(derecho, oculta != Oculta::Nada);
        nodos_.push_back({.paso = {.código = código,
                                   .izquierdo = izquierdo,
                                   .derecho = derecho,
                                   .destino = nodos_.size() + 1}});
        return nodos_.size() - 1;
    }

    static int ExponenteConstante(Operación código, const Operando& derecho) {
        return código == Operación::Potencia && !derecho.esFila ? ExponenteProducto(derecho.valor)
                                                                : 0;
    }

    // A small whole power as the products that PotenciaEntera makes, which powers of one base
    // share.
    Operando DevPotenciaEntera(const Operando& base, int exponente) {
        if (exponente == 1)
            return base;
        const bool par = exponente % 2 == 0;
        const Operando menor = DevPotenciaEntera(base, par ? exponente / 2 : exponente - 1);
        const std::size_t nodo = DevNodo(Operación::Producto, menor, par ? menor : base);
        return {.esFila = true, .fila = nodo + 1, .valor = 0};
    }

    // The same instruction on the same operands among the last nodes, or their count. Looking no
    // further keeps the plan linear; it is a formula's neighbours that repeat each other.
    std::size_t BuscaIgual(Operación código, const Operando& izquierdo,
                           const Operando& derecho) const {
        constexpr std::size_t Alcance = 32;
        const std::size_t desde = nodos_.size() - std::min(Alcance, nodos_.size());
        for (std::size_t n = desde; n < nodos_.size(); ++n) {
            const Paso& paso = nodos_[n].paso;
            if (paso.código == código && EsElMismo(paso.izquierdo, izquierdo) &&
                EsElMismo(paso.derecho, derecho))
                return n;
        }
        return nodos_.size();
    }

    static bool EsElMismo(const Operando& a, const Operando& b) {
        return a.esFila == b.esFila && a.fila == b.fila &&
               std::bit_cast<std::uint64_t>(a.valor) == std::bit_cast<std::uint64_t>(b.valor);
    }

    static bool EsPotenciaDeDos(const Operando& operando) {
        int exponente = 0;
        return !operando.esFila && std::isnormal(operando.valor) &&
               std::fabs(std::frexp(operando.valor, &exponente)) == 0.5 &&
               std::isnormal(1 / operando.valor);
    }

    void AnotaLector(const Operando& operando, bool esconde) {
        if (!operando.esFila || operando.fila == 0)
            return;
        Nodo& nodo = nodos_[operando.fila - 1];
        ++nodo.lectores;
        nodo.paso.vigilado |= esconde;
    }

    // A sine and a cosine of one row: the first of the two does both.
    void EmparejaSenosYCosenos() {
        std::map<std::size_t, std::size_t> vistos; // row of the argument -> node
        for (std::size_t n = 0; n < nodos_.size(); ++n) {
            const Operación código = nodos_[n].paso.código;
            if (código != Operación::Sin && código != Operación::Cos)
                continue;
            const auto [lugar, primero] = vistos.try_emplace(nodos_[n].paso.derecho.fila, n);
            if (primero)
                continue;
            Nodo& anterior = nodos_[lugar->second];
            // The same function again, too far behind to have been found equal, or a pair already.
            if (anterior.paso.código == código || anterior.paso.destinoCoseno != 0) {
                lugar->second = n;
                continue;
            }
            const std::size_t seno =
                código == Operación::Sin ? nodos_[n].paso.destino : anterior.paso.destino;
            const std::size_t coseno =
                código == Operación::Cos ? nodos_[n].paso.destino : anterior.paso.destino;
            anterior.paso.código = Operación::Sin;
            anterior.paso.destino = seno;
            anterior.paso.destinoCoseno = coseno;
            anterior.paso.vigilado |= nodos_[n].paso.vigilado;
            nodos_[n].hecho = true;
        }
    }

    // From a row for each node to rows that are used again.
    void ReparteFilas(Plan& plan) {
        std::vector<std::size_t> fila(nodos_.size() + 1, 0);
        std::vector<std::size_t> libres;
        const auto toma = [&](std::size_t nodo) {
            if (libres.empty())
                libres.push_back(plan.filas++);
            fila[nodo] = libres.back();
            libres.pop_back();
            return fila[nodo];
        };
        const auto lee = [&](Operando& operando) {
            if (!operando.esFila || operando.fila == 0)
                return;
            const std::size_t nodo = operando.fila;
            operando.fila = fila[nodo];
            if (--nodos_[nodo - 1].lectores == 0)
                libres.push_back(fila[nodo]);
        };
        for (const Nodo& nodo : nodos_) {
            if (nodo.hecho)
                continue;
            Paso paso = nodo.paso;
            paso.destino = toma(nodo.paso.destino);
            if (paso.destinoCoseno != 0)
                paso.destinoCoseno = toma(nodo.paso.destinoCoseno);
            lee(paso.izquierdo);
            lee(paso.derecho);
            plan.pasos.push_back(paso);
        }
    }

    const Programa& programa_;
    std::vector<Operando> operandos_; // by register
    std::vector<Nodo> nodos_;
};

} // namespace

bool PlaneaBloque(const Programa& programa, Plan& plan) {
    return Planificador(programa).Planea(plan);
}

} // namespace quiralto
