#include "cli/opciones.h"

#include "cli/tabla_opciones.h"
#include "engine/base/utf8.h"

#include <algorithm>

namespace quiralto::cli {
namespace {

// The names of some rows: "--orden, --sintaxis o --ayuda".
template <typename Condición> std::string Enumera(Condición&& cuáles) {
    std::vector<std::string_view> nombres;
    for (const Opción& opción : DevTablaOpciones())
        if (cuáles(opción))
            nombres.push_back(opción.nombre);
    std::string lista;
    for (std::size_t i = 0; i < nombres.size(); ++i) {
        if (i > 0)
            lista += i + 1 < nombres.size() ? ", " : " o ";
        lista += nombres[i];
    }
    return lista;
}

std::string NombresDeModos() {
    return Enumera([](const Opción& opción) { return opción.modo.has_value(); });
}

class Lector {
public:
    explicit Lector(std::span<const std::string> palabras) : palabras_(palabras) {}

    Opciones Lee() {
        while (!palabras_.empty())
            LeePalabra(Toma());
        if (!modo_)
            throw UsoErróneo{"se esperaba " + NombresDeModos()};
        opciones_.modo = *modo_;
        CompruebaCompañía();
        CompruebaVentana();
        return opciones_;
    }

private:
    std::string Toma() {
        std::string palabra = palabras_.front();
        palabras_ = palabras_.subspan(1);
        return palabra;
    }

    void LeePalabra(const std::string& palabra) {
        if (sinOpciones_ || palabra == "-" || !palabra.starts_with('-'))
            return PonHoja(palabra);
        if (palabra == "--") {
            sinOpciones_ = true;
            return;
        }
        const std::size_t igual = palabra.starts_with("--") ? palabra.find('=') : std::string::npos;
        const std::string nombre = palabra.substr(0, igual);
        const auto tabla = DevTablaOpciones();
        const auto opción =
            std::ranges::find_if(tabla, [&](const Opción& otra) { return otra.SeLlama(nombre); });
        if (opción == tabla.end())
            throw UsoErróneo{"opción desconocida: " + palabra};
        std::optional<std::string> pegado;
        if (igual != std::string::npos)
            pegado = palabra.substr(igual + 1);
        PonOpción(*opción, nombre, pegado);
    }

    void PonHoja(const std::string& palabra) {
        if (opciones_.hoja)
            throw UsoErróneo{"se esperaba una sola hoja"};
        opciones_.hoja = palabra;
    }

    // `nombre` is how the call has named it; `pegado` stands behind its "=".
    void PonOpción(const Opción& opción, const std::string& nombre,
                   const std::optional<std::string>& pegado) {
        if (opción.modo && modo_)
            throw UsoErróneo{"se esperaba una sola de las opciones " + NombresDeModos()};
        if (opción.modo)
            modo_ = opción.modo;
        else
            puestas_.push_back(&opción);
        if (opción.valor.empty() && pegado)
            throw UsoErróneo{"no se esperaba un valor detrás de " + nombre};
        const std::string valor = opción.valor.empty() ? "" : pegado ? *pegado : TomaValor(nombre);
        opción.pon(opciones_, nombre, valor);
        if (opción.modo == Modo::Evaluar)
            LeeEquis();
    }

    std::string TomaValor(const std::string& opción) {
        if (palabras_.empty())
            throw UsoErróneo{"se esperaba un valor detrás de " + opción};
        return Toma();
    }

    // Behind F every word is a number.
    void LeeEquis() {
        if (palabras_.empty())
            throw UsoErróneo{"se esperaba al menos un valor de X detrás de la función"};
        while (!palabras_.empty())
            opciones_.equis.push_back(LeeDoble(Toma(), "X"));
    }

    void CompruebaCompañía() const {
        if (opciones_.modo != Modo::Orden && opciones_.hoja)
            throw UsoErróneo{"no se esperaba '" + *opciones_.hoja + "'"};
        for (const Opción* puesta : puestas_) {
            const auto con = puesta->con;
            if (con.empty() || std::ranges::find(con, opciones_.modo) != con.end())
                continue;
            const auto vaCon = [&](const Opción& otra) {
                return otra.modo && std::ranges::find(con, *otra.modo) != con.end();
            };
            throw UsoErróneo{"se esperaba " + Enumera(vaCon) + " con " +
                             std::string(puesta->nombre)};
        }
        if (opciones_.json && opciones_.soloResultado)
            throw UsoErróneo{"se esperaba una sola de las opciones --resultado y --json"};
    }

    void CompruebaVentana() const {
        const Ventana& v = opciones_.ventana;
        if (!(v.XMín < v.XMáx) || !(v.YMín < v.YMáx))
            throw UsoErróneo{"se esperaba un mínimo menor que el máximo"};
    }

    std::span<const std::string> palabras_;
    Opciones opciones_;
    std::optional<Modo> modo_;
    std::vector<const Opción*> puestas_; // those that choose no mode
    bool sinOpciones_ = false;           // behind "--"
};

// The columns that a text takes; none of the table's needs more than one for a character.
std::size_t Anchura(std::string_view texto) {
    std::size_t caracteres = 0;
    for (std::size_t i = 0; i < texto.size(); i += LongitudCarácter(texto, i))
        ++caracteres;
    return caracteres;
}

// A row of the list in --ayuda: the option, and what it does in a column of its own.
std::string DevRenglón(const Opción& opción) {
    constexpr std::size_t Columna = 20;
    std::string renglón = "  ";
    if (!opción.corta.empty())
        renglón.append(opción.corta) += ", ";
    renglón += opción.nombre;
    if (!opción.valor.empty())
        (renglón += ' ') += opción.valor;
    renglón.append(Columna - Anchura(renglón), ' ');
    for (const char c : opción.ayuda) {
        renglón += c;
        if (c == '\n')
            renglón.append(Columna, ' ');
    }
    return renglón + '\n';
}

} // namespace

std::optional<Opciones> LeeOpciones(const std::vector<std::string>& palabras, std::string& error) {
    if (!std::ranges::all_of(palabras,
                             [](const std::string& palabra) { return EsUtf8(palabra); })) {
        error = "se esperaba texto en UTF-8";
        return std::nullopt;
    }
    try {
        return Lector(palabras).Lee();
    } catch (const UsoErróneo& uso) {
        error = uso.esperado;
        return std::nullopt;
    }
}

std::string TextoAyuda() {
    std::string texto = "Uso:\n";
    for (const Opción& opción : DevTablaOpciones())
        if (!opción.uso.empty())
            texto.append("  quiralto-cli ").append(opción.uso) += '\n';
    texto += '\n';
    for (const Opción& opción : DevTablaOpciones())
        texto += DevRenglón(opción);
    return texto +=
           "\n"
           "El valor de una opción puede ir pegado con = (--cifras=4). Detrás de -- no hay\n"
           "opciones. Los nombres valen con sus acentos y sin ellos. Los mensajes salen por la\n"
           "salida de errores. Estado: 0 sin mensajes, 1 con algún mensaje, 2 si la llamada no\n"
           "es correcta. Todo lo demás: man quiralto-cli.\n";
}

} // namespace quiralto::cli
