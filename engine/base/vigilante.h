// The watcher of long work: whatever the input can make long asks it now and then whether to go on.
// This is what lets a long command redraw its progress dialog and be cancelled without threads.
#pragma once

namespace quiralto {

class Vigilante {
public:
    virtual ~Vigilante() = default;

    // False once the user wants the work to end. Called often: it must be cheap.
    virtual bool Continúa() = 0;

protected:
    Vigilante() = default;
    Vigilante(const Vigilante&) = default;
    Vigilante& operator=(const Vigilante&) = default;
};

// Thrown where the watcher said no; the command ends and the worksheet is as it was before it.
struct OrdenCancelada {};

} // namespace quiralto
