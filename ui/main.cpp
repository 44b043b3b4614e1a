// quiralto: the workbench with its window.

#include "ui/aplicacion.h"
#include "ui/arranque.h"
#include "ui/frm_graficas.h"
#include "ui/mensajes_ventana.h"

int main(int argc, char** argv) {
    QApplication aplicación(argc, argv);
    quiralto::PreparaAplicación(aplicación);
    quiralto::MensajesVentana mensajes;
    quiralto::VigilanteVentana vigilante;
    quiralto::Contexto contexto(mensajes, vigilante);
    quiralto::ImpresoraDelSistema impresora;
    quiralto::frmGráficas formulario(contexto, vigilante, impresora);
    quiralto::Arranca(contexto, formulario);
    formulario.show();
    return QApplication::exec();
}
