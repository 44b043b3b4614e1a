// Faults, in two shapes: the code that an evaluation leaves in Contexto::ErrorCódigo, and the
// exception that ends a whole command.
#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string_view>

namespace quiralto {

enum Fallo : std::int16_t {
    SinFallo = 0,
    ArgumentoInválido = 5,
    Desbordamiento = 6,
    MemoriaInsuficiente = 7,
    DivisiónPorCero = 11,
    EspacioDeCadenasInsuficiente = 14,
    NoEsFunciónRacional = 129, // the engine's own: a formula that is no rational function of X
};

// A text that a command builds may not grow past this many bytes; run-time error 14 beyond it.
inline constexpr std::size_t MáximoTexto = std::size_t{64} << 20;

// The Spanish description of a run-time error; for an unknown number a general one.
std::string_view DescripciónError(int número);

// A run-time error that ends the running command.
class ErrorEjecución : public std::exception {
public:
    explicit ErrorEjecución(int número) : número_(número) {}
    int Número() const { return número_; }
    const char* what() const noexcept override;

private:
    int número_;
};

// The value itself where it is finite; otherwise run-time error 6 (infinite) or 5 (not a number).
double CompruebaFinito(double valor);

} // namespace quiralto
