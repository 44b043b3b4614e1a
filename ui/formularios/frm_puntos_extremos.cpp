#include "ui/formularios/frm_puntos_extremos.h"

#include "engine/evaluacion/validadores.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/grafica/pista.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>

#include <optional>

namespace quiralto {

FrmPuntosExtremos::FrmPuntosExtremos(Contexto& contexto, QWidget* padre)
    : QDialog(padre), contexto_(contexto) {
    setObjectName(QStringLiteral("frmPuntosExtremos"));
    setWindowTitle(QStringLiteral("Establecimiento de puntos extremos"));
    auto* formulario = new QFormLayout(this);
    const std::array títulos = {QStringLiteral("Punto +X="), QStringLiteral("Punto -X="),
                                QStringLiteral("Punto +Y="), QStringLiteral("Punto -Y=")};
    for (std::size_t i = 0; i < títulos.size(); ++i) {
        auto* caja = new CajaFormula(this);
        caja->setObjectName(QStringLiteral("txtPuntosExtremos_%1").arg(i));
        caja->setMinimumWidth(340); // and the title fits
        formulario->addRow(títulos.at(i), caja);
        txtPuntosExtremos_.at(i) = caja;
        connect(caja, &QLineEdit::textChanged, this, [this] {
            DiMotivos(false);
            pausa_.start();
        });
    }
    pausa_.setSingleShot(true);
    pausa_.setInterval(Pausa);
    connect(&pausa_, &QTimer::timeout, this, [this] { DiMotivos(isVisible()); });
    auto* botones = new QDialogButtonBox(this);
    auto* aceptar = botones->addButton(QStringLiteral("Aceptar"), QDialogButtonBox::AcceptRole);
    aceptar->setObjectName(QStringLiteral("Command1"));
    aceptar->setDefault(true);
    auto* cancelar = botones->addButton(QStringLiteral("Cancelar"), QDialogButtonBox::RejectRole);
    cancelar->setObjectName(QStringLiteral("Command2"));
    cancelar->setAutoDefault(false);
    formulario->addRow(botones);
    connect(botones, &QDialogButtonBox::accepted, this, &FrmPuntosExtremos::Command1_Click);
    connect(botones, &QDialogButtonBox::rejected, this, &FrmPuntosExtremos::Command2_Click);
}

void FrmPuntosExtremos::ActualizaExtremos(const std::array<std::string, 4>& textos) {
    for (std::size_t i = 0; i < textos.size(); ++i)
        if (const QString texto = DevQString(textos.at(i));
            txtPuntosExtremos_.at(i)->text() != texto)
            txtPuntosExtremos_.at(i)->setText(texto);
}

void FrmPuntosExtremos::VerMarcoConfiguraciónPuntosExtremos(
    const std::array<std::string, 4>& textos) {
    ActualizaExtremos(textos); // whatever was typed and cancelled is gone
    open();
    VuelveA(0);
}

void FrmPuntosExtremos::VuelveA(int caja) {
    CajaFormula* const elegida = txtPuntosExtremos_.at(static_cast<std::size_t>(caja));
    elegida->setFocus(Qt::OtherFocusReason);
    elegida->SeleccionaTexto();
}

// Why the text of a box is no extreme, or that a pair's first one is not the greater.
QString FrmPuntosExtremos::DevMotivo(std::size_t caja) const {
    const std::size_t primera = caja / 2 * 2;
    std::string texto = DevUtf8(txtPuntosExtremos_.at(caja)->text());
    const std::string escrito = texto;
    if (const std::optional<Rechazo> rechazo = CompruebaValorDato(contexto_, texto)) {
        const std::string pista = DevPista(escrito);
        return DevQString(TextoRechazo(*rechazo) + (pista.empty() ? "" : " · " + pista));
    }
    std::string otro = DevUtf8(txtPuntosExtremos_.at(primera + 1)->text());
    if (caja != primera || CompruebaValorDato(contexto_, otro))
        return {};
    const std::optional<Rechazo> orden = CompruebaOrdenados(texto, otro, ModoOrden::Mayor);
    return orden ? DevQString(TextoRechazo(*orden)) : QString();
}

// What has become right is told at once, what is wrong only after a pause.
void FrmPuntosExtremos::DiMotivos(bool trasPausa) {
    QString primero;
    for (std::size_t i = 0; i < txtPuntosExtremos_.size(); ++i) {
        CajaFormula& caja = *txtPuntosExtremos_.at(i);
        const QString motivo = trasPausa || caja.EsErrónea() ? DevMotivo(i) : QString();
        caja.PonMotivo(motivo);
        if (primero.isEmpty())
            primero = motivo;
    }
    if (motivo_ == nullptr && !primero.isEmpty()) { // made on first use, above the buttons
        motivo_ = new QLabel(this);
        motivo_->setObjectName(QStringLiteral("motivoExtremos"));
        motivo_->setWordWrap(true);
        motivo_->setMinimumHeight(2 * motivo_->fontMetrics().lineSpacing());
        auto& formulario = dynamic_cast<QFormLayout&>(*layout());
        formulario.insertRow(formulario.rowCount() - 1, motivo_);
    }
    if (motivo_ != nullptr)
        motivo_->setText(primero);
}

// Both pairs are checked before anything changes.
void FrmPuntosExtremos::Command1_Click() {
    std::array<std::string, 4> textos;
    for (std::size_t i = 0; i < textos.size(); ++i)
        textos.at(i) = DevUtf8(txtPuntosExtremos_.at(i)->text());
    Ventana nueva;
    const auto comprueba = [&](int primera, double& mayor, double& menor) {
        const auto i = static_cast<std::size_t>(primera);
        const Caja caja = CompruebaExtremos(contexto_, textos.at(i), textos.at(i + 1), mayor, menor,
                                            ModoOrden::Mayor);
        if (caja != Caja::Ninguna)
            VuelveA(caja == Caja::Primera ? primera : primera + 1);
        return caja == Caja::Ninguna;
    };
    if (!comprueba(0, nueva.XMáx, nueva.XMín) || !comprueba(2, nueva.YMáx, nueva.YMín))
        return;
    Q_EMIT aceptados(nueva);
}

} // namespace quiralto
