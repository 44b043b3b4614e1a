#include "ui/grafica/hallados.h"

#include "engine/lenguaje/sintaxis.h"
#include "engine/numeros/numero.h"
#include "ui/grafica/ceros.h"
#include "ui/grafica/datos_hoja.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quiralto {
namespace {

std::string DevNombre(int índice) {
    return "f" + std::to_string(índice) + "(X)";
}

// Where the findings for a function are marked.
struct Destino {
    int índice;
    int cortada = -1; // the function that it meets there, of a difference
};

std::optional<Destino> DevDestino(const FuncionesGráficas& funciones, std::string_view función) {
    for (int i = 0; i < CantidadFunciones; ++i)
        if (funciones[i].EstáActiva() && funciones[i].corregido == función)
            return Destino{i};
    return std::nullopt;
}

std::optional<Destino> DevDestinoDiferencia(const Contexto& contexto,
                                            const FuncionesGráficas& funciones,
                                            std::string_view función) {
    for (int i = 0; i < CantidadFunciones; ++i)
        for (int j = 0; j < CantidadFunciones; ++j) {
            if (i == j || !funciones[i].EstáActiva() || !funciones[j].EstáActiva())
                continue;
            std::string diferencia = DevDiferencia(funciones[i].corregido, funciones[j].corregido);
            if (!CompruebaSintaxis(contexto, diferencia) && diferencia == función)
                return Destino{i, j};
        }
    return std::nullopt;
}

std::string DevTexto(const Hallazgo& h, const Destino& destino, double y, int dígitos) {
    static constexpr std::array<std::string_view, 4> Clases = {"Solución", "Máximo", "Mínimo",
                                                               "Punto de inflexión"};
    const std::string x = TextoNúmero(h.x);
    const std::string vale = ", vale " + TextoNúmero(Redondea(y, dígitos));
    if (destino.cortada >= 0)
        return "Corte de " + DevNombre(destino.índice) + " y " + DevNombre(destino.cortada) +
               " en X=" + x + vale;
    return std::string(Clases.at(static_cast<std::size_t>(h.clase))) + " de " +
           DevNombre(destino.índice) + " en X=" + x +
           (h.clase == ClaseHallazgo::Solución ? "" : vale);
}

// Where a finding is marked; nowhere where the function has no such place.
std::optional<Lugar> DevLugar(FuncionesGráficas& funciones, const Hallazgo& h,
                              const Destino& destino, int dígitosHallados) {
    const auto valor = [&](double x) { return funciones.DevValor(destino.índice, x); };
    const auto diferencia = [&](double x) -> std::optional<double> {
        const std::optional<double> f = valor(x);
        const std::optional<double> g = funciones.DevValor(destino.cortada, x);
        return f && g ? std::optional(*f - *g) : std::nullopt;
    };
    // as far as rounding may have moved it
    constexpr double PartesDelValor = 1e12;
    const double margen = std::max(std::pow(10, -dígitosHallados), std::fabs(h.x) / PartesDelValor);
    if (h.clase != ClaseHallazgo::Solución)
        return margen < (h.hasta - h.desde) / 1000 && EsPolo(valor, h.x, margen)
                   ? std::nullopt
                   : std::optional(Lugar{h.x, h.y});
    if (destino.cortada < 0) {
        const std::optional<double> x = DevCero(valor, h.x, margen);
        return x ? std::optional(Lugar{*x, 0}) : std::nullopt;
    }
    const std::optional<double> x = DevCero(diferencia, h.x, margen);
    return x ? std::optional(Lugar{*x, *valor(*x)}) : std::nullopt;
}

// The sum of trapezoids under the curve's magnitude; nothing where there is no value.
double DevÁrea(FuncionesGráficas& funciones, const Hallazgo& h, int índice, int pasos) {
    double suma = 0;
    for (int i = 0; i <= pasos; ++i) {
        const double parte = static_cast<double>(i) / pasos;
        const double valor = std::fabs(
            funciones.DevValor(índice, h.desde * (1 - parte) + h.hasta * parte).value_or(0));
        suma += i == 0 || i == pasos ? valor / 2 : valor;
    }
    return suma / pasos * (h.hasta - h.desde);
}

// Beside a pole, or where a curve swings faster than the command steps, another number of steps
// makes another area.
bool EsFiable(FuncionesGráficas& funciones, const Hallazgo& h, int índice) {
    constexpr int Pasos = 3001;
    constexpr double Tolerancia = 0.005;
    return std::fabs(DevÁrea(funciones, h, índice, Pasos) - h.y) <= Tolerancia * std::fabs(h.y);
}

std::string DevTextoÁrea(FuncionesGráficas& funciones, const Hallazgo& h, int índice, int dígitos) {
    return "Área de " + DevNombre(índice) + " de " + TextoNúmero(h.desde) + " a " +
           TextoNúmero(h.hasta) + ": " + TextoNúmero(Redondea(h.y, dígitos)) +
           (EsFiable(funciones, h, índice) ? "" : " (poco fiable)");
}

// One finding on its function.
void Añade(Marcas& marcas, FuncionesGráficas& funciones, const Hallazgo& h, const Destino& destino,
           int dígitos, int dígitosHallados) {
    if (h.clase == ClaseHallazgo::Área) {
        marcas.áreas.push_back({destino.índice, h.desde, h.hasta,
                                DevTextoÁrea(funciones, h, destino.índice, dígitos)});
        return;
    }
    if (const std::optional<Lugar> lugar = DevLugar(funciones, h, destino, dígitosHallados))
        marcas.lugares.push_back({destino.índice, *lugar, DevTexto(h, destino, lugar->y, dígitos)});
}

} // namespace

void Hallados::Pon(const std::vector<Hallazgo>& hallazgos, int dígitos) {
    if (hallazgos.empty())
        return;
    hallazgos_ = hallazgos;
    dígitos_ = dígitos;
    hechas_ = false;
}

void Hallados::Quita() {
    hallazgos_.clear();
    hechas_ = false;
}

std::shared_ptr<const Marcas> Hallados::DevMarcas(const Contexto& contexto,
                                                  FuncionesGráficas& funciones) {
    Estado estado{.versiones = {}, .dígitos = contexto.DígitosRedondeo};
    for (int i = 0; i < CantidadFunciones; ++i)
        estado.versiones.at(static_cast<std::size_t>(i)) =
            funciones[i].EstáActiva() ? funciones[i].versión : 0;
    if (hechas_ && estado == estado_)
        return marcas_;
    hechas_ = true;
    estado_ = estado;
    marcas_ = nullptr;
    if (hallazgos_.empty())
        return marcas_;
    // All that a command finds it finds on one function.
    const Hallazgo& primero = hallazgos_.front();
    std::optional<Destino> destino = DevDestino(funciones, primero.función);
    if (!destino && primero.clase == ClaseHallazgo::Solución)
        destino = DevDestinoDiferencia(contexto, funciones, primero.función);
    if (!destino)
        return marcas_;
    Marcas marcas;
    for (const Hallazgo& hallazgo : hallazgos_)
        Añade(marcas, funciones, hallazgo, *destino, estado.dígitos, dígitos_);
    if (!marcas.EstáVacía())
        marcas_ = std::make_shared<const Marcas>(std::move(marcas));
    return marcas_;
}

std::string DevTextoLugar(const Marcas& marcas, const Lugar& lugar, double dx, double dy) {
    constexpr double Cerca = 8; // pixels
    double menor = Cerca;
    std::string texto;
    for (const LugarHallado& hallado : marcas.lugares) {
        const double lejos =
            std::hypot((hallado.lugar.x - lugar.x) / dx, (hallado.lugar.y - lugar.y) / dy);
        if (lejos > menor)
            continue;
        menor = lejos;
        texto = hallado.texto;
    }
    return texto;
}

std::string DevTextoMarcas(const Marcas& marcas) {
    constexpr std::size_t Máximo = 8;
    std::string texto;
    const auto añade = [&](std::string_view otro) { (texto += texto.empty() ? "" : "; ") += otro; };
    for (std::size_t i = 0; i < std::min(Máximo, marcas.lugares.size()); ++i)
        añade(marcas.lugares[i].texto);
    if (marcas.lugares.size() > Máximo)
        añade("y " + std::to_string(marcas.lugares.size() - Máximo) + " más");
    for (const ÁreaHallada& área : marcas.áreas)
        añade(área.texto);
    return texto;
}

} // namespace quiralto
