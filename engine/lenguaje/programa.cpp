#include "engine/lenguaje/programa.h"

#include "engine/numeros/numero.h"

namespace quiralto {

std::string ListaPrograma(const Programa& programa) {
    std::vector<bool> calculado(programa.registros.size(), false);
    const auto nombre = [&](std::int16_t registro) -> std::string {
        const auto r = static_cast<std::size_t>(registro);
        if (r == 0)
            return "X";
        return calculado[r] ? "Z" + std::to_string(r) : TextoNúmero(programa.registros[r]);
    };
    std::string lista;
    for (const Instrucción& i : programa.instrucciones) {
        const DescripciónOperación* const operación = BuscaOperación(i.código);
        if (operación == nullptr)
            continue;
        lista += "Z" + std::to_string(i.resultado) + " := ";
        if (operación->EsBinaria())
            lista += nombre(i.izquierdo) + ' ';
        lista.append(operación->nombre) += ' ';
        lista += nombre(i.derecho) + '\n';
        calculado[static_cast<std::size_t>(i.resultado)] = true;
    }
    return lista;
}

} // namespace quiralto
