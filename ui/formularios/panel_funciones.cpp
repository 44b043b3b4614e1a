#include "ui/formularios/panel_funciones.h"

#include "ui/dibujo/colores.h"
#include "ui/dibujo/contraste.h"
#include "ui/dibujo/fuentes.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/formularios/casilla_funcion.h"

#include <QApplication>
#include <QGridLayout>
#include <QPainter>
#include <QSignalBlocker>

#include <utility>

namespace quiralto {
namespace {

constexpr int FilasPorFunción = 2; // of the grid: box and value

// No box to type into, so without a frame but for the mark of the focus.
class CajaValor : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

protected:
    void paintEvent(QPaintEvent* suceso) override {
        QLineEdit::paintEvent(suceso);
        if (!hasFocus())
            return;
        QPainter pintor(this);
        DibujaFoco(pintor, QRectF(rect()), QApplication::palette(this));
    }
};

QLineEdit* CreaValor(QWidget* padre, const QString& nombre, const QString& accesible) {
    auto* valor = new CajaValor(padre);
    valor->setObjectName(nombre);
    valor->setAccessibleName(accesible);
    valor->setReadOnly(true);
    valor->setFrame(false);
    QPalette paleta; // but for one colour the desktop's, whatever it becomes
    paleta.setColor(QPalette::Base, Qt::transparent); // it is no box to type into
    valor->setPalette(paleta);
    valor->setFont(DevFuenteFija());
    return valor;
}

// A small square in the colour of the curve, on white as the curve is.
class Muestra : public QWidget {
public:
    Muestra(QWidget* padre, int índice) : QWidget(padre), índice_(índice) { setFixedSize(16, 16); }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        pintor.fillRect(rect(), Qt::white);
        pintor.fillRect(rect().adjusted(3, 3, -3, -3), DevColor(índice_));
    }

private:
    int índice_;
};

void PonTexto(QLineEdit& caja, const std::string& texto) {
    if (const QString nuevo = DevQString(texto); caja.text() != nuevo) {
        caja.setText(nuevo);
        caja.setCursorPosition(0);
    }
}

} // namespace

PanelFunciones::PanelFunciones(QWidget* padre) : QWidget(padre) {
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setHorizontalSpacing(6);
    rejilla->setVerticalSpacing(4);
    rejilla->setColumnStretch(3, 1);
    for (int i = 0; i < CantidadFunciones; ++i) {
        CreaFila(i);
        ConectaFila(i);
    }
    trasSalir_.setSingleShot(true);
    connect(&trasSalir_, &QTimer::timeout, this, &PanelFunciones::DiLasDejadas);
    CreaPuntoX();
}

void PanelFunciones::CreaPuntoX() {
    txtPuntoX_ = new CajaFormula(this);
    txtPuntoX_->setObjectName(QStringLiteral("txtPuntoX"));
    txtPuntoX_->setAccessibleName(QStringLiteral("Punto X"));
    txtPuntoX_->setToolTip(QStringLiteral("Un número, o una expresión sin X"));
    connect(txtPuntoX_, &QLineEdit::returnPressed, this, &PanelFunciones::DiElPunto);
    connect(txtPuntoX_, &CajaFormula::abandonada, this, [this] {
        puntoDejado_ = true;
        trasSalir_.start(0);
    });
    auto* etiqueta = new QLabel(QStringLiteral("&Punto X ="), this);
    etiqueta->setBuddy(txtPuntoX_);
    auto& rejilla = dynamic_cast<QGridLayout&>(*layout());
    const int fila = CantidadFunciones * FilasPorFunción;
    rejilla.addWidget(etiqueta, fila, 0, 1, 3);
    rejilla.addWidget(txtPuntoX_, fila, 3);
}

void PanelFunciones::CreaFila(int índice) {
    auto& rejilla = dynamic_cast<QGridLayout&>(*layout());
    Fila& fila = DevFila(índice);
    const QString número = QString::number(índice);
    const QString función = QStringLiteral("f%1(X)").arg(número);

    fila.chkfx = new CasillaFunción(this);
    fila.chkfx->setObjectName(QStringLiteral("chkfx_") + número);
    fila.chkfx->setAccessibleName(QStringLiteral("Dibujar ") + función);
    fila.chkfx->setToolTip(QStringLiteral("Dibujar ") + función);
    fila.txtfx = new CajaFormula(this);
    fila.txtfx->setObjectName(QStringLiteral("txtfx_") + número);
    fila.txtfx->setAccessibleName(función);
    fila.txtFxValor = CreaValor(this, QStringLiteral("txtFxValor_") + número,
                                QStringLiteral("Valor de %1 en el punto X").arg(función));

    auto* etiqueta = new QLabel(QStringLiteral("f&%1(X) =").arg(número), this);
    etiqueta->setBuddy(fila.txtfx);
    auto* etiquetaValor = new QLabel(QStringLiteral("valor"), this);
    etiquetaValor->setBuddy(fila.txtFxValor);
    etiquetaValor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    const int primera = índice * FilasPorFunción;
    rejilla.addWidget(fila.chkfx, primera, 0);
    rejilla.addWidget(new Muestra(this, índice), primera, 1);
    rejilla.addWidget(etiqueta, primera, 2);
    rejilla.addWidget(fila.txtfx, primera, 3);
    rejilla.addWidget(etiquetaValor, primera + 1, 2);
    rejilla.addWidget(fila.txtFxValor, primera + 1, 3, 1, 2);
    CreaBotónMenú(índice);
}

// What the box's context menu has, for whoever does not look for one. The keys have that menu.
void PanelFunciones::CreaBotónMenú(int índice) {
    const QString función = QStringLiteral("f%1(X)").arg(índice);
    auto* botón = new QToolButton(this);
    DevFila(índice).cmdMenúfx = botón;
    botón->setObjectName(QStringLiteral("cmdMenúfx_%1").arg(índice));
    botón->setAccessibleName(QStringLiteral("Más de ") + función);
    botón->setToolTip(QStringLiteral("Llevar %1 a la hoja").arg(función));
    botón->setArrowType(Qt::DownArrow);
    botón->setAutoRaise(true);
    botón->setFocusPolicy(Qt::NoFocus);
    botón->setFixedWidth(20);
    dynamic_cast<QGridLayout&>(*layout()).addWidget(botón, índice * FilasPorFunción, 4);
    connect(botón, &QToolButton::clicked, this, [this, botón, índice] {
        auto* menú = new QMenu(botón);
        menú->setObjectName(QStringLiteral("MenúFunción"));
        menú->setAttribute(Qt::WA_DeleteOnClose);
        Q_EMIT menuPedido(índice, menú);
        menú->popup(botón->mapToGlobal(botón->rect().bottomLeft()));
    });
}

void PanelFunciones::ConectaFila(int índice) {
    Fila& fila = DevFila(índice);
    connect(fila.txtfx, &CajaFormula::menuPedido, this,
            [this, índice](QMenu* menú) { Q_EMIT menuPedido(índice, menú); });
    connect(fila.txtfx, &QLineEdit::textChanged, this,
            [this, índice](const QString& texto) { Q_EMIT escrita(índice, texto); });
    connect(fila.txtfx, &QLineEdit::returnPressed, this,
            [this, índice] { Q_EMIT confirmada(índice); });
    connect(fila.chkfx, &QCheckBox::toggled, this,
            [this, índice](bool encendida) { Q_EMIT conmutada(índice, encendida); });
    connect(fila.txtfx, &CajaFormula::enfocada, this, [this, índice](bool tiene) {
        Q_EMIT motivoCambiado(tiene ? DevFila(índice).txtfx->DevMotivo() : QString());
    });
    // Not now: the click that takes the focus away comes first. One on the function's own check
    // box decides alone, once it has gone up.
    connect(fila.txtfx, &CajaFormula::abandonada, this, [this, índice] {
        DevFila(índice).dejada = true;
        trasSalir_.start(0);
    });
    connect(fila.chkfx, &QCheckBox::released, this, [this] { trasSalir_.start(0); });
}

void PanelFunciones::DiLasDejadas() {
    for (int i = 0; i < CantidadFunciones; ++i) {
        Fila& fila = DevFila(i);
        if (!fila.dejada || fila.chkfx->isDown())
            continue;
        fila.dejada = false;
        if (!cerrado_ && !fila.txtfx->hasFocus())
            Q_EMIT abandonada(i);
    }
    if (!std::exchange(puntoDejado_, false) || cerrado_ || txtPuntoX_->hasFocus())
        return;
    if (txtPuntoX_->text() == puntoRechazado_)
        RestauraPuntoX(); // it has been told
    else
        DiElPunto();
}

void PanelFunciones::DiElPunto() {
    if (txtPuntoX_->text() != puntoX_)
        Q_EMIT puntoEscrito(txtPuntoX_->text());
}

// What is being typed there stays until the point itself changes.
void PanelFunciones::ActualizaX(const Escena& escena) {
    if (const QString nuevo = DevQString(escena.textoPuntoX); nuevo != puntoX_) {
        puntoX_ = nuevo;
        RestauraPuntoX();
    }
}

void PanelFunciones::RestauraPuntoX() {
    puntoRechazado_ = puntoX_;
    if (txtPuntoX_->text() == puntoX_)
        return;
    txtPuntoX_->setText(puntoX_);
    txtPuntoX_->setCursorPosition(0);
}

void PanelFunciones::ActualizaFunciones(const Escena& escena) {
    for (int i = 0; i < CantidadFunciones; ++i)
        PonTexto(*DevFila(i).txtFxValor, escena.textosValor.at(static_cast<std::size_t>(i)));
    const QString invitación = escena.vacía ? QStringLiteral("por ejemplo SIN(X)") : QString();
    if (DevFila(0).txtfx->placeholderText() != invitación)
        DevFila(0).txtfx->setPlaceholderText(invitación);
}

void PanelFunciones::Copia(int índice, const FunciónGráfica& función) {
    Fila& fila = DevFila(índice);
    fila.txtfx->Reescribe(DevQString(función.texto));
    fila.cmdMenúfx->setEnabled(función.estado == EstadoTexto::Fórmula);
    const QSignalBlocker callada(fila.chkfx);
    if (fila.chkfx->isChecked() != función.encendida)
        fila.chkfx->setDown(false); // its mouse button may have gone up over a message
    fila.chkfx->setChecked(función.encendida);
}

void PanelFunciones::PonMotivo(int índice, const QString& motivo) {
    CajaFormula& caja = *DevFila(índice).txtfx;
    if (caja.DevMotivo() == motivo)
        return;
    caja.PonMotivo(motivo);
    if (caja.hasFocus())
        Q_EMIT motivoCambiado(motivo);
}

void PanelFunciones::VuelveA(int índice) {
    CajaFormula& caja = *DevFila(índice).txtfx;
    caja.setFocus(Qt::OtherFocusReason);
    caja.SeleccionaTexto();
}

void PanelFunciones::VuelveAlPuntoX() {
    puntoRechazado_ = txtPuntoX_->text();
    txtPuntoX_->setFocus(Qt::OtherFocusReason);
    txtPuntoX_->SeleccionaTexto();
}

} // namespace quiralto
