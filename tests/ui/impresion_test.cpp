// What comes out of the printer, read back from a PDF file.

#include "tests/proceso.h"
#include "tests/ui/ventana_de_prueba.h"

#include <QFile>

namespace quiralto {
namespace {

class Impresión : public VentanaDePrueba {
protected:
    Impresión() { impresora.fichero = carpeta.filePath(QStringLiteral("hoja.pdf")); }

    // The pages' texts, a line each printed line, without blank lines.
    std::vector<std::vector<std::string>> DevPáginas() {
        const Final final = Ejecuta({
            .palabras = {"/usr/bin/pdftotext", "-layout", impresora.fichero.toStdString(), "-"},
            .entrada = {},
            .entorno = {},
        });
        EXPECT_EQ(final.estado, 0) << final.errores;
        std::vector<std::vector<std::string>> páginas;
        for (const QString& página :
             QString::fromStdString(final.salida).split(u'\f', Qt::SkipEmptyParts)) {
            páginas.emplace_back();
            for (const QString& línea : página.split(u'\n', Qt::SkipEmptyParts))
                páginas.back().push_back(línea.trimmed().toStdString());
        }
        return páginas;
    }

    QTemporaryDir carpeta;
};

TEST_F(Impresión, LaHojaSeImprimeConSusComentariosYCortadaA80) {
    txtSalida.setPlainText(QStringLiteral("X^2-4,-5,5\n'Solución en X=-2\n") + QString(200, u'7'));
    Pulsa("ImprimirTexto");
    EXPECT_EQ(DevPáginas(), (std::vector<std::vector<std::string>>{
                                {"X^2-4,-5,5", "'Solución en X=-2", std::string(80, '7'),
                                 std::string(80, '7'), std::string(40, '7')}}));
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Impresión, UnaHojaLargaOcupaVariasPáginas) {
    std::vector<std::string> esperadas;
    QString hoja;
    for (int i = 0; i < 200; ++i) {
        esperadas.push_back("X+" + std::to_string(i));
        hoja += DevQString(esperadas.back()) + u'\n';
    }
    txtSalida.setPlainText(hoja);
    Pulsa("ImprimirTexto");
    const auto páginas = DevPáginas();
    EXPECT_GT(páginas.size(), 3U);
    std::vector<std::string> impresas;
    for (const auto& página : páginas)
        impresas.insert(impresas.end(), página.begin(), página.end());
    EXPECT_EQ(impresas, esperadas);
}

// The widest letters, 80 of them, still stand on the page.
TEST_F(Impresión, UnaLíneaAnchaCabeEnLaPágina) {
    txtSalida.setPlainText(QString(80, u'W'));
    Pulsa("ImprimirTexto");
    const Final final = Ejecuta({
        .palabras = {"/usr/bin/pdftotext", "-bbox", impresora.fichero.toStdString(), "-"},
        .entrada = {},
        .entorno = {},
    });
    const auto valor = [&](const char* nombre) {
        const QString texto = QString::fromStdString(final.salida);
        const QString marca = QString::fromLatin1(nombre) + QStringLiteral("=\"");
        const qsizetype i = texto.indexOf(marca) + marca.size();
        return texto.mid(i, texto.indexOf(u'"', i) - i).toDouble();
    };
    EXPECT_GT(valor("xMax"), 400);
    EXPECT_LE(valor("xMax"), valor("width"));
}

TEST_F(Impresión, CancelarElDiálogoNoImprime) {
    impresora.fichero.clear();
    Pulsa("ImprimirTexto");
    EXPECT_TRUE(grabados.mensajes.empty());
}

TEST_F(Impresión, UnaImpresoraInservibleSeAvisa) {
    impresora.fichero = carpeta.filePath(QStringLiteral("no/existe/hoja.pdf"));
    Pulsa("ImprimirTexto");
    EXPECT_EQ(grabados.mensajes,
              std::vector{(Mensaje{Icono::Exclamación, "No se puede imprimir"})});
}

} // namespace
} // namespace quiralto
