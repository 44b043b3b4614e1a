#include "ui/programa/llamada.h"

#include "quiralto_version.h"

#include <QtGlobal>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace quiralto {
namespace {

using Texto = std::string_view;

struct OpciónAjena {
    Texto nombre;
    bool llevaValor; // in the next word, unless it stands behind "="
};

// The toolkit's own, which it takes with one dash or two.
constexpr auto OpcionesDelToolkit = std::to_array<OpciónAjena>({
    {"platform", true},        {"platformpluginpath", true},
    {"platformtheme", true},   {"plugin", true},
    {"style", true},           {"stylesheet", true},
    {"qwindowgeometry", true}, {"geometry", true},
    {"qwindowicon", true},     {"icon", true},
    {"qwindowtitle", true},    {"title", true},
    {"session", true},         {"display", true},
    {"fontengine", true},      {"qmljsdebugger", true},
    {"reverse", false},        {"widgetcount", false},
    {"nograb", false},         {"dograb", false},
    {"sync", false},
});

constexpr Texto Uso = "Uso: quiralto [OPCIONES]\n"
                      "Abre el taller de matemáticas Quiralto.\n"
                      "\n"
                      "  -h, --help, --ayuda   muestra esta ayuda\n"
                      "  -V, --version         muestra la versión\n"
                      "\n"
                      "También se admiten las opciones del sistema de ventanas, como\n"
                      "-platform, -style o -display. Sin ventana: quiralto-cli.\n";

const OpciónAjena* BuscaAjena(Texto palabra) {
    palabra.remove_prefix(palabra.starts_with("--") ? 2 : 1);
    palabra = palabra.substr(0, palabra.find('='));
    const auto* lugar = std::ranges::find(OpcionesDelToolkit, palabra, &OpciónAjena::nombre);
    return lugar == OpcionesDelToolkit.end() ? nullptr : lugar;
}

bool EsUna(Texto palabra, std::initializer_list<Texto> nombres) {
    return std::ranges::find(nombres, palabra) != nombres.end();
}

// Standard error as the process was given it; its own is put aside while a display is looked for.
int ErroresDados() {
    static const int dados = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
    return dados;
}

// Where there is no display the toolkit would end the process with a core.
void SóloDiLoFatal(QtMsgType tipo, const QMessageLogContext&, const QString&) {
    if (tipo != QtFatalMsg)
        return;
    DejaDeAtenderPantalla();
    std::fputs("quiralto: no hay pantalla en la que abrir la ventana\n", stderr);
    std::_Exit(1);
}

} // namespace

std::optional<Respuesta> RespondeALlamada(int argc, const char* const* argv) {
    for (int i = 1; i < argc; ++i) {
        const Texto palabra = argv[i];
        if (EsUna(palabra, {"-h", "--help", "--ayuda"}))
            return Respuesta{std::string(Uso), 0};
        if (EsUna(palabra, {"-V", "--version", "--versión"}))
            return Respuesta{"quiralto " + std::string(Versión) + '\n', 0};
        const OpciónAjena* ajena = palabra.starts_with('-') ? BuscaAjena(palabra) : nullptr;
        if (ajena == nullptr)
            return Respuesta{"quiralto: no se entiende «" + std::string(palabra) +
                                 "»; vea quiralto --help\n",
                             2};
        if (ajena->llevaValor && palabra.find('=') == Texto::npos && ++i == argc)
            return Respuesta{"quiralto: falta el valor de «" + std::string(palabra) +
                                 "»; vea quiralto --help\n",
                             2};
    }
    return std::nullopt;
}

void AtiendePantalla() {
    qInstallMessageHandler(SóloDiLoFatal);
    // The libraries of the display systems write their complaints there themselves.
    if (const int nada = open("/dev/null", O_WRONLY | O_CLOEXEC);
        ErroresDados() >= 0 && nada >= 0) {
        dup2(nada, STDERR_FILENO);
        close(nada);
    }
}

void DejaDeAtenderPantalla() {
    qInstallMessageHandler(nullptr);
    if (ErroresDados() >= 0)
        dup2(ErroresDados(), STDERR_FILENO);
}

} // namespace quiralto
