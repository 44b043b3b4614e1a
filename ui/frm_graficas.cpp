#include "ui/frm_graficas.h"

#include "ui/impresion_texto.h"
#include "ui/menu_hoja.h"

#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

namespace quiralto {

frmGráficas::frmGráficas(Contexto& contexto, VigilanteVentana& vigilante, Impresora& impresora)
    : contexto_(contexto), vigilante_(vigilante), impresora_(impresora),
      txtSalida_(new CajaHoja(this)) {
    setObjectName(QStringLiteral("frmGráficas"));
    setWindowTitle(QStringLiteral("Quiralto"));
    txtSalida_->setObjectName(QStringLiteral("txtSalida"));
    txtSalida_->setAccessibleName(QStringLiteral("Hoja"));
    txtSalida_->setPlaceholderText(QStringLiteral(
        "X^2-4,-5,5   'y después: Hoja, Cálculo numérico con una variable, Hallar soluciones"));
    setCentralWidget(txtSalida_);
    CreaMenús();
    statusBar();
    txtSalida_->setFocus();
    resize(QSize(1000, 700).boundedTo(QGuiApplication::primaryScreen()->availableSize()));
}

void frmGráficas::CreaMenús() {
    QMenu* archivo = menuBar()->addMenu(QStringLiteral("&Archivo"));
    QMenu* imprimir = archivo->addMenu(QStringLiteral("Imprimir"));
    imprimir->setObjectName(QStringLiteral("Imprimir"));
    QAction* texto = imprimir->addAction(QStringLiteral("Ventana texto"));
    texto->setObjectName(QStringLiteral("ImprimirTexto"));
    connect(texto, &QAction::triggered, this, [this] { ImprimirTexto_Click(); });
    archivo->addSeparator();
    QAction* salir = archivo->addAction(QStringLiteral("&Salir"));
    salir->setObjectName(QStringLiteral("Salir"));
    salir->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(salir, &QAction::triggered, this, &QWidget::close);

    QMenu* hoja = menuBar()->addMenu(QStringLiteral("&Hoja"));
    hoja->setObjectName(QStringLiteral("MenúHoja"));
    CreaMenúsÓrdenes(*hoja, DevÓrdenes(),
                     [this](const Orden& orden) { EjecutaOrden(orden.texto); });
}

void frmGráficas::EjecutaOrden(std::string_view orden) {
    if (vigilante_.EnMarcha())
        return;
    Hoja hoja{.texto = txtSalida_->DevTexto(), .líneas = {}, .líneaSeleccionada = {}};
    {
        const VigilanteVentana::Guardia guardia(vigilante_);
        EjecutaInstrucciones(contexto_, hoja, orden);
    }
    txtSalida_->PonTexto(hoja.texto);
    if (hoja.líneaSeleccionada)
        txtSalida_->SeleccionaLínea(*hoja.líneaSeleccionada);
}

void frmGráficas::ImprimirTexto_Click() {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setDocName(QStringLiteral("Quiralto"));
    if (impresora_.Elige(impresora, this) && !ImprimetxtSalida(impresora, txtSalida_->DevTexto()))
        contexto_.Avisa("No se puede imprimir");
}

} // namespace quiralto
