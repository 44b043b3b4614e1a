// The menu "&Edición": what is undone, cut, copied and pasted is that of the box that had the focus
// last; the rest is the worksheet's.
#pragma once

#include "ui/acciones/acciones.h"

#include <QMenu>
#include <QObject>
#include <QPointer>
#include <QWidget>

namespace quiralto {

class Edición : public QObject {
public:
    // The worksheet is meant where no box of its window has had the focus yet.
    Edición(const Acciones& acciones, QMenu& menú, QWidget& hoja, QObject* padre);

private:
    void AlEnfocar(QWidget* nueva);
    void AlAbrir();
    void AlCerrar();

    Acciones acciones_;
    QWidget& hoja_;
    QPointer<QWidget> caja_;
};

} // namespace quiralto
