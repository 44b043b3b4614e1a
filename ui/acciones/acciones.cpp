#include "ui/acciones/acciones.h"

#include "ui/dibujo/iconos.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/grafica/opciones.h"

#include <QActionGroup>

namespace quiralto {
namespace {

QAction* Crea(QObject& padre, const QString& título, const QString& nombre,
              const QKeySequence& atajo = {}) {
    auto* acción = new QAction(título, &padre);
    acción->setObjectName(nombre);
    if (!atajo.isEmpty())
        acción->setShortcut(atajo);
    return acción;
}

// The full caption tells the entries of the four menus apart where their menu is not seen.
Zooms CreaZooms(QObject& padre, const QString& menú, const QString& nombre,
                const QString& explicación, Figura figura) {
    constexpr int Ampliar = 0;
    constexpr int Reducir = 3;
    const std::array títulos = {QStringLiteral("X2"), QStringLiteral("X4"), QStringLiteral("X8"),
                                QStringLiteral("/2"), QStringLiteral("/4"), QStringLiteral("/8")};
    Zooms zooms{};
    for (std::size_t i = 0; i < títulos.size(); ++i) {
        const QString& título = títulos.at(i);
        QAction* acción = Crea(padre, título, nombre + QStringLiteral("_%1").arg(i));
        acción->setIconText(menú + u' ' + título);
        acción->setToolTip(acción->iconText());
        acción->setStatusTip(explicación + título);
        zooms.at(i) = acción;
    }
    for (const int índice : {Ampliar, Reducir}) {
        zooms.at(static_cast<std::size_t>(índice))->setIcon(DevIcono(figura, índice == Ampliar));
        zooms.at(static_cast<std::size_t>(índice))->setIconVisibleInMenu(false);
    }
    return zooms;
}

// Entries of which one is checked.
template <typename Lista> void UneOpciones(QObject& padre, const Lista& acciones, int marcada) {
    auto* grupo = new QActionGroup(&padre);
    int índice = 0;
    for (QAction* acción : acciones) {
        acción->setCheckable(true);
        acción->setActionGroup(grupo);
        acción->setChecked(índice++ == marcada);
    }
}

void CreaZoomsGráfica(QObject& padre, Acciones& a) {
    a.ZoomGráfica = CreaZooms(
        padre, QStringLiteral("Zoom Gráfica"), QStringLiteral("ZoomGráfica"),
        QStringLiteral("La gráfica, aumentada o reducida en torno al punto X: "), Figura::Gráfica);
    a.ZoomGráfica[0]->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Plus));
    a.ZoomGráfica[3]->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus));
    a.ZoomEjeX = CreaZooms(padre, QStringLiteral("Eje X"), QStringLiteral("ZoomEjeX"),
                           QStringLiteral("Lo que abarca el eje X: "), Figura::EjeX);
    a.ZoomEjeY = CreaZooms(padre, QStringLiteral("Eje Y"), QStringLiteral("ZoomEjeY"),
                           QStringLiteral("Lo que abarca el eje Y: "), Figura::EjeY);
    a.ZoomEjesXY = CreaZooms(padre, QStringLiteral("Ejes X e Y"), QStringLiteral("ZoomEjesXY"),
                             QStringLiteral("Lo que abarcan ambos ejes: "), Figura::EjesXY);
    a.ValoresPorDefectoEjes =
        Crea(padre, QStringLiteral("&Valores por defecto"), QStringLiteral("ValoresPorDefectoEjes"),
             QKeySequence(Qt::CTRL | Qt::Key_0));
    a.FijarPuntosExtremos =
        Crea(padre, QStringLiteral("&Fijar puntos extremos manualmente"),
             QStringLiteral("FijarPuntosExtremos"), QKeySequence(Qt::CTRL | Qt::Key_F));
}

void CreaOpciones(QObject& padre, Acciones& a) {
    constexpr int Menor = 150;
    a.OrdenMenúPuntos = Crea(padre, QStringLiteral("&Puntos"), QStringLiteral("OrdenMenúPuntos"));
    a.OrdenMenúLíneas = Crea(padre, QStringLiteral("&Líneas"), QStringLiteral("OrdenMenúLíneas"));
    UneOpciones(padre, std::array{a.OrdenMenúPuntos, a.OrdenMenúLíneas}, 1);
    for (std::size_t i = 0; i < a.NúmeroPuntos.size(); ++i)
        a.NúmeroPuntos.at(i) =
            Crea(padre, QString::number(Menor << i), QStringLiteral("NúmeroPuntos_%1").arg(i));
    UneOpciones(padre, a.NúmeroPuntos, 1);
    for (std::size_t i = 0; i < a.RedondeoNúmeros.size(); ++i)
        a.RedondeoNúmeros.at(i) =
            Crea(padre, QString::number(i), QStringLiteral("RedondeoNúmeros_%1").arg(i));
    UneOpciones(padre, a.RedondeoNúmeros, DígitosRedondeoIniciales);
}

// A caption or a command text in one word, without its small words.
QString EnUnaPalabra(std::string_view título) {
    QString nombre;
    for (const QString& palabra : DevQString(título).split(u' ', Qt::SkipEmptyParts))
        if (palabra.size() > 3 || nombre.isEmpty())
            nombre += palabra.left(1).toUpper() + palabra.mid(1);
    return nombre;
}

// Two families may have entries of one caption; the second one is named by its command text.
void CreaÓrdenes(QObject& padre, Acciones& a) {
    for (const Orden& orden : DevÓrdenes()) {
        const QString nombre = EnUnaPalabra(orden.título);
        const bool usado = padre.findChild<QAction*>(nombre) != nullptr;
        a.órdenes.push_back(
            Crea(padre, DevQString(orden.título), usado ? EnUnaPalabra(orden.texto) : nombre));
    }
}

void CreaEdición(QObject& padre, Acciones& a) {
    const auto crea = [&padre](const char* título, const char* nombre,
                               const QKeySequence& atajo = {}) {
        return Crea(padre, QString::fromUtf8(título), QString::fromUtf8(nombre), atajo);
    };
    a.Deshacer = crea("&Deshacer", "Deshacer", QKeySequence(Qt::CTRL | Qt::Key_Z));
    a.Rehacer = crea("&Rehacer", "Rehacer", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z));
    a.Cortar = crea("Cor&tar", "Cortar", QKeySequence(Qt::CTRL | Qt::Key_X));
    a.Copiar = crea("&Copiar", "Copiar", QKeySequence(Qt::CTRL | Qt::Key_C));
    a.Pegar = crea("&Pegar", "Pegar", QKeySequence(Qt::CTRL | Qt::Key_V));
    a.CopiarTodo =
        crea("Copiar t&odo", "CopiarTodo", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C));
    a.CopiarTodo->setStatusTip(
        QStringLiteral("La hoja entera, con las funciones y la ventana como comentarios"));
    a.ComentarLíneas = crea("Comentar o descomentar &líneas", "ComentarLíneas",
                            QKeySequence(Qt::CTRL | Qt::Key_Apostrophe));
    a.ComentarDatosAnteriores = crea("Comentar los datos &anteriores", "ComentarDatosAnteriores",
                                     QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_A));
    a.ComentarDatosAnteriores->setStatusTip(
        QStringLiteral("Las líneas de datos que hay sobre la del cursor dejan de leerse"));
    a.RepetirOrden = crea("R&epetir última orden", "RepetirOrden", QKeySequence(Qt::Key_F5));
    a.RepetirOrden->setEnabled(false);
    a.QuitarMarcas = crea("&Quitar marcas", "QuitarMarcas");
    a.QuitarMarcas->setStatusTip(
        QStringLiteral("Lo que halló la última orden deja de señalarse en la gráfica"));
    a.QuitarMarcas->setEnabled(false);
    a.BuscarOrden = crea("&Buscar orden…", "BuscarOrden", QKeySequence(Qt::CTRL | Qt::Key_K));
}

} // namespace

Acciones CreaAcciones(QObject& padre) {
    Acciones a{};
    CreaZoomsGráfica(padre, a);
    CreaOpciones(padre, a);
    a.ImprimirGráfica =
        Crea(padre, QStringLiteral("Ventana gráfica"), QStringLiteral("ImprimirGráfica"));
    a.ImprimirTexto = Crea(padre, QStringLiteral("Ventana texto"), QStringLiteral("ImprimirTexto"));
    a.Salir = Crea(padre, QStringLiteral("&Salir"), QStringLiteral("Salir"),
                   QKeySequence(Qt::CTRL | Qt::Key_Q));
    a.CopiarImagen = Crea(padre, QStringLiteral("Copiar imagen"), QStringLiteral("CopiarImagen"));
    a.Contenido = Crea(padre, QStringLiteral("&Contenido"), QStringLiteral("Contenido"),
                       QKeySequence(Qt::Key_F1));
    a.Manual = Crea(padre, QStringLiteral("&Manual"), QStringLiteral("Manual"));
    a.AcercaDe = Crea(padre, QStringLiteral("Acerca de"), QStringLiteral("AcercaDe"));
    CreaEdición(padre, a);
    CreaÓrdenes(padre, a);
    return a;
}

QString DevExplicación(const Orden& orden, const QString& hay) {
    return QStringLiteral("Espera %1 · Hay: %2 · Ejemplo: %3")
        .arg(DevQString(orden.forma.texto), hay, DevQString(orden.ejemplo));
}

} // namespace quiralto
