#include "ui/hoja/lector_estado.h"

#include "commands/ordenes.h"
#include "engine/lenguaje/operaciones.h"
#include "ui/grafica/pista.h"

#include <algorithm>
#include <array>
#include <exception>
#include <set>

namespace quiralto {
namespace {

constexpr std::size_t MáximoLeído = std::size_t{64} << 10;
constexpr std::size_t MáximoCampos = 24; // that are told one by one
constexpr std::string_view Separador = " · ";

std::string DevCantidad(std::size_t cuántos, std::string_view uno, std::string_view varios) {
    return std::to_string(cuántos) + ' ' + std::string(cuántos == 1 ? uno : varios);
}

std::string SinBlancos(std::string_view texto) {
    std::string limpio(texto);
    std::erase(limpio, ' ');
    return limpio;
}

// The whole lines of the first 64 KiB; a longer single line is cut.
std::string_view DevComienzo(std::string_view hoja) {
    if (hoja.size() <= MáximoLeído)
        return hoja;
    const std::size_t fin = hoja.rfind("\r\n", MáximoLeído);
    return hoja.substr(0, fin == std::string_view::npos ? MáximoLeído : fin);
}

std::string DevNúmeros(std::span<const std::string> líneas) {
    std::size_t cuántos = 0;
    std::string lista;
    for (const std::string& línea : líneas)
        for (const std::string_view campo : CortaCampos(línea)) {
            if (++cuántos <= MáximoCampos)
                (lista += cuántos == 1 ? ": " : Separador) += SinBlancos(campo);
        }
    if (cuántos > MáximoCampos)
        lista += "…";
    return DevCantidad(cuántos, "número", "números") + lista;
}

// The first function, then what follows it under these names.
std::string DevFunción(std::string_view línea, std::span<const std::string_view> nombres) {
    const std::vector<std::string_view> campos = CortaCampos(línea);
    std::string texto = "f(X)=" + SinBlancos(campos[0]);
    for (std::size_t i = 1; i < campos.size() && i <= nombres.size(); ++i) {
        (texto += Separador) += nombres[i - 1];
        (texto += ": ") += SinBlancos(campos[i]);
    }
    return texto;
}

std::string DevFunciones(std::span<const std::string> líneas) {
    std::size_t cuántas = 0;
    std::string lista;
    for (const std::string& línea : líneas)
        for (const std::string_view campo : CortaCampos(línea))
            if (++cuántas <= MáximoCampos)
                (lista += cuántas == 1 ? ": " : Separador) += SinBlancos(campo);
    return DevCantidad(cuántas, "función", "funciones") + lista;
}

// The unknowns that stand in a text as SLN(i).
void ReúneIncógnitas(std::string_view texto, std::set<std::string, std::less<>>& incógnitas) {
    for (std::size_t i = texto.find(PrefijoSln); i != std::string_view::npos;
         i = texto.find(PrefijoSln, i + 1))
        incógnitas.emplace(texto.substr(i, texto.find(')', i) - i));
}

std::string DevEcuaciones(const Lectura& lectura, std::size_t líneas) {
    const auto& datos = std::get<DatosEcuaciones>(lectura.datos);
    if (lectura.rechazo)
        return DevCantidad(líneas, "ecuación", "ecuaciones");
    std::set<std::string, std::less<>> incógnitas;
    for (const DatosEcuaciones::Una& ecuación : datos.ecuaciones) {
        ReúneIncógnitas(ecuación.izquierda, incógnitas);
        ReúneIncógnitas(ecuación.derecha, incógnitas);
    }
    return DevCantidad(datos.ecuaciones.size(), "ecuación", "ecuaciones") + ", " +
           DevCantidad(incógnitas.size(), "incógnita", "incógnitas");
}

// What a refused line lacks, in one line; nothing for the longer texts on how to write data.
std::string DevMotivo(const Lectura& lectura, std::span<const std::string> líneas) {
    if (!lectura.rechazo || !lectura.rechazo->línea)
        return {};
    std::string texto = TextoRechazo(lectura.rechazo->rechazo);
    if (texto.empty() || texto.find('\r') != std::string::npos)
        return {};
    texto.insert(0, Separador);
    const std::string pista = DevPista(CortaCampos(líneas[*lectura.rechazo->línea], 1).front());
    return pista.empty() ? texto : texto + " (" + pista + ")";
}

std::string DevTexto(const Forma& forma, const Lectura& lectura,
                     std::span<const std::string> líneas) {
    static constexpr std::array<std::string_view, 2> Extremos = {"extremo 1", "extremo 2"};
    static constexpr std::array<std::string_view, 1> Punto = {"punto"};
    const std::string motivo = DevMotivo(lectura, líneas);
    switch (forma.clase) {
    case ClaseForma::Ecuaciones:
        return DevEcuaciones(lectura, líneas.size()) + motivo;
    case ClaseForma::Función:
    case ClaseForma::FunciónYPunto:
        return DevFunción(líneas.front(), Punto) + motivo;
    case ClaseForma::FunciónYExtremos:
        return DevFunción(líneas.front(), Extremos) + motivo;
    case ClaseForma::FuncionesRacionales:
        return DevFunciones(líneas) + motivo;
    case ClaseForma::Multivariable:
        return "Varias variables: " + SinBlancos(líneas.front()) + motivo;
    case ClaseForma::Números:
    case ClaseForma::Puntos:
        return DevNúmeros(líneas);
    }
    return {};
}

// The first of several lines that no command would read even if it stood alone.
std::optional<std::size_t> DevErrónea(Contexto& contexto, std::span<const std::string> líneas) {
    for (std::size_t i = 0; i < líneas.size(); ++i) {
        const std::span<const std::string> una = líneas.subspan(i, 1);
        const std::optional<Forma> forma = ReconoceForma(una);
        if (forma && LeeDatos(contexto, *forma, una).rechazo)
            return i;
    }
    return std::nullopt;
}

LecturaHoja LeeLíneas(Contexto& contexto, std::span<const std::string> líneas) {
    const std::optional<Forma> forma = ReconoceForma(líneas);
    if (!forma)
        return {DevCantidad(líneas.size(), "línea de datos", "líneas de datos"),
                DevErrónea(contexto, líneas)};
    if (forma->clase == ClaseForma::Números || forma->clase == ClaseForma::Puntos)
        return {DevNúmeros(líneas), {}};
    const Lectura lectura = LeeDatos(contexto, *forma, líneas);
    return {DevTexto(*forma, lectura, líneas),
            lectura.rechazo ? lectura.rechazo->línea : std::nullopt};
}

} // namespace

LecturaHoja LeeHoja(Contexto& contexto, std::string_view hoja) {
    const std::string_view comienzo = DevComienzo(hoja);
    const std::vector<std::string> líneas = LeeTextBox(comienzo);
    if (líneas.empty())
        return {"Sin datos", {}};
    if (comienzo.size() == hoja.size())
        return LeeLíneas(contexto, líneas);
    if (!hoja.substr(comienzo.size()).starts_with("\r\n")) // cut within its only line
        return {"Más de 64 KiB en una línea", {}};
    LecturaHoja leída = LeeLíneas(contexto, líneas);
    leída.texto.insert(0, "Al menos ");
    return leída;
}

std::vector<std::size_t> DevÓrdenesPosibles(Contexto& contexto, std::string_view hoja) {
    std::vector<std::size_t> posibles;
    if (DevComienzo(hoja).size() < hoja.size())
        return posibles;
    const std::vector<std::string> líneas = LeeTextBox(hoja);
    const std::span<const Orden> órdenes = DevÓrdenes();
    try {
        for (std::size_t i = 0; i < órdenes.size(); ++i)
            if (!líneas.empty() && !LeeDatos(contexto, órdenes[i].forma, líneas).rechazo)
                posibles.push_back(i);
    } catch (const std::exception&) { // data that no command can read
        posibles.clear();
    }
    return posibles;
}

} // namespace quiralto
