#include "engine/evaluacion/plan.h"

#include <map>
#include <utility>

namespace quiralto {
namespace {

constexpr std::size_t MáximoFilas = 4096; // 8 MiB of rows

// The operands of a step that are at its left, and at its right.
constexpr std::array<std::size_t, 2> Lado = {0, 2};

// A step, of which the destination is the register.
struct Nodo {
    Paso paso;
    std::size_t lectores = 0;
    bool hecho = false; // in the step of another
};

class Planificador {
public:
    Planificador(const Programa& programa, Plan& plan)
        : programa_(programa), plan_(plan), nodoDe_(programa.registros.size()),
          lugar_(programa.registros.size()) {}

    bool Planea() {
        AnotaNodos();
        EmparejaSenosYCosenos();
        for (std::size_t n = nodos_.size(); n-- > 0;)
            Absorbe(nodos_[n]);
        NumeraConstantes();
        return ReparteFilas();
    }

private:
    Nodo* BuscaNodo(std::size_t registro) {
        return nodoDe_[registro] != 0 ? &nodos_[nodoDe_[registro] - 1] : nullptr;
    }

    void AnotaNodos() {
        nodos_.reserve(programa_.instrucciones.size());
        for (const Instrucción& instrucción : programa_.instrucciones) {
            const DescripciónOperación& operación = *BuscaOperación(instrucción.código);
            const auto derecho = static_cast<std::size_t>(instrucción.derecho);
            const auto izquierdo = static_cast<std::size_t>(instrucción.izquierdo);
            const auto destino = static_cast<std::size_t>(instrucción.resultado);
            AnotaLector(derecho, operación.oculta != Oculta::Nada);
            Paso paso{.código = instrucción.código, .destino = destino};
            if (operación.EsBinaria()) {
                AnotaLector(izquierdo, operación.oculta == Oculta::Ambos);
                paso.operandos[Lado[0]] = izquierdo;
                paso.operandos[Lado[1]] = derecho;
            } else {
                paso.operandos[Lado[0]] = derecho;
            }
            nodos_.push_back({.paso = paso});
            nodoDe_[destino] = nodos_.size();
        }
        AnotaLector(nodos_.back().paso.destino, true); // so that its row is kept
    }

    void AnotaLector(std::size_t registro, bool esconde) {
        if (Nodo* const nodo = BuscaNodo(registro)) {
            ++nodo->lectores;
            nodo->paso.vigilado |= esconde;
        }
    }

    // A sine and a cosine of one row: the first of the two does both.
    void EmparejaSenosYCosenos() {
        std::map<std::size_t, std::size_t> vistos; // the argument -> node
        for (std::size_t n = 0; n < nodos_.size(); ++n) {
            Paso& paso = nodos_[n].paso;
            if (paso.código != Operación::Sin && paso.código != Operación::Cos)
                continue;
            const auto [lugar, primero] = vistos.try_emplace(paso.operandos[Lado[0]], n);
            if (primero)
                continue;
            Paso& anterior = nodos_[lugar->second].paso;
            // The same function again, which was not found equal, or a pair already.
            if (anterior.código == paso.código || anterior.destinoCoseno != 0) {
                lugar->second = n;
                continue;
            }
            anterior.destinoCoseno = paso.destino;
            if (anterior.código == Operación::Cos)
                std::swap(anterior.destino, anterior.destinoCoseno);
            anterior.código = Operación::Sin;
            anterior.vigilado |= paso.vigilado;
            nodos_[n].hecho = true;
        }
    }

    // Takes into the step what it alone reads, where that is arithmetic and nobody need look at it.
    void Absorbe(Nodo& nodo) {
        const DescripciónOperación& operación = *BuscaOperación(nodo.paso.código);
        if (nodo.hecho || operación.familia == Familia::Potencia)
            return;
        for (std::size_t lado = 0; lado < (operación.EsBinaria() ? 2U : 1U); ++lado) {
            Nodo* const interno = BuscaNodo(nodo.paso.operandos[Lado[lado]]);
            if (interno == nullptr || interno->lectores != 1 || interno->paso.vigilado ||
                !EsAritmética(interno->paso.código))
                continue;
            nodo.paso.internas[lado] = interno->paso.código;
            nodo.paso.operandos[Lado[lado]] = interno->paso.operandos[Lado[0]];
            nodo.paso.operandos[Lado[lado] + 1] = interno->paso.operandos[Lado[1]];
            interno->hecho = true;
        }
    }

    // Calls f with each operand that the step has.
    template <typename F> static void ConOperandos(Paso& paso, F f) {
        const bool esBinaria = BuscaOperación(paso.código)->EsBinaria();
        for (std::size_t lado = 0; lado < (esBinaria ? 2U : 1U); ++lado) {
            f(paso.operandos[Lado[lado]]);
            if (paso.internas[lado] != Nada)
                f(paso.operandos[Lado[lado] + 1]);
        }
    }

    void NumeraConstantes() {
        for (std::size_t r = 1; r < nodoDe_.size(); ++r)
            if (nodoDe_[r] == 0) {
                plan_.constantes.push_back(programa_.registros[r]);
                lugar_[r] = plan_.constantes.size();
            }
    }

    // From a register for each node to rows that are used again.
    bool ReparteFilas() {
        for (Nodo& nodo : nodos_) {
            if (nodo.hecho)
                continue;
            Paso paso = nodo.paso;
            paso.destino = TomaFila(nodo.paso.destino);
            if (paso.destinoCoseno != 0)
                paso.destinoCoseno = TomaFila(nodo.paso.destinoCoseno);
            ConOperandos(paso, [this](std::size_t& operando) { LeeFila(operando); });
            plan_.pasos.push_back(paso);
        }
        return plan_.filas <= MáximoFilas;
    }

    std::size_t TomaFila(std::size_t registro) {
        if (libres_.empty())
            libres_.push_back(1 + plan_.constantes.size() + plan_.filas++);
        lugar_[registro] = libres_.back();
        libres_.pop_back();
        return lugar_[registro];
    }

    void LeeFila(std::size_t& operando) {
        Nodo* const nodo = BuscaNodo(operando);
        operando = lugar_[operando];
        if (nodo != nullptr && --nodo->lectores == 0)
            libres_.push_back(operando);
    }

    const Programa& programa_;
    Plan& plan_;
    std::vector<Nodo> nodos_;
    std::vector<std::size_t>
        nodoDe_;                     // of a register: one more than its node, 0 for X and constants
    std::vector<std::size_t> lugar_; // of a register: its row or constant in the plan
    std::vector<std::size_t> libres_;
};

} // namespace

bool PlaneaBloque(const Programa& reducido, Plan& plan) {
    return Planificador(reducido, plan).Planea();
}

} // namespace quiralto
