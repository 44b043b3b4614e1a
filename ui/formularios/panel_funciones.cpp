#include "ui/formularios/panel_funciones.h"

#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"
#include "ui/dibujo/grafica.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/grafica/marcas_eje.h"

#include <QFontDatabase>
#include <QGridLayout>
#include <QSignalBlocker>

namespace quiralto {
namespace {

QLineEdit* CreaValor(QWidget* padre, const QString& nombre, const QString& accesible) {
    auto* valor = new QLineEdit(padre);
    valor->setObjectName(nombre);
    valor->setAccessibleName(accesible);
    valor->setReadOnly(true);
    valor->setFrame(false);
    QPalette paleta; // but for one colour the desktop's, whatever it becomes
    paleta.setColor(QPalette::Base, Qt::transparent); // it is no box to type into
    valor->setPalette(paleta);
    valor->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
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

} // namespace

PanelFunciones::PanelFunciones(Contexto& contexto, VentanaGráfica& vista,
                               std::function<void()> alCambiar, QWidget* padre)
    : QWidget(padre), contexto_(contexto), vista_(vista), alCambiar_(std::move(alCambiar)) {
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(0, 0, 0, 0);
    rejilla->setHorizontalSpacing(6);
    rejilla->setVerticalSpacing(4);
    rejilla->setColumnStretch(3, 1);
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i)
        CreaFila(i);
    trasSalir_.setSingleShot(true);
    connect(&trasSalir_, &QTimer::timeout, this, [this] {
        for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i)
            AlSalir(i);
    });
    txtPuntoX_ = CreaValor(this, QStringLiteral("txtPuntoX"), QStringLiteral("Punto X"));
    auto* etiqueta = new QLabel(QStringLiteral("&Punto X ="), this);
    etiqueta->setBuddy(txtPuntoX_);
    rejilla->addWidget(etiqueta, 8, 0, 1, 3);
    rejilla->addWidget(txtPuntoX_, 8, 3);
}

void PanelFunciones::CreaFila(int índice) {
    auto& rejilla = dynamic_cast<QGridLayout&>(*layout());
    Fila& fila = DevFila(índice);
    const QString número = QString::number(índice);
    const QString función = QStringLiteral("f%1(X)").arg(número);

    fila.chkfx = new QCheckBox(this);
    fila.chkfx->setObjectName(QStringLiteral("chkfx_") + número);
    fila.chkfx->setAccessibleName(QStringLiteral("Dibujar ") + función);
    fila.chkfx->setToolTip(QStringLiteral("Dibujar ") + función);
    fila.txtfx = new CajaFórmula(this);
    fila.txtfx->setObjectName(QStringLiteral("txtfx_") + número);
    fila.txtfx->setAccessibleName(función);
    fila.txtFxValor = CreaValor(this, QStringLiteral("txtFxValor_") + número,
                                QStringLiteral("Valor de %1 en el punto X").arg(función));

    auto* etiqueta = new QLabel(QStringLiteral("f&%1(X) =").arg(número), this);
    etiqueta->setBuddy(fila.txtfx);
    auto* etiquetaValor = new QLabel(QStringLiteral("valor"), this);
    etiquetaValor->setBuddy(fila.txtFxValor);
    etiquetaValor->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    rejilla.addWidget(fila.chkfx, 2 * índice, 0);
    rejilla.addWidget(new Muestra(this, índice), 2 * índice, 1);
    rejilla.addWidget(etiqueta, 2 * índice, 2);
    rejilla.addWidget(fila.txtfx, 2 * índice, 3);
    rejilla.addWidget(etiquetaValor, 2 * índice + 1, 2);
    rejilla.addWidget(fila.txtFxValor, 2 * índice + 1, 3);

    connect(fila.txtfx, &QLineEdit::textEdited, this, [this, índice] { AlEscribir(índice); });
    connect(fila.txtfx, &QLineEdit::returnPressed, this, [this, índice] { AlPulsarIntro(índice); });
    connect(fila.chkfx, &QCheckBox::toggled, this,
            [this, índice](bool activa) { AlConmutar(índice, activa); });
    // Not now: the click that takes the focus away comes first.
    fila.txtfx->alSalir = [this] { trasSalir_.start(0); };
}

void PanelFunciones::ActualizaX() {
    txtPuntoX_->setText(DevQString(TextoEnRango(vista_.DevPuntoX(), vista_.DevAncho())));
}

void PanelFunciones::ActualizaFunciones() {
    for (int i = 0; i < VentanaGráfica::CantidadFunciones; ++i) {
        const std::optional<double> valor = vista_.DevValor(i);
        DevFila(i).txtFxValor->setText(
            valor ? DevQString(TextoNúmero(Redondea(*valor, contexto_.DígitosRedondeo)))
                  : QString());
        DevFila(i).txtFxValor->setCursorPosition(0);
    }
}

// Makes the text of the box the formula of the function; after one message, where it is refused,
// the function is off and the box has the focus.
bool PanelFunciones::Comprueba(int índice) {
    Fila& fila = DevFila(índice);
    fila.sinComprobar = false;
    std::string texto = DevUtf8(fila.txtfx->text());
    bool aceptada = false;
    try {
        aceptada = vista_.DefineFunción(índice, texto);
    } catch (const ErrorEjecución&) {
        // more operations than a program may have
        vista_.QuitaFunción(índice);
        contexto_.Avisa("La función es demasiado larga");
    }
    if (!aceptada) {
        Rechaza(índice);
        return false;
    }
    fila.txtfx->MarcaErrónea(false);
    if (DevQString(texto) != fila.txtfx->text()) {
        const QSignalBlocker callada(fila.txtfx);
        fila.txtfx->selectAll();
        fila.txtfx->insert(DevQString(texto)); // as one step that can be undone
    }
    return true;
}

void PanelFunciones::Rechaza(int índice) {
    Fila& fila = DevFila(índice);
    fila.txtfx->MarcaErrónea(true);
    {
        const QSignalBlocker callada(fila.chkfx);
        fila.chkfx->setDown(false); // its mouse button may have gone up over the message
        fila.chkfx->setChecked(false);
    }
    vista_.Activa(índice, false);
    alCambiar_();
    fila.txtfx->setFocus(Qt::OtherFocusReason);
    fila.txtfx->SeleccionaTexto();
}

void PanelFunciones::AlEscribir(int índice) {
    Fila& fila = DevFila(índice);
    fila.sinComprobar = true;
    const QString texto = fila.txtfx->text();
    std::string fórmula = DevUtf8(texto);
    fila.txtfx->MarcaErrónea(!texto.isEmpty() && CompruebaSintaxis(contexto_, fórmula).has_value());
}

// Enter is the wish to see the function.
void PanelFunciones::AlPulsarIntro(int índice) {
    if (!Comprueba(índice))
        return;
    Fila& fila = DevFila(índice);
    {
        const QSignalBlocker callada(fila.chkfx);
        fila.chkfx->setChecked(true);
    }
    vista_.Activa(índice, true);
    alCambiar_();
}

void PanelFunciones::AlSalir(int índice) {
    Fila& fila = DevFila(índice);
    if (cerrado_ || !fila.sinComprobar || fila.txtfx->hasFocus())
        return;
    if (fila.txtfx->text().isEmpty()) {
        // Whoever empties a box wants no function, and no message about it.
        fila.sinComprobar = false;
        vista_.QuitaFunción(índice);
        const QSignalBlocker callada(fila.chkfx);
        fila.chkfx->setChecked(false);
        alCambiar_();
    } else if (Comprueba(índice)) {
        alCambiar_();
    }
}

void PanelFunciones::AlConmutar(int índice, bool activa) {
    if (activa && !Comprueba(índice))
        return;
    vista_.Activa(índice, activa);
    alCambiar_();
}

} // namespace quiralto
