// Every example of the manual and of the README gives what they show.

#include "tests/cli/terminal.h"

#include "commands/ordenes.h"

#include <map>
#include <set>
#include <sstream>

namespace quiralto {
namespace {

// A block between fences: the words behind the opening one, and its lines.
struct Bloque {
    std::string clase;
    std::string argumento;
    std::string texto;
};

std::string LeeFichero(const std::string& nombre) {
    const std::ifstream fichero(std::filesystem::path(QUIRALTO_FUENTES) / nombre);
    std::ostringstream texto;
    texto << fichero.rdbuf();
    return texto.str();
}

std::vector<Bloque> DevBloques(const std::string& documento) {
    std::vector<Bloque> bloques;
    std::istringstream líneas(documento);
    bool dentro = false;
    for (std::string línea; std::getline(líneas, línea);) {
        if (línea.starts_with("```")) {
            dentro = !dentro;
            if (dentro) {
                const std::size_t blanco = std::min(línea.find(' '), línea.size());
                const std::string resto = línea.substr(std::min(blanco + 1, línea.size()));
                bloques.push_back({línea.substr(3, blanco - 3), resto, ""});
            }
        } else if (dentro) {
            bloques.back().texto += línea + '\n';
        }
    }
    return bloques;
}

// What stands in front of the first empty line, and what behind it.
std::pair<std::string, std::string> Parte(const std::string& texto) {
    const std::size_t vacía = texto.find("\n\n");
    return {texto.substr(0, vacía), texto.substr(std::min(vacía + 2, texto.size()))};
}

// A worksheet as a command leaves it. Its data end before the first empty line or comment.
void PruebaOrden(const Bloque& bloque) {
    const std::size_t datos = std::min(bloque.texto.find("\n\n"), bloque.texto.find("\n'"));
    Final final = LlamaAlTerminal({"--orden", bloque.argumento}, bloque.texto.substr(0, datos));
    if (!final.salida.ends_with('\n'))
        final.salida += '\n';
    EXPECT_TRUE(Termina(final, 0, bloque.texto, "")) << bloque.argumento;
}

// Data, an empty line and the message that refuses them.
void PruebaMensaje(const Bloque& bloque) {
    const auto [datos, mensaje] = Parte(bloque.texto);
    const Final final = LlamaAlTerminal({"--orden", bloque.argumento}, datos);
    EXPECT_EQ(final.estado, 1) << bloque.argumento;
    std::string mostrado = final.errores.substr(0, final.errores.find("línea: "));
    mostrado.erase(0, mostrado.find(": ") + 2); // the icon
    EXPECT_EQ(mostrado, mensaje) << bloque.argumento;
}

// Lines that begin with "$ " are typed; the others are what both outputs then show.
void PruebaConsola(const Bloque& bloque) {
    std::istringstream líneas(bloque.texto);
    std::string línea;
    std::getline(líneas, línea);
    const std::string ruta =
        std::filesystem::path(QUIRALTO_CLI).parent_path().string() + ":/usr/bin:/bin";
    while (!línea.empty()) {
        ASSERT_TRUE(línea.starts_with("$ ")) << línea;
        const std::string mandato = línea.substr(2);
        std::string mostrado;
        while (std::getline(líneas, línea) && !línea.starts_with("$ "))
            mostrado += línea + '\n';
        if (!líneas)
            línea.clear();
        Final final = Ejecuta({.palabras = {"/bin/sh", "-c", "exec 2>&1; " + mandato},
                               .entrada = "",
                               .entorno = {{"PATH", ruta}}});
        if (!final.salida.ends_with('\n'))
            final.salida += '\n';
        EXPECT_EQ(final.salida, mostrado) << mandato;
    }
}

int PruebaDocumento(const std::string& documento) {
    int probados = 0;
    for (const Bloque& bloque : DevBloques(documento)) {
        if (bloque.clase == "orden")
            PruebaOrden(bloque);
        else if (bloque.clase == "mensaje")
            PruebaMensaje(bloque);
        else if (bloque.clase == "console")
            PruebaConsola(bloque);
        else
            continue;
        ++probados;
    }
    return probados;
}

TEST(Manual, LosEjemplosDanLoQueEnseña) {
    EXPECT_GT(PruebaDocumento(LeeFichero("docs/manual.md")), 40);
}

TEST(Manual, TieneUnEjemploDeCadaOrden) {
    std::set<std::string> ejemplos;
    const std::string manual = LeeFichero("docs/manual.md");
    for (const Bloque& bloque : DevBloques(manual))
        if (bloque.clase == "orden")
            ejemplos.insert(bloque.argumento);
    for (const Orden& orden : DevÓrdenes()) {
        const std::string texto(orden.texto);
        const std::string título(orden.título);
        EXPECT_TRUE(ejemplos.contains(texto) || ejemplos.contains(título)) << texto;
        EXPECT_NE(manual.find("\n#### " + título), std::string::npos) << título;
    }
}

TEST(Readme, LosEjemplosDeTerminalDanLoQueEnseña) {
    EXPECT_GT(PruebaDocumento(LeeFichero("README.md")), 0);
}

// A row: caption | form | data | results, whose lines are parted by " · ".
TEST(Readme, LosEjemplosDeLaTablaDanLoQueEnseña) {
    std::map<std::string, std::string> textos;
    for (const Orden& orden : DevÓrdenes())
        textos[std::string(orden.título) +
               (orden.texto.ends_with("multivariable") ? " (several variables)" : "")] =
            orden.texto;
    std::istringstream líneas(LeeFichero("README.md"));
    std::size_t filas = 0;
    for (std::string línea; std::getline(líneas, línea);) {
        std::vector<std::string> celdas;
        std::istringstream resto(línea);
        for (std::string celda; std::getline(resto, celda, '|');)
            celdas.push_back(celda);
        if (celdas.size() != 5 || !textos.contains(celdas[1].substr(1, celdas[1].size() - 2)))
            continue;
        ++filas;
        const auto DevTrozos = [](std::string celda) {
            std::vector<std::string> trozos;
            for (std::size_t i; (i = celda.find('`')) != std::string::npos;) {
                const std::size_t fin = celda.find('`', i + 1);
                trozos.push_back(celda.substr(i + 1, fin - i - 1));
                celda.erase(0, fin + 1);
            }
            return trozos;
        };
        std::string hoja;
        for (const std::string& trozo : DevTrozos(celdas[3]))
            hoja += trozo + '\n';
        const std::string orden = textos[celdas[1].substr(1, celdas[1].size() - 2)];
        const std::string salida = '\n' + LlamaAlTerminal({"--orden", orden}, hoja).salida + '\n';
        for (const std::string& trozo : DevTrozos(celdas[4]))
            EXPECT_NE(salida.find('\n' + trozo + '\n'), std::string::npos) << orden << salida;
    }
    EXPECT_EQ(filas, DevÓrdenes().size());
}

} // namespace
} // namespace quiralto
