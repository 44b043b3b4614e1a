#include "ui/formularios/menu_grafica.h"

#include "ui/dibujo/iconos.h"

#include <QActionGroup>

#include <algorithm>

namespace quiralto {
namespace {

using AlElegir = std::function<void(int)>;

QAction& Añade(QMenu& menú, const QString& título, const QString& nombre,
               const std::function<void()>& alElegir) {
    QAction* acción = menú.addAction(título);
    acción->setObjectName(nombre);
    QObject::connect(acción, &QAction::triggered, &menú, [alElegir] { alElegir(); });
    return *acción;
}

QMenu& AñadeMenú(QMenu& menú, const QString& título, const QString& nombre) {
    QMenu* nuevo = menú.addMenu(título);
    nuevo->setObjectName(nombre);
    return *nuevo;
}

// The six entries that every zoom menu has.
void AñadeZooms(QMenu& menú, const QString& nombre, const QString& explicación,
                const AlElegir& alElegir) {
    const QStringList títulos = {QStringLiteral("X2"), QStringLiteral("X4"), QStringLiteral("X8"),
                                 QStringLiteral("/2"), QStringLiteral("/4"), QStringLiteral("/8")};
    for (int i = 0; i < títulos.size(); ++i) {
        QAction& acción = Añade(menú, títulos[i], nombre + QStringLiteral("_%1").arg(i),
                                [alElegir, i] { alElegir(i); });
        acción.setStatusTip(explicación + títulos[i]);
    }
}

// Entries of which one is checked.
void AñadeOpciones(QMenu& menú, const QStringList& títulos, const QStringList& nombres, int marcada,
                   const AlElegir& alElegir) {
    auto* grupo = new QActionGroup(&menú);
    for (int i = 0; i < títulos.size(); ++i) {
        QAction& acción = Añade(menú, títulos[i], nombres[i], [alElegir, i] { alElegir(i); });
        acción.setCheckable(true);
        acción.setActionGroup(grupo);
        acción.setChecked(i == marcada);
    }
}

QStringList DevNombres(const QString& nombre, qsizetype cuántos) {
    QStringList nombres;
    for (qsizetype i = 0; i < cuántos; ++i)
        nombres += nombre + QStringLiteral("_%1").arg(i);
    return nombres;
}

void CreaZooms(QMenu& menú, ControlGráfica& control, const std::function<void()>& fijarExtremos) {
    QMenu& gráfica =
        AñadeMenú(menú, QStringLiteral("&Zoom Gráfica"), QStringLiteral("ZoomGráfica"));
    AñadeZooms(gráfica, QStringLiteral("ZoomGráfica"),
               QStringLiteral("La gráfica, aumentada o reducida en torno al punto X: "),
               [&control](int i) { control.ZoomGráfica_Click(i); });
    gráfica.actions().at(0)->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Plus));
    gráfica.actions().at(3)->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Minus));

    QMenu& ejes = AñadeMenú(menú, QStringLiteral("Z&oom Ejes"), QStringLiteral("ZoomEjes"));
    AñadeZooms(AñadeMenú(ejes, QStringLiteral("Eje X"), QStringLiteral("ZoomEjeX")),
               QStringLiteral("ZoomEjeX"), QStringLiteral("Lo que abarca el eje X: "),
               [&control](int i) { control.ZoomEjeX_Click(i); });
    AñadeZooms(AñadeMenú(ejes, QStringLiteral("Eje Y"), QStringLiteral("ZoomEjeY")),
               QStringLiteral("ZoomEjeY"), QStringLiteral("Lo que abarca el eje Y: "),
               [&control](int i) { control.ZoomEjeY_Click(i); });
    AñadeZooms(AñadeMenú(ejes, QStringLiteral("Ejes X e Y"), QStringLiteral("ZoomEjesXY")),
               QStringLiteral("ZoomEjesXY"), QStringLiteral("Lo que abarcan ambos ejes: "),
               [&control](int i) { control.ZoomEjesXY_Click(i); });
    ejes.addSeparator();
    Añade(ejes, QStringLiteral("&Valores por defecto"), QStringLiteral("ValoresPorDefectoEjes"),
          [&control] { control.ValoresPorDefectoEjes_Click(); })
        .setShortcut(QKeySequence(Qt::CTRL | Qt::Key_0));
    Añade(menú, QStringLiteral("&Fijar puntos extremos manualmente"),
          QStringLiteral("FijarPuntosExtremos"), fijarExtremos)
        .setShortcut(QKeySequence(Qt::CTRL | Qt::Key_F));
}

} // namespace

void CreaMenúsGráfica(QMenu& menú, ControlGráfica& control,
                      const std::function<void()>& fijarExtremos) {
    CreaZooms(menú, control, fijarExtremos);
    menú.addSeparator();
    AñadeOpciones(
        AñadeMenú(menú, QStringLiteral("&Método de Dibujo"), QStringLiteral("MétodoDibujo")),
        {QStringLiteral("&Puntos"), QStringLiteral("&Líneas")},
        {QStringLiteral("OrdenMenúPuntos"), QStringLiteral("OrdenMenúLíneas")}, 1,
        [&control](int i) {
            i == 0 ? control.OrdenMenúPuntos_Click() : control.OrdenMenúLíneas_Click();
        });
    QStringList puntos;
    for (int cantidad = 150; cantidad <= 4800; cantidad *= 2)
        puntos += QString::number(cantidad);
    AñadeOpciones(AñadeMenú(menú, QStringLiteral("&Número de puntos a trazar"),
                            QStringLiteral("NúmeroPuntos")),
                  puntos, DevNombres(QStringLiteral("NúmeroPuntos"), puntos.size()), 1,
                  [&control](int i) { control.NúmeroPuntos_Click(i); });
    QStringList cifras;
    for (int i = 0; i <= MáximoDígitosRedondeo; ++i)
        cifras += QString::number(i);
    AñadeOpciones(AñadeMenú(menú, QStringLiteral("&Cifras redondeo en números"),
                            QStringLiteral("RedondeoNúmeros")),
                  cifras, DevNombres(QStringLiteral("RedondeoNúmeros"), cifras.size()),
                  DígitosRedondeoIniciales,
                  [&control](int i) { control.RedondeoNúmeros_Click(i); });
}

void CreaBarraHerramientas(QToolBar& barra, ControlGráfica& control) {
    struct Botón {
        Figura figura;
        QString título;
        void (ControlGráfica::*alPulsar)(int);
    };
    const std::array parejas = {
        Botón{Figura::EjeX, QStringLiteral("Eje X"), &ControlGráfica::ZoomEjeX_Click},
        Botón{Figura::EjeY, QStringLiteral("Eje Y"), &ControlGráfica::ZoomEjeY_Click},
        Botón{Figura::EjesXY, QStringLiteral("Ejes X e Y"), &ControlGráfica::ZoomEjesXY_Click},
        Botón{Figura::Gráfica, QStringLiteral("Zoom Gráfica"), &ControlGráfica::ZoomGráfica_Click},
    };
    int número = 0;
    const auto nombra = [&](QAction& acción) {
        acción.setObjectName(QStringLiteral("Toolbar1_%1").arg(++número));
    };
    for (const Botón& botón : parejas) {
        if (número > 0)
            nombra(*barra.addSeparator());
        for (const int índice : {0, 3}) {
            const bool ampliar = índice == 0;
            QAction* acción = barra.addAction(
                DevIcono(botón.figura, ampliar),
                botón.título + (ampliar ? QStringLiteral(" X2") : QStringLiteral(" /2")));
            acción->setToolTip(acción->text());
            nombra(*acción);
            QObject::connect(
                acción, &QAction::triggered, &barra,
                [&control, alPulsar = botón.alPulsar, índice] { (control.*alPulsar)(índice); });
        }
    }
}

} // namespace quiralto
