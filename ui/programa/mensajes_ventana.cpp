#include "ui/programa/mensajes_ventana.h"

#include "commands/hoja.h"
#include "ui/dibujo/texto_qt.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace quiralto {
namespace {

QMessageBox::Icon DevIcono(Icono icono) {
    switch (icono) {
    case Icono::Exclamación:
        return QMessageBox::Warning;
    case Icono::Crítico:
        return QMessageBox::Critical;
    case Icono::Ninguno:
        break;
    }
    return QMessageBox::NoIcon;
}

} // namespace

void MensajesVentana::Muestra(Icono icono, std::string_view texto) {
    const VigilanteVentana::Alto alto(vigilante_);
    QMessageBox caja(DevIcono(icono), QStringLiteral("Quiralto"), DevQString(ConLf(texto)),
                     QMessageBox::Ok, QApplication::activeWindow());
    caja.setTextFormat(Qt::PlainText);
    caja.button(QMessageBox::Ok)->setText(QStringLiteral("Aceptar"));
    caja.exec();
}

} // namespace quiralto
