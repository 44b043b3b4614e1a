// The handlers of the graph view: what each refreshes, in which order, and how faults end.

#include "tests/apoyo.h"
#include "ui/formularios/control_grafica.h"

#include <QLabel>

#include <gtest/gtest.h>

namespace quiralto {
namespace {

using Refrescos = std::vector<std::string>;

// Writes down every refresher that runs, and fails in the one that it is told to.
class ControlGrabado : public ControlGráfica {
public:
    using ControlGráfica::ControlGráfica;
    using ControlGráfica::MensajeErrorOverflow;

    Refrescos Toma() { return std::exchange(pasos_, {}); }
    int fallo = 0; // of the next redraw

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

private:
    Refrescos pasos_;
};

class Control : public testing::Test {
protected:
    Banco banco;
    VentanaGráfica vista{banco.contexto};
    VisorFunciones visor;
    PanelFunciones panel{banco.contexto, vista, [] {}};
    frmPuntosExtremos marco{banco.contexto, [](const Ventana&) { return true; }, nullptr};
    QScrollBar hsEjeX;
    QScrollBar vsEjeY;
    QScrollBar hsx{Qt::Horizontal};
    QLabel zoom;
    QLabel coordenadas;
    ControlGrabado control{
        banco.contexto, vista, {visor, panel, marco, hsEjeX, vsEjeY, hsx, zoom, coordenadas}};
};

TEST_F(Control, AlComenzarSeActualizaTodoPorSuOrden) {
    banco.contexto.DígitosRedondeo = 3;
    vista.CantidadPuntos = 150;
    ASSERT_TRUE(vista.FijaExtremos({1, 0, 1, 0}));
    control.Comienza();
    EXPECT_EQ(control.Toma(),
              (Refrescos{"ActualizaX", "ActualizaExtremos", "ActualizaFunciones", "ActualizaZoom",
                         "ActualizaUnidadEjesXY", "ActualizaEjes", "DibujarActivadas"}));
    EXPECT_EQ(vista.DevVentana().XMáx, 10);
    EXPECT_EQ(vista.DevVentana().YMín, -10);
    EXPECT_EQ(banco.contexto.DígitosRedondeo, 8);
    EXPECT_EQ(vista.CantidadPuntos, 300);
}

TEST_F(Control, ElZoomDeLaGráficaRefrescaPorSuOrden) {
    for (int i = 0; i < 6; ++i) {
        control.ZoomGráfica_Click(i);
        EXPECT_EQ(control.Toma(),
                  (Refrescos{"ActualizaUnidadEjesXY", "ActualizaExtremos", "ActualizaEjes",
                             "DibujarActivadas", "ActualizaZoom"}));
    }
}

TEST_F(Control, LosZoomsDeEjeRefrescanTodoYRedibujanAlFinal) {
    const Refrescos todo{"ActualizaX",        "ActualizaUnidadEjesXY", "ActualizaZoom",
                         "ActualizaExtremos", "ActualizaEjes",         "ActualizaFunciones",
                         "DibujarActivadas"};
    control.ZoomEjeX_Click(0);
    EXPECT_EQ(control.Toma(), todo);
    control.ZoomEjeY_Click(3);
    EXPECT_EQ(control.Toma(), todo);
    control.ZoomEjesXY_Click(5);
    EXPECT_EQ(control.Toma(), todo);
}

TEST_F(Control, LosValoresPorDefectoRefrescanPorSuOrden) {
    control.ValoresPorDefectoEjes_Click();
    EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaExtremos", "ActualizaUnidadEjesXY",
                                         "ActualizaEjes", "DibujarActivadas", "ActualizaZoom"}));
}

TEST_F(Control, LosExtremosFijadosRefrescanPorSuOrden) {
    EXPECT_TRUE(control.FijaExtremos({4, 0, 4, 0}));
    EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaExtremos", "ActualizaUnidadEjesXY", "ActualizaX",
                                         "ActualizaFunciones", "ActualizaZoom", "ActualizaEjes",
                                         "DibujarActivadas"}));
    EXPECT_FALSE(control.FijaExtremos({0, 4, 4, 0}));
    EXPECT_EQ(control.Toma(), Refrescos());
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
    EXPECT_EQ(vista.DevPuntoX(), -2.5);
    EXPECT_EQ(control.Toma(), (Refrescos{"ActualizaX", "ActualizaZoom", "ActualizaFunciones"}));
}

TEST_F(Control, LasOpcionesSóloRedibujanSiCambian) {
    const Refrescos redibujo{"DibujarActivadas"};
    control.NúmeroPuntos_Click(5);
    EXPECT_EQ(control.Toma(), redibujo);
    control.NúmeroPuntos_Click(5);
    EXPECT_EQ(control.Toma(), Refrescos());
    EXPECT_EQ(vista.CantidadPuntos, 4800);
    control.OrdenMenúLíneas_Click();
    EXPECT_EQ(control.Toma(), Refrescos());
    control.OrdenMenúPuntos_Click();
    EXPECT_EQ(control.Toma(), redibujo);
    control.OrdenMenúPuntos_Click();
    EXPECT_EQ(control.Toma(), Refrescos());
    control.RedondeoNúmeros_Click(3);
    EXPECT_EQ(control.Toma(), Refrescos());
    EXPECT_EQ(banco.contexto.DígitosRedondeo, 3);
}

TEST_F(Control, UnDesbordamientoNoRefrescaNada) {
    ASSERT_TRUE(vista.FijaExtremos({1e306, -1e306, 1, -1}));
    control.ZoomEjeX_Click(2);
    EXPECT_EQ(control.Toma(), Refrescos());
    EXPECT_EQ(vista.DevVentana().XMáx, 1e306);
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Control, UnDesbordamientoAlMostrarRecuperaLaVistaCallando) {
    control.fallo = Desbordamiento;
    control.ZoomEjeX_Click(0);
    EXPECT_EQ(vista.DevVentana().XMáx, 10);
    EXPECT_EQ(control.Toma().back(), "DibujarActivadas"); // the view as it was
    EXPECT_TRUE(banco.TomaMensajes().empty());
    EXPECT_EQ(zoom.text(), QStringLiteral("X de -10 a 10 · Y de -10 a 10"));
}

TEST_F(Control, OtroFalloSeDiceConSuNúmeroYDescripción) {
    control.fallo = MemoriaInsuficiente;
    control.vsEjeY_Change(1);
    EXPECT_EQ(banco.TomaMensajes(),
              std::vector{
                  (Mensaje{Icono::Crítico,
                           "Error inesperado número :7.Descripción del error :Memoria insuficiente"
                           ".Contacte con el proveedor del programa Gracias."})});
    control.MensajeErrorOverflow(DivisiónPorCero);
    EXPECT_EQ(
        banco.TomaMensajes(),
        std::vector{(Mensaje{Icono::Crítico,
                             "Error inesperado número :11.Descripción del error :División por cero"
                             ".Contacte con el proveedor del programa Gracias."})});
    control.MensajeErrorOverflow(Desbordamiento);
    EXPECT_TRUE(banco.TomaMensajes().empty());
}

TEST_F(Control, LasBarrasDicenLoQueValeUnPaso) {
    control.Comienza();
    EXPECT_EQ(hsEjeX.statusTip(), QStringLiteral("Un paso desplaza 1"));
    control.ZoomEjeX_Click(3);
    EXPECT_EQ(hsEjeX.statusTip(), QStringLiteral("Un paso desplaza .5"));
    EXPECT_EQ(vsEjeY.statusTip(), QStringLiteral("Un paso desplaza 1"));
}

} // namespace
} // namespace quiralto
