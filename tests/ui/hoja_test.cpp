// The worksheet in the window: commands, undo, the refused line, and who can be reached how.

#include "tests/ui/paletas.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/acciones/acciones.h"
#include "ui/dibujo/contraste.h"

#include <QAccessible>
#include <QMenu>
#include <QMenuBar>
#include <QSet>

namespace quiralto {
namespace {

class HojaEnVentana : public VentanaDePrueba {};

constexpr const char* Soluciones = "'Solución en X=-2\n'Solución en X= 2\n";

TEST_F(HojaEnVentana, TieneElFocoAlPrincipioYUnaLíneaDeEjemplo) {
    EXPECT_EQ(QApplication::focusWidget(), &txtSalida);
    EXPECT_TRUE(txtSalida.placeholderText().contains(QStringLiteral("X^2-4,-5,5")));
    EXPECT_TRUE(QFontInfo(txtSalida.font()).fixedPitch());
}

TEST_F(HojaEnVentana, LaLíneaDeEjemploSeLeeEnTodaPaleta) {
    const auto contraste = [&] {
        const QPalette paleta = txtSalida.palette();
        return DevContraste(paleta.color(QPalette::PlaceholderText), paleta.color(QPalette::Base));
    };
    EXPECT_GE(contraste(), ContrasteDeTexto);
    {
        const ConPaleta oscura(DevPaletaOscura());
        EXPECT_EQ(txtSalida.palette().color(QPalette::Base),
                  DevPaletaOscura().color(QPalette::Base));
        EXPECT_GE(contraste(), ContrasteDeTexto);
    }
    const ConPaleta clara(DevPaletaClara());
    EXPECT_GE(contraste(), ContrasteDeTexto);
    EXPECT_NE(txtSalida.palette().color(QPalette::PlaceholderText), QColor(Qt::black));
}

TEST_F(HojaEnVentana, ResuelveLoQueSeTeclea) {
    QTest::keyClicks(&txtSalida, QStringLiteral("x^2-4,-5,5"));
    Pulsa("HallarSoluciones");
    EXPECT_EQ(DevTexto(), std::string("X^2-4,-5,5\n\n") + Soluciones);
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(HojaEnVentana, LaSalidaSeDeshaceDeUnaVez) {
    QTest::keyClicks(&txtSalida, QStringLiteral("x^2-4,-5,5"));
    Pulsa("HallarSoluciones");
    QTest::keyClick(&txtSalida, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(DevTexto(), "X^2-4,-5,5");
    QTest::keyClick(&txtSalida, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(DevTexto(), std::string("X^2-4,-5,5\n\n") + Soluciones);
    QTest::keyClicks(&txtSalida, QStringLiteral("y"));
    QTest::keyClick(&txtSalida, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&txtSalida, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(DevTexto(), "X^2-4,-5,5");
}

TEST_F(HojaEnVentana, ElCursorQuedaTrasLaSalida) {
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    EXPECT_TRUE(txtSalida.textCursor().atEnd());
    EXPECT_FALSE(txtSalida.textCursor().hasSelection());
}

TEST_F(HojaEnVentana, SeleccionaLaPrimeraLíneaRechazada) {
    const std::string hoja = "'ñ€ nota\nX^2,3,3 'nota\n'X^2,3,3";
    EXPECT_EQ(Resuelve(DevQString(hoja), "HallarSoluciones"), hoja);
    EXPECT_EQ(grabados.mensajes,
              (std::vector{Mensaje{Icono::Exclamación, "Se esperaba un número de doble "
                                                       "precisión"}}));
    EXPECT_EQ(txtSalida.textCursor().selectedText(), QStringLiteral("X^2,3,3 "));
    EXPECT_EQ(txtSalida.textCursor().selectionStart(), 9);
    EXPECT_EQ(QApplication::focusWidget(), &txtSalida);
}

TEST_F(HojaEnVentana, UnaHojaVacíaDaElMensajeDeUso) {
    EXPECT_EQ(Resuelve(QString(), "HallarSoluciones"), "");
    ASSERT_EQ(grabados.mensajes.size(), 1U);
    EXPECT_TRUE(grabados.mensajes[0].texto.starts_with("Se esperaba una línea con el formato: "));
}

// What the terminal program would refuse, the window refuses alike.
TEST_F(HojaEnVentana, ElTextoSeTomaComoEstá) {
    for (const auto& [hoja, carácter] :
         {std::pair{"x,1,2", "x"}, {"X ,1,2", " "}, {"X\u00A0,1,2", "\u00A0"}, {"Ñ,1,2", "Ñ"}}) {
        EXPECT_EQ(Resuelve(DevQString(hoja), "HallarSoluciones"), hoja);
        EXPECT_EQ(std::exchange(grabados.mensajes, {}),
                  (std::vector{Mensaje{Icono::Exclamación,
                                       std::string("Error de sintáxis: '") + carácter + "'"}}));
    }
}

TEST_F(HojaEnVentana, CadaOrdenTieneSuEntradaConSuTítulo) {
    QStringList títulos;
    for (const QMenu* familia : Busca<QMenu>("MenúHoja").findChildren<QMenu*>())
        for (const QAction* acción : familia->actions())
            títulos += acción->text();
    QStringList esperados;
    for (const Orden& orden : DevÓrdenes())
        esperados += DevQString(orden.título);
    títulos.sort();
    esperados.sort();
    EXPECT_EQ(títulos, esperados);
}

TEST_F(HojaEnVentana, CadaOrdenResuelveSuEjemplo) {
    for (const Orden& orden : DevÓrdenes()) {
        QAction* entrada = nullptr;
        for (QAction* acción : formulario.findChildren<QAction*>())
            if (acción->statusTip().endsWith(DevEjemplo(orden)) &&
                acción->text() == DevQString(orden.título))
                entrada = acción;
        ASSERT_NE(entrada, nullptr) << orden.título;
        txtSalida.setPlainText(DevQString(orden.ejemplo));
        entrada->trigger();
        const std::string ejemplo = ConLf(orden.ejemplo);
        EXPECT_TRUE(DevTexto().starts_with(ejemplo + "\n")) << orden.título << ": " << DevTexto();
        EXPECT_NE(DevTexto().find('\'', ejemplo.size()), std::string::npos) << orden.título;
    }
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(HojaEnVentana, CadaOrdenEstáUnaVezEnSuMenú) {
    for (const Orden& orden : DevÓrdenes()) {
        int veces = 0;
        for (const QMenu* menú : Busca<QMenu>("MenúHoja").findChildren<QMenu*>())
            for (const QAction* acción : menú->actions())
                veces += menú->title() == DevQString(orden.menú) &&
                         acción->text() == DevQString(orden.título);
        EXPECT_EQ(veces, 1) << orden.texto;
    }
}

TEST_F(HojaEnVentana, SalirCierraLaVentana) {
    EXPECT_EQ(Busca<QAction>("Salir").text(), QStringLiteral("&Salir"));
    Pulsa("Salir");
    EXPECT_FALSE(formulario.isVisible());
}

TEST_F(HojaEnVentana, LosMenúsSeAbrenConElTeclado) {
    for (const QAction* menú : formulario.menuBar()->actions())
        EXPECT_TRUE(menú->text().contains(u'&')) << menú->text().toStdString();
}

bool EsInteractivo(const QWidget& control) {
    return control.focusPolicy() != Qt::NoFocus;
}

TEST_F(HojaEnVentana, TodoControlTieneNombreYNombreAccesible) {
    int vistos = 0;
    for (QWidget* control : formulario.findChildren<QWidget*>()) {
        if (!EsInteractivo(*control) || control->objectName().startsWith(QStringLiteral("qt_")))
            continue;
        ++vistos;
        const QString clase = QString::fromLatin1(control->metaObject()->className());
        EXPECT_FALSE(control->objectName().isEmpty()) << clase.toStdString();
        const QAccessibleInterface* accesible = QAccessible::queryAccessibleInterface(control);
        ASSERT_NE(accesible, nullptr);
        EXPECT_FALSE(accesible->text(QAccessible::Name).isEmpty())
            << control->objectName().toStdString();
    }
    EXPECT_GE(vistos, 1);
}

TEST_F(HojaEnVentana, TodaAcciónTieneNombreYSuAtajoEsSólosuyo) {
    QSet<QString> atajos;
    QSet<QString> nombres;
    for (const QAction* acción : formulario.findChildren<QAction*>()) {
        if (acción->isSeparator() || acción->text().isEmpty())
            continue;
        if (acción->menu() == nullptr) {
            EXPECT_FALSE(acción->objectName().isEmpty()) << acción->text().toStdString();
            EXPECT_FALSE(nombres.contains(acción->objectName()))
                << acción->objectName().toStdString();
            nombres += acción->objectName();
        }
        for (const QKeySequence& atajo : acción->shortcuts()) {
            EXPECT_FALSE(atajos.contains(atajo.toString())) << atajo.toString().toStdString();
            atajos += atajo.toString();
        }
    }
    EXPECT_FALSE(atajos.isEmpty());
}

} // namespace
} // namespace quiralto
