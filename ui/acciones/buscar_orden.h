// The commands listed with the form of their data and an example, while a part of a name is typed.
#pragma once

#include "ui/acciones/acciones.h"

#include <QDialog>
#include <QLineEdit>
#include <QTreeWidget>

#include <cstddef>
#include <span>
#include <vector>

namespace quiralto {

class BuscarOrden : public QDialog {
public:
    // The actions of the commands, in the order of their table; they outlive the dialog.
    BuscarOrden(std::span<QAction* const> órdenes, QWidget* padre);

    // Opens it with no text and all commands; the first that is shown is marked, or rather the
    // first of those that the data suit. The chosen one is triggered once it is closed.
    void Abre(std::vector<std::size_t> posibles);

protected:
    bool eventFilter(QObject* objeto, QEvent* suceso) override;

private:
    void CreaLista();
    void Filtra(const QString& texto);
    void Elige();

    std::span<QAction* const> órdenes_;
    std::vector<std::size_t> posibles_; // those that the data suit
    QLineEdit* txtBuscarOrden_;
    QTreeWidget* lista_;
};

} // namespace quiralto
