// Every word of the forms, spelled out.

#include "tests/ui/dialogos.h"
#include "tests/ui/esquema.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/dibujo/colores.h"

#include <QComboBox>
#include <QInputDialog>
#include <QPushButton>
#include <QStatusBar>

namespace quiralto {
namespace {

class TextosDeLosFormularios : public VentanaDePrueba {
protected:
    std::string DevEsquemaDe(const char* nombre) {
        return '\n' + DevEsquema(Busca<QWidget>(nombre));
    }
};

TEST_F(TextosDeLosFormularios, LaVentana) {
    EXPECT_EQ('\n' + DevEsquema(formulario), R"(
MainWindow Quiralto
  CheckBox  | name: Dibujar f0(X) | tip: Dibujar f0(X)
  LineEdit  | name: f0(X) | placeholder: por ejemplo SIN(X)
  LineEdit  | name: Valor de f0(X) en el punto X
  Label f&0(X) =
  Label valor
  ToolButton  | name: Más de f0(X) | tip: Llevar f0(X) a la hoja
  CheckBox  | name: Dibujar f1(X) | tip: Dibujar f1(X)
  LineEdit  | name: f1(X)
  LineEdit  | name: Valor de f1(X) en el punto X
  Label f&1(X) =
  Label valor
  ToolButton  | name: Más de f1(X) | tip: Llevar f1(X) a la hoja
  CheckBox  | name: Dibujar f2(X) | tip: Dibujar f2(X)
  LineEdit  | name: f2(X)
  LineEdit  | name: Valor de f2(X) en el punto X
  Label f&2(X) =
  Label valor
  ToolButton  | name: Más de f2(X) | tip: Llevar f2(X) a la hoja
  CheckBox  | name: Dibujar f3(X) | tip: Dibujar f3(X)
  LineEdit  | name: f3(X)
  LineEdit  | name: Valor de f3(X) en el punto X
  Label f&3(X) =
  Label valor
  ToolButton  | name: Más de f3(X) | tip: Llevar f3(X) a la hoja
  LineEdit 0 | name: Punto X | tip: Un número, o una expresión sin X
  Label &Punto X =
  Label Ho&ja
  PlainTextEdit  | placeholder: X^2-4,-5,5   'y después: Hoja, Cálculo numérico con una variable, Hallar soluciones
  Widget  | name: Gráfica | description: X de -10 a 10 · Y de -10 a 10. Punto X=0
  Frame  | tip: Con este control puede desplazar la gráfica hacia arriba o hacia abajo
    ScrollBar  | name: Control eje Y | description: Con este control puede desplazar la gráfica hacia arriba o hacia abajo | status: Un paso desplaza 1
    Label Control eje Y
  Frame  | tip: Con este control puede desplazar la gráfica a la derecha o a la izquierda
    ScrollBar  | name: Control eje X | description: Con este control puede desplazar la gráfica a la derecha o a la izquierda | status: Un paso desplaza 1
    Label Control eje X
  Frame  | tip: Con este control puede desplazar el punto X hacia la derecha o hacia la izquierda
    ScrollBar  | name: Control punto X | description: Con este control puede desplazar el punto X hacia la derecha o hacia la izquierda
    Label Control punto X
  Label Sin datos | name: Sin datos | tip: Sin datos
  Label X de -10 a 10 · Y de -10 a 10
  ToolBar Barra de herramientas
    ToolButton Eje X X2 | tip: Eje X X2: el eje abarca el doble | status: Eje X X2: el eje abarca el doble
    ToolButton Eje X /2 | tip: Eje X /2: el eje abarca la mitad | status: Eje X /2: el eje abarca la mitad
    ToolButton Eje Y X2 | tip: Eje Y X2: el eje abarca el doble | status: Eje Y X2: el eje abarca el doble
    ToolButton Eje Y /2 | tip: Eje Y /2: el eje abarca la mitad | status: Eje Y /2: el eje abarca la mitad
    ToolButton Ejes X e Y X2 | tip: Ejes X e Y X2: los ejes abarcan el doble | status: Ejes X e Y X2: los ejes abarcan el doble
    ToolButton Ejes X e Y /2 | tip: Ejes X e Y /2: los ejes abarcan la mitad | status: Ejes X e Y /2: los ejes abarcan la mitad
    ToolButton Zoom Gráfica X2 | tip: Zoom Gráfica X2: el dibujo, en torno al punto X, se amplía al doble | status: Zoom Gráfica X2: el dibujo, en torno al punto X, se amplía al doble
    ToolButton Zoom Gráfica /2 | tip: Zoom Gráfica /2: el dibujo, en torno al punto X, se reduce a la mitad | status: Zoom Gráfica /2: el dibujo, en torno al punto X, se reduce a la mitad
)");
}

TEST_F(TextosDeLosFormularios, ElMotivoYElValorDeUnaFunción) {
    Define(1, "2X");
    ASSERT_EQ(std::exchange(grabados.mensajes, {}).size(), 1U);
    Define(2, "X+3");
    const std::string esquema = DevEsquema(formulario);
    const char* const Motivo =
        "Error de lógica en la expresión, verifique la sintaxis · falta * entre 2 y X";
    EXPECT_NE(esquema.find("  LineEdit 2X | name: f1(X) | tip: " + std::string(Motivo) +
                           " | description: " + Motivo + "\n"),
              std::string::npos)
        << esquema;
    EXPECT_NE(esquema.find("  LineEdit 3 | name: Valor de f2(X) en el punto X\n"),
              std::string::npos)
        << esquema;
}

TEST_F(TextosDeLosFormularios, LosExtremos) {
    Pulsa("FijarPuntosExtremos");
    EXPECT_EQ(DevEsquemaDe("frmPuntosExtremos"), R"(
Dialog Establecimiento de puntos extremos
  LineEdit 10
  Label Punto +X=
  LineEdit -10
  Label Punto -X=
  LineEdit 10
  Label Punto +Y=
  LineEdit -10
  Label Punto -Y=
  PushButton Aceptar
  PushButton Cancelar
)");
}

TEST_F(TextosDeLosFormularios, LaBúsquedaDeÓrdenes) {
    Pulsa("BuscarOrden");
    EXPECT_EQ(DevEsquemaDe("frmBuscarOrden"), R"(
Dialog Buscar orden
  LineEdit  | name: Parte del nombre de la orden
  TreeWidget  | name: Órdenes
    Orden | Datos | Ejemplo
    Resolver sistema lineal | ecuaciones | 2*X(1)+X(2)=3 · X(1)-X(2)=-3/2 | tip: Ecuaciones y funciones
    Hallar máximo común divisor | enteros | 12,18 | tip: Números
    Hallar mínimo común múltiplo | enteros | 12,18 | tip: Números
    Hallar divisores | entero | 360 | tip: Números
    Descomponer en factores primos | entero | 360 | tip: Números
    Hallar números primos | entero,entero | 2,100 | tip: Números
    Hallar soluciones | f(x),extremo1,extremo2 | X^2-4,-5,5 | tip: Cálculo numérico con una variable
    Hallar máximos | f(x),extremo1,extremo2 | X^3-3*X,-5,5 | tip: Cálculo numérico con una variable
    Hallar mínimos | f(x),extremo1,extremo2 | X^3-3*X,-5,5 | tip: Cálculo numérico con una variable
    Hallar puntos de inflexión | f(x),extremo1,extremo2 | X^3,-1,1 | tip: Cálculo numérico con una variable
    Hallar área en un intervalo | f(x),extremo1,extremo2 | X,0,1 | tip: Cálculo numérico con una variable
    Hallar derivada | f(x) | X*EXP(X) | tip: Cálculo simbólico con una variable
    Hallar la ecuación de la tangente a un punto | f(x),punto | X^2,3 | tip: Cálculo simbólico con una variable
    Hallar la ecuación de la secante a dos puntos | f(x),extremo1,extremo2 | X^2,1,3 | tip: Cálculo simbólico con una variable
    Desarrollar totalmente | f(x) | X/2+X^2/3 | tip: Cálculo simbólico con una variable
    Desarrollar simplificadamente | f(x) | (X+1)^3 | tip: Cálculo simbólico con una variable
    Simplificar función racional | f(x) | (X^2-3*X+2)/(X^2-1) | tip: Cálculo simbólico con una variable
    Factorizar función racional | f(x),extremo1,extremo2 | (X^2-1)/(X^2+X),-10,10 | tip: Cálculo simbólico con una variable
    Máximo común divisor funciones racionales | f(x),g(x),... | X^3-1,X^2-1 | tip: Cálculo simbólico con una variable
    Mínimo común múltiplo funciones racionales | f(x),g(x),... | X^3-1,X^2-1 | tip: Cálculo simbólico con una variable
    Desarrollar totalmente | f(...,x,y,z,...,s) | (a+b)^2*(x-y) | tip: Cálculo simbólico con más de una variable
    Desarrollar simplificadamente | f(...,x,y,z,...,s) | (a+b)^2*(x-y) | tip: Cálculo simbólico con más de una variable
    Convertir coeficienes a fracción continua | f(x) | .5*X^2+.125*X | tip: Números
    Hallar polinomio de Lagrange | x1,y1,x2,y2,... | 2,4,3,9,4,16,5,25 | tip: Ecuaciones y funciones
  Label &Parte del nombre:
  PushButton &Ejecutar
  PushButton Cancelar
)");
}

TEST_F(TextosDeLosFormularios, AcercaDe) {
    Pulsa("AcercaDe");
    EXPECT_EQ(DevEsquemaDe("forAcercaDe"), R"(
Dialog Acerca de
  Label ****************************************
Quiralto
****************************************

Se agradecen los comentarios y sugerencias sobre el programa.
  PushButton Cerrar
)");
}

// The spelling is the program's own, blanks at the ends of lines included.
TEST_F(TextosDeLosFormularios, LaAyuda) {
    Pulsa("Contenido");
    EXPECT_EQ(DevEsquemaDe("formAyuda"), R"(
Dialog Temas de ayuda
  PlainTextEdit  | name: Tema de ayuda
  Label SELECCIONE UN TEMA DE AYUDA
  PushButton TIPO DE NOTACIÓN ACEPTADA POR EL PROGRAMA
)");
    Busca<QPushButton>("cmdAyuda").click();
    EXPECT_EQ(Busca<QPlainTextEdit>("txtAyuda").toPlainText().toStdString(),
              R"(EL PROGRAMA RECONOCE COMO OPERADORES MATEMATICOS LOS SIGUIENTES: 

+ (SUMA)
- (RESTA) 
* (MULTIPLICACIÓN) 
/ (DIVISIÓN)
^ (POTENCIACIÓN)

LAS EXPRESIONES SERÁN ASOCIADAS ENTRE PARENTESIS 
'(' <--PARENTESIS ABIERTO 
')' <--PARENTESIS CERRADO. 

LAS FUNCIONES SOPORTADAS HASTA EL MOMENTO SON :

(NOTA: ? SE REFIERE A UNA EXPRESIÓN MATEMÁTICA VÁLIDA.)

LOG(?) <-- LOGARITMO NEPERIANO DE ?
SQR(?) <-- RAIZ CUADRADA DE ?
EXP(?) <-- EL NUMERO e=2.718182... ELEVADO A ? (e^?)
SIN(?) <-- SENO TRIGONOMETRICO DE ?
COS(?) <-- COSENO TRIGONOMETRICO DE ?
TAN(?) <-- TANGENTE TRIGONOMETRICA DE ?
SEC(?) <-- SECANTE TRIGONOMETRICA DE ?
COSEC(?) <-- COSECANTE TRIGONOMETRICA DE ?
ARCSIN(?) <-- ARCO EN RADIANES DEL SENO ?
ATN(?) <-- ARCO EN RADIANES DE LA TANGENTE ?


VARIABLES Y CONSTANTES PERMITIDAS :

SON NUMEROS VALIDOS, AQUELLOS QUE ESTÉN EN EL RANGO 
DE LOS NÚMEROS DE DOBLE PRECISIÓN, ES DECIR : 
 -1.79769313486231E+308 a 1.79769313486231E+308

 EL SEPARADOR DECIMAL ES EL PUNTO '.'

LAS VARIABLES PERMITIDAS, SON SEGUN EL AMBITO DONDE 
SE UTILICEN :

X <-- REPRESENTACION GRAFICA DE FUNCIONES
RESOLUCIÓN DE ECUACIONES, MAXIMOS, MINIMOS 
DERIVACION DE FUNCIONES,...ETC

X(?) <-- RESOLUCIÓN DE SISTEMAS DE ECUACIONES LINEALES
'?' EN X(?) SE REFIERE A UN ENTERO ENTRE 1 Y 256

'A' HASTA 'Z', ESTAS VARIABLES SOLO SE PERMITEN EL EL 
DESARROLLO Y SIMPLIFICACION 
DE EXPRESIONES MATEMATICAS DE MÁS DE UNA VARIABLE

A CONTINUACIÓN SE PRESENTAN ALGUNOS EJEMPLOS DE 
EXPRESIONES VALIDAS :

SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3
ATN(X-2)^(SIN(X)-COS(X)*3)
(SIN(A+B)*COS(X-Y)+3*X*Y)^3 <--EXPRESION SOLO VALIDA EN DESARROLLO MULTIVARIABLE)");
}

TEST_F(TextosDeLosFormularios, ElManual) {
    Pulsa("Manual");
    EXPECT_EQ(DevEsquemaDe("frmManual"), R"(
Widget Manual
  TextBrowser  | name: Manual
  Label &Buscar (Intro, el siguiente)
)");
}

TEST_F(TextosDeLosFormularios, LaPreguntaPorLaCajaQueSeSustituye) {
    for (int i = 0; i < 4; ++i)
        Define(i, std::to_string(i).c_str());
    txtSalida.setPlainText(QStringLiteral("X^2"));
    const auto abre = [&] {
        QContextMenuEvent suceso(QContextMenuEvent::Keyboard, QPoint(5, 5), QPoint(5, 5));
        QApplication::sendEvent(txtSalida.viewport(), &suceso);
        auto& menú = dynamic_cast<QMenu&>(*QApplication::activePopupWidget());
        menú.setActiveAction(menú.actions().front());
        QTest::keyClick(&menú, Qt::Key_Return);
    };
    const int vistos = ConDiálogos(abre, [](QWidget& diálogo) {
        EXPECT_EQ('\n' + DevEsquema(diálogo), R"(
InputDialog Dibujar
  Label Las cuatro cajas están ocupadas. ¿Cuál se sustituye?
  ComboBox f0(X)=0|f1(X)=1|f2(X)=2|f3(X)=3
  PushButton Aceptar
  PushButton Cancelar
)");
        dynamic_cast<QDialog&>(diálogo).reject();
    });
    EXPECT_EQ(vistos, 1);
}

TEST_F(TextosDeLosFormularios, LaDescripciónDeLaImagen) {
    Define(2, "X^2-4");
    Resuelve(QStringLiteral("X^2-4,-5,5"), "HallarSoluciones");
    EXPECT_EQ(Busca<QWidget>("VisorFunciones").accessibleDescription().toStdString(),
              "X de -10 a 10 · Y de -10 a 10. Punto X=0. f2(X)=X^2-4, en X vale -4. "
              "Marcas: Solución de f2(X) en X=-2; Solución de f2(X) en X=2");
}

// A widget, so that the letters are smoothed as those of the graph are.
struct Rótulo : QWidget {
    void paintEvent(QPaintEvent* /*suceso*/) override {
        QPainter pintor(this);
        pintor.fillRect(rect(), Papel);
        pintor.setPen(ColorTexto);
        pintor.drawText(QRect(0, 0, 600, 350), Qt::AlignCenter,
                        QStringLiteral("Escriba una función en f0(X), por ejemplo SIN(X)"), &marco);
    }

    QRect marco;
};

// It is drawn, not held by any control: the same letters on the same ground.
TEST_F(TextosDeLosFormularios, LaInvitaciónDeLaGráficaVacía) {
    auto& visor = Busca<QWidget>("VisorFunciones");
    visor.setFixedSize(600, 400);
    QTest::qWait(1);
    Rótulo esperado;
    esperado.setFont(visor.font());
    esperado.setFixedSize(visor.size());
    esperado.setAttribute(Qt::WA_OpaquePaintEvent, visor.testAttribute(Qt::WA_OpaquePaintEvent));
    const auto imagen = [](QWidget& cuál) {
        return cuál.grab().toImage().convertToFormat(QImage::Format_RGB32);
    };
    const QImage letras = imagen(esperado);
    EXPECT_EQ(imagen(visor).copy(esperado.marco), letras.copy(esperado.marco));
}

TEST_F(TextosDeLosFormularios, LosAvisosDeLaBarraDeEstado) {
    const auto aviso = [&](const char* acción) {
        Pulsa(acción);
        return formulario.statusBar()->currentMessage().toStdString();
    };
    EXPECT_EQ(aviso("CopiarGráfica"), "Gráfica copiada");
    EXPECT_EQ(aviso("CopiarTabla"), "No hay ninguna función encendida");
    Define(0, "X");
    EXPECT_EQ(aviso("CopiarTabla"), "Tabla copiada: 301 valores de X");
    EXPECT_EQ(Busca<QAction>("RepetirOrden").statusTip(), QString());
    Resuelve(QStringLiteral("360"), "DescomponerFactoresPrimos");
    EXPECT_EQ(Busca<QAction>("RepetirOrden").statusTip(), QStringLiteral("Hallar factores primos"));
}

TEST_F(TextosDeLosFormularios, ElProgreso) {
    VigilanteVentana impaciente(std::chrono::milliseconds(0));
    const int vistos = ConDiálogos(
        [&] {
            const VigilanteVentana::Guardia guardia(impaciente);
            while (impaciente.Continúa()) {
            }
        },
        [](QWidget& diálogo) {
            EXPECT_EQ('\n' + DevEsquema(diálogo), R"(
ProgressDialog Quiralto
  Label Calculando…
  PushButton Cancelar
)");
            diálogo.findChild<QPushButton*>()->click();
        });
    EXPECT_EQ(vistos, 1);
}

} // namespace
} // namespace quiralto
