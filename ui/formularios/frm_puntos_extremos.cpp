#include "ui/formularios/frm_puntos_extremos.h"

#include "engine/evaluacion/validadores.h"
#include "engine/numeros/numero.h"
#include "ui/dibujo/texto_qt.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace quiralto {

frmPuntosExtremos::frmPuntosExtremos(Contexto& contexto, std::function<bool(const Ventana&)> fijar,
                                     QWidget* padre)
    : QDialog(padre), contexto_(contexto), fijar_(std::move(fijar)) {
    setObjectName(QStringLiteral("frmPuntosExtremos"));
    setWindowTitle(QStringLiteral("Establecimiento de puntos extremos"));
    auto* rejilla = new QGridLayout(this);
    rejilla->setContentsMargins(12, 12, 12, 12);
    const std::array títulos = {QStringLiteral("Punto +X="), QStringLiteral("Punto -X="),
                                QStringLiteral("Punto +Y="), QStringLiteral("Punto -Y=")};
    for (int i = 0; i < 4; ++i) {
        auto* caja = new CajaFórmula(this);
        caja->setObjectName(QStringLiteral("txtPuntosExtremos_%1").arg(i));
        caja->setMinimumWidth(340); // and the title fits
        auto* etiqueta = new QLabel(títulos.at(static_cast<std::size_t>(i)), this);
        etiqueta->setBuddy(caja);
        rejilla->addWidget(etiqueta, i, 0);
        rejilla->addWidget(caja, i, 1);
        txtPuntosExtremos_.at(static_cast<std::size_t>(i)) = caja;
    }
    auto* aceptar = new QPushButton(QStringLiteral("Aceptar"), this);
    aceptar->setObjectName(QStringLiteral("Command1"));
    aceptar->setDefault(true);
    auto* cancelar = new QPushButton(QStringLiteral("Cancelar"), this);
    cancelar->setObjectName(QStringLiteral("Command2"));
    cancelar->setAutoDefault(false);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(aceptar);
    botones->addWidget(cancelar);
    rejilla->addLayout(botones, 4, 0, 1, 2);
    connect(aceptar, &QPushButton::clicked, this, [this] { Command1_Click(); });
    connect(cancelar, &QPushButton::clicked, this, [this] { Command2_Click(); });
}

void frmPuntosExtremos::ActualizaExtremos(const Ventana& ventana) {
    const std::array valores = {ventana.XMáx, ventana.XMín, ventana.YMáx, ventana.YMín};
    for (std::size_t i = 0; i < valores.size(); ++i)
        txtPuntosExtremos_.at(i)->setText(DevQString(TextoNúmero(valores.at(i))));
}

void frmPuntosExtremos::VerMarcoConfiguraciónPuntosExtremos(const Ventana& ventana) {
    ActualizaExtremos(ventana); // whatever was typed and cancelled is gone
    open();
    VuelveA(0);
}

void frmPuntosExtremos::VuelveA(int caja) {
    CajaFórmula* const elegida = txtPuntosExtremos_.at(static_cast<std::size_t>(caja));
    elegida->setFocus(Qt::OtherFocusReason);
    elegida->SeleccionaTexto();
}

// Both pairs are checked before anything changes.
void frmPuntosExtremos::Command1_Click() {
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
    if (fijar_(nueva))
        OcultarMarcoConfiguraciónPuntosExtremos();
    else
        VuelveA(0);
}

} // namespace quiralto
