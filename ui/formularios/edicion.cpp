#include "ui/formularios/edicion.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>

#include <array>
#include <utility>

namespace quiralto {
namespace {

// What a box of either kind can do just now.
struct Posible {
    bool deshacer;
    bool rehacer;
    bool cortar;
    bool copiar;
    bool pegar;
};

Posible DevPosible(const QWidget& caja) {
    const QMimeData* pegado = QApplication::clipboard()->mimeData();
    const bool hay = pegado != nullptr && pegado->hasText();
    if (const auto* línea = dynamic_cast<const QLineEdit*>(&caja)) {
        const bool editable = !línea->isReadOnly();
        return {editable && línea->isUndoAvailable(), editable && línea->isRedoAvailable(),
                editable && línea->hasSelectedText(), línea->hasSelectedText(), editable && hay};
    }
    const auto& hoja = dynamic_cast<const QPlainTextEdit&>(caja);
    const bool elegido = hoja.textCursor().hasSelection();
    return {hoja.document()->isUndoAvailable(), hoja.document()->isRedoAvailable(), elegido,
            elegido, hay};
}

} // namespace

Edición::Edición(const Acciones& acciones, QMenu& menú, QWidget& hoja, QObject* padre)
    : QObject(padre), acciones_(acciones), hoja_(hoja), caja_(&hoja) {
    // Both kinds of boxes have these slots.
    const std::array<std::pair<QAction*, const char*>, 5> ranuras = {{{acciones.Deshacer, "undo"},
                                                                      {acciones.Rehacer, "redo"},
                                                                      {acciones.Cortar, "cut"},
                                                                      {acciones.Copiar, "copy"},
                                                                      {acciones.Pegar, "paste"}}};
    for (const auto& [acción, ranura] : ranuras)
        connect(acción, &QAction::triggered, this, [this, nombre = ranura] {
            if (caja_ != nullptr)
                QMetaObject::invokeMethod(caja_, nombre);
        });
    connect(&menú, &QMenu::aboutToShow, this, &Edición::AlAbrir);
    connect(&menú, &QMenu::aboutToHide, this, &Edición::AlCerrar);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget*, QWidget* nueva) { AlEnfocar(nueva); });
}

void Edición::AlEnfocar(QWidget* nueva) {
    if (nueva == nullptr || nueva->window() != hoja_.window())
        return;
    if (qobject_cast<QLineEdit*>(nueva) != nullptr ||
        qobject_cast<QPlainTextEdit*>(nueva) != nullptr)
        caja_ = nueva;
}

void Edición::AlAbrir() {
    const Posible posible = DevPosible(caja_ == nullptr ? hoja_ : *caja_);
    acciones_.Deshacer->setEnabled(posible.deshacer);
    acciones_.Rehacer->setEnabled(posible.rehacer);
    acciones_.Cortar->setEnabled(posible.cortar);
    acciones_.Copiar->setEnabled(posible.copiar);
    acciones_.Pegar->setEnabled(posible.pegar);
}

// A shortcut asks the box itself.
void Edición::AlCerrar() {
    for (QAction* acción : {acciones_.Deshacer, acciones_.Rehacer, acciones_.Cortar,
                            acciones_.Copiar, acciones_.Pegar})
        acción->setEnabled(true);
}

} // namespace quiralto
