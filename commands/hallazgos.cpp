#include "commands/hallazgos.h"

#include "engine/numeros/numero.h"

#include <algorithm>
#include <array>

namespace quiralto {
namespace {

// In the order of ClaseHallazgo.
constexpr std::array<std::string_view, 5> Comienzos = {
    "'Solución en X=", "'Máximo en X=", "'Mínimo en X=", "'Punto de inflexión en X=", "'Area="};
constexpr std::string_view AnteElValor = "    f(X)=";

// The number at the front of the text, which is then cut off; none where there is none.
std::optional<double> TomaNúmero(std::string_view& texto) {
    texto.remove_prefix(texto.starts_with(' ') ? 1 : 0);
    const NúmeroLeído leído = LeeNúmero(texto);
    if (leído.longitud == 0 || leído.desborda)
        return std::nullopt;
    texto.remove_prefix(leído.longitud);
    return leído.valor;
}

// The same where the number is all that is left.
std::optional<double> LeeÚltimo(std::string_view texto) {
    const std::optional<double> número = TomaNúmero(texto);
    return texto.empty() ? número : std::nullopt;
}

} // namespace

std::string TextoHallazgo(const Hallazgo& hallazgo, int dígitos) {
    std::string texto(Comienzos[static_cast<std::size_t>(hallazgo.clase)]);
    if (hallazgo.clase == ClaseHallazgo::Área)
        return texto += TextoResultado(hallazgo.y, dígitos);
    texto += TextoNúmeroConBlanco(hallazgo.x);
    if (hallazgo.clase != ClaseHallazgo::Solución)
        (texto += AnteElValor) += TextoResultado(hallazgo.y, dígitos);
    return texto;
}

std::optional<Hallazgo> LeeHallazgo(std::string_view línea) {
    const auto comienzo = std::ranges::find_if(
        Comienzos, [&](std::string_view texto) { return línea.starts_with(texto); });
    if (comienzo == Comienzos.end())
        return std::nullopt;
    línea.remove_prefix(comienzo->size());
    Hallazgo hallazgo{.clase = static_cast<ClaseHallazgo>(comienzo - Comienzos.begin()),
                      .función = {}};
    if (hallazgo.clase != ClaseHallazgo::Área) {
        const std::optional<double> x = TomaNúmero(línea);
        if (!x)
            return std::nullopt;
        hallazgo.x = *x;
        if (hallazgo.clase == ClaseHallazgo::Solución)
            return línea.empty() ? std::optional(hallazgo) : std::nullopt;
        if (!línea.starts_with(AnteElValor))
            return std::nullopt;
        línea.remove_prefix(AnteElValor.size());
    }
    const std::optional<double> y = LeeÚltimo(línea);
    if (!y)
        return std::nullopt;
    hallazgo.y = *y;
    return hallazgo;
}

} // namespace quiralto
