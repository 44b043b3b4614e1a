#include "ui/acciones/menus.h"

#include "ui/dibujo/texto_qt.h"

#include <algorithm>
#include <array>

namespace quiralto {
namespace {

// The families in the order in which they stand; any other one follows behind them.
constexpr std::array<std::string_view, 5> Familias = {
    "Números", "Ecuaciones y funciones", "Cálculo numérico con una variable",
    "Cálculo simbólico con una variable", "Cálculo simbólico con más de una variable"};

template <typename Menú>
QMenu& AñadeMenú(Menú& menú, const QString& título, const QString& nombre) {
    QMenu* nuevo = menú.addMenu(título);
    nuevo->setObjectName(nombre);
    return *nuevo;
}

template <typename Lista> void Añade(QMenu& menú, const Lista& acciones) {
    for (QAction* acción : acciones)
        menú.addAction(acción);
}

void CreaMenúArchivo(QMenu& menú, const Acciones& acciones) {
    QMenu& imprimir = AñadeMenú(menú, QStringLiteral("Imprimir"), QStringLiteral("Imprimir"));
    Añade(imprimir, std::array{acciones.ImprimirGráfica, acciones.ImprimirTexto});
    imprimir.addSeparator();
    imprimir.addAction(acciones.ImprimirEnfocada);
    Añade(AñadeMenú(menú, QStringLiteral("&Vista previa"), QStringLiteral("VistaPrevia")),
          std::array{acciones.PrevisualizarGráfica, acciones.PrevisualizarTexto});
    menú.addSeparator();
    menú.addAction(acciones.Salir);
}

void CreaMenúEdición(QMenu& menú, const Acciones& acciones) {
    Añade(menú, std::array{acciones.Deshacer, acciones.Rehacer});
    menú.addSeparator();
    Añade(menú, std::array{acciones.Cortar, acciones.Copiar, acciones.Pegar, acciones.CopiarTodo});
    menú.addSeparator();
    Añade(menú, std::array{acciones.ComentarLíneas, acciones.ComentarDatosAnteriores});
    menú.addSeparator();
    Añade(menú, std::array{acciones.RepetirOrden, acciones.BuscarOrden});
}

void CreaMenúGráfica(QMenu& menú, const Acciones& acciones) {
    Añade(AñadeMenú(menú, QStringLiteral("&Zoom Gráfica"), QStringLiteral("ZoomGráfica")),
          acciones.ZoomGráfica);
    QMenu& ejes = AñadeMenú(menú, QStringLiteral("Z&oom Ejes"), QStringLiteral("ZoomEjes"));
    Añade(AñadeMenú(ejes, QStringLiteral("Eje X"), QStringLiteral("ZoomEjeX")), acciones.ZoomEjeX);
    Añade(AñadeMenú(ejes, QStringLiteral("Eje Y"), QStringLiteral("ZoomEjeY")), acciones.ZoomEjeY);
    Añade(AñadeMenú(ejes, QStringLiteral("Ejes X e Y"), QStringLiteral("ZoomEjesXY")),
          acciones.ZoomEjesXY);
    ejes.addSeparator();
    ejes.addAction(acciones.ValoresPorDefectoEjes);
    Añade(menú, std::array{acciones.FijarPuntosExtremos, acciones.AjustarEjeY, acciones.EjesIguales,
                           acciones.VistaAnterior});
    menú.addSeparator();
    Añade(AñadeMenú(menú, QStringLiteral("&Método de Dibujo"), QStringLiteral("MétodoDibujo")),
          std::array{acciones.OrdenMenúPuntos, acciones.OrdenMenúLíneas});
    Añade(AñadeMenú(menú, QStringLiteral("&Número de puntos a trazar"),
                    QStringLiteral("NúmeroPuntos")),
          acciones.NúmeroPuntos);
    Añade(AñadeMenú(menú, QStringLiteral("&Cifras redondeo en números"),
                    QStringLiteral("RedondeoNúmeros")),
          acciones.RedondeoNúmeros);
    menú.addSeparator();
    Añade(menú, std::array{acciones.QuitarMarcas, acciones.CopiarGráfica, acciones.CopiarTabla});
}

QMenu& DevFamilia(QMenu& menú, std::string_view familia) {
    // The whole caption: two families differ in small words alone.
    const QString nombre = QStringLiteral("Menú") + DevQString(familia).remove(u' ');
    auto* existente = menú.findChild<QMenu*>(nombre);
    return existente != nullptr ? *existente : AñadeMenú(menú, DevQString(familia), nombre);
}

void CreaMenúHoja(QMenu& menú, const Acciones& acciones) {
    const std::span<const Orden> órdenes = DevÓrdenes();
    for (const std::string_view familia : Familias)
        if (std::ranges::find(órdenes, familia, &Orden::menú) != órdenes.end())
            DevFamilia(menú, familia);
    for (std::size_t i = 0; i < órdenes.size(); ++i)
        DevFamilia(menú, órdenes[i].menú).addAction(acciones.órdenes.at(i));
}

} // namespace

std::span<const std::string_view> DevFamilias() {
    return Familias;
}

Menús CreaMenús(QMenuBar& barra, const Acciones& acciones) {
    CreaMenúArchivo(AñadeMenú(barra, QStringLiteral("&Archivo"), QStringLiteral("MenúArchivo")),
                    acciones);
    QMenu& edición = AñadeMenú(barra, QStringLiteral("&Edición"), QStringLiteral("MenúEdición"));
    CreaMenúEdición(edición, acciones);
    CreaMenúGráfica(AñadeMenú(barra, QStringLiteral("&Gráfica"), QStringLiteral("MenúGráfica")),
                    acciones);
    QMenu& hoja = AñadeMenú(barra, QStringLiteral("&Hoja"), QStringLiteral("MenúHoja"));
    CreaMenúHoja(hoja, acciones);
    QMenu& ayuda = AñadeMenú(barra, QStringLiteral("A&yuda"), QStringLiteral("MenúAyuda"));
    Añade(ayuda, std::array{acciones.Contenido, acciones.Manual, acciones.AcercaDe});
    return {edición, hoja};
}

} // namespace quiralto
