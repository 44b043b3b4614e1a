#include "ui/acciones/menu_hoja.h"

#include "ui/dibujo/texto_qt.h"

#include <QStringList>

#include <array>

namespace quiralto {
namespace {

// The families in the order in which they stand; any other one follows behind them.
constexpr std::array<std::string_view, 5> Familias = {
    "Números", "Ecuaciones y funciones", "Cálculo numérico con una variable",
    "Cálculo simbólico con una variable", "Cálculo simbólico con más de una variable"};

// A caption or a command text in one word, without its small words.
QString EnUnaPalabra(std::string_view título) {
    QString nombre;
    for (const QString& palabra : DevQString(título).split(u' ', Qt::SkipEmptyParts))
        if (palabra.size() > 3 || nombre.isEmpty())
            nombre += palabra.left(1).toUpper() + palabra.mid(1);
    return nombre;
}

// Two families may have entries of one caption; the second one is named by its command text.
QString DevNombre(const QMenu& menú, const Orden& orden) {
    const QString nombre = EnUnaPalabra(orden.título);
    return menú.findChild<QAction*>(nombre) == nullptr ? nombre : EnUnaPalabra(orden.texto);
}

QMenu& DevFamilia(QMenu& menú, std::string_view familia) {
    // The whole caption: two families differ in small words alone.
    const QString nombre = QStringLiteral("Menú") + DevQString(familia).remove(u' ');
    if (auto* existente = menú.findChild<QMenu*>(nombre))
        return *existente;
    QMenu* nueva = menú.addMenu(DevQString(familia));
    nueva->setObjectName(nombre);
    return *nueva;
}

} // namespace

void CreaMenúsÓrdenes(QMenu& menú, std::span<const Orden> órdenes,
                      const std::function<void(const Orden&)>& ejecuta) {
    for (const std::string_view familia : Familias)
        if (std::ranges::find(órdenes, familia, &Orden::menú) != órdenes.end())
            DevFamilia(menú, familia);
    for (const Orden& orden : órdenes) {
        const QString nombre = DevNombre(menú, orden);
        QAction* entrada = DevFamilia(menú, orden.menú).addAction(DevQString(orden.título));
        entrada->setObjectName(nombre);
        entrada->setStatusTip(QStringLiteral("Datos: %1. Ejemplo: %2")
                                  .arg(DevQString(orden.forma.texto), DevQString(orden.ejemplo)));
        QObject::connect(entrada, &QAction::triggered, &menú,
                         [ejecuta, &orden] { ejecuta(orden); });
    }
}

} // namespace quiralto
