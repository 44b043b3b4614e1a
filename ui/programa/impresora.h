// The platform's print dialog behind one method, so that tests print into a file without it.
#pragma once

#include <QPrinter>

namespace quiralto {

class Impresora {
public:
    virtual ~Impresora() = default;

    // Lets the user choose where and how to print; false where the user does not want to.
    virtual bool Elige(QPrinter& impresora, QWidget* padre) = 0;

protected:
    Impresora() = default;
    Impresora(const Impresora&) = default;
    Impresora& operator=(const Impresora&) = default;
};

class ImpresoraDelSistema : public Impresora {
public:
    bool Elige(QPrinter& impresora, QWidget* padre) override;
};

} // namespace quiralto
