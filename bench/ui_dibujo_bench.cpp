// A redraw of four functions at 4800 points on 1200x800 logical pixels, in its parts, beside a bare
// QPainter that draws the same four polylines, one pixel wide, and their segments singly, as wide
// and as smooth as the curves. The argument is the device pixel ratio.

#include "ui/dibujo/colores.h"
#include "ui/dibujo/grafica.h"
#include "ui/dibujo/punto_x.h"
#include "ui/dibujo/trazo.h"

#include <QGuiApplication>
#include <QImage>

#include <benchmark/benchmark.h>

#include <algorithm>

namespace quiralto {
namespace {

class SinMensajes : public Mensajes {
public:
    void Muestra(Icono, std::string_view) override {}
};

class SinVigilante : public Vigilante {
public:
    bool Continúa() override { return true; }
};

class Banco {
public:
    explicit Banco(int escala)
        : escala_(escala), imagen_(1200 * escala, 800 * escala, QImage::Format_RGB32) {
        const char* const funciones[] = {"X^2-4", "5*SIN(3*X)", "X^3/20-X", "4*COS(9*X)+X/3"};
        opciones_.CantidadPuntos = 4800;
        for (int i = 0; i < CantidadFunciones; ++i) {
            funciones_.Escribe(i, funciones[i]);
            funciones_.Enciende(i);
        }
        Muestrea();
    }

    // A new composer has no points of an earlier scene.
    void Muestrea() {
        escena_ = Compositor().Compone(contexto_, vista_, funciones_, hallados_, opciones_);
    }

    void PintaCurvas() {
        QPainter pintor(&imagen_);
        pintor.fillRect(imagen_.rect(), Qt::white);
        DibujaCurvas(pintor, DevLienzo(), escena_.cuadro);
    }

    void PintaTodo() {
        QPainter pintor(&imagen_);
        QFont fuente = pintor.font();
        fuente.setPixelSize(11 * escala_);
        pintor.setFont(fuente);
        DibujaGráfica(pintor, DevLienzo(), escena_.cuadro);
        DibujaPuntoX(pintor, DevLienzo(), escena_.cuadro.ventana, escena_.marcador);
    }

    // The polylines in device pixels, ready made.
    std::vector<QPolygonF> DevPolilíneas() const {
        std::vector<QPolygonF> polilíneas;
        for (const Curva& curva : escena_.cuadro.curvas) {
            QPolygonF& polilínea = polilíneas.emplace_back();
            for (const Punto& punto : *curva.puntos)
                polilínea += DevLienzo().DevLugar(punto.x, punto.y);
        }
        return polilíneas;
    }

    void PintaDesnudo(const std::vector<QPolygonF>& polilíneas) {
        QPainter pintor(&imagen_);
        pintor.fillRect(imagen_.rect(), Qt::white);
        for (std::size_t i = 0; i < polilíneas.size(); ++i) {
            pintor.setPen(QPen(DevColor(static_cast<int>(i)), 1));
            pintor.drawPolyline(polilíneas[i]);
        }
    }

    void PintaSueltas(const std::vector<QPolygonF>& polilíneas) {
        QPainter pintor(&imagen_);
        pintor.fillRect(imagen_.rect(), Qt::white);
        pintor.setRenderHint(QPainter::Antialiasing);
        for (std::size_t i = 0; i < polilíneas.size(); ++i) {
            QList<QLineF> segmentos;
            for (qsizetype k = 1; k < polilíneas[i].size(); ++k)
                segmentos += QLineF(polilíneas[i][k - 1], polilíneas[i][k]);
            pintor.setPen(QPen(DevColor(static_cast<int>(i)), GrosorCurva * escala_, Qt::SolidLine,
                               Qt::FlatCap));
            pintor.drawLines(segmentos);
        }
    }

private:
    Lienzo DevLienzo() const { return {QRectF(imagen_.rect()), static_cast<qreal>(escala_)}; }

    SinMensajes mensajes_;
    SinVigilante vigilante_;
    Primos tabla_{};
    Contexto contexto_{mensajes_, vigilante_, tabla_};
    Vista vista_;
    FuncionesGráficas funciones_{contexto_};
    Hallados hallados_;
    Opciones opciones_;
    Escena escena_;
    int escala_;
    QImage imagen_;
};

void Muestreo(benchmark::State& estado) {
    Banco banco(1);
    for (auto _ : estado)
        banco.Muestrea();
}
BENCHMARK(Muestreo)->Unit(benchmark::kMillisecond);

void CurvasDesnudas(benchmark::State& estado) {
    Banco banco(static_cast<int>(estado.range(0)));
    const std::vector<QPolygonF> polilíneas = banco.DevPolilíneas();
    for (auto _ : estado)
        banco.PintaDesnudo(polilíneas);
}
BENCHMARK(CurvasDesnudas)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void SegmentosSueltos(benchmark::State& estado) {
    Banco banco(static_cast<int>(estado.range(0)));
    const std::vector<QPolygonF> polilíneas = banco.DevPolilíneas();
    for (auto _ : estado)
        banco.PintaSueltas(polilíneas);
}
BENCHMARK(SegmentosSueltos)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void Curvas(benchmark::State& estado) {
    Banco banco(static_cast<int>(estado.range(0)));
    for (auto _ : estado)
        banco.PintaCurvas();
}
BENCHMARK(Curvas)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void CurvasRejillaYRótulos(benchmark::State& estado) {
    Banco banco(static_cast<int>(estado.range(0)));
    for (auto _ : estado)
        banco.PintaTodo();
}
BENCHMARK(CurvasRejillaYRótulos)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

void MuestreoYPintura(benchmark::State& estado) {
    Banco banco(static_cast<int>(estado.range(0)));
    for (auto _ : estado) {
        banco.Muestrea();
        banco.PintaTodo();
    }
}
BENCHMARK(MuestreoYPintura)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace quiralto

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication aplicación(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
