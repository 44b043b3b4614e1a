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

// What the entries of a zoom menu do.
using Efectos = std::array<const char*, 6>;
constexpr Efectos EfectosEje = {"el doble", "el cuádruple",    "el óctuple",
                                "la mitad", "la cuarta parte", "la octava parte"};
constexpr Efectos EfectosGráfica = {"se amplía al doble",          "se amplía al cuádruple",
                                    "se amplía al óctuple",        "se reduce a la mitad",
                                    "se reduce a la cuarta parte", "se reduce a la octava parte"};

// The full caption tells the entries of the four menus apart where their menu is not seen, the tip
// says what happens.
Zooms CreaZooms(QObject& padre, const QString& menú, const QString& nombre,
                const QString& explicación, const Efectos& efectos, Figura figura) {
    constexpr int Ampliar = 0;
    constexpr int Reducir = 3;
    const std::array títulos = {QStringLiteral("X2"), QStringLiteral("X4"), QStringLiteral("X8"),
                                QStringLiteral("/2"), QStringLiteral("/4"), QStringLiteral("/8")};
    Zooms zooms{};
    for (std::size_t i = 0; i < títulos.size(); ++i) {
        const QString& título = títulos.at(i);
        QAction* acción = Crea(padre, título, nombre + QStringLiteral("_%1").arg(i));
        acción->setIconText(menú + u' ' + título);
        acción->setToolTip(acción->iconText() + QStringLiteral(": ") + explicación + u' ' +
                           QString::fromUtf8(efectos.at(i)));
        acción->setStatusTip(acción->toolTip());
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
    a.ZoomGráfica = CreaZooms(padre, QStringLiteral("Zoom Gráfica"), QStringLiteral("ZoomGráfica"),
                              QStringLiteral("el dibujo, en torno al punto X,"), EfectosGráfica,
                              Figura::Gráfica);
    a.ZoomGráfica[0]->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Plus));
    a.ZoomGráfica[3]->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus));
    a.ZoomEjeX = CreaZooms(padre, QStringLiteral("Eje X"), QStringLiteral("ZoomEjeX"),
                           QStringLiteral("el eje abarca"), EfectosEje, Figura::EjeX);
    a.ZoomEjeY = CreaZooms(padre, QStringLiteral("Eje Y"), QStringLiteral("ZoomEjeY"),
                           QStringLiteral("el eje abarca"), EfectosEje, Figura::EjeY);
    a.ZoomEjesXY = CreaZooms(padre, QStringLiteral("Ejes X e Y"), QStringLiteral("ZoomEjesXY"),
                             QStringLiteral("los ejes abarcan"), EfectosEje, Figura::EjesXY);
    a.ValoresPorDefectoEjes =
        Crea(padre, QStringLiteral("&Valores por defecto"), QStringLiteral("ValoresPorDefectoEjes"),
             QKeySequence(Qt::CTRL | Qt::Key_0));
    a.FijarPuntosExtremos =
        Crea(padre, QStringLiteral("&Fijar puntos extremos manualmente"),
             QStringLiteral("FijarPuntosExtremos"), QKeySequence(Qt::CTRL | Qt::Key_F));
}

QAction* Crea(QObject& padre, const QString& título, const QString& nombre,
              const QString& explicación, const QKeySequence& atajo = {}) {
    QAction* acción = Crea(padre, título, nombre, atajo);
    acción->setStatusTip(explicación);
    return acción;
}

void CreaVistas(QObject& padre, Acciones& a) {
    a.AjustarEjeY = Crea(padre, QStringLiteral("&Ajustar eje Y"), QStringLiteral("AjustarEjeY"),
                         QStringLiteral("El eje Y abarca las curvas que se ven"));
    a.EjesIguales = Crea(padre, QStringLiteral("Ejes &iguales"), QStringLiteral("EjesIguales"),
                         QStringLiteral("Una unidad mide lo mismo en los dos ejes"));
    a.VistaAnterior =
        Crea(padre, QStringLiteral("&Vista anterior"), QStringLiteral("VistaAnterior"),
             QStringLiteral("Los extremos de antes del último cambio"),
             QKeySequence(Qt::ALT | Qt::Key_Left));
    a.VistaAnterior->setEnabled(false);
    a.CopiarGráfica =
        Crea(padre, QStringLiteral("Copiar &gráfica"), QStringLiteral("CopiarGráfica"),
             QStringLiteral("La gráfica con su leyenda, al portapapeles"),
             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_G));
    a.CopiarTabla =
        Crea(padre, QStringLiteral("Copiar &tabla de valores"), QStringLiteral("CopiarTabla"),
             QStringLiteral(
                 "X y las funciones encendidas en lo que se ve, en columnas, al portapapeles"),
             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_T));
}

void CreaImpresión(QObject& padre, Acciones& a) {
    a.ImprimirGráfica =
        Crea(padre, QStringLiteral("Ventana gráfica"), QStringLiteral("ImprimirGráfica"));
    a.ImprimirTexto = Crea(padre, QStringLiteral("Ventana texto"), QStringLiteral("ImprimirTexto"));
    a.ImprimirEnfocada =
        Crea(padre, QStringLiteral("Ventana con el foco"), QStringLiteral("ImprimirEnfocada"),
             QStringLiteral("La hoja si se está en ella, si no la gráfica"),
             QKeySequence(Qt::CTRL | Qt::Key_P));
    a.PrevisualizarGráfica =
        Crea(padre, QStringLiteral("Ventana gráfica"), QStringLiteral("PrevisualizarGráfica"));
    a.PrevisualizarTexto =
        Crea(padre, QStringLiteral("Ventana texto"), QStringLiteral("PrevisualizarTexto"));
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
    CreaVistas(padre, a);
    CreaOpciones(padre, a);
    CreaImpresión(padre, a);
    a.Salir = Crea(padre, QStringLiteral("&Salir"), QStringLiteral("Salir"),
                   QKeySequence(Qt::CTRL | Qt::Key_Q));
    a.Contenido = Crea(padre, QStringLiteral("&Contenido"), QStringLiteral("Contenido"),
                       QKeySequence(Qt::Key_F1));
    a.Manual = Crea(padre, QStringLiteral("&Manual"), QStringLiteral("Manual"));
    a.AcercaDe = Crea(padre, QStringLiteral("Acerca de"), QStringLiteral("AcercaDe"));
    CreaEdición(padre, a);
    CreaÓrdenes(padre, a);
    return a;
}

QString DevEjemplo(const Orden& orden) {
    return DevQString(orden.ejemplo).replace(QStringLiteral("\r\n"), QStringLiteral(" · "));
}

QString DevExplicación(const Orden& orden, const QString& hay) {
    return QStringLiteral("Espera %1 · Hay: %2 · Ejemplo: %3")
        .arg(DevQString(orden.forma.texto), hay, DevEjemplo(orden));
}

} // namespace quiralto
