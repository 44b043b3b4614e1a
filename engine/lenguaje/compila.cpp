#include "engine/lenguaje/compila.h"

#include "engine/base/caracteres.h"
#include "engine/base/fallos.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <array>

namespace quiralto {
namespace {

// A piece of a group: an operand (X, a number or the register of a result), an operator, a sign
// behind an operator, or a function name.
struct Pieza {
    enum class Clase : std::uint8_t { Registro, Número, Operador, SignoTras, Función };
    Clase clase;
    Operación código{};      // of Operador and Función; of SignoTras, the operator before the sign
    std::int16_t registro{}; // of Registro
    double número{};         // of Número
};

class Compilador {
public:
    explicit Compilador(std::string_view texto) : texto_(texto.empty() ? "0" : texto) {
        programa_.registros.push_back(0); // X
    }

    Programa Compila() {
        while (posición_ < texto_.size())
            LeePieza();
        if (!grupos_.empty())
            throw ErrorEjecución(ArgumentoInválido);
        CompilaGrupo(0);
        return std::move(programa_);
    }

private:
    void LeePieza();
    void LeeOperador(Operación código);
    bool LeeFunción();
    void CierraGrupo();
    void CompilaGrupo(std::size_t principio);
    void CompilaFunciones(std::size_t principio);
    void CompilaSignos(std::size_t principio, Operación tras);
    void CompilaOperadores(std::size_t principio, Operación código);

    bool EmpiezaGrupo() const { return piezas_.size() == (grupos_.empty() ? 0 : grupos_.back()); }
    void Añade(const Pieza& pieza);
    std::int16_t NuevoRegistro(double valor);
    std::int16_t RegistroDe(const Pieza& operando);
    Pieza Emite(std::int16_t izquierdo, Operación código, std::int16_t derecho);
    Pieza EmiteBinaria(const Pieza& izquierdo, Operación código, const Pieza& derecho);

    std::string_view texto_;
    std::size_t posición_ = 0;
    Programa programa_;
    std::vector<Pieza> piezas_;       // of the groups that are open
    std::vector<std::size_t> grupos_; // where each open group begins in piezas_
    std::size_t pendientes_ = 0;      // pieces read that cost an instruction each
};

bool EsOperando(const Pieza& pieza) {
    return pieza.clase == Pieza::Clase::Registro || pieza.clase == Pieza::Clase::Número;
}

bool EsFuerte(Operación código) {
    return EsOperadorFuerte(BuscaOperación(código)->nombre.front());
}

void Compilador::LeePieza() {
    const char c = texto_[posición_];
    if (c == '(') {
        grupos_.push_back(piezas_.size());
        ++posición_;
    } else if (c == ')') {
        CierraGrupo();
        ++posición_;
    } else if (const DescripciónOperación* const operador = BuscaOperador(c)) {
        LeeOperador(operador->código);
        ++posición_;
    } else if (c == 'X') {
        Añade({.clase = Pieza::Clase::Registro, .registro = 0});
        ++posición_;
    } else if (const NúmeroLeído número = LeeNúmero(texto_.substr(posición_));
               número.longitud > 0) {
        if (número.desborda)
            throw ErrorEjecución(Desbordamiento);
        Añade({.clase = Pieza::Clase::Número, .número = número.valor});
        posición_ += número.longitud;
    } else if (!LeeFunción()) {
        throw ErrorEjecución(ArgumentoInválido);
    }
}

void Compilador::LeeOperador(Operación código) {
    Pieza pieza{.clase = Pieza::Clase::Operador, .código = código};
    const bool esMenos = código == Operación::Resta;
    if (EmpiezaGrupo()) {
        if (!esMenos)
            throw ErrorEjecución(ArgumentoInválido);
        Añade({.clase = Pieza::Clase::Número, .número = 0});
    } else if (!EsOperando(piezas_.back())) {
        // Only "*-", "/-" and "^-" stand together; every other run has been folded.
        const Pieza& anterior = piezas_.back();
        if (!esMenos || anterior.clase != Pieza::Clase::Operador || !EsFuerte(anterior.código))
            throw ErrorEjecución(ArgumentoInválido);
        pieza = {.clase = Pieza::Clase::SignoTras, .código = anterior.código};
    }
    Añade(pieza);
}

bool Compilador::LeeFunción() {
    const DescripciónOperación* const función = BuscaFunción(texto_.substr(posición_));
    if (función == nullptr)
        return false;
    Añade({.clase = Pieza::Clase::Función, .código = función->código});
    posición_ += función->nombre.size();
    return true;
}

void Compilador::CierraGrupo() {
    if (grupos_.empty())
        throw ErrorEjecución(ArgumentoInválido);
    const std::size_t principio = grupos_.back();
    CompilaGrupo(principio);
    const Pieza resultado = piezas_.back();
    grupos_.pop_back();
    piezas_.pop_back();
    if (!EmpiezaGrupo() && EsOperando(piezas_.back()))
        throw ErrorEjecución(ArgumentoInválido);
    piezas_.push_back(resultado);
}

// Leaves one piece of the group that begins at `principio`: the register of its value.
void Compilador::CompilaGrupo(std::size_t principio) {
    if (piezas_.size() == principio)
        throw ErrorEjecución(ArgumentoInválido);
    CompilaFunciones(principio);
    for (const Operación tras : OrdenOperadores)
        CompilaSignos(principio, tras);
    for (const Operación código : OrdenOperadores)
        CompilaOperadores(principio, código);
    if (piezas_.size() != principio + 1 || !EsOperando(piezas_.back()))
        throw ErrorEjecución(ArgumentoInválido);
    // Only a formula or group that was a lone number or X is not yet the result of an instruction.
    Pieza& única = piezas_.back();
    if (única.clase == Pieza::Clase::Número || única.registro == 0)
        única = EmiteBinaria({.clase = Pieza::Clase::Número, .número = 0}, Operación::Suma, única);
}

void Compilador::CompilaFunciones(std::size_t principio) {
    // The functions of the group by name, so that the passes together look at each of them once.
    std::array<std::vector<std::size_t>, OrdenFunciones.size()> lugares;
    for (std::size_t i = principio; i < piezas_.size(); ++i) {
        if (piezas_[i].clase != Pieza::Clase::Función)
            continue;
        const int orden = BuscaOperación(piezas_[i].código)->orden;
        lugares[static_cast<std::size_t>(orden - 1)].push_back(i);
    }
    bool hubo = false;
    for (const auto& delNombre : lugares) {
        for (const std::size_t i : delNombre) {
            if (i + 1 == piezas_.size() || piezas_[i + 1].clase != Pieza::Clase::Registro)
                throw ErrorEjecución(ArgumentoInválido);
            piezas_[i + 1] = Emite(0, piezas_[i].código, piezas_[i + 1].registro);
            hubo = true;
        }
    }
    if (hubo) {
        const auto desde = piezas_.begin() + static_cast<std::ptrdiff_t>(principio);
        piezas_.erase(
            std::remove_if(desde, piezas_.end(),
                           [](const Pieza& pieza) { return pieza.clase == Pieza::Clase::Función; }),
            piezas_.end());
    }
}

void Compilador::CompilaSignos(std::size_t principio, Operación tras) {
    std::size_t escrita = principio;
    for (std::size_t i = principio; i < piezas_.size(); ++i) {
        if (piezas_[i].clase != Pieza::Clase::SignoTras || piezas_[i].código != tras) {
            piezas_[escrita++] = piezas_[i];
            continue;
        }
        ++i;
        if (i == piezas_.size() || !EsOperando(piezas_[i]))
            throw ErrorEjecución(ArgumentoInválido);
        piezas_[escrita++] = EmiteBinaria({.clase = Pieza::Clase::Número, .número = 0},
                                          Operación::Resta, piezas_[i]);
    }
    piezas_.resize(escrita);
}

void Compilador::CompilaOperadores(std::size_t principio, Operación código) {
    std::size_t escrita = principio;
    for (std::size_t i = principio; i < piezas_.size(); ++i) {
        const bool suyo = piezas_[i].clase == Pieza::Clase::Operador && piezas_[i].código == código;
        if (!suyo) {
            piezas_[escrita++] = piezas_[i];
            continue;
        }
        ++i;
        if (escrita == principio || i == piezas_.size() || !EsOperando(piezas_[escrita - 1]) ||
            !EsOperando(piezas_[i]))
            throw ErrorEjecución(ArgumentoInválido);
        piezas_[escrita - 1] = EmiteBinaria(piezas_[escrita - 1], código, piezas_[i]);
    }
    piezas_.resize(escrita);
}

void Compilador::Añade(const Pieza& pieza) {
    if (EsOperando(pieza)) {
        if (!EmpiezaGrupo() && EsOperando(piezas_.back()))
            throw ErrorEjecución(ArgumentoInválido);
    } else if (++pendientes_ > MáximoInstrucciones) {
        // Refused while it is read, so that no text, however long, fills the memory with pieces.
        throw ErrorEjecución(Desbordamiento);
    }
    piezas_.push_back(pieza);
}

std::int16_t Compilador::NuevoRegistro(double valor) {
    if (programa_.registros.size() > MáximoRegistro)
        throw ErrorEjecución(Desbordamiento);
    programa_.registros.push_back(valor);
    return static_cast<std::int16_t>(programa_.registros.size() - 1);
}

std::int16_t Compilador::RegistroDe(const Pieza& operando) {
    return operando.clase == Pieza::Clase::Número ? NuevoRegistro(operando.número)
                                                  : operando.registro;
}

Pieza Compilador::Emite(std::int16_t izquierdo, Operación código, std::int16_t derecho) {
    if (programa_.instrucciones.size() == MáximoInstrucciones)
        throw ErrorEjecución(Desbordamiento);
    const std::int16_t resultado = NuevoRegistro(0);
    programa_.instrucciones.push_back({izquierdo, código, derecho, resultado});
    return {.clase = Pieza::Clase::Registro, .registro = resultado};
}

Pieza Compilador::EmiteBinaria(const Pieza& izquierdo, Operación código, const Pieza& derecho) {
    const std::int16_t registroIzquierdo = RegistroDe(izquierdo);
    return Emite(registroIzquierdo, código, RegistroDe(derecho));
}

} // namespace

Programa CompilaExpresión(std::string_view texto) {
    return Compilador(texto).Compila();
}

} // namespace quiralto
