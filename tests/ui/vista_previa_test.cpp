// The real preview of both prints: what its page shows, and what becomes of it.

#include "tests/proceso.h"
#include "tests/ui/dialogos.h"
#include "tests/ui/ventana_de_prueba.h"
#include "ui/programa/impresora.h"

#include <QGraphicsView>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QRegularExpression>

namespace quiralto {
namespace {

// The form with the platform's dialogs.
class VistaPrevia : public testing::Test {
protected:
    VistaPrevia() {
        formulario.Comienza();
        formulario.show();
        auto* caja = formulario.findChild<QLineEdit*>(QStringLiteral("txtfx_3"));
        formulario.findChild<QWidget*>(QStringLiteral("VisorFunciones"))->setFixedSize(500, 300);
        caja->setText(QStringLiteral("X^2-4"));
        QTest::keyClick(caja, Qt::Key_Return);
        hoja->setPlainText(QStringLiteral("X^2-4,-5,5\n'Solución en X=-2"));
    }

    void Pulsa(const char* acción) {
        formulario.findChild<QAction*>(QString::fromUtf8(acción))->trigger();
    }
    static void PulsaBotón(QWidget& diálogo, const QString& título) {
        for (auto* botón : diálogo.findChildren<QPushButton*>())
            if (botón->text() == título) {
                botón->click();
                return;
            }
        ADD_FAILURE() << "no button " << título.toStdString();
    }
    // The page at about 85 dots to the inch.
    static QImage DevPágina(QWidget& diálogo) {
        auto* escena = diálogo.findChild<QGraphicsView*>()->scene();
        QImage imagen(escena->sceneRect().size().scaled(1000, 1000, Qt::KeepAspectRatio).toSize(),
                      QImage::Format_RGB32);
        imagen.fill(Qt::lightGray);
        QPainter pintor(&imagen);
        escena->render(&pintor);
        return imagen;
    }
    // How many pixels of an ink there are below a share of the height.
    template <typename EsTinta> static int Cuenta(const QImage& imagen, double desde, EsTinta es) {
        int cuenta = 0;
        for (int y = static_cast<int>(desde * imagen.height()); y < imagen.height(); ++y)
            for (int x = 0; x < imagen.width(); ++x)
                cuenta += es(imagen.pixelColor(x, y)) ? 1 : 0;
        return cuenta;
    }
    static bool EsAzul(const QColor& c) { return c.blue() > 200 && c.red() < 60 && c.green() < 60; }
    static bool EsNegro(const QColor& c) { return c.lightness() < 60; }
    static bool EsAzulado(const QColor& c) { return c.blue() > c.red() + 60; }

    MensajesGrabados grabados;
    VigilanteVentana vigilante{std::chrono::hours(1)};
    Primos tabla{};
    Contexto contexto{grabados, vigilante, tabla};
    ImpresoraDelSistema impresora;
    FrmGráficas formulario{contexto, vigilante, impresora};
    QPlainTextEdit* hoja = formulario.findChild<QPlainTextEdit*>(QStringLiteral("txtSalida"));
    QTemporaryDir carpeta;
};

TEST_F(VistaPrevia, EnseñaLaPáginaYSeCierra) {
    for (const char* acción : {"PrevisualizarGráfica", "PrevisualizarTexto"}) {
        const bool gráfica = acción == std::string("PrevisualizarGráfica");
        const int vistos =
            ConDiálogos([&] { Pulsa(acción); },
                        [&](QWidget& diálogo) {
                            EXPECT_EQ(diálogo.windowTitle(), QStringLiteral("Vista previa"));
                            EXPECT_TRUE(diálogo.isModal());
                            auto* páginas = diálogo.findChild<QPrintPreviewWidget*>();
                            ASSERT_NE(páginas, nullptr);
                            EXPECT_EQ(páginas->pageCount(), 1);
                            const QImage página = DevPágina(diálogo);
                            EXPECT_EQ(página.width() > página.height(), gráfica);
                            EXPECT_EQ(Cuenta(página, 0, EsAzul) > 200, gráfica);
                            EXPECT_EQ(Cuenta(página, 0.82, EsAzulado) > 10, gráfica); // the legend
                            EXPECT_GT(Cuenta(página, 0, EsNegro), 30);
                            PulsaBotón(diálogo, QStringLiteral("Cerrar"));
                        });
        EXPECT_EQ(vistos, 1) << acción; // nothing is asked about a printer
    }
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(VistaPrevia, ImprimeLoQueEnseña) {
    for (const char* acción : {"PrevisualizarGráfica", "PrevisualizarTexto"}) {
        const QString fichero =
            carpeta.filePath(QString::fromUtf8(acción) + QStringLiteral(".pdf"));
        const int vistos = ConDiálogos([&] { Pulsa(acción); },
                                       [&](QWidget& diálogo) {
                                           auto* elegir = dynamic_cast<QPrintDialog*>(&diálogo);
                                           if (elegir == nullptr) {
                                               PulsaBotón(diálogo, QStringLiteral("&Imprimir…"));
                                               return;
                                           }
                                           elegir->printer()->setOutputFileName(fichero);
                                           elegir->done(QDialog::Accepted);
                                       });
        EXPECT_EQ(vistos, 2) << acción;
        const Final final = Ejecuta({
            .palabras = {"/usr/bin/pdftotext", "-bbox-layout", fichero.toStdString(), "-"},
            .entrada = {},
            .entorno = {},
        });
        ASSERT_EQ(final.estado, 0) << final.errores;
        const QString texto = QString::fromStdString(final.salida);
        const bool gráfica = acción == std::string("PrevisualizarGráfica");
        EXPECT_EQ(texto.contains(QStringLiteral(">f3(X)=X^2-4</word>")), gráfica);
        EXPECT_EQ(texto.contains(QStringLiteral(">X^2-4,-5,5</word>")), !gráfica);
        const QRegularExpression palabra(
            QStringLiteral("<word [^>]*yMin=\"([0-9.]+)\"[^>]*yMax=\"([0-9.]+)\">"));
        int palabras = 0;
        for (auto i = palabra.globalMatch(texto); i.hasNext(); ++palabras) {
            const QRegularExpressionMatch cuál = i.next();
            EXPECT_GT(cuál.captured(2).toDouble() - cuál.captured(1).toDouble(), gráfica ? 9 : 14);
        }
        EXPECT_GT(palabras, gráfica ? 12 : 2);
    }
    EXPECT_TRUE(grabados.mensajes.empty());
}

} // namespace
} // namespace quiralto
