// The platform's print dialog, and what would be printed on the screen.
#pragma once

#include "ui/formularios/impresion.h"

namespace quiralto {

class ImpresoraDelSistema : public Impresora {
public:
    bool Elige(QPrinter& impresora, QWidget* padre) override;
    bool Previsualiza(QPrinter& impresora, const Documento& documento, QWidget* padre) override;
};

} // namespace quiralto
