// Modal dialogs in tests: every one is answered by the test that expects it, and any other one
// fails the running test and is closed, so that nothing waits for ever.
#pragma once

#include <QMessageBox>
#include <QTimer>
#include <QWidget>

#include <functional>

namespace quiralto {

// Runs `acción`; the modal dialogs that it opens are given to `respuesta` one after the other,
// which has to close them. Returns how many there were.
int ConDiálogos(const std::function<void()>& acción,
                const std::function<void(QWidget&)>& respuesta);

// Presses the button of a message box that is its default.
void Acepta(QWidget& diálogo);

// While it lives the watchdog lets dialogs stand: for tests that open them at random.
class DiálogosPermitidos {
public:
    DiálogosPermitidos();
    ~DiálogosPermitidos();
    DiálogosPermitidos(const DiálogosPermitidos&) = delete;
    DiálogosPermitidos& operator=(const DiálogosPermitidos&) = delete;
};

// The watchdog; one lives as long as the tests run.
class VigíaDeDiálogos {
public:
    VigíaDeDiálogos();

private:
    QTimer reloj_;
};

} // namespace quiralto
