#include "engine/desarrollo/puntos_sorteados.h"

#include <cmath>
#include <random>

namespace quiralto {
namespace {

double Sortea(Contexto& contexto) {
    return std::uniform_real_distribution<double>(0, 1)(contexto.generador);
}

// One value in each tenth of (-1, 1), in an order of its own.
std::array<double, PuntosSorteados::Decena> SorteaDecena(Contexto& contexto) {
    std::array<double, PuntosSorteados::Decena> valores{};
    for (std::size_t i = 0; i < valores.size(); ++i) {
        const double décima = (static_cast<double>(i) + Sortea(contexto)) / valores.size();
        const auto lugar = static_cast<std::size_t>(Sortea(contexto) * static_cast<double>(i + 1));
        valores[i] = valores[lugar];
        valores[lugar] = 2 * décima - 1;
    }
    return valores;
}

} // namespace

PuntosSorteados::PuntosSorteados(Contexto& contexto)
    : contexto_(contexto), fase_(Sortea(contexto)), estrechas_(SorteaDecena(contexto)) {
}

double PuntosSorteados::XAncha(std::size_t punto) const {
    constexpr double Paso = 0.6180339887498949; // of the golden ratio
    constexpr double Ancho = 21;
    constexpr double Principio = -10;
    const double r = fase_ + Paso * static_cast<double>(punto);
    return (r - std::floor(r)) * Ancho + Principio;
}

double PuntosSorteados::LetraEstrecha(double lugar, std::size_t punto) {
    auto letra = letras_.find(lugar);
    if (letra == letras_.end())
        letra = letras_.emplace(lugar, SorteaDecena(contexto_)).first;
    return letra->second[punto];
}

} // namespace quiralto
