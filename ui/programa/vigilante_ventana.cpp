#include "ui/programa/vigilante_ventana.h"

#include <QApplication>

namespace quiralto {

VigilanteVentana::Guardia::Guardia(VigilanteVentana& vigilante) : vigilante_(vigilante) {
    vigilante_.enMarcha_ = true;
    vigilante_.siguiente_ = vigilante_.espera_;
    vigilante_.reloj_.start();
}

VigilanteVentana::Guardia::~Guardia() {
    vigilante_.diálogo_.reset();
    vigilante_.enMarcha_ = false;
}

bool VigilanteVentana::Continúa() {
    constexpr std::chrono::milliseconds Intervalo{50};
    if (!enMarcha_)
        return true;
    const std::chrono::milliseconds ahora(reloj_.elapsed());
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
