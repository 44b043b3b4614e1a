// The handlers of the graph view: what each refreshes, in which order, and how faults end.

#include "engine/base/fallos.h"
#include "tests/apoyo.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/formularios/control_grafica.h"
#include "ui/programa/vigilante_ventana.h"

#include <QLabel>
#include <QtTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace quiralto {
namespace {

using Refrescos = std::vector<std::string>;

// Writes down every refresher that runs, and fails in the one that it is told to.
class ControlGrabado : public ControlGráfica {
public:
    using ControlGráfica::ControlGráfica;
    using ControlGráfica::MensajeErrorOverflow;

    Refrescos Toma() { return std::exchange(pasos_, {}); }
    int fallo = 0;                     // of the next redraw
    std::mt19937* barajador = nullptr; // shuffles the refreshers of every handler

protected:
    void ActualizaX() override {
        pasos_.emplace_back("ActualizaX");
        ControlGráfica::ActualizaX();
    }
    void ActualizaFunciones() override {
        pasos_.emplace_back("ActualizaFunciones");
        ControlGráfica::ActualizaFunciones();
    }
    void ActualizaExtremos() override {
        pasos_.emplace_back("ActualizaExtremos");
        ControlGráfica::ActualizaExtremos();
    }
    void ActualizaUnidadEjesXY() override {
        pasos_.emplace_back("ActualizaUnidadEjesXY");
        ControlGráfica::ActualizaUnidadEjesXY();
    }
    void ActualizaZoom() override {
        pasos_.emplace_back("ActualizaZoom");
        ControlGráfica::ActualizaZoom();
    }
    void ActualizaEjes() override {
        pasos_.emplace_back("ActualizaEjes");
        ControlGráfica::ActualizaEjes();
    }
    void DibujarActivadas() override {
        pasos_.emplace_back("DibujarActivadas");
        if (const int número = std::exchange(fallo, 0))
            throw ErrorEjecución(número);
        ControlGráfica::DibujarActivadas();
    }

    void Refresca(const Pasos& pasos) override {
        Pasos orden = pasos;
        if (barajador != nullptr)
            std::ranges::shuffle(orden, *barajador);
        ControlGráfica::Refresca(orden);
    }

private:
    Refrescos pasos_;
};

// A control with everything that shows it.
struct ControlMontado {
    explicit ControlMontado(Contexto& contexto, VigilanteÓrdenes& vigilante)
        : marco(contexto), ejecutor(contexto, vigilante, hoja),
          control(contexto, ejecutor,
                  {visor, panel, marco, hsEjeX, vsEjeY, hsx, zoom, coordenadas, vistaAnterior,
                   avisos}) {
        hsx.setRange(-100, 100);
    }

    // All that can be seen, in one text.
    QStringList DevVisible() {
        QStringList todo = {zoom.text(),        coordenadas.text(), visor.accessibleDescription(),
                            hsEjeX.statusTip(), vsEjeY.statusTip(), QString::number(hsx.value())};
        for (const QObject* de : {static_cast<QObject*>(&panel), static_cast<QObject*>(&marco)})
            for (const auto* caja : de->findChildren<QLineEdit*>())
                todo += caja->objectName() + u'=' + caja->text() + caja->toolTip();
        for (const auto* casilla : panel.findChildren<QCheckBox*>())
            todo += QString::number(static_cast<int>(casilla->isChecked()));
        return todo;
    }

    CajaHoja hoja;
    VisorFunciones visor;
    PanelFunciones panel;
    FrmPuntosExtremos marco;
    QScrollBar hsEjeX;
    QScrollBar vsEjeY;
    QScrollBar hsx{Qt::Horizontal};
    QLabel zoom;
    QLabel coordenadas;
    QAction vistaAnterior;
    QStatusBar avisos;
    Ejecutor ejecutor;
    ControlGrabado control;
};

class Control : public testing::Test {
protected:
    Control() {
        montado.control.Comienza();
        control.Toma();
    }
    const Ventana& DevVentana() const { return control.DevEscena().cuadro.ventana; }
    std::vector<Mensaje> TomaMensajes() { return std::exchange(grabados.mensajes, {}); }

    MensajesGrabados grabados;
    VigilanteVentana vigilante{std::chrono::hours(1)};
    Primos tabla{};
    Contexto contexto{grabados, vigilante, tabla};
    ControlMontado montado{contexto, vigilante};
    ControlGrabado& control = montado.control;
};

TEST_F(Control, AlComenzarSeActualizaTodoPorSuOrden) {
    contexto.DígitosRedondeo = 3;
    control.NúmeroPuntos_Click(0);
    control.FijaExtremos({1, 0, 1, 0});
    control.Toma();
    control.Comienza();
    EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaX", "ActualizaExtremos", "ActualizaFunciones",
                                         "ActualizaZoom"}));
    EXPECT_EQ(DevVentana(), Ventana());
    EXPECT_EQ(contexto.DígitosRedondeo, 8);
    EXPECT_EQ(control.DevOpciones().CantidadPuntos, 300);
}

TEST_F(Control, ElZoomDeLaGráficaRefrescaPorSuOrden) {
    for (int i = 0; i < 6; ++i) {
        control.ZoomGráfica_Click(i);
        EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaUnidadEjesXY", "ActualizaExtremos",
                                             "ActualizaEjes", "DibujarActivadas"}));
    }
}

TEST_F(Control, LosValoresPorDefectoRefrescanPorSuOrden) {
    control.ValoresPorDefectoEjes_Click();
    EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaExtremos", "ActualizaUnidadEjesXY",
                                         "ActualizaEjes", "DibujarActivadas"}));
}

TEST_F(Control, LosExtremosFijadosRefrescanPorSuOrden) {
    control.FijaExtremos({4, 0, 4, 0});
    EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaExtremos", "ActualizaUnidadEjesXY", "ActualizaX",
                                         "ActualizaFunciones", "ActualizaZoom", "ActualizaEjes",
                                         "DibujarActivadas"}));
    control.FijaExtremos({0, 4, 4, 0});
    EXPECT_EQ(control.Toma(), Refrescos());
    EXPECT_EQ(DevVentana(), (Ventana{4, 0, 4, 0}));
}

TEST_F(Control, LasBarrasDeLosEjesRefrescanPorSuOrden) {
    control.hsEjeX_Change(3);
    EXPECT_EQ(control.Toma(),
              (Refrescos{"ActualizaX", "ActualizaZoom", "ActualizaExtremos", "ActualizaEjes",
                         "ActualizaFunciones", "DibujarActivadas"}));
    control.vsEjeY_Change(-2);
    EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaZoom", "ActualizaExtremos", "ActualizaEjes",
                                         "DibujarActivadas"}));
}

TEST_F(Control, LaBarraDelPuntoXNoRedibuja) {
    control.hsx_Change(-25);
    EXPECT_EQ(control.DevEscena().marcador.PuntoX, -2.5);
    EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaX", "ActualizaZoom", "ActualizaFunciones"}));
}

TEST_F(Control, LasOpcionesSóloRedibujanSiCambian) {
    const Refrescos redibujo{"DibujarActivadas"};
    control.NúmeroPuntos_Click(5);
    EXPECT_EQ(control.Toma(), redibujo);
    control.NúmeroPuntos_Click(5);
    EXPECT_EQ(control.Toma(), Refrescos());
    EXPECT_EQ(control.DevOpciones().CantidadPuntos, 4800);
    control.OrdenMenúLíneas_Click();
    EXPECT_EQ(control.Toma(), Refrescos());
    control.OrdenMenúPuntos_Click();
    EXPECT_EQ(control.Toma(), redibujo);
    control.OrdenMenúPuntos_Click();
    EXPECT_EQ(control.Toma(), Refrescos());
    control.RedondeoNúmeros_Click(3);
    EXPECT_EQ(control.Toma(), Refrescos());
    EXPECT_EQ(contexto.DígitosRedondeo, 3);
}

TEST_F(Control, UnDesbordamientoNoRefrescaNada) {
    control.FijaExtremos({1e306, -1e306, 1, -1});
    control.Toma();
    control.ZoomEjeX_Click(2);
    EXPECT_EQ(control.Toma(), Refrescos());
    EXPECT_EQ(DevVentana().XMáx, 1e306);
    EXPECT_TRUE(TomaMensajes().empty());
}

TEST_F(Control, UnDesbordamientoAlMostrarRecuperaLaVistaCallando) {
    control.fallo = Desbordamiento;
    control.ZoomEjeX_Click(0);
    EXPECT_EQ(DevVentana().XMáx, 10);
    EXPECT_TRUE(TomaMensajes().empty());
    EXPECT_EQ(montado.zoom.text(), QStringLiteral("X de -10 a 10 · Y de -10 a 10"));
}

TEST_F(Control, OtroFalloSeDiceConSuNúmeroYDescripción) {
    control.fallo = MemoriaInsuficiente;
    control.vsEjeY_Change(1);
    EXPECT_EQ(TomaMensajes(),
              std::vector{
                  (Mensaje{Icono::Crítico,
                           "Error inesperado número :7.Descripción del error :Memoria insuficiente"
                           ".Contacte con el proveedor del programa Gracias."})});
    control.MensajeErrorOverflow(DivisiónPorCero);
    EXPECT_EQ(
        TomaMensajes(),
        std::vector{(Mensaje{Icono::Crítico,
                             "Error inesperado número :11.Descripción del error :División por cero"
                             ".Contacte con el proveedor del programa Gracias."})});
    control.MensajeErrorOverflow(Desbordamiento);
    EXPECT_TRUE(TomaMensajes().empty());
}

TEST_F(Control, LasBarrasDicenLoQueValeUnPaso) {
    EXPECT_EQ(montado.hsEjeX.statusTip(), QStringLiteral("Un paso desplaza 1"));
    control.ZoomEjeX_Click(3);
    EXPECT_EQ(montado.hsEjeX.statusTip(), QStringLiteral("Un paso desplaza .5"));
    EXPECT_EQ(montado.vsEjeY.statusTip(), QStringLiteral("Un paso desplaza 1"));
}

// Two views of one sequence of random wishes: whatever the order of the refreshers in one of them,
// both show the same.
TEST_F(Control, ElOrdenDeLosRefrescosNoSeVe) {
    const std::uint32_t semilla = 4711;
    std::mt19937 azar(semilla);
    std::mt19937 barajador(semilla);
    Contexto otroContexto{grabados, vigilante, tabla};
    ControlMontado otro(otroContexto, vigilante);
    otro.control.Comienza();
    otro.control.barajador = &barajador;
    const auto enAmbos = [&](const std::function<void(ControlGráfica&)>& deseo) {
        deseo(control);
        deseo(otro.control);
    };
    const char* const textos[] = {"X^2", "1/X", "SIN(X)", "X+", "SEN(X)", "", "SQR(X)"};
    for (int vez = 0; vez < 400; ++vez) {
        const int índice = static_cast<int>(azar() % 6);
        const int función = static_cast<int>(azar() % 4);
        const QString texto = QString::fromLatin1(textos[azar() % std::size(textos)]);
        const auto cuál = azar() % 12;
        enAmbos([&](ControlGráfica& c) {
            switch (cuál) {
            case 0:
                return c.ZoomGráfica_Click(índice);
            case 1:
                return c.ZoomEjeX_Click(índice);
            case 2:
                return c.ZoomEjesXY_Click(índice);
            case 3:
                return c.ValoresPorDefectoEjes_Click();
            case 4:
                return c.NúmeroPuntos_Click(índice);
            case 5:
                return c.RedondeoNúmeros_Click(índice * 2);
            case 6:
                return c.hsEjeX_Change(índice - 3);
            case 7:
                return c.vsEjeY_Change(índice - 3);
            case 8:
                return c.hsx_Change(índice * 20 - 60);
            case 9:
                return c.AlEscribir(función, texto);
            case 10:
                return c.AlConfirmar(función);
            default:
                return c.FijaExtremos({7, -3, 4, -1.0 / 3});
            }
        });
        ASSERT_EQ(montado.DevVisible(), otro.DevVisible()) << "seed " << semilla << " at " << vez;
        ASSERT_TRUE(montado.visor.DevCuadro() == montado.control.DevEscena().cuadro);
        ASSERT_TRUE(otro.visor.DevCuadro() == otro.control.DevEscena().cuadro);
        ASSERT_EQ(montado.visor.DevCuadro().ventana, otro.visor.DevCuadro().ventana);
    }
}

// What is shown is what the scene says, wherever it is shown.
TEST_F(Control, UnMismoValorSeMuestraDeUnaSolaManera) {
    control.AlEscribir(0, QStringLiteral("1/3+X"));
    control.AlConfirmar(0);
    control.RedondeoNúmeros_Click(3);
    EXPECT_EQ(montado.panel.findChild<QLineEdit*>(QStringLiteral("txtFxValor_0"))->text(),
              QStringLiteral(".333"));
    EXPECT_TRUE(montado.visor.accessibleDescription().endsWith(QStringLiteral("en X vale .333")));
    control.FijaExtremos({1e-11, -1e-11, 10, -10});
    control.hsx_Change(1);
    control.ValoresPorDefectoEjes_Click();
    const QString punto = montado.panel.findChild<QLineEdit*>(QStringLiteral("txtPuntoX"))->text();
    EXPECT_EQ(punto, QStringLiteral("0"));
    EXPECT_TRUE(montado.visor.accessibleDescription().contains(QStringLiteral("Punto X=0.")));
}

// Changes that come while a command runs wait until it has ended, and are not lost.
TEST_F(Control, LoQueLlegaDuranteUnaOrdenEspera) {
    QStringList durante;
    bool dicho = false;
    class MensajesQueEscriben : public Mensajes {
    public:
        explicit MensajesQueEscriben(std::function<void()> alMostrar)
            : alMostrar_(std::move(alMostrar)) {}
        void Muestra(Icono, std::string_view) override { alMostrar_(); }

    private:
        std::function<void()> alMostrar_;
    };
    ControlMontado* suyo = nullptr;
    MensajesQueEscriben mensajes([&] {
        if (std::exchange(dicho, true))
            return;
        suyo->control.AlEscribir(0, QStringLiteral("X+1"));
        suyo->control.AlConfirmar(0);
        suyo->control.RedondeoNúmeros_Click(2);
        suyo->control.ZoomEjesXY_Click(0);
        suyo->hoja.appendPlainText(QStringLiteral("'nota"));
        durante = suyo->DevVisible();
    });
    Contexto contextoSuyo(mensajes, vigilante, tabla);
    ControlMontado propio(contextoSuyo, vigilante);
    suyo = &propio;
    propio.control.Comienza();
    const QStringList antes = propio.DevVisible();
    propio.hoja.setPlainText(QStringLiteral("X+"));
    propio.ejecutor.Ejecuta("Hallar máximos");
    EXPECT_TRUE(dicho);
    EXPECT_EQ(durante, antes);
    EXPECT_EQ(contextoSuyo.DígitosRedondeo, 2);
    EXPECT_EQ(propio.zoom.text(), QStringLiteral("X de -20 a 20 · Y de -20 a 20"));
    EXPECT_EQ(propio.control.DevEscena().leyenda.size(), 1U);
    EXPECT_EQ(propio.hoja.toPlainText(), QStringLiteral("X+\n'nota"));
}

} // namespace
} // namespace quiralto
