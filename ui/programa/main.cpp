// quiralto: the workbench with its window.

#include "ui/programa/aplicacion.h"
#include "ui/programa/arranque.h"
#include "ui/programa/impresora.h"
#include "ui/programa/llamada.h"
#include "ui/programa/mensajes_ventana.h"

#include <cstdio>

int main(int argc, char** argv) {
    using namespace quiralto;
    if (const std::optional<Respuesta> respuesta = RespondeALlamada(argc, argv)) {
        std::fputs(respuesta->texto.c_str(), respuesta->estado == 0 ? stdout : stderr);
        return respuesta->estado;
    }
    AtiendePantalla();
    QApplication aplicación(argc, argv);
    DejaDeAtenderPantalla();
    PreparaAplicación(aplicación);
    VigilanteVentana vigilante;
    MensajesVentana mensajes(vigilante);
    Primos tabla{};
    Contexto contexto(mensajes, vigilante, tabla);
    ImpresoraDelSistema impresora;
    const auto formulario = Form_Load(contexto, vigilante, impresora);
    formulario->show();
    return QApplication::exec();
}
