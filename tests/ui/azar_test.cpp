// Random clicks, keys and texts all over the window: whatever happens, it goes on, and the view can
// be drawn. The seed is fixed, and printed with a failure.

#include "tests/ui/dialogos.h"
#include "tests/ui/ventana_de_prueba.h"

#include <QMenu>

#include <cmath>
#include <random>

namespace quiralto {
namespace {

class AlAzar : public VentanaDePrueba, public testing::WithParamInterface<unsigned> {
protected:
    template <typename T> const T& Elige(const std::vector<T>& entre) {
        return entre[azar() % entre.size()];
    }

    void PulsaAlgo() {
        std::vector<QAction*> acciones;
        for (QAction* acción : formulario.findChildren<QAction*>())
            if (acción->menu() == nullptr && !acción->isSeparator() &&
                acción->objectName() != QStringLiteral("Salir"))
                acciones.push_back(acción);
        Elige(acciones)->trigger();
    }

    void TecleaAlgo() {
        QWidget* control = QApplication::focusWidget();
        if (control == nullptr)
            return;
        static const std::vector<QString> Textos = {
            QStringLiteral("x"),     QStringLiteral("x^2"),     QStringLiteral("1/x"),
            QStringLiteral("sin("),  QStringLiteral(")"),       QStringLiteral("+"),
            QStringLiteral("1e300"), QStringLiteral("*exp(x)"), QStringLiteral(",-5,5"),
            QStringLiteral("'nota"), QStringLiteral("tan(x)"),  QStringLiteral("sqr(x)-1e-9"),
            QStringLiteral("12,18"), QStringLiteral("0"),
        };
        static const std::vector<Qt::Key> Teclas = {
            Qt::Key_Return, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Left, Qt::Key_Right,
            Qt::Key_Up,     Qt::Key_Home,      Qt::Key_End,    Qt::Key_Tab,  Qt::Key_Backtab,
            Qt::Key_Space,  Qt::Key_PageDown,  Qt::Key_Plus,   Qt::Key_Minus};
        if (azar() % 2 == 0)
            QTest::keyClicks(control, Elige(Textos));
        else
            QTest::keyClick(control, Elige(Teclas),
                            azar() % 4 == 0 ? Qt::ShiftModifier : Qt::NoModifier);
    }

    void HazClic() {
        std::vector<QWidget*> controles;
        for (QWidget* control : formulario.findChildren<QWidget*>())
            if (control->isVisible() && control->window() == &formulario &&
                control->contextMenuPolicy() != Qt::PreventContextMenu &&
                dynamic_cast<QMenu*>(control) == nullptr && !control->inherits("QMenuBar") &&
                !control->inherits("QToolButton"))
                controles.push_back(control);
        QWidget* control = Elige(controles);
        if (control->width() < 1 || control->height() < 1)
            return;
        const QPoint lugar(static_cast<int>(azar() % static_cast<unsigned>(control->width())),
                           static_cast<int>(azar() % static_cast<unsigned>(control->height())));
        if (azar() % 3 == 0) {
            QWheelEvent rueda(lugar, control->mapToGlobal(QPointF(lugar)), {},
                              QPoint(0, azar() % 2 == 0 ? 120 : -120), Qt::NoButton, Qt::NoModifier,
                              Qt::NoScrollPhase, false);
            QApplication::sendEvent(control, &rueda);
        } else {
            QTest::mouseClick(control, Qt::LeftButton, Qt::NoModifier, lugar);
        }
    }

    void Comprueba() {
        const Ventana& v =
            dynamic_cast<VisorFunciones&>(Busca<QWidget>("VisorFunciones")).DevCuadro().ventana;
        ASSERT_TRUE(std::isfinite(v.XMáx) && std::isfinite(v.XMín) && v.XMín < v.XMáx);
        ASSERT_TRUE(std::isfinite(v.YMáx) && std::isfinite(v.YMín) && v.YMín < v.YMáx);
        for (int i = 0; i < 4; ++i) {
            const std::string n = std::to_string(i);
            if (!Busca<QCheckBox>(("chkfx_" + n).c_str()).isChecked()) {
                ASSERT_EQ(DevTexto(("txtFxValor_" + n).c_str()), QString());
            }
        }
    }

    std::mt19937 azar{GetParam()};
};

TEST_P(AlAzar, LaVentanaSigueEnPie) {
    const DiálogosPermitidos extremos; // the extremes dialog may stay open for many actions
    for (int i = 0; i < 1000; ++i) {
        switch (azar() % 4) {
        case 0:
            PulsaAlgo();
            break;
        case 1:
            HazClic();
            break;
        default:
            TecleaAlgo();
        }
        if (i % 10 == 0)
            QApplication::processEvents();
        if (i % 200 == 199)
            txtSalida.clear();
        Comprueba();
        if (HasFatalFailure())
            return;
        if (auto* emergente = QApplication::activePopupWidget())
            emergente->close();
    }
}

INSTANTIATE_TEST_SUITE_P(Semillas, AlAzar, testing::Values(1U, 2U, 3U, 4U));

} // namespace
} // namespace quiralto
