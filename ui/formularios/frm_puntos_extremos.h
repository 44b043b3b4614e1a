// The frame in which the four extremes of the plot window are typed.
#pragma once

#include "engine/base/contexto.h"
#include "engine/evaluacion/muestreo.h"
#include "ui/hoja/caja_formula.h"

#include <QDialog>
#include <QLabel>
#include <QTimer>

#include <array>
#include <chrono>
#include <cstddef>
#include <string>

namespace quiralto {

class FrmPuntosExtremos : public QDialog {
    Q_OBJECT

public:
    // The context outlives the frame.
    explicit FrmPuntosExtremos(Contexto& contexto, QWidget* padre = nullptr);

    // Writes the texts of the extremes into the boxes: right, left, upper, lower.
    void ActualizaExtremos(const std::array<std::string, 4>& textos);
    // Opens the frame on those texts, with the first box selected.
    void VerMarcoConfiguraciónPuntosExtremos(const std::array<std::string, 4>& textos);
    void OcultarMarcoConfiguraciónPuntosExtremos() { hide(); }
    // Back to a box, with its text selected.
    void VuelveA(int caja);

    // How long a text may stay as it is before it is told why it cannot be used.
    static constexpr std::chrono::milliseconds Pausa = std::chrono::seconds(1);

Q_SIGNALS:
    // "Aceptar", with extremes that have passed their checks. Whoever takes them hides the frame,
    // or goes back to a box.
    void aceptados(const quiralto::Ventana& ventana);

private:
    void DiMotivos(bool trasPausa);
    QString DevMotivo(std::size_t caja) const;
    void Command1_Click();
    void Command2_Click() { OcultarMarcoConfiguraciónPuntosExtremos(); }

    Contexto& contexto_;
    std::array<CajaFormula*, 4> txtPuntosExtremos_{};
    QLabel* motivo_ = nullptr;
    QTimer pausa_; // runs while something is being typed
};

} // namespace quiralto
