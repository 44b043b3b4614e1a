#include "ui/formularios/frm_graficas.h"

#include "ui/acciones/menu_hoja.h"
#include "ui/dibujo/iconos.h"
#include "ui/formularios/for_acerca_de.h"
#include "ui/formularios/form_ayuda.h"
#include "ui/formularios/impresion_grafica.h"
#include "ui/formularios/impresion_texto.h"
#include "ui/formularios/marco_barra.h"
#include "ui/formularios/menu_grafica.h"

#include <QClipboard>
#include <QFontDatabase>
#include <QGridLayout>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>

#include <algorithm>

namespace quiralto {

frmGráficas::frmGráficas(Contexto& contexto, VigilanteVentana& vigilante, Impresora& impresora)
    : contexto_(contexto), vigilante_(vigilante), impresora_(impresora), vista_(contexto),
      txtSalida_(new CajaHoja(this)), visor_(new VisorFunciones(this)),
      panel_(new PanelFunciones(
          contexto, vista_, [this] { control_->FuncionesCambiadas(); }, this)),
      marco_(new frmPuntosExtremos(
          contexto, [this](const Ventana& ventana) { return control_->FijaExtremos(ventana); },
          this)),
      zoom_(new QLabel(this)), coordenadas_(new QLabel(this)) {
    setObjectName(QStringLiteral("frmGráficas"));
    setWindowTitle(QStringLiteral("Quiralto"));
    setWindowIcon(DevIconoPrograma());
    auto* división = new QSplitter(Qt::Horizontal, this);
    división->setObjectName(QStringLiteral("división"));
    división->setChildrenCollapsible(false);
    división->addWidget(CreaZonaGráfica());
    división->addWidget(CreaColumna());
    división->setStretchFactor(0, 1);
    división->setStretchFactor(1, 0);
    setCentralWidget(división);
    const auto barra = [this](const QString& nombre) -> QScrollBar& {
        return *findChild<QScrollBar*>(nombre);
    };
    control_ = std::make_unique<ControlGráfica>(
        contexto, vista_,
        ControlGráfica::Partes{.visor = *visor_,
                               .panel = *panel_,
                               .marco = *marco_,
                               .hsEjeX = barra(QStringLiteral("hsEjeX")),
                               .vsEjeY = barra(QStringLiteral("vsEjeY")),
                               .hsx = barra(QStringLiteral("hsx")),
                               .zoom = *zoom_,
                               .coordenadas = *coordenadas_});
    CreaBarraEstado();
    CreaMenús();
    txtSalida_->setFocus();
    // The window manager's frame is to fit too.
    const QSize marco(16, 48);
    resize(QSize(1240, 780).boundedTo(QGuiApplication::primaryScreen()->availableSize() - marco));
    const int columna = std::min(400, width() * 36 / 100);
    división->setSizes({width() - columna, columna});
}

// The controls go before what they call.
frmGráficas::~frmGráficas() {
    panel_->Cierra();
    delete takeCentralWidget();
}

QWidget* frmGráficas::CreaZonaGráfica() {
    visor_->setObjectName(QStringLiteral("VisorFunciones"));
    visor_->setAccessibleName(QStringLiteral("Gráfica"));
    auto* zona = new QWidget(this);
    auto* rejilla = new QGridLayout(zona);
    rejilla->setContentsMargins(8, 8, 4, 8);
    rejilla->setSpacing(6);
    rejilla->addWidget(visor_, 0, 0, 1, 2);
    rejilla->addWidget(
        CreaMarcoBarra({QStringLiteral("vsEjeY"), QStringLiteral("Control eje Y"),
                        QStringLiteral("Con este control puede desplazar la gráfica hacia arriba "
                                       "o hacia abajo"),
                        20, 5},
                       Qt::Vertical, true, [this](int v) { control_->vsEjeY_Change(v); }),
        0, 2);
    rejilla->addWidget(
        CreaMarcoBarra({QStringLiteral("hsEjeX"), QStringLiteral("Control eje X"),
                        QStringLiteral("Con este control puede desplazar la gráfica a la derecha "
                                       "o a la izquierda"),
                        20, 5},
                       Qt::Horizontal, true, [this](int v) { control_->hsEjeX_Change(v); }),
        1, 0);
    rejilla->addWidget(
        CreaMarcoBarra({QStringLiteral("hsx"), QStringLiteral("Control punto X"),
                        QStringLiteral("Con este control puede desplazar el punto X hacia la "
                                       "derecha o hacia la izquierda"),
                        100, 10},
                       Qt::Horizontal, false, [this](int v) { control_->hsx_Change(v); }),
        1, 1);
    rejilla->setRowStretch(0, 1);

    auto* copiar = new QAction(QStringLiteral("Copiar imagen"), visor_);
    copiar->setObjectName(QStringLiteral("CopiarImagen"));
    connect(copiar, &QAction::triggered, this, [this] { CopiarImagen_Click(); });
    visor_->addAction(copiar);
    visor_->setContextMenuPolicy(Qt::ActionsContextMenu);
    return zona;
}

QWidget* frmGráficas::CreaColumna() {
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

void frmGráficas::CreaBarraEstado() {
    zoom_->setObjectName(QStringLiteral("zoom"));
    coordenadas_->setObjectName(QStringLiteral("coordenadas"));
    const QFont fija = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    coordenadas_->setFont(fija);
    coordenadas_->setIndent(12);
    // Room for the coordinates of any usual window, so that nothing beside them moves.
    coordenadas_->setMinimumWidth(
        QFontMetrics(fija).horizontalAdvance(QStringLiteral("X=-12.3456  Y=-12.3456")));
    statusBar()->addPermanentWidget(zoom_);
    statusBar()->addPermanentWidget(coordenadas_);
}

void frmGráficas::CreaMenús() {
    CreaMenúArchivo();
    QMenu* gráfica = menuBar()->addMenu(QStringLiteral("&Gráfica"));
    gráfica->setObjectName(QStringLiteral("MenúGráfica"));
    CreaMenúsGráfica(*gráfica, *control_, [this] { FijarPuntosExtremos_Click(); });
    QMenu* hoja = menuBar()->addMenu(QStringLiteral("&Hoja"));
    hoja->setObjectName(QStringLiteral("MenúHoja"));
    CreaMenúsÓrdenes(*hoja, DevÓrdenes(),
                     [this](const Orden& orden) { EjecutaOrden(orden.texto); });
    CreaMenúAyuda();
    auto* barra = addToolBar(QStringLiteral("Barra de herramientas"));
    barra->setObjectName(QStringLiteral("Toolbar1"));
    barra->setMovable(false);
    barra->setContextMenuPolicy(Qt::PreventContextMenu); // which would only hide it
    barra->toggleViewAction()->setObjectName(QStringLiteral("VerToolbar1"));
    CreaBarraHerramientas(*barra, *control_);
}

void frmGráficas::CreaMenúArchivo() {
    QMenu* archivo = menuBar()->addMenu(QStringLiteral("&Archivo"));
    QMenu* imprimir = archivo->addMenu(QStringLiteral("Imprimir"));
    imprimir->setObjectName(QStringLiteral("Imprimir"));
    QAction* gráfica = imprimir->addAction(QStringLiteral("Ventana gráfica"));
    gráfica->setObjectName(QStringLiteral("ImprimirGráfica"));
    connect(gráfica, &QAction::triggered, this, [this] { ImprimirGráfica_Click(); });
    QAction* texto = imprimir->addAction(QStringLiteral("Ventana texto"));
    texto->setObjectName(QStringLiteral("ImprimirTexto"));
    connect(texto, &QAction::triggered, this, [this] { ImprimirTexto_Click(); });
    archivo->addSeparator();
    QAction* salir = archivo->addAction(QStringLiteral("&Salir"));
    salir->setObjectName(QStringLiteral("Salir"));
    salir->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    connect(salir, &QAction::triggered, this, &QWidget::close);
}

void frmGráficas::CreaMenúAyuda() {
    QMenu* ayuda = menuBar()->addMenu(QStringLiteral("A&yuda"));
    QAction* contenido = ayuda->addAction(QStringLiteral("&Contenido"));
    contenido->setObjectName(QStringLiteral("Contenido"));
    contenido->setShortcut(QKeySequence(Qt::Key_F1));
    connect(contenido, &QAction::triggered, this, [this] { Contenido_Click(); });
    QAction* acerca = ayuda->addAction(QStringLiteral("Acerca de"));
    acerca->setObjectName(QStringLiteral("AcercaDe"));
    connect(acerca, &QAction::triggered, this, [this] { AcercaDe_Click(); });
}

void frmGráficas::FijarPuntosExtremos_Click() {
    marco_->VerMarcoConfiguraciónPuntosExtremos(vista_.DevVentana());
}

// Made on first use.
template <typename Formulario> void frmGráficas::Muestra(Formulario*& formulario) {
    if (formulario == nullptr)
        formulario = new Formulario(this);
    formulario->show();
    formulario->raise();
    formulario->activateWindow();
}

void frmGráficas::closeEvent(QCloseEvent* suceso) {
    panel_->Cierra();
    for (auto* formulario : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (formulario->isWindow())
            formulario->close();
    QMainWindow::closeEvent(suceso);
}

void frmGráficas::EjecutaOrden(std::string_view orden) {
    if (vigilante_.EnMarcha())
        return;
    Hoja hoja(txtSalida_->DevTexto());
    {
        const VigilanteVentana::Guardia guardia(vigilante_);
        EjecutaInstrucciones(contexto_, hoja, orden);
    }
    txtSalida_->PonTexto(hoja.texto);
    if (hoja.líneaSeleccionada)
        txtSalida_->SeleccionaLínea(*hoja.líneaSeleccionada);
}

template <typename Imprime> void frmGráficas::ConImpresora(Imprime imprime) {
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setDocName(QStringLiteral("Quiralto"));
    if (impresora_.Elige(impresora, this) && !imprime(impresora))
        contexto_.Avisa("No se puede imprimir");
}

void frmGráficas::ImprimirTexto_Click() {
    ConImpresora([this](QPrinter& impresora) {
        return ImprimetxtSalida(impresora, txtSalida_->DevTexto());
    });
}

void frmGráficas::ImprimirGráfica_Click() {
    ConImpresora([this](QPrinter& impresora) {
        std::array<std::string, VentanaGráfica::CantidadFunciones> textos;
        for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i)
            if (vista_.EstáActiva(i))
                textos.at(static_cast<std::size_t>(i)) = vista_.DevTexto(i);
        return ImprimeGráficas(impresora, control_->DevEscena(), visor_->size(), textos);
    });
}

void frmGráficas::CopiarImagen_Click() {
    QGuiApplication::clipboard()->setImage(visor_->DevImagen());
}

} // namespace quiralto
