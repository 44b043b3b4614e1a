#include "ui/programa/aplicacion.h"

#include "quiralto_version.h"
#include "ui/dibujo/iconos.h"

#include <QLibraryInfo>
#include <QTranslator>

#include <clocale>

namespace quiralto {

bool PreparaAplicación(QApplication& aplicación) {
    std::setlocale(LC_NUMERIC, "C"); // the toolkit has set the user's
    QApplication::setApplicationName(QStringLiteral("Quiralto"));
    QApplication::setApplicationVersion(QString::fromLatin1(Versión));
    // The toolkit would append it to every title.
    QGuiApplication::setApplicationDisplayName(QLatin1String(""));
    QGuiApplication::setDesktopFileName(QStringLiteral("io.github.quiralto.Quiralto"));
    QGuiApplication::setWindowIcon(DevIconoPrograma()); // of every window, boxes included
    auto* traductor = new QTranslator(&aplicación);
    return traductor->load(QStringLiteral("qtbase_es"),
                           QLibraryInfo::path(QLibraryInfo::TranslationsPath)) &&
           QCoreApplication::installTranslator(traductor);
}

} // namespace quiralto
