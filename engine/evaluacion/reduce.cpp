#include "engine/evaluacion/reduce.h"

#include <bit>
#include <cmath>
#include <utility>

namespace quiralto {
namespace {

// The instructions of a program by what they do, and its constants by their bits: an open table
// that looks at a few places only, so that no formula makes it slow. What is not found there is
// merely done again.
class Índice {
public:
    explicit Índice(std::size_t cantidad) : lugares_(std::bit_ceil(2 * cantidad + 2)) {}

    // The register noted under the key, or where to note one: 0 there until that is done.
    std::int16_t& operator[](std::uint64_t clave) {
        const std::size_t máscara = lugares_.size() - 1;
        std::size_t i = (clave * 0x9E3779B97F4A7C15U >> 32U) & máscara;
        for (int pasos = 0; pasos < Alcance; ++pasos, i = (i + 1) & máscara) {
            if (lugares_[i].registro == 0)
                lugares_[i].clave = clave;
            if (lugares_[i].clave == clave)
                return lugares_[i].registro;
        }
        return ninguno_ = 0;
    }

private:
    static constexpr int Alcance = 16;
    struct Lugar {
        std::uint64_t clave = 0;
        std::int16_t registro = 0;
    };
    std::vector<Lugar> lugares_;
    std::int16_t ninguno_ = 0;
};

class Reductor {
public:
    explicit Reductor(const Programa& programa)
        : programa_(programa), valores_(programa.registros.size()),
          constantes_(programa.registros.size()),
          // A whole power becomes three products at the most.
          hechas_(3 * programa.instrucciones.size()) {
        for (std::size_t r = 1; r < valores_.size(); ++r)
            valores_[r].constante = programa.registros[r];
        valores_[0].esConstante = false;
        reducido_.registros.push_back(0); // X
        reducido_.instrucciones.reserve(programa.instrucciones.size());
    }

    std::optional<Programa> Reduce() {
        for (const Instrucción& instrucción : programa_.instrucciones)
            if (!Añade(instrucción))
                return std::nullopt;
        const Valor& resultado = valores_[programa_.Resultado()];
        if (resultado.esConstante || resultado.registro == 0 ||
            reducido_.registros.size() > MáximoRegistro)
            return std::nullopt;
        return std::move(reducido_);
    }

private:
    // What a register of the program holds: a constant, or a register of the reduced one.
    struct Valor {
        bool esConstante = true;
        double constante = 0;
        std::int16_t registro = 0;
    };

    const Valor& DevValor(std::int16_t registro) const {
        return valores_[static_cast<std::size_t>(registro)];
    }

    bool Añade(const Instrucción& instrucción) {
        const DescripciónOperación* const operación = BuscaOperación(instrucción.código);
        // The random values of SLN have an order, and a code outside the table does nothing.
        if (operación == nullptr || operación->familia == Familia::Símbolo ||
            reducido_.registros.size() > MáximoRegistro)
            return false;
        const Valor izquierdo = operación->EsBinaria() ? DevValor(instrucción.izquierdo) : Valor{};
        const Valor derecho = DevValor(instrucción.derecho);
        Valor& resultado = valores_[static_cast<std::size_t>(instrucción.resultado)];
        if (izquierdo.esConstante && derecho.esConstante) {
            resultado.constante = operación->valor(izquierdo.constante, derecho.constante, nullptr);
            return std::isfinite(resultado.constante);
        }
        resultado = {.esConstante = false, .registro = Opera(*operación, izquierdo, derecho)};
        return true;
    }

    // The register of an operation of which one operand at least is no constant.
    std::int16_t Opera(const DescripciónOperación& operación, const Valor& izquierdo,
                       Valor derecho) {
        Operación código = operación.código;
        if (derecho.esConstante) {
            if (const int exponente =
                    código == Operación::Potencia ? ExponenteProducto(derecho.constante) : 0)
                return DevPotenciaEntera(izquierdo.registro, exponente);
            if (código == Operación::Cociente && EsPotenciaDeDos(derecho.constante)) {
                // The product is the same to the bit and many times faster.
                código = Operación::Producto;
                derecho.constante = 1 / derecho.constante;
            }
            // X itself may be no number, which the operation would be the first to tell.
            if (izquierdo.registro != 0 && NoCambia(código, derecho.constante))
                return izquierdo.registro;
        } else if (operación.EsBinaria() && izquierdo.esConstante && derecho.registro != 0 &&
                   código == Operación::Producto && izquierdo.constante == 1) {
            return derecho.registro;
        }
        return DevRegistro(código, operación.EsBinaria() ? DevRegistro(izquierdo) : std::int16_t{0},
                           DevRegistro(derecho));
    }

    static bool NoCambia(Operación código, double derecho) {
        switch (código) {
        case Operación::Producto:
        case Operación::Cociente:
        case Operación::Potencia:
            return derecho == 1;
        case Operación::Resta:
            return derecho == 0 && !std::signbit(derecho);
        default:
            return false;
        }
    }

    static bool EsPotenciaDeDos(double valor) {
        int exponente = 0;
        return std::isnormal(valor) && std::fabs(std::frexp(valor, &exponente)) == 0.5 &&
               std::isnormal(1 / valor);
    }

    // The products that PotenciaEntera makes, which powers of one base share.
    std::int16_t DevPotenciaEntera(std::int16_t base, int exponente) {
        if (exponente == 1)
            return base;
        const bool par = exponente % 2 == 0;
        const std::int16_t menor = DevPotenciaEntera(base, par ? exponente / 2 : exponente - 1);
        return DevRegistro(Operación::Producto, menor, par ? menor : base);
    }

    std::int16_t DevRegistro(const Valor& valor) {
        if (!valor.esConstante)
            return valor.registro;
        std::int16_t& suyo = constantes_[std::bit_cast<std::uint64_t>(valor.constante)];
        return suyo != 0 ? suyo : suyo = NuevoRegistro(valor.constante);
    }

    std::int16_t DevRegistro(Operación código, std::int16_t izquierdo, std::int16_t derecho) {
        if ((código == Operación::Suma || código == Operación::Producto) && izquierdo > derecho)
            std::swap(izquierdo, derecho); // the same to the bit
        const auto parte = [](auto número, unsigned lugar) {
            return static_cast<std::uint64_t>(static_cast<std::uint16_t>(número)) << lugar;
        };
        std::int16_t& suya = hechas_[parte(código, 32) | parte(izquierdo, 16) | parte(derecho, 0)];
        if (suya == 0) {
            suya = NuevoRegistro(0);
            reducido_.instrucciones.push_back({izquierdo, código, derecho, suya});
        }
        return suya;
    }

    std::int16_t NuevoRegistro(double valor) {
        reducido_.registros.push_back(valor);
        return static_cast<std::int16_t>(reducido_.registros.size() - 1);
    }

    const Programa& programa_;
    Programa reducido_;
    std::vector<Valor> valores_; // by the program's registers
    Índice constantes_;
    Índice hechas_;
};

} // namespace

std::optional<Programa> Reduce(const Programa& programa) {
    return Reductor(programa).Reduce();
}

} // namespace quiralto
