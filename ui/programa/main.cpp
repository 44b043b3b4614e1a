// quiralto: the workbench with its window.

#include "ui/programa/aplicacion.h"
#include "ui/programa/arranque.h"
#include "ui/programa/mensajes_ventana.h"

int main(int argc, char** argv) {
    QApplication aplicación(argc, argv);
    quiralto::PreparaAplicación(aplicación);
    quiralto::MensajesVentana mensajes;
    quiralto::VigilanteVentana vigilante;
    quiralto::Primos tabla{};
    quiralto::Contexto contexto(mensajes, vigilante, tabla);
    quiralto::ImpresoraDelSistema impresora;
    const auto formulario = quiralto::Form_Load(contexto, vigilante, impresora);
    formulario->show();
    return QApplication::exec();
}
