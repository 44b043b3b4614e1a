#include "cli/opciones.h"

#include "engine/base/contexto.h"
#include "engine/base/utf8.h"
#include "engine/numeros/numero.h"

#include <cmath>
#include <span>

namespace quiralto::cli {
namespace {

// A wrong call; what was expected.
struct UsoErróneo {
    std::string esperado;
};

// The number that the whole word is.
double LeeDoble(const std::string& palabra, const std::string& qué) {
    const NúmeroLeído leído = LeeNúmero(palabra);
    if (leído.longitud == 0 || leído.longitud != palabra.size() || leído.desborda)
        throw UsoErróneo{"se esperaba un número para " + qué};
    return leído.valor;
}

int LeeEntero(const std::string& palabra, const std::string& qué, int mínimo, int máximo) {
    const double valor = LeeDoble(palabra, qué);
    if (valor != std::trunc(valor) || valor < mínimo || valor > máximo)
        throw UsoErróneo{"se esperaba un entero de " + std::to_string(mínimo) + " a " +
                         std::to_string(máximo) + " para " + qué};
    return static_cast<int>(valor);
}

class Lector {
public:
    explicit Lector(std::span<const std::string> palabras) : palabras_(palabras) {}

    Opciones Lee() {
        while (!palabras_.empty())
            LeePalabra(Toma());
        if (!modo_)
            throw UsoErróneo{"se esperaba --orden, --sintaxis, --evaluar, --derivar, --muestrear, "
                             "--listar, --ayuda o --version"};
        opciones_.modo = *modo_;
        if (opciones_.modo != Modo::Orden && opciones_.hoja)
            throw UsoErróneo{"no se esperaba '" + *opciones_.hoja + "'"};
        if (opciones_.modo != Modo::Muestrear && !deMuestrear_.empty())
            throw UsoErróneo{"se esperaba --muestrear con " + deMuestrear_};
        CompruebaVentana();
        return opciones_;
    }

private:
    std::string Toma() {
        std::string palabra = palabras_.front();
        palabras_ = palabras_.subspan(1);
        return palabra;
    }

    std::string TomaValor(const std::string& opción) {
        if (palabras_.empty())
            throw UsoErróneo{"se esperaba un valor detrás de " + opción};
        return Toma();
    }

    void PonModo(Modo modo) {
        if (modo_)
            throw UsoErróneo{"se esperaba una sola de las opciones --orden, --sintaxis, --evaluar, "
                             "--derivar, --muestrear, --listar, --ayuda y --version"};
        modo_ = modo;
    }

    bool LeeModo(const std::string& palabra) {
        static constexpr struct {
            std::string_view nombre;
            std::string_view sinAcento;
            Modo modo;
            bool conArgumento;
        } Modos[] = {
            {"--orden", "--orden", Modo::Orden, true},
            {"--sintaxis", "--sintaxis", Modo::Sintaxis, true},
            {"--evaluar", "--evaluar", Modo::Evaluar, true},
            {"--derivar", "--derivar", Modo::Derivar, true},
            {"--muestrear", "--muestrear", Modo::Muestrear, true},
            {"--listar", "--listar", Modo::Listar, false},
            {"--ayuda", "--help", Modo::Ayuda, false},
            {"--versión", "--version", Modo::Versión, false},
        };
        for (const auto& m : Modos) {
            if (palabra != m.nombre && palabra != m.sinAcento)
                continue;
            PonModo(m.modo);
            if (m.conArgumento)
                opciones_.argumento = TomaValor(palabra);
            if (m.modo == Modo::Evaluar)
                LeeEquis();
            return true;
        }
        return false;
    }

    // Behind F every word is a number.
    void LeeEquis() {
        if (palabras_.empty())
            throw UsoErróneo{"se esperaba al menos un valor de X detrás de la función"};
        while (!palabras_.empty())
            opciones_.equis.push_back(LeeDoble(Toma(), "X"));
    }

    bool LeeOpciónDeMuestrear(const std::string& palabra) {
        Ventana& ventana = opciones_.ventana;
        const struct {
            std::string_view nombre;
            std::string_view sinAcento;
            double& destino;
        } extremos[] = {{"--xmín", "--xmin", ventana.XMín},
                        {"--xmáx", "--xmax", ventana.XMáx},
                        {"--ymín", "--ymin", ventana.YMín},
                        {"--ymáx", "--ymax", ventana.YMáx}};
        for (const auto& extremo : extremos) {
            if (palabra == extremo.nombre || palabra == extremo.sinAcento) {
                extremo.destino = LeeDoble(TomaValor(palabra), palabra);
                deMuestrear_ = palabra;
                return true;
            }
        }
        if (palabra != "--puntos")
            return false;
        opciones_.puntos = LeeEntero(TomaValor(palabra), palabra, 1, MáximoCantidadPuntos);
        deMuestrear_ = palabra;
        return true;
    }

    void LeePalabra(const std::string& palabra) {
        if (palabra == "--cifras") {
            opciones_.cifras = LeeEntero(TomaValor(palabra), palabra, 0, MáximoDígitosRedondeo);
        } else if (!LeeModo(palabra) && !LeeOpciónDeMuestrear(palabra)) {
            if (palabra.starts_with("--"))
                throw UsoErróneo{"opción desconocida: " + palabra};
            if (opciones_.hoja)
                throw UsoErróneo{"se esperaba una sola hoja"};
            opciones_.hoja = palabra;
        }
    }

    void CompruebaVentana() const {
        const Ventana& v = opciones_.ventana;
        if (!(v.XMín < v.XMáx) || !(v.YMín < v.YMáx))
            throw UsoErróneo{"se esperaba un mínimo menor que el máximo"};
    }

    std::span<const std::string> palabras_;
    Opciones opciones_;
    std::optional<Modo> modo_;
    std::string deMuestrear_;
};

} // namespace

std::optional<Opciones> LeeOpciones(const std::vector<std::string>& palabras, std::string& error) {
    for (const std::string& palabra : palabras) {
        if (!EsUtf8(palabra)) {
            error = "se esperaba texto en UTF-8";
            return std::nullopt;
        }
    }
    try {
        return Lector(palabras).Lee();
    } catch (const UsoErróneo& uso) {
        error = uso.esperado;
        return std::nullopt;
    }
}

std::string_view TextoAyuda() {
    return "Uso:\n"
           "  quiralto-cli [OPCIONES] --orden TEXTO [HOJA]\n"
           "  quiralto-cli [OPCIONES] --sintaxis EXPRESIÓN\n"
           "  quiralto-cli [OPCIONES] --evaluar F(X) X1 [X2 ...]\n"
           "  quiralto-cli [OPCIONES] --derivar F(X)\n"
           "  quiralto-cli [OPCIONES] --muestrear F(X) [--xmín V] [--xmáx V] [--ymín V] [--ymáx V]"
           " [--puntos N]\n"
           "  quiralto-cli --listar | --ayuda | --version\n"
           "\n"
           "  --cifras N      dígitos decimales del redondeo, de 0 a 15 (8)\n"
           "  --orden TEXTO   ejecuta la orden sobre la HOJA (un fichero; la entrada estándar si\n"
           "                  falta o es -) y escribe la hoja como queda\n"
           "  --sintaxis E    escribe la expresión normalizada\n"
           "  --evaluar F X1  escribe el valor de F en cada X, o 'error N'\n"
           "  --derivar F     escribe la derivada de F sin desarrollar\n"
           "  --muestrear F   escribe los puntos de la gráfica, en la escala de dibujo\n"
           "  --listar        escribe los textos de las órdenes\n"
           "\n"
           "Los mensajes salen por la salida de errores. Estado: 0 sin mensajes, 1 con algún\n"
           "mensaje, 2 si la llamada no es correcta.\n";
}

} // namespace quiralto::cli
