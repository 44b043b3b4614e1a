#include "ui/programa/vigilante_ventana.h"

#include <QApplication>

namespace quiralto {

void VigilanteVentana::Empieza() {
    enMarcha_ = true;
    antes_ = {};
    siguiente_ = espera_;
    reloj_.start();
}

void VigilanteVentana::Acaba() {
    diálogo_.reset();
    enMarcha_ = false;
}

VigilanteVentana::Alto::Alto(VigilanteVentana& vigilante) : vigilante_(vigilante) {
    if (vigilante_.altos_++ > 0 || !vigilante_.enMarcha_)
        return;
    vigilante_.antes_ = vigilante_.DevTranscurrido();
    vigilante_.diálogo_.reset();
}

VigilanteVentana::Alto::~Alto() {
    if (--vigilante_.altos_ == 0)
        vigilante_.reloj_.start();
}

std::chrono::milliseconds VigilanteVentana::DevTranscurrido() const {
    return antes_ + std::chrono::milliseconds(reloj_.elapsed());
}

bool VigilanteVentana::Continúa() {
    constexpr std::chrono::milliseconds Intervalo{50};
    if (!enMarcha_ || altos_ > 0)
        return true;
    const std::chrono::milliseconds ahora = DevTranscurrido();
    if (ahora < siguiente_)
        return true;
    siguiente_ = ahora + Intervalo;
    if (!diálogo_)
        MuestraDiálogo();
    QApplication::processEvents();
    return !diálogo_->wasCanceled();
}

void VigilanteVentana::MuestraDiálogo() {
    // Its range is empty: how far a command has come cannot be told.
    diálogo_ =
        std::make_unique<QProgressDialog>(QStringLiteral("Calculando…"), QStringLiteral("Cancelar"),
                                          0, 0, QApplication::activeWindow());
    diálogo_->setObjectName(QStringLiteral("frmProgreso"));
    diálogo_->setWindowTitle(QStringLiteral("Quiralto"));
    diálogo_->setWindowModality(Qt::ApplicationModal);
    diálogo_->setMinimumDuration(0);
    diálogo_->show();
}

} // namespace quiralto
