#include "cli/busca_orden.h"

#include "engine/base/utf8.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace quiralto::cli {
namespace {

// No name is longer; what stands behind it only costs time.
constexpr std::size_t MáximoNombre = 200;

// The characters of a text, the letters of Spanish small and without accents.
std::vector<std::string> DevLetras(std::string_view texto) {
    static constexpr std::pair<std::string_view, char> Iguales[] = {
        {"á", 'a'}, {"é", 'e'}, {"í", 'i'}, {"ó", 'o'}, {"ú", 'u'}, {"ü", 'u'}, {"ñ", 'n'},
        {"Á", 'a'}, {"É", 'e'}, {"Í", 'i'}, {"Ó", 'o'}, {"Ú", 'u'}, {"Ü", 'u'}, {"Ñ", 'n'}};
    std::vector<std::string> letras;
    for (std::size_t i = 0; i < texto.size() && letras.size() < MáximoNombre;) {
        const std::string_view carácter = texto.substr(i, LongitudCarácter(texto, i));
        i += carácter.size();
        const auto igual =
            std::ranges::find(Iguales, carácter, [](const auto& par) { return par.first; });
        if (igual != std::end(Iguales))
            letras.emplace_back(1, igual->second);
        else if (carácter.size() == 1 && carácter[0] >= 'A' && carácter[0] <= 'Z')
            letras.emplace_back(1, static_cast<char>(carácter[0] - 'A' + 'a'));
        else
            letras.emplace_back(carácter);
    }
    return letras;
}

// The cost of changing one text into another, by dynamic programming over their characters. Whoever
// knows but one word of a name has left out the others: that is cheap.
std::size_t Distancia(const std::vector<std::string>& de, const std::vector<std::string>& a) {
    constexpr std::size_t Pon = 1;
    constexpr std::size_t Quita = 16;
    constexpr std::size_t Cambia = 16;
    std::vector<std::size_t> fila(a.size() + 1);
    for (std::size_t j = 0; j <= a.size(); ++j)
        fila[j] = j * Pon;
    for (const std::string& letra : de) {
        std::size_t diagonal = fila[0];
        fila[0] += Quita;
        for (std::size_t j = 1; j <= a.size(); ++j) {
            const std::size_t cambiada = diagonal + (letra == a[j - 1] ? 0 : Cambia);
            diagonal = fila[j];
            fila[j] = std::min({cambiada, fila[j] + Quita, fila[j - 1] + Pon});
        }
    }
    return fila.back();
}

} // namespace

std::vector<const Orden*> DevÓrdenesLlamadas(std::string_view nombre) {
    std::vector<const Orden*> llamadas;
    for (const auto campo : {&Orden::texto, &Orden::título}) {
        for (const Orden& orden : DevÓrdenes())
            if (orden.*campo == nombre)
                llamadas.push_back(&orden);
        if (!llamadas.empty())
            break;
    }
    return llamadas;
}

std::vector<std::string_view> DevNombresParecidos(std::string_view nombre) {
    const std::vector<std::string> letras = DevLetras(nombre);
    std::string_view cercano;
    std::size_t mínima = std::numeric_limits<std::size_t>::max();
    for (const auto campo : {&Orden::texto, &Orden::título}) {
        for (const Orden& orden : DevÓrdenes()) {
            const std::size_t distancia = Distancia(letras, DevLetras(orden.*campo));
            if (distancia < mínima) {
                mínima = distancia;
                cercano = orden.*campo;
            }
        }
    }
    const std::vector<const Orden*> llamadas = DevÓrdenesLlamadas(cercano);
    if (llamadas.size() == 1)
        return {cercano};
    std::vector<std::string_view> textos;
    textos.reserve(llamadas.size());
    for (const Orden* orden : llamadas)
        textos.push_back(orden->texto);
    return textos;
}

} // namespace quiralto::cli
