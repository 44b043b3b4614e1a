// Runs the commands of the worksheet, one at a time. A change that comes meanwhile waits.
#pragma once

#include "commands/hoja.h"
#include "engine/base/contexto.h"
#include "ui/hoja/caja_hoja.h"

#include <QObject>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace quiralto {

// A watcher that is told when a command begins and ends.
class VigilanteÓrdenes : public Vigilante {
public:
    virtual void Empieza() = 0;
    virtual void Acaba() = 0;

    // While it lives a command runs.
    class Guardia {
    public:
        explicit Guardia(VigilanteÓrdenes& vigilante) : vigilante_(vigilante) {
            vigilante_.Empieza();
        }
        ~Guardia() { vigilante_.Acaba(); }
        Guardia(const Guardia&) = delete;
        Guardia& operator=(const Guardia&) = delete;

    private:
        VigilanteÓrdenes& vigilante_;
    };
};

class Ejecutor : public QObject {
    Q_OBJECT

public:
    // All three outlive it.
    Ejecutor(Contexto& contexto, VigilanteÓrdenes& vigilante, CajaHoja& hoja,
             QObject* padre = nullptr);

    // Runs the command with that text on the worksheet; nothing happens while another one runs.
    // What has been written into the worksheet meanwhile stays, the output goes behind it.
    void Ejecuta(std::string_view orden);
    bool EnMarcha() const { return enMarcha_; }

    // The last command that was run, whether it was refused, cancelled or neither.
    std::string_view DevÚltima() const { return última_; }
    // What it has found on a function.
    const std::vector<Hallazgo>& DevHallazgos() const { return hallazgos_; }
    void Repite() { Ejecuta(última_); }

    // Does it now, or once the running command has ended.
    void CuandoAcabe(std::function<void()> trabajo);

Q_SIGNALS:
    // After every command.
    void terminada();

private:
    void Corre(Hoja& hoja, std::string_view orden);

    Contexto& contexto_;
    VigilanteÓrdenes& vigilante_;
    CajaHoja& hoja_;
    bool enMarcha_ = false;
    std::string última_;
    std::vector<Hallazgo> hallazgos_;
    std::vector<std::function<void()>> pendientes_;
};

} // namespace quiralto
