// The watcher of the window: once a command has run for a second it shows a modal progress dialog
// with "Cancelar", and keeps the window painted.
#pragma once

#include "ui/hoja/ejecutor.h"

#include <QElapsedTimer>
#include <QProgressDialog>

#include <chrono>
#include <memory>

namespace quiralto {

class VigilanteVentana : public VigilanteÓrdenes {
public:
    explicit VigilanteVentana(std::chrono::milliseconds espera = std::chrono::seconds(1))
        : espera_(espera) {}

    void Empieza() override;
    void Acaba() override;
    bool EnMarcha() const { return enMarcha_; }

    bool Continúa() override;

    // While it lives the user is asked something: the dialog is gone, and time stands still.
    class Alto {
    public:
        explicit Alto(VigilanteVentana& vigilante);
        ~Alto();
        Alto(const Alto&) = delete;
        Alto& operator=(const Alto&) = delete;

    private:
        VigilanteVentana& vigilante_;
    };

private:
    void MuestraDiálogo();
    std::chrono::milliseconds DevTranscurrido() const;

    std::chrono::milliseconds espera_;
    bool enMarcha_ = false;
    int altos_ = 0;
    QElapsedTimer reloj_;                    // of the time since it last began to run
    std::chrono::milliseconds antes_{0};     // that had passed by then
    std::chrono::milliseconds siguiente_{0}; // when the events are handled next
    std::unique_ptr<QProgressDialog> diálogo_;
};

} // namespace quiralto
