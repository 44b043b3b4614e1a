// What is written at the end of the worksheet behind a comment or a result.

#include "tests/ui/ventana_de_prueba.h"

#include <QClipboard>

namespace quiralto {
namespace {

class TrasResultado : public VentanaDePrueba {
protected:
    void Pon(const QString& texto) {
        txtSalida.setPlainText(texto);
        txtSalida.moveCursor(QTextCursor::End);
    }
    void Teclea(const char* texto) { QTest::keyClicks(&txtSalida, QString::fromUtf8(texto)); }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers modificadores = Qt::NoModifier) {
        QTest::keyClick(&txtSalida, tecla, modificadores);
    }
    void Deshace() { Tecla(Qt::Key_Z, Qt::ControlModifier); }
    void Compone(const char* texto) {
        QInputMethodEvent enMarcha(QStringLiteral("^"), {});
        QApplication::sendEvent(&txtSalida, &enMarcha);
        QInputMethodEvent suceso;
        suceso.setCommitString(QString::fromUtf8(texto));
        QApplication::sendEvent(&txtSalida, &suceso);
    }
    void Pega(const char* texto) {
        QApplication::clipboard()->setText(QString::fromUtf8(texto));
        Tecla(Qt::Key_V, Qt::ControlModifier);
    }

    const std::string resultado = "'Desarrollo : X^3";
};

TEST_F(TrasResultado, LoTecleadoVaEnUnaLíneaNueva) {
    for (const char* última : {"'Desarrollo : X^3", "  'nota", "Simplificación :(X+1)", "X\n'a"}) {
        Pon(QString::fromUtf8(última));
        Teclea("x^4");
        EXPECT_EQ(DevTexto(), std::string(última) + "\nX^4");
    }
}

TEST_F(TrasResultado, LaOrdenSiguienteContestaALoTecleado) {
    Pon(DevQString(resultado));
    Teclea("x^4");
    Pulsa("HallarDerivada");
    EXPECT_TRUE(DevTexto().ends_with("X^4\n\n'Derivada : \n'4*X^3")) << DevTexto();
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(TrasResultado, LoCompuestoYLoPegadoTambién) {
    Pon(DevQString(resultado));
    Compone("x");
    EXPECT_EQ(DevTexto(), resultado + "\nX");
    Pon(DevQString(resultado));
    Pega("  x^4 , 1 ,2");
    EXPECT_EQ(DevTexto(), resultado + "\nX^4,1,2");
}

TEST_F(TrasResultado, EsUnSoloPasoQueSeDeshace) {
    Pon(DevQString(resultado));
    Teclea("x^4");
    Deshace();
    EXPECT_EQ(DevTexto(), resultado);
    Tecla(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(DevTexto(), resultado + "\nX^4");
    for (const auto& escribe :
         {std::function<void()>([&] { Compone("x"); }), {[&] { Pega("x"); }}}) {
        Pon(DevQString(resultado));
        escribe();
        Deshace();
        EXPECT_EQ(DevTexto(), resultado);
    }
}

TEST_F(TrasResultado, RetrocesoEnSeguidaQuitaSóloElSalto) {
    Pon(DevQString(resultado));
    Teclea("x");
    Tecla(Qt::Key_Backspace);
    EXPECT_EQ(DevTexto(), resultado + "X");
    Teclea("y"); // whoever has taken it back writes a comment
    EXPECT_EQ(DevTexto(), resultado + "XY");
    Tecla(Qt::Key_Backspace);
    EXPECT_EQ(DevTexto(), resultado + "X");

    Pon(DevQString(resultado));
    Pega("x^4");
    Tecla(Qt::Key_Backspace);
    EXPECT_EQ(DevTexto(), resultado + "X^4");
}

TEST_F(TrasResultado, MásTardeRetrocesoBorraUnCarácter) {
    Pon(DevQString(resultado));
    Teclea("x^");
    Tecla(Qt::Key_Backspace);
    EXPECT_EQ(DevTexto(), resultado + "\nX");

    Pon(DevQString(resultado));
    Teclea("x");
    Tecla(Qt::Key_Left);
    Tecla(Qt::Key_Right);
    Tecla(Qt::Key_Backspace);
    EXPECT_EQ(DevTexto(), resultado + "\n");
}

TEST_F(TrasResultado, ElComentarioQueSeEscribeSigueEnSuLínea) {
    Teclea("'nota");
    EXPECT_EQ(DevTexto(), "'NOTA");
    Tecla(Qt::Key_Backspace);
    Pega(": no");
    Teclea("s");
    EXPECT_EQ(DevTexto(), "'NOT: noS");
    Tecla(Qt::Key_Return);
    Teclea("x'y");
    EXPECT_EQ(DevTexto(), "'NOT: noS\nX'Y");
    Tecla(Qt::Key_Return);
    Teclea("'z");
    Tecla(Qt::Key_Up);
    Tecla(Qt::Key_Down); // back in it, it is a comment as any other
    Tecla(Qt::Key_End);
    Teclea("x");
    EXPECT_EQ(DevTexto(), "'NOT: noS\nX'Y\n'Z\nX");
}

TEST_F(TrasResultado, DeshacerElComentarioPropioNoDejaEscribirEnElResultado) {
    Pon(DevQString(resultado));
    Tecla(Qt::Key_Return);
    Teclea("'ab");
    while (DevTexto() != resultado)
        Deshace();
    Teclea("x");
    EXPECT_EQ(DevTexto(), resultado + "\nX");
}

TEST_F(TrasResultado, UnApóstrofoYLoDeMásNoCambian) {
    Pon(DevQString(resultado));
    Teclea("' ");
    EXPECT_EQ(DevTexto(), resultado + "'");
    Pon(DevQString(resultado + "\n"));
    Teclea("x");
    EXPECT_EQ(DevTexto(), resultado + "\nX");
    Pon(QStringLiteral("X^2,3'nota")); // data with a comment behind it
    Teclea("y");
    EXPECT_EQ(DevTexto(), "X^2,3'notaY");
    Pon(DevQString(resultado));
    Tecla(Qt::Key_Left);
    Teclea("x");
    EXPECT_EQ(DevTexto(), "'Desarrollo : X^X3");
    Pon(DevQString(resultado));
    Tecla(Qt::Key_Left, Qt::ShiftModifier);
    Teclea("4"); // in the place of what is selected
    EXPECT_EQ(DevTexto(), "'Desarrollo : X^4");
}

} // namespace
} // namespace quiralto
