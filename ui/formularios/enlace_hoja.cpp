#include "ui/formularios/enlace_hoja.h"

#include "commands/hallazgos.h"
#include "ui/acciones/menus.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/grafica/datos_hoja.h"
#include "ui/grafica/funcion_linea.h"
#include "ui/hoja/edita_lineas.h"
#include "ui/hoja/lector_estado.h"

#include <QInputDialog>

#include <optional>
#include <utility>

namespace quiralto {
namespace {

// Before what the menu has.
template <typename Trabajo>
void Inserta(QMenu& menú, QAction* antes, const QString& título, const QString& nombre,
             QObject* receptor, Trabajo trabajo) {
    auto* acción = new QAction(título, &menú);
    acción->setObjectName(nombre);
    QObject::connect(acción, &QAction::triggered, receptor, trabajo);
    menú.insertAction(antes, acción);
}

QAction* DevPrimera(const QMenu& menú) {
    return menú.actions().isEmpty() ? nullptr : menú.actions().front();
}

// The place that a result tells of.
std::optional<Lugar> DevLugar(const QString& línea) {
    const std::optional<Hallazgo> hallazgo = LeeHallazgo(DevUtf8(línea));
    if (!hallazgo || hallazgo->clase == ClaseHallazgo::Área)
        return std::nullopt;
    return Lugar{hallazgo->x, hallazgo->y};
}

} // namespace

EnlaceHoja::EnlaceHoja(Contexto& contexto, Ejecutor& ejecutor, const Partes& partes,
                       const Acciones& acciones)
    : contexto_(contexto), ejecutor_(ejecutor), partes_(partes), acciones_(acciones) {
    connect(&partes.hoja, &CajaHoja::menuPedido, this,
            [this](QMenu* menú, const QString& línea) { AbreMenúHoja(*menú, línea); });
    connect(&partes.hoja, &CajaHoja::pulsadaConCtrl, this, &EnlaceHoja::LlevaPuntoX);
    connect(&partes.panel, &PanelFunciones::menuPedido, this,
            [this](int índice, QMenu* menú) { AbreMenúFunción(índice, *menú); });
    const auto hayMarcas = [this] {
        acciones_.QuitarMarcas->setEnabled(!partes_.control.DevHallados().EstáVacío());
    };
    connect(&ejecutor, &Ejecutor::terminada, this, hayMarcas);
    connect(acciones.QuitarMarcas, &QAction::triggered, this, [this, hayMarcas] {
        partes_.control.QuitarMarcas_Click();
        hayMarcas();
    });
}

void EnlaceHoja::AbreMenúHoja(QMenu& menú, const QString& línea) {
    QAction* const antes = DevPrimera(menú);
    if (const auto función = DevFunciónDeLínea(contexto_, DevUtf8(línea)))
        Inserta(menú, antes, QStringLiteral("Dibu&jar"), QStringLiteral("Dibujar"), this,
                [this, texto = DevQString(*función)] { Dibuja(texto); });
    if (DevLugar(línea))
        Inserta(menú, antes, QStringLiteral("Lle&var el punto X aquí"),
                QStringLiteral("LlevarPuntoX"), this, [this, línea] { LlevaPuntoX(línea); });
    AñadeÓrdenes(menú, antes);
    menú.insertAction(antes, acciones_.ComentarLíneas);
    menú.insertAction(antes, acciones_.BuscarOrden);
    menú.insertSeparator(antes);
}

// Those that take the data as they are, under the titles of their menus.
void EnlaceHoja::AñadeÓrdenes(QMenu& menú, QAction* antes) {
    const std::vector<std::size_t> posibles =
        DevÓrdenesPosibles(contexto_, partes_.hoja.DevTexto());
    const std::span<const Orden> órdenes = DevÓrdenes();
    for (const std::string_view familia : DevFamilias()) {
        bool titulada = false;
        for (const std::size_t i : posibles) {
            if (órdenes[i].menú != familia)
                continue;
            if (!std::exchange(titulada, true))
                menú.insertSection(antes, DevQString(familia));
            menú.insertAction(antes, acciones_.órdenes.at(i));
        }
    }
    menú.insertSeparator(antes);
}

void EnlaceHoja::AbreMenúFunción(int índice, QMenu& menú) {
    const FuncionesGráficas& funciones = partes_.control.DevFunciones();
    if (funciones[índice].estado != EstadoTexto::Fórmula)
        return;
    QAction* const antes = DevPrimera(menú);
    const std::string& función = funciones[índice].corregido;
    Inserta(menú, antes, QStringLiteral("&Llevar a la hoja"), QStringLiteral("LlevarALaHoja"), this,
            [this, función] { LlevaALaHoja(función); });
    for (int otra = 0; otra < CantidadFunciones; ++otra)
        if (otra != índice && funciones[otra].estado == EstadoTexto::Fórmula)
            Inserta(menú, antes, QStringLiteral("Intersecciones con f&%1").arg(otra),
                    QStringLiteral("Intersecciones_%1").arg(otra), this,
                    [this, resta = DevDiferencia(función, funciones[otra].corregido)] {
                        LlevaALaHoja(resta);
                    });
    if (antes != nullptr)
        menú.insertSeparator(antes);
}

void EnlaceHoja::LlevaALaHoja(const std::string& función) {
    ejecutor_.CuandoAcabe([this, función] {
        const std::string datos = DevDatosEnVentana(
            función, partes_.control.DevEscena().cuadro.ventana, partes_.visor.DevSeparación().x());
        AñadeComoÚnicosDatos(partes_.hoja, DevQString(datos));
        partes_.hoja.setFocus(Qt::OtherFocusReason);
    });
}

void EnlaceHoja::Dibuja(const QString& función) {
    int caja = 0;
    while (caja < CantidadFunciones &&
           partes_.control.DevFunciones()[caja].estado != EstadoTexto::Vacío)
        ++caja;
    if (caja == CantidadFunciones)
        caja = PreguntaCaja();
    if (caja >= 0)
        partes_.control.PonFunción(caja, función);
}

// Which function is to go; -1: none. A long one is shortened, or the dialog would be as wide.
int EnlaceHoja::PreguntaCaja() const {
    constexpr qsizetype Largo = 48;
    QStringList funciones;
    for (int i = 0; i < CantidadFunciones; ++i) {
        QString texto = DevQString(partes_.control.DevFunciones()[i].texto);
        if (texto.size() > Largo)
            texto = texto.left(Largo) + u'…';
        funciones += QStringLiteral("f%1(X)=").arg(i) + texto;
    }
    QInputDialog pregunta(partes_.hoja.window());
    pregunta.setObjectName(QStringLiteral("frmElegirCaja"));
    pregunta.setWindowTitle(QStringLiteral("Dibujar"));
    pregunta.setLabelText(QStringLiteral("Las cuatro cajas están ocupadas. ¿Cuál se sustituye?"));
    pregunta.setComboBoxItems(funciones);
    if (pregunta.exec() != QDialog::Accepted)
        return -1;
    return static_cast<int>(funciones.indexOf(pregunta.textValue()));
}

void EnlaceHoja::LlevaPuntoX(const QString& línea) {
    if (const std::optional<Lugar> lugar = DevLugar(línea))
        partes_.control.LlevaPuntoX(*lugar);
}

} // namespace quiralto
