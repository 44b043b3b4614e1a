// Every word of the menus, spelled out.

#include "tests/ui/esquema.h"
#include "tests/ui/ventana_de_prueba.h"

#include <QContextMenuEvent>
#include <QMenuBar>

namespace quiralto {
namespace {

constexpr const char* Menús =
    R"(
&Archivo
  Imprimir
    Ventana gráfica
    Ventana texto
    ---
    Ventana con el foco [Ctrl+P]
      status: La hoja si se está en ella, si no la gráfica
  &Vista previa
    Ventana gráfica
    Ventana texto
  ---
  &Salir [Ctrl+Q]
&Edición
  &Deshacer [Ctrl+Z]
  &Rehacer [Ctrl+Shift+Z]
  ---
  Cor&tar [Ctrl+X]
  &Copiar [Ctrl+C]
  &Pegar [Ctrl+V]
  Copiar t&odo [Ctrl+Shift+C]
    status: La hoja entera, con las funciones y la ventana como comentarios
  ---
  Comentar o descomentar &líneas [Ctrl+']
  Comentar los datos &anteriores [Ctrl+Shift+A]
    status: Las líneas de datos que hay sobre la del cursor dejan de leerse
  ---
  R&epetir última orden [F5] (off)
  &Buscar orden… [Ctrl+K]
&Gráfica
  &Zoom Gráfica
    X2 [Ctrl++]
      tip and status: Zoom Gráfica X2: el dibujo, en torno al punto X, se amplía al doble
    X4
      tip and status: Zoom Gráfica X4: el dibujo, en torno al punto X, se amplía al cuádruple
    X8
      tip and status: Zoom Gráfica X8: el dibujo, en torno al punto X, se amplía al óctuple
    /2 [Ctrl+-]
      tip and status: Zoom Gráfica /2: el dibujo, en torno al punto X, se reduce a la mitad
    /4
      tip and status: Zoom Gráfica /4: el dibujo, en torno al punto X, se reduce a la cuarta parte
    /8
      tip and status: Zoom Gráfica /8: el dibujo, en torno al punto X, se reduce a la octava parte
  Z&oom Ejes
    Eje X
      X2
        tip and status: Eje X X2: el eje abarca el doble
      X4
        tip and status: Eje X X4: el eje abarca el cuádruple
      X8
        tip and status: Eje X X8: el eje abarca el óctuple
      /2
        tip and status: Eje X /2: el eje abarca la mitad
      /4
        tip and status: Eje X /4: el eje abarca la cuarta parte
      /8
        tip and status: Eje X /8: el eje abarca la octava parte
    Eje Y
      X2
        tip and status: Eje Y X2: el eje abarca el doble
      X4
        tip and status: Eje Y X4: el eje abarca el cuádruple
      X8
        tip and status: Eje Y X8: el eje abarca el óctuple
      /2
        tip and status: Eje Y /2: el eje abarca la mitad
      /4
        tip and status: Eje Y /4: el eje abarca la cuarta parte
      /8
        tip and status: Eje Y /8: el eje abarca la octava parte
    Ejes X e Y
      X2
        tip and status: Ejes X e Y X2: los ejes abarcan el doble
      X4
        tip and status: Ejes X e Y X4: los ejes abarcan el cuádruple
      X8
        tip and status: Ejes X e Y X8: los ejes abarcan el óctuple
      /2
        tip and status: Ejes X e Y /2: los ejes abarcan la mitad
      /4
        tip and status: Ejes X e Y /4: los ejes abarcan la cuarta parte
      /8
        tip and status: Ejes X e Y /8: los ejes abarcan la octava parte
    ---
    &Valores por defecto [Ctrl+0]
  &Fijar puntos extremos manualmente [Ctrl+F]
  &Ajustar eje Y
    status: El eje Y abarca las curvas que se ven
  Ejes &iguales
    status: Una unidad mide lo mismo en los dos ejes
  &Vista anterior [Alt+Left] (off)
    status: Los extremos de antes del último cambio
  ---
  &Método de Dibujo
    &Puntos
    &Líneas (x)
  &Número de puntos a trazar
    150
    300 (x)
    600
    1200
    2400
    4800
  &Cifras redondeo en números
    0
    1
    2
    3
    4
    5
    6
    7
    8 (x)
    9
    10
    11
    12
    13
    14
    15
  ---
  &Quitar marcas (off)
    status: Lo que halló la última orden deja de señalarse en la gráfica
  Copiar &gráfica [Ctrl+Shift+G]
    status: La gráfica con su leyenda, al portapapeles
  Copiar &tabla de valores [Ctrl+Shift+T]
    status: X y las funciones encendidas en lo que se ve, en columnas, al portapapeles
&Hoja
  Números
    Hallar máximo común divisor
      status: Espera enteros · Hay: Sin datos · Ejemplo: 12,18
    Hallar mínimo común múltiplo
      status: Espera enteros · Hay: Sin datos · Ejemplo: 12,18
    Hallar divisores
      status: Espera entero · Hay: Sin datos · Ejemplo: 360
    Descomponer en factores primos
      status: Espera entero · Hay: Sin datos · Ejemplo: 360
    Hallar números primos
      status: Espera entero,entero · Hay: Sin datos · Ejemplo: 2,100
    Convertir coeficienes a fracción continua
      status: Espera f(x) · Hay: Sin datos · Ejemplo: .5*X^2+.125*X
  Ecuaciones y funciones
    Resolver sistema lineal
      status: Espera ecuaciones · Hay: Sin datos · Ejemplo: 2*X(1)+X(2)=3 · X(1)-X(2)=-3/2
    Hallar polinomio de Lagrange
      status: Espera x1,y1,x2,y2,... · Hay: Sin datos · Ejemplo: 2,4,3,9,4,16,5,25
  Cálculo numérico con una variable
    Hallar soluciones
      status: Espera f(x),extremo1,extremo2 · Hay: Sin datos · Ejemplo: X^2-4,-5,5
    Hallar máximos
      status: Espera f(x),extremo1,extremo2 · Hay: Sin datos · Ejemplo: X^3-3*X,-5,5
    Hallar mínimos
      status: Espera f(x),extremo1,extremo2 · Hay: Sin datos · Ejemplo: X^3-3*X,-5,5
    Hallar puntos de inflexión
      status: Espera f(x),extremo1,extremo2 · Hay: Sin datos · Ejemplo: X^3,-1,1
    Hallar área en un intervalo
      status: Espera f(x),extremo1,extremo2 · Hay: Sin datos · Ejemplo: X,0,1
  Cálculo simbólico con una variable
    Hallar derivada
      status: Espera f(x) · Hay: Sin datos · Ejemplo: X*EXP(X)
    Hallar la ecuación de la tangente a un punto
      status: Espera f(x),punto · Hay: Sin datos · Ejemplo: X^2,3
    Hallar la ecuación de la secante a dos puntos
      status: Espera f(x),extremo1,extremo2 · Hay: Sin datos · Ejemplo: X^2,1,3
    Desarrollar totalmente
      status: Espera f(x) · Hay: Sin datos · Ejemplo: X/2+X^2/3
    Desarrollar simplificadamente
      status: Espera f(x) · Hay: Sin datos · Ejemplo: (X+1)^3
    Simplificar función racional
      status: Espera f(x) · Hay: Sin datos · Ejemplo: (X^2-3*X+2)/(X^2-1)
    Factorizar función racional
      status: Espera f(x),extremo1,extremo2 · Hay: Sin datos · Ejemplo: (X^2-1)/(X^2+X),-10,10
    Máximo común divisor funciones racionales
      status: Espera f(x),g(x),... · Hay: Sin datos · Ejemplo: X^3-1,X^2-1
    Mínimo común múltiplo funciones racionales
      status: Espera f(x),g(x),... · Hay: Sin datos · Ejemplo: X^3-1,X^2-1
  Cálculo simbólico con más de una variable
    Desarrollar totalmente
      status: Espera f(...,x,y,z,...,s) · Hay: Sin datos · Ejemplo: (a+b)^2*(x-y)
    Desarrollar simplificadamente
      status: Espera f(...,x,y,z,...,s) · Hay: Sin datos · Ejemplo: (a+b)^2*(x-y)
A&yuda
  &Contenido [F1]
  &Manual
  Acerca de
)";

class TextosDeLosMenús : public VentanaDePrueba {
protected:
    // Of the menu that opens where the mouse's other button is pressed.
    std::string DevEsquemaContextual(QWidget& control, const QPoint& lugar) {
        QContextMenuEvent suceso(QContextMenuEvent::Mouse, lugar, control.mapToGlobal(lugar));
        QApplication::sendEvent(&control, &suceso);
        return DevEsquemaAbierto();
    }
    static std::string DevEsquemaAbierto() {
        auto* menú = dynamic_cast<QMenu*>(QApplication::activePopupWidget());
        if (menú == nullptr)
            throw std::runtime_error("no menu is open");
        const std::string esquema = DevEsquema(*menú);
        menú->close();
        return esquema;
    }
};

TEST_F(TextosDeLosMenús, LaBarraDeMenús) {
    EXPECT_EQ('\n' + DevEsquemaMenús(*formulario.menuBar()), Menús);
}

TEST_F(TextosDeLosMenús, ElDeLaGráfica) {
    auto& visor = Busca<QWidget>("VisorFunciones");
    EXPECT_EQ(visor.contextMenuPolicy(), Qt::ActionsContextMenu);
    EXPECT_EQ('\n' + DevEsquemaMenús(visor), R"(
Copiar &gráfica [Ctrl+Shift+G]
  status: La gráfica con su leyenda, al portapapeles
Copiar &tabla de valores [Ctrl+Shift+T]
  status: X y las funciones encendidas en lo que se ve, en columnas, al portapapeles
&Ajustar eje Y
  status: El eje Y abarca las curvas que se ven
Ejes &iguales
  status: Una unidad mide lo mismo en los dos ejes
&Vista anterior [Alt+Left] (off)
  status: Los extremos de antes del último cambio
&Quitar marcas (off)
  status: Lo que halló la última orden deja de señalarse en la gráfica
)");
}

TEST_F(TextosDeLosMenús, ElDeUnaFunción) {
    Define(0, "X^2");
    Define(1, "X");
    Define(3, "SIN(X)");
    Busca<QToolButton>("cmdMenúfx_1").click();
    EXPECT_EQ('\n' + DevEsquemaAbierto(), R"(
&Llevar a la hoja
Intersecciones con f&0
Intersecciones con f&3
)");
    // above what every box has
    const std::string esquema =
        DevEsquemaContextual(Busca<QWidget>("txtfx_0"), QPoint(5, 5)) + "end";
    EXPECT_TRUE(esquema.starts_with(R"(&Llevar a la hoja
Intersecciones con f&1
Intersecciones con f&3
---
)")) << esquema;
}

TEST_F(TextosDeLosMenús, ElDeLaHoja) {
    const auto esquema = [&](const char* hoja) {
        auto& leído = Busca<QLabel>("lectura");
        const QString antes = leído.toolTip();
        txtSalida.setPlainText(QString::fromUtf8(hoja));
        EXPECT_TRUE(QTest::qWaitFor([&] { return leído.toolTip() != antes; }));
        return DevEsquemaContextual(*txtSalida.viewport(), QPoint(12, 8));
    };
    const std::string función = esquema("X^2-4,3");
    EXPECT_TRUE(función.starts_with(R"(Dibu&jar
--- Cálculo simbólico con una variable
Hallar la ecuación de la tangente a un punto
  status: Espera f(x),punto · Hay: f(X)=X^2-4 · punto: 3 · Ejemplo: X^2,3
Máximo común divisor funciones racionales
  status: Espera f(x),g(x),... · Hay: f(X)=X^2-4 · punto: 3 · Ejemplo: X^3-1,X^2-1
Mínimo común múltiplo funciones racionales
  status: Espera f(x),g(x),... · Hay: f(X)=X^2-4 · punto: 3 · Ejemplo: X^3-1,X^2-1
---
Comentar o descomentar &líneas [Ctrl+']
&Buscar orden… [Ctrl+K]
---
)")) << función;
    const std::string resultado = esquema("'Solución en X= 2");
    EXPECT_TRUE(resultado.starts_with(R"(Lle&var el punto X aquí
---
Comentar o descomentar &líneas [Ctrl+']
&Buscar orden… [Ctrl+K]
---
)")) << resultado;
}

} // namespace
} // namespace quiralto
