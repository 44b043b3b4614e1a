// The platform's print dialog.
#pragma once

#include "ui/formularios/impresion.h"

namespace quiralto {

class ImpresoraDelSistema : public Impresora {
public:
    bool Elige(QPrinter& impresora, QWidget* padre) override;
};

} // namespace quiralto
