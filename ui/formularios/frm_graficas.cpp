#include "ui/formularios/frm_graficas.h"

#include "ui/acciones/barra.h"
#include "ui/acciones/buscar_orden.h"
#include "ui/acciones/menus.h"
#include "ui/dibujo/fuentes.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/formularios/copia_grafica.h"
#include "ui/formularios/edicion.h"
#include "ui/formularios/enlace_hoja.h"
#include "ui/formularios/frm_acerca_de.h"
#include "ui/formularios/frm_manual.h"
#include "ui/formularios/impresion_grafica.h"
#include "ui/formularios/impresion_texto.h"
#include "ui/grafica/datos_hoja.h"
#include "ui/hoja/edita_lineas.h"
#include "ui/hoja/lector_estado.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QScreen>
#include <QStatusBar>

#include <algorithm>
#include <exception>
#include <span>

namespace quiralto {
namespace {

constexpr int DuraciónAviso = 4000; // in the status bar, milliseconds

DatosBarra DevBarraEjeX() {
    return {
        QStringLiteral("hsEjeX"),
        QStringLiteral("Control eje X"),
        QStringLiteral("Con este control puede desplazar la gráfica a la derecha o a la izquierda"),
        20,
        5,
        Qt::Horizontal,
        true};
}

DatosBarra DevBarraEjeY() {
    return {
        QStringLiteral("vsEjeY"),
        QStringLiteral("Control eje Y"),
        QStringLiteral("Con este control puede desplazar la gráfica hacia arriba o hacia abajo"),
        20,
        5,
        Qt::Vertical,
        true};
}

DatosBarra DevBarraPuntoX() {
    return {QStringLiteral("hsx"),
            QStringLiteral("Control punto X"),
            QStringLiteral("Con este control puede desplazar el punto X hacia la derecha o hacia "
                           "la izquierda"),
            100,
            10,
            Qt::Horizontal,
            false};
}

} // namespace

FrmGráficas::FrmGráficas(Contexto& contexto, VigilanteÓrdenes& vigilante, Impresora& impresora)
    : contexto_(contexto), impresora_(impresora), acciones_(CreaAcciones(*this)),
      txtSalida_(new CajaHoja(this)),
      ejecutor_(new Ejecutor(contexto, vigilante, *txtSalida_, this)),
      visor_(new VisorFunciones(this)), panel_(new PanelFunciones(this)),
      marco_(new FrmPuntosExtremos(contexto, this)), ejeX_(new MarcoBarra(DevBarraEjeX(), this)),
      ejeY_(new MarcoBarra(DevBarraEjeY(), this)), puntoX_(new MarcoBarra(DevBarraPuntoX(), this)),
      división_(new QSplitter(Qt::Horizontal, this)), lectura_(new EtiquetaLectura(this)),
      zoom_(new QLabel(this)), coordenadas_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmGráficas"));
    setWindowTitle(QStringLiteral("Quiralto"));
    CreaCuerpo();
    CreaBarraEstado();
    CreaMenúsYBarra();
    CreaControl();
    ConectaAccionesGráfica();
    ConectaOtrasAcciones();
    ConectaEdición();
    ConectaLectura();
    txtSalida_->setFocus();
    PonTamaño();
}

FrmGráficas::~FrmGráficas() = default;

void FrmGráficas::CreaCuerpo() {
    división_->setObjectName(QStringLiteral("división"));
    división_->setChildrenCollapsible(false);
    división_->addWidget(CreaZonaGráfica());
    división_->addWidget(CreaColumna());
    división_->setStretchFactor(0, 1);
    división_->setStretchFactor(1, 0);
    setCentralWidget(división_);
}

QWidget* FrmGráficas::CreaZonaGráfica() {
    visor_->setObjectName(QStringLiteral("VisorFunciones"));
    visor_->setAccessibleName(QStringLiteral("Gráfica"));
    for (QAction* acción : {acciones_.CopiarGráfica, acciones_.CopiarTabla, acciones_.AjustarEjeY,
                            acciones_.EjesIguales, acciones_.VistaAnterior, acciones_.QuitarMarcas})
        visor_->addAction(acción);
    visor_->setContextMenuPolicy(Qt::ActionsContextMenu);
    auto* zona = new QWidget(this);
    auto* rejilla = new QGridLayout(zona);
    rejilla->setContentsMargins(8, 8, 4, 8);
    rejilla->setSpacing(6);
    rejilla->addWidget(visor_, 0, 0, 1, 2);
    rejilla->addWidget(ejeY_, 0, 2);
    rejilla->addWidget(ejeX_, 1, 0);
    rejilla->addWidget(puntoX_, 1, 1);
    rejilla->setRowStretch(0, 1);
    return zona;
}

QWidget* FrmGráficas::CreaColumna() {
    txtSalida_->setObjectName(QStringLiteral("txtSalida"));
    txtSalida_->setPlaceholderText(QStringLiteral(
        "X^2-4,-5,5   'y después: Hoja, Cálculo numérico con una variable, Hallar soluciones"));
    auto* etiqueta = new QLabel(QStringLiteral("Ho&ja"), this);
    etiqueta->setBuddy(txtSalida_);
    auto* columna = new QWidget(this);
    columna->setMinimumWidth(240);
    auto* caja = new QVBoxLayout(columna);
    caja->setContentsMargins(4, 8, 8, 8);
    caja->setSpacing(6);
    caja->addWidget(panel_);
    caja->addWidget(etiqueta);
    caja->addWidget(txtSalida_, 1);
    return columna;
}

void FrmGráficas::CreaBarraEstado() {
    zoom_->setObjectName(QStringLiteral("zoom"));
    coordenadas_->setObjectName(QStringLiteral("coordenadas"));
    const QFont fija = DevFuenteFija();
    coordenadas_->setFont(fija);
    coordenadas_->setIndent(12);
    // Room for the coordinates of any usual window, so that nothing beside them moves.
    coordenadas_->setMinimumWidth(
        QFontMetrics(fija).horizontalAdvance(QStringLiteral("X=-12.3456  Y=-12.3456")));
    statusBar()->addWidget(lectura_, 1);
    statusBar()->addPermanentWidget(zoom_);
    statusBar()->addPermanentWidget(coordenadas_);
}

void FrmGráficas::CreaMenúsYBarra() {
    const Menús menús = CreaMenús(*menuBar(), acciones_);
    menúEdición_ = &menús.edición;
    menúHoja_ = &menús.hoja;
    CreaBarraHerramientas(*addToolBar(QStringLiteral("Barra de herramientas")), acciones_);
}

void FrmGráficas::CreaControl() {
    control_ = std::make_unique<ControlGráfica>(
        contexto_, *ejecutor_,
        ControlGráfica::Partes{.visor = *visor_,
                               .panel = *panel_,
                               .marco = *marco_,
                               .hsEjeX = ejeX_->DevBarra(),
                               .vsEjeY = ejeY_->DevBarra(),
                               .hsx = puntoX_->DevBarra(),
                               .zoom = *zoom_,
                               .coordenadas = *coordenadas_,
                               .vistaAnterior = *acciones_.VistaAnterior,
                               .avisos = *statusBar()});
    enlace_ = std::make_unique<EnlaceHoja>(
        contexto_, *ejecutor_,
        EnlaceHoja::Partes{
            .hoja = *txtSalida_, .panel = *panel_, .visor = *visor_, .control = *control_},
        acciones_);
    connect(ejeX_, &MarcoBarra::cambiada, control_.get(), &ControlGráfica::hsEjeX_Change);
    connect(ejeY_, &MarcoBarra::cambiada, control_.get(), &ControlGráfica::vsEjeY_Change);
    connect(puntoX_, &MarcoBarra::cambiada, control_.get(), &ControlGráfica::hsx_Change);
}

void FrmGráficas::PonTamaño() {
    // The window manager's frame is to fit too.
    const QSize marco(16, 48);
    resize(QSize(1240, 780).boundedTo(QGuiApplication::primaryScreen()->availableSize() - marco));
    const int columna = std::min(400, width() * 36 / 100);
    división_->setSizes({width() - columna, columna});
}

void FrmGráficas::ConectaAccionesGráfica() {
    // One handler for the actions of an array, with their index.
    const auto conecta = [this](const auto& acciones, void (ControlGráfica::*alElegir)(int)) {
        int índice = 0;
        for (QAction* acción : acciones)
            connect(
                acción, &QAction::triggered, control_.get(),
                [control = control_.get(), alElegir, i = índice++] { (control->*alElegir)(i); });
    };
    conecta(acciones_.ZoomGráfica, &ControlGráfica::ZoomGráfica_Click);
    conecta(acciones_.ZoomEjeX, &ControlGráfica::ZoomEjeX_Click);
    conecta(acciones_.ZoomEjeY, &ControlGráfica::ZoomEjeY_Click);
    conecta(acciones_.ZoomEjesXY, &ControlGráfica::ZoomEjesXY_Click);
    conecta(acciones_.NúmeroPuntos, &ControlGráfica::NúmeroPuntos_Click);
    conecta(acciones_.RedondeoNúmeros, &ControlGráfica::RedondeoNúmeros_Click);
    connect(acciones_.ValoresPorDefectoEjes, &QAction::triggered, control_.get(),
            &ControlGráfica::ValoresPorDefectoEjes_Click);
    connect(acciones_.FijarPuntosExtremos, &QAction::triggered, control_.get(),
            &ControlGráfica::FijarPuntosExtremos_Click);
    connect(acciones_.AjustarEjeY, &QAction::triggered, control_.get(),
            &ControlGráfica::AjustarEjeY_Click);
    connect(acciones_.EjesIguales, &QAction::triggered, control_.get(),
            &ControlGráfica::EjesIguales_Click);
    connect(acciones_.VistaAnterior, &QAction::triggered, control_.get(),
            &ControlGráfica::VistaAnterior_Click);
    connect(acciones_.OrdenMenúPuntos, &QAction::triggered, control_.get(),
            &ControlGráfica::OrdenMenúPuntos_Click);
    connect(acciones_.OrdenMenúLíneas, &QAction::triggered, control_.get(),
            &ControlGráfica::OrdenMenúLíneas_Click);
}

void FrmGráficas::ConectaOtrasAcciones() {
    const auto conecta = [this](QAction* acción, void (FrmGráficas::*alElegir)()) {
        connect(acción, &QAction::triggered, this, [this, alElegir] { (this->*alElegir)(); });
    };
    conecta(acciones_.ImprimirGráfica, &FrmGráficas::ImprimirGráfica_Click);
    conecta(acciones_.ImprimirTexto, &FrmGráficas::ImprimirTexto_Click);
    conecta(acciones_.ImprimirEnfocada, &FrmGráficas::ImprimirEnfocada_Click);
    conecta(acciones_.PrevisualizarGráfica, &FrmGráficas::PrevisualizarGráfica_Click);
    conecta(acciones_.PrevisualizarTexto, &FrmGráficas::PrevisualizarTexto_Click);
    conecta(acciones_.CopiarGráfica, &FrmGráficas::CopiarGráfica_Click);
    conecta(acciones_.CopiarTabla, &FrmGráficas::CopiarTabla_Click);
    conecta(acciones_.Contenido, &FrmGráficas::Contenido_Click);
    conecta(acciones_.Manual, &FrmGráficas::Manual_Click);
    conecta(acciones_.AcercaDe, &FrmGráficas::AcercaDe_Click);
    connect(acciones_.Salir, &QAction::triggered, this, &QWidget::close);
    const std::span<const Orden> órdenes = DevÓrdenes();
    for (std::size_t i = 0; i < órdenes.size(); ++i)
        connect(acciones_.órdenes.at(i), &QAction::triggered, ejecutor_,
                [ejecutor = ejecutor_, texto = órdenes[i].texto] { ejecutor->Ejecuta(texto); });
}

void FrmGráficas::ConectaEdición() {
    new Edición(acciones_, *menúEdición_, *txtSalida_, this);
    connect(acciones_.CopiarTodo, &QAction::triggered, this, [this] { CopiarTodo_Click(); });
    connect(acciones_.ComentarLíneas, &QAction::triggered, txtSalida_,
            [hoja = txtSalida_] { ComentaODescomenta(*hoja); });
    connect(acciones_.ComentarDatosAnteriores, &QAction::triggered, txtSalida_,
            [hoja = txtSalida_] { ComentaDatosAnteriores(*hoja); });
    connect(acciones_.RepetirOrden, &QAction::triggered, ejecutor_, &Ejecutor::Repite);
    connect(acciones_.BuscarOrden, &QAction::triggered, this, [this] { BuscarOrden_Click(); });
    connect(ejecutor_, &Ejecutor::terminada, this, [this] { AlAcabarOrden(); });
}

// With what draws the graph, so that both can be had again from the copy.
void FrmGráficas::CopiarTodo_Click() {
    const std::string cabecera =
        DevCabecera(control_->DevFunciones(), control_->DevEscena().cuadro.ventana);
    QGuiApplication::clipboard()->setText(DevQString(ConLf(cabecera + txtSalida_->DevTexto())));
}

void FrmGráficas::BuscarOrden_Click() {
    if (buscarOrden_ == nullptr)
        buscarOrden_ = new BuscarOrden(acciones_.órdenes, this);
    buscarOrden_->Abre(DevÓrdenesPosibles(contexto_, txtSalida_->DevTexto()));
}

void FrmGráficas::AlAcabarOrden() {
    acciones_.RepetirOrden->setEnabled(true);
    acciones_.RepetirOrden->setStatusTip(DevQString(ejecutor_->DevÚltima()));
}

void FrmGráficas::ConectaLectura() {
    trasTeclear_.setSingleShot(true);
    trasTeclear_.setInterval(Lectura);
    connect(&trasTeclear_, &QTimer::timeout, this, [this] { LeeHoja(); });
    connect(txtSalida_, &QPlainTextEdit::textChanged, &trasTeclear_, qOverload<>(&QTimer::start));
    connect(menúHoja_, &QMenu::aboutToShow, this, [this] { LeeHoja(); });
    connect(panel_, &PanelFunciones::motivoCambiado, lectura_, &EtiquetaLectura::PonMotivo);
    LeeHoja();
}

// Quiet, and never while a command works on the same context.
void FrmGráficas::LeeHoja() {
    ejecutor_->CuandoAcabe([this] {
        LecturaHoja hoja; // nothing where it cannot be read; the command will tell
        try {
            hoja = quiralto::LeeHoja(contexto_, txtSalida_->DevTexto());
        } catch (const std::exception&) {
            hoja = {};
        }
        const QString leído = DevQString(hoja.texto);
        txtSalida_->PonErrónea(hoja.errónea);
        const std::span<const Orden> órdenes = DevÓrdenes();
        for (std::size_t i = 0; i < órdenes.size(); ++i)
            acciones_.órdenes.at(i)->setStatusTip(DevExplicación(órdenes[i], leído));
        lectura_->PonLeído(leído);
    });
}

// Made on first use.
template <typename Formulario> void FrmGráficas::Muestra(QPointer<Formulario>& formulario) {
    if (formulario == nullptr)
        formulario = new Formulario(this);
    formulario->show();
    formulario->raise();
    formulario->activateWindow();
}

void FrmGráficas::closeEvent(QCloseEvent* suceso) {
    panel_->Cierra();
    for (auto* formulario : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (formulario->isWindow())
            formulario->close();
    QMainWindow::closeEvent(suceso);
}

void FrmGráficas::Imprime(const Documento& documento, QPrinter& impresora, Manera manera) {
    impresora.setDocName(QStringLiteral("Quiralto"));
    if (manera == Manera::Previsualizar && !impresora_.Previsualiza(impresora, documento, this))
        return;
    if (impresora_.Elige(impresora, this) && !quiralto::Imprime(impresora, documento))
        contexto_.Avisa("No se puede imprimir");
}

void FrmGráficas::ImprimeTexto(Manera manera) {
    QPrinter impresora(QPrinter::HighResolution);
    const auto documento = [this](QPagedPaintDevice& dispositivo) {
        return ImprimetxtSalida(dispositivo, txtSalida_->DevTexto());
    };
    Imprime(documento, impresora, manera);
}

void FrmGráficas::ImprimeGráfica(Manera manera) {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setPageOrientation(
        DevOrientación(impresora.pageLayout(), control_->DevEscena(), visor_->size()));
    const auto documento = [this](QPagedPaintDevice& dispositivo) {
        return ImprimeGráficas(dispositivo, control_->DevEscena(), visor_->size());
    };
    Imprime(documento, impresora, manera);
}

void FrmGráficas::ImprimirTexto_Click() {
    ImprimeTexto(Manera::Imprimir);
}

void FrmGráficas::ImprimirGráfica_Click() {
    ImprimeGráfica(Manera::Imprimir);
}

void FrmGráficas::PrevisualizarTexto_Click() {
    ImprimeTexto(Manera::Previsualizar);
}

void FrmGráficas::PrevisualizarGráfica_Click() {
    ImprimeGráfica(Manera::Previsualizar);
}

void FrmGráficas::ImprimirEnfocada_Click() {
    if (txtSalida_->hasFocus())
        ImprimeTexto(Manera::Imprimir);
    else
        ImprimeGráfica(Manera::Imprimir);
}

void FrmGráficas::CopiarGráfica_Click() {
    QGuiApplication::clipboard()->setMimeData(
        DevCopia(control_->DevEscena(), visor_->size(), visor_->devicePixelRatioF(), visor_->font())
            .release());
    statusBar()->showMessage(QStringLiteral("Gráfica copiada"), DuraciónAviso);
}

void FrmGráficas::CopiarTabla_Click() {
    control_->DevTablaValores([this](const QString& tabla) {
        if (!tabla.isEmpty())
            QGuiApplication::clipboard()->setText(tabla);
        statusBar()->showMessage(
            tabla.isEmpty()
                ? QStringLiteral("No hay ninguna función encendida")
                : QStringLiteral("Tabla copiada: %1 valores de X").arg(tabla.count(u'\n') - 1),
            DuraciónAviso);
    });
}

} // namespace quiralto
