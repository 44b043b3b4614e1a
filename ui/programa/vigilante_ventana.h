// The watcher of the window: once a command has run for a second it shows a modal progress dialog
// with "Cancelar", and keeps the window painted.
#pragma once

#include "engine/base/vigilante.h"

#include <QElapsedTimer>
#include <QProgressDialog>

#include <chrono>
#include <memory>

namespace quiralto {

class VigilanteVentana : public Vigilante {
public:
    explicit VigilanteVentana(std::chrono::milliseconds espera = std::chrono::seconds(1))
        : espera_(espera) {}

    // While a watch lives a command runs, and only one at a time: events that are handled under the
    // dialog must not start a second one.
    class Guardia {
    public:
        explicit Guardia(VigilanteVentana& vigilante);
        ~Guardia();
        Guardia(const Guardia&) = delete;
        Guardia& operator=(const Guardia&) = delete;

    private:
        VigilanteVentana& vigilante_;
    };
    bool EnMarcha() const { return enMarcha_; }

    bool Continúa() override;

private:
    void MuestraDiálogo();

    std::chrono::milliseconds espera_;
    bool enMarcha_ = false;
    QElapsedTimer reloj_;
    std::chrono::milliseconds siguiente_{0}; // when the events are handled next
    std::unique_ptr<QProgressDialog> diálogo_;
};

} // namespace quiralto
