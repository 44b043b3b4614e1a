#include "ui/formularios/frm_ayuda.h"

#include "commands/hoja.h"
#include "ui/dibujo/fuentes.h"
#include "ui/dibujo/texto_qt.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace quiralto {
namespace {

// The spelling is the program's own; nothing here is a slip.
constexpr std::string_view Notación =
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


VARIABLES Y CONSTANTES PERMITIDAS :)";

constexpr std::string_view Variables = R"(SON NUMEROS VALIDOS, AQUELLOS QUE ESTÉN EN EL RANGO 
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
(SIN(A+B)*COS(X-Y)+3*X*Y)^3 <--EXPRESION SOLO VALIDA EN DESARROLLO MULTIVARIABLE)";

} // namespace

QString DevTextoAyuda() {
    return DevQString(ConCrLf(Notación) + "\r\n\r\n" + ConCrLf(Variables));
}

FrmAyuda::FrmAyuda(QWidget* padre)
    : QDialog(padre, Qt::Window), txtAyuda_(new QPlainTextEdit(this)) {
    setObjectName(QStringLiteral("formAyuda"));
    setWindowTitle(QStringLiteral("Temas de ayuda"));
    auto* Label1 = new QLabel(QStringLiteral("SELECCIONE UN TEMA DE AYUDA"), this);
    Label1->setObjectName(QStringLiteral("Label1"));
    auto* cmdAyuda =
        new QPushButton(QStringLiteral("TIPO DE NOTACIÓN ACEPTADA POR EL PROGRAMA"), this);
    cmdAyuda->setObjectName(QStringLiteral("cmdAyuda"));
    cmdAyuda->setAutoDefault(true);
    txtAyuda_->setObjectName(QStringLiteral("txtAyuda"));
    txtAyuda_->setAccessibleName(QStringLiteral("Tema de ayuda"));
    txtAyuda_->setReadOnly(true);
    txtAyuda_->setTabChangesFocus(true);
    txtAyuda_->setFont(DevFuenteFija());
    Label1->setBuddy(cmdAyuda);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(12, 12, 12, 12);
    columna->addWidget(Label1);
    columna->addWidget(cmdAyuda);
    columna->addWidget(txtAyuda_, 1);
    connect(cmdAyuda, &QPushButton::clicked, this, &FrmAyuda::cmdAyuda_Click);
    cmdAyuda->setFocus();
    resize(680, 560);
}

void FrmAyuda::cmdAyuda_Click() {
    txtAyuda_->setPlainText(DevQString(ConLf(DevUtf8(DevTextoAyuda()))));
}

} // namespace quiralto
