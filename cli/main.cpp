// quiralto-cli: the commands of the worksheet without a window.

#include "cli/expresiones.h"
#include "cli/hoja_terminal.h"
#include "cli/mensajes_terminal.h"
#include "cli/opciones.h"
#include "commands/ordenes.h"
#include "quiralto_version.h"

#include <algorithm>
#include <csignal>
#include <iostream>
#include <unistd.h>

namespace quiralto::cli {
namespace {

// A terminal user stops long work with Ctrl+C.
class SinVigilante : public Vigilante {
public:
    bool Continúa() override { return true; }
};

Estado Ejecuta(Contexto& contexto, MensajesDeTerminal& mensajes, const Opciones& opciones,
               std::string& salida) {
    switch (opciones.modo) {
    case Modo::Orden:
        return EjecutaOrden(contexto, mensajes, opciones, salida);
    case Modo::Sintaxis:
        salida = DevSintaxis(contexto, opciones);
        break;
    case Modo::Evaluar:
        salida = DevValores(contexto, opciones);
        break;
    case Modo::Derivar:
        salida = DevDerivada(contexto, opciones);
        break;
    case Modo::Programa:
        salida = DevListado(contexto, opciones);
        break;
    case Modo::Muestrear:
        salida = DevMuestras(contexto, opciones);
        break;
    case Modo::Tabla:
        salida = DevTabla(contexto, opciones);
        break;
    case Modo::Listar:
        salida = ListaÓrdenes(opciones.largo);
        break;
    case Modo::Ayuda:
        salida = TextoAyuda();
        break;
    case Modo::Versión:
        salida = std::string("quiralto-cli ") + Versión + '\n';
        break;
    }
    return SinMensajes;
}

// Some devices tell only when they are closed that they have not kept what was written.
bool Escribe(const std::string& salida) {
    if (salida.empty())
        return true;
    return std::cout.write(salida.data(), static_cast<std::streamsize>(salida.size())).flush() &&
           close(STDOUT_FILENO) == 0;
}

Estado Atiende(Contexto& contexto, MensajesDeTerminal& mensajes,
               const std::vector<std::string>& palabras, std::string& salida) {
    std::string error;
    const std::optional<Opciones> opciones = LeeOpciones(palabras, error);
    if (!opciones)
        return RechazaUso(error);
    contexto.DígitosRedondeo = opciones->cifras;
    return Ejecuta(contexto, mensajes, *opciones, salida);
}

// All that asks for memory stands in the trap.
int Principal(int argc, char** argv) {
    MensajesDeTerminal mensajes;
    SinVigilante vigilante;
    Primos tabla{};
    Contexto contexto(mensajes, vigilante, tabla);
    Estado estado = SinMensajes;
    std::string salida;
    EjecutaConTrampa(contexto, [&] {
        std::ios::sync_with_stdio(false);
        estado = Atiende(contexto, mensajes, {argv + std::min(argc, 1), argv + argc}, salida);
    });
    if (!Escribe(salida)) {
        std::cerr << "quiralto-cli: no se puede escribir en la salida estándar\n";
        return MalUso;
    }
    return estado == SinMensajes ? mensajes.DevEstado() : estado;
}

} // namespace
} // namespace quiralto::cli

int main(int argc, char** argv) {
    std::signal(SIGPIPE, SIG_IGN); // a closed pipe is a device that takes no more
    return quiralto::cli::Principal(argc, argv);
}
