#include "tests/ui/esquema.h"

#include <QAbstractButton>
#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressDialog>
#include <QToolBar>
#include <QToolButton>
#include <QTreeWidget>

namespace quiralto {
namespace {

// The tip that the toolkit makes of a caption where it has none of its own.
QString DevPistaSupuesta(const QString& título) {
    return QAction(título, nullptr).toolTip();
}

QString DevPistas(const QAction& acción) {
    const QString pista = acción.toolTip();
    const bool propia = pista != DevPistaSupuesta(acción.text());
    if (propia && pista == acción.statusTip())
        return QStringLiteral("tip and status: ") + pista;
    QStringList pistas;
    if (propia)
        pistas += QStringLiteral("tip: ") + pista;
    if (!acción.statusTip().isEmpty())
        pistas += QStringLiteral("status: ") + acción.statusTip();
    return pistas.join(QStringLiteral(" | "));
}

QString DevLínea(const QAction& acción) {
    QString línea = acción.isSeparator() ? QStringLiteral("---") : acción.text();
    if (acción.isSeparator() && !acción.text().isEmpty())
        línea += u' ' + acción.text();
    if (!acción.shortcut().isEmpty())
        línea += QStringLiteral(" [%1]").arg(acción.shortcut().toString());
    if (acción.isChecked())
        línea += QStringLiteral(" (x)");
    if (!acción.isEnabled() && !acción.isSeparator())
        línea += QStringLiteral(" (off)");
    return línea;
}

void Añade(QString& esquema, const QList<QAction*>& acciones, const QString& margen) {
    const QString dentro = margen + QStringLiteral("  ");
    for (const QAction* acción : acciones) {
        esquema += margen + DevLínea(*acción) + u'\n';
        if (const QString pistas = DevPistas(*acción); !pistas.isEmpty())
            esquema += dentro + pistas + u'\n';
        if (acción->menu() != nullptr)
            Añade(esquema, acción->menu()->actions(), dentro);
    }
}

QString DevTítulo(const QWidget& control) {
    if (control.isWindow() || qobject_cast<const QToolBar*>(&control) != nullptr)
        return control.windowTitle();
    if (const auto* etiqueta = qobject_cast<const QLabel*>(&control))
        return etiqueta->text();
    if (const auto* botón = qobject_cast<const QAbstractButton*>(&control))
        return botón->text();
    if (const auto* caja = qobject_cast<const QLineEdit*>(&control))
        return caja->text();
    if (const auto* caja = qobject_cast<const QPlainTextEdit*>(&control))
        return caja->toPlainText();
    if (const auto* lista = qobject_cast<const QComboBox*>(&control)) {
        QStringList filas;
        for (int i = 0; i < lista->count(); ++i)
            filas += lista->itemText(i);
        return filas.join(u'|');
    }
    return {};
}

QString DevInvitación(const QWidget& control) {
    if (const auto* caja = qobject_cast<const QLineEdit*>(&control))
        return caja->placeholderText();
    if (const auto* caja = qobject_cast<const QPlainTextEdit*>(&control))
        return caja->placeholderText();
    return {};
}

// The toolkit's class that a class of ours is one of.
QString DevClase(const QWidget& control) {
    const QMetaObject* clase = control.metaObject();
    while (clase != nullptr && !QLatin1String(clase->className()).startsWith(u'Q'))
        clase = clase->superClass();
    return clase == nullptr ? QString() : QString::fromLatin1(clase->className()).mid(1);
}

QString DevTextos(const QWidget& control) {
    QString textos;
    const auto añade = [&](const char* nombre, const QString& texto) {
        if (!texto.isEmpty())
            textos += QStringLiteral(" | %1: %2").arg(QString::fromLatin1(nombre), texto);
    };
    añade("name", control.accessibleName());
    añade("tip", control.toolTip());
    añade("description", control.accessibleDescription());
    añade("status", control.statusTip());
    añade("whatsthis", control.whatsThis());
    añade("placeholder", DevInvitación(control));
    return textos;
}

QString DevLínea(const QWidget& control) {
    const QString textos = DevTextos(control);
    const QString título = DevTítulo(control);
    return título.isEmpty() && textos.isEmpty() ? QString()
                                                : DevClase(control) + u' ' + título + textos;
}

void Añade(QString& esquema, const QWidget& control, const QString& margen) {
    const QString línea = DevLínea(control);
    if (!línea.isEmpty())
        esquema += margen + línea + u'\n';
    if (const auto* lista = qobject_cast<const QTreeWidget*>(&control))
        for (int i = -1; i < lista->topLevelItemCount(); ++i) {
            const QTreeWidgetItem* fila = i < 0 ? lista->headerItem() : lista->topLevelItem(i);
            QStringList celdas;
            for (int c = 0; c < lista->columnCount(); ++c)
                celdas += fila->text(c);
            esquema += margen + QStringLiteral("  ") + celdas.join(QStringLiteral(" | "));
            if (!fila->toolTip(0).isEmpty())
                esquema += QStringLiteral(" | tip: ") + fila->toolTip(0);
            esquema += u'\n';
        }
    const QString dentro = línea.isEmpty() ? margen : margen + QStringLiteral("  ");
    for (const QObject* parte : control.children())
        if (const auto* dentroDe = qobject_cast<const QWidget*>(parte);
            dentroDe != nullptr && !dentroDe->isWindow())
            Añade(esquema, *dentroDe, dentro);
}

} // namespace

std::string DevEsquema(const QMenu& menú) {
    QString esquema;
    Añade(esquema, menú.actions(), {});
    return esquema.toStdString();
}

std::string DevEsquemaMenús(const QWidget& control) {
    QString esquema;
    Añade(esquema, control.actions(), {});
    return esquema.toStdString();
}

std::string DevEsquema(const QWidget& formulario) {
    QString esquema;
    Añade(esquema, formulario, {});
    return esquema.toStdString();
}

} // namespace quiralto
