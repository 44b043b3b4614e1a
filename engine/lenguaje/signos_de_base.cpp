#include "engine/lenguaje/signos_de_base.h"

#include "engine/base/caracteres.h"
#include "engine/base/fallos.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quiralto {
namespace {

// Walks a text from its end to its beginning and knows, at each place, the operator behind the
// operand that begins there.
class LectorDesdeElFinal {
public:
    // To be called with each character, last first; `anterior` is the one on its left, or '\0'.
    void Lee(char c, char anterior) {
        if (c == ')') {
            fuera_.push_back(sigue_);
            sigue_ = c;
        } else if (c == '(') {
            if (fuera_.empty())
                throw ErrorEjecución(ArgumentoInválido);
            sigue_ = fuera_.back();
            fuera_.pop_back();
        } else if (EsOperadorFuerte(c) || (EsSigno(c) && anterior != 'E')) {
            sigue_ = c;
        }
    }

    char SigueAlOperando() const { return sigue_; }

private:
    char sigue_ = '\0';
    std::string fuera_; // what follows each open group
};

} // namespace

std::string EncierraBasesConSigno(std::string_view f) {
    std::vector<std::size_t> abre;   // in descending order
    std::vector<std::size_t> cierra; // the end of the operand behind each of them
    LectorDesdeElFinal lector;
    std::vector<std::size_t> finOperando(1, f.size()); // by depth: where the operand at hand ends
    for (std::size_t i = f.size(); i-- > 0;) {
        const char anterior = i > 0 ? f[i - 1] : '\0';
        if (f[i] == '-' && EsOperadorFuerte(anterior) && lector.SigueAlOperando() == '^') {
            abre.push_back(i);
            cierra.push_back(finOperando.back());
        }
        lector.Lee(f[i], anterior);
        if (f[i] == ')') {
            finOperando.push_back(i);
        } else if (f[i] == '(') {
            finOperando.pop_back();
        } else if (EsOperadorFuerte(f[i]) || (EsSigno(f[i]) && anterior != 'E')) {
            finOperando.back() = i;
        }
    }
    if (abre.empty())
        return std::string(f);
    std::ranges::reverse(abre);
    std::ranges::sort(cierra);
    std::string encerrado;
    encerrado.reserve(f.size() + 2 * abre.size());
    std::size_t a = 0;
    std::size_t c = 0;
    for (std::size_t i = 0; i <= f.size(); ++i) {
        for (; c < cierra.size() && cierra[c] == i; ++c)
            encerrado += ')';
        for (; a < abre.size() && abre[a] == i; ++a)
            encerrado += '(';
        if (i < f.size())
            encerrado += f[i];
    }
    return encerrado;
}

std::string ResuelveMarcas(std::string_view marcado) {
    std::vector<std::size_t> abiertas;   // the marks Cierra not yet matched
    std::vector<std::size_t> paréntesis; // the marks to be kept, in no order
    LectorDesdeElFinal lector;
    bool negativo = false;   // the run of signs that has just been read, folded
    bool dePotencia = false; // what the run stands before
    bool enSignos = false;
    for (std::size_t i = marcado.size(); i-- > 0;) {
        const char c = marcado[i];
        if (c == Cierra) {
            abiertas.push_back(i);
            enSignos = false;
            continue;
        }
        if (c == Abre) {
            if (enSignos && negativo && dePotencia)
                paréntesis.insert(paréntesis.end(), {i, abiertas.back()});
            abiertas.pop_back();
            continue;
        }
        const char anterior = i > 0 ? marcado[i - 1] : '\0';
        if (EsSigno(c) && anterior != 'E') {
            if (!enSignos) {
                negativo = false;
                dePotencia = lector.SigueAlOperando() == '^';
            }
            negativo ^= c == '-';
            enSignos = true;
        } else {
            enSignos = false;
        }
        lector.Lee(c, anterior);
    }
    std::ranges::sort(paréntesis);
    std::string resuelto;
    resuelto.reserve(marcado.size());
    auto siguiente = paréntesis.begin();
    for (std::size_t i = 0; i < marcado.size(); ++i) {
        const char c = marcado[i];
        if (c != Abre && c != Cierra) {
            resuelto += c;
        } else if (siguiente != paréntesis.end() && *siguiente == i) {
            resuelto += c == Abre ? '(' : ')';
            ++siguiente;
        }
    }
    return resuelto;
}

} // namespace quiralto
