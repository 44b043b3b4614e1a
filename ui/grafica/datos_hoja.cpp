#include "ui/grafica/datos_hoja.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace quiralto {
namespace {

constexpr int MáximoCifras = 17; // which tell every Double

// Digits and power of ten of a number that is not 0: 1.25E-7 is "125" and -7.
struct Cifras {
    std::string cifras;
    int exponente = 0;
};

Cifras DevCifras(double valor, int cuántas) {
    std::array<char, 32> búfer{};
    const auto fin = std::to_chars(búfer.data(), búfer.data() + búfer.size(), std::fabs(valor),
                                   std::chars_format::scientific, cuántas - 1);
    const std::string_view texto(búfer.data(), static_cast<std::size_t>(fin.ptr - búfer.data()));
    const std::size_t e = texto.find('e');
    Cifras leídas;
    leídas.cifras = texto.substr(0, e);
    std::erase(leídas.cifras, '.');
    leídas.cifras.erase(leídas.cifras.find_last_not_of('0') + 1);
    leídas.exponente = static_cast<int>(LeeNúmero(texto.substr(e + 1)).valor);
    return leídas;
}

std::string Escribe(const Cifras& n) {
    const auto cuántas = static_cast<int>(n.cifras.size());
    if (n.exponente < 0)
        return "." + std::string(static_cast<std::size_t>(-n.exponente - 1), '0') + n.cifras;
    const int enteras = n.exponente + 1;
    if (cuántas <= enteras)
        return n.cifras + std::string(static_cast<std::size_t>(enteras - cuántas), '0');
    return n.cifras.substr(0, static_cast<std::size_t>(enteras)) + "." +
           n.cifras.substr(static_cast<std::size_t>(enteras));
}

} // namespace

std::string TextoPlano(double valor, double separación) {
    const double última = std::floor(std::log10(separación));
    if (std::fabs(valor) < std::pow(10, última) / 2)
        return "0";
    const double primera = std::floor(std::log10(std::fabs(valor)));
    const int cuántas =
        static_cast<int>(std::clamp(primera - última + 1, 1.0, double{MáximoCifras}));
    return (valor < 0 ? "-" : "") + Escribe(DevCifras(valor, cuántas));
}

std::string DevDatosEnVentana(std::string_view función, const Ventana& ventana, double separación) {
    return std::string(función) + "," + TextoPlano(ventana.XMín, separación) + "," +
           TextoPlano(ventana.XMáx, separación);
}

std::string DevDiferencia(std::string_view f, std::string_view g) {
    return "(" + std::string(f) + ")-(" + std::string(g) + ")";
}

std::string DevCabecera(const FuncionesGráficas& funciones, const Ventana& ventana) {
    std::string cabecera;
    for (int i = 0; i < CantidadFunciones; ++i) {
        const FunciónGráfica& función = funciones[i];
        if (función.estado == EstadoTexto::Fórmula)
            cabecera += "'f" + std::to_string(i) + "(X)=" + función.texto +
                        (función.encendida ? "\r\n" : ", sin dibujar\r\n");
    }
    return cabecera + "'Ventana: X de " + TextoNúmero(ventana.XMín) + " a " +
           TextoNúmero(ventana.XMáx) + ", Y de " + TextoNúmero(ventana.YMín) + " a " +
           TextoNúmero(ventana.YMáx) + "\r\n";
}

} // namespace quiralto
