// What the fuzz targets share: a context that shows nothing, a watcher that ends long work, and the
// way in which a broken promise becomes a crash.
#pragma once

#include "engine/base/contexto.h"

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <string>
#include <string_view>

namespace quiralto {

class SinMensajes : public Mensajes {
public:
    void Muestra(Icono, std::string_view) override {}
};

// Says no after so many questions.
class Impaciente : public Vigilante {
public:
    bool Continúa() override { return --quedan_ > 0; }

private:
    int quedan_ = 200'000;
};

// One input always does the same: its random numbers are its own.
struct BancoDeFuzz {
    explicit BancoDeFuzz(std::string_view entrada) {
        contexto.generador.Siembra(std::hash<std::string_view>{}(entrada));
    }

    SinMensajes mensajes;
    Impaciente vigilante;
    Primos tabla{};
    Contexto contexto{mensajes, vigilante, tabla};
};

inline void Exige(bool promesa, std::string_view cuál, std::string_view texto) {
    if (promesa)
        return;
    std::cerr << "broken: " << cuál << ": " << texto << '\n';
    std::abort();
}

inline std::string LeeEntrada(const std::uint8_t* datos, std::size_t longitud) {
    return {reinterpret_cast<const char*>(datos), longitud};
}

} // namespace quiralto
