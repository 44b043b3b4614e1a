#include "ui/grafica/recorrido.h"

#include "engine/numeros/numero.h"
#include "ui/grafica/marcas_eje.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace quiralto {
namespace {

std::string DevTextoX(const Ventana& ventana, int paso, int cantidadPuntos) {
    const double s = -MediaEscala + 2 * MediaEscala * paso / cantidadPuntos;
    return TextoEnRango(DevXfísico(ventana, s), ventana.XMáx - ventana.XMín);
}

struct Alturas {
    double menor;
    double mayor;
    double Altura() const { return mayor - menor; }
};

// Of all values, or of those but a twentieth at either end where these reach ten times as far.
Alturas DevAlturas(std::vector<double>& valores) {
    constexpr double Apartadas = 10;
    std::ranges::sort(valores);
    const std::size_t fuera = valores.size() / 20;
    const Alturas todas{valores.front(), valores.back()};
    const Alturas casi{valores[fuera], valores[valores.size() - 1 - fuera]};
    return casi.Altura() > 0 && todas.Altura() > Apartadas * casi.Altura() ? casi : todas;
}

// The number with a last digit of that power of ten, not below (above) the value.
double DevRedondo(double valor, int potencia, bool haciaArriba) {
    const double partes = valor / std::pow(10, potencia);
    const double entero = haciaArriba ? std::ceil(partes) : std::floor(partes);
    constexpr double Exacto = 1e15;
    if (!(std::fabs(entero) < Exacto))
        return valor;
    return Val(std::to_string(static_cast<long long>(entero)) + "E" + std::to_string(potencia));
}

} // namespace

std::string DevTabla(FuncionesGráficas& funciones, const Ventana& ventana, int cantidadPuntos) {
    std::vector<int> activas;
    std::string tabla = "X";
    for (int i = 0; i < CantidadFunciones; ++i)
        if (funciones[i].EstáActiva()) {
            activas.push_back(i);
            (tabla += "\tf" + std::to_string(i) + "(X)=") += funciones[i].texto;
        }
    if (activas.empty())
        return {};
    for (int paso = 0; paso <= cantidadPuntos; ++paso) {
        const std::string x = DevTextoX(ventana, paso, cantidadPuntos);
        (tabla += '\n') += x;
        for (const int i : activas) {
            const std::optional<double> valor = funciones.DevValor(i, Val(x));
            (tabla += '\t') += valor ? TextoNúmero(*valor) : "";
        }
    }
    return tabla += '\n';
}

std::optional<Ventana> DevAjustada(FuncionesGráficas& funciones, const Ventana& ventana,
                                   int cantidadPuntos) {
    std::vector<double> valores;
    for (int paso = 0; paso <= cantidadPuntos; ++paso) {
        const double x = Val(DevTextoX(ventana, paso, cantidadPuntos));
        for (int i = 0; i < CantidadFunciones; ++i)
            if (const std::optional<double> valor = funciones.DevValor(i, x))
                valores.push_back(*valor);
    }
    if (valores.empty())
        return std::nullopt;
    constexpr double Aire = 0.05;
    Alturas alturas = DevAlturas(valores);
    double aire = alturas.Altura() * Aire;
    if (!(aire > 0)) // constant, or so high that nothing is added
        aire = alturas.menor == 0 ? 1 : std::fabs(alturas.menor);
    alturas = {alturas.menor - aire, alturas.mayor + aire};
    if (!std::isfinite(alturas.Altura()))
        return std::nullopt;
    const int potencia = static_cast<int>(std::floor(std::log10(alturas.Altura()))) - 1;
    Ventana ajustada = ventana;
    ajustada.YMín = DevRedondo(alturas.menor, potencia, false);
    ajustada.YMáx = DevRedondo(alturas.mayor, potencia, true);
    return ajustada;
}

} // namespace quiralto
