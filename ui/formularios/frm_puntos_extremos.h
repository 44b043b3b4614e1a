// The frame in which the four extremes of the plot window are typed.
#pragma once

#include "engine/base/contexto.h"
#include "engine/evaluacion/muestreo.h"
#include "ui/hoja/caja_formula.h"

#include <QDialog>

#include <array>
#include <functional>

namespace quiralto {

class frmPuntosExtremos : public QDialog {
public:
    // `fijar` makes the window the new one and returns whether it could.
    frmPuntosExtremos(Contexto& contexto, std::function<bool(const Ventana&)> fijar,
                      QWidget* padre);

    void ActualizaExtremos(const Ventana& ventana);
    // Opens the frame on that window, with the first box selected.
    void VerMarcoConfiguraciónPuntosExtremos(const Ventana& ventana);

private:
    void Command1_Click();
    void Command2_Click() { OcultarMarcoConfiguraciónPuntosExtremos(); }
    void OcultarMarcoConfiguraciónPuntosExtremos() { hide(); }
    void VuelveA(int caja);

    Contexto& contexto_;
    std::function<bool(const Ventana&)> fijar_;
    std::array<CajaFórmula*, 4> txtPuntosExtremos_{}; // right, left, upper, lower
};

} // namespace quiralto
