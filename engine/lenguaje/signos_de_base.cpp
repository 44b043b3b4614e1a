#include "engine/lenguaje/signos_de_base.h"

#include "engine/base/caracteres.h"
#include "engine/base/fallos.h"

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quiralto {
namespace {

// The text of a derivative may be as long as any text.
constexpr std::size_t LetrasEntrePreguntas = std::size_t{1} << 18U;

// Whether (-b)^e could differ from -(b^e), for the power whose "^" stands at i: anything but a
// plain odd whole exponent that is no base itself.
bool ElSignoCuenta(std::string_view texto, std::size_t i) {
    const std::size_t fin = std::min(texto.find_first_not_of("0123456789", i + 1), texto.size());
    if (fin == i + 1 || (texto[fin - 1] - '0') % 2 == 0)
        return true;
    return fin < texto.size() && (texto[fin] == '.' || texto[fin] == 'E' || texto[fin] == '^');
}

// Walks a text from its end to its beginning and knows, at each place, the operator behind the
// operand that begins there.
class LectorDesdeElFinal {
public:
    explicit LectorDesdeElFinal(std::string_view texto) : texto_(texto), sigue_(texto.size()) {}

    // To be called with each place, last first.
    void Lee(std::size_t i) {
        const char c = texto_[i];
        if (c == ')') {
            fuera_.push_back(sigue_);
            sigue_ = i;
        } else if (c == '(') {
            if (fuera_.empty())
                throw ErrorEjecución(ArgumentoInválido);
            sigue_ = fuera_.back();
            fuera_.pop_back();
        } else if (EsOperadorFuerte(c) || (EsSigno(c) && !(i > 0 && texto_[i - 1] == 'E'))) {
            sigue_ = i;
        }
    }

    // Whether the operand is the base of a power that a sign in front of it changes.
    bool EsBaseQueElSignoCambia() const {
        return sigue_ < texto_.size() && texto_[sigue_] == '^' && ElSignoCuenta(texto_, sigue_);
    }

private:
    std::string_view texto_;
    std::size_t sigue_;
    std::vector<std::size_t> fuera_; // what follows each open group
};

// The pairs of parentheses that a text needs so that each power says what it is a power of.
class LectorDePotencias {
public:
    explicit LectorDePotencias(std::string_view f) : f_(f) {
        for (std::size_t i = 0; i < f.size(); ++i)
            Lee(i);
        if (grupos_.size() != 1)
            throw ErrorEjecución(ArgumentoInválido);
        std::ranges::sort(abre_);
        std::ranges::sort(cierra_);
    }

    std::string DevEncerrado() const {
        std::string encerrado;
        encerrado.reserve(f_.size() + 2 * abre_.size());
        auto abre = abre_.begin();
        auto cierra = cierra_.begin();
        for (std::size_t i = 0; i < f_.size(); ++i) {
            for (; cierra != cierra_.end() && *cierra == i; ++cierra)
                encerrado += ')';
            for (; abre != abre_.end() && *abre == i; ++abre)
                encerrado += '(';
            encerrado += f_[i];
        }
        return encerrado;
    }

private:
    // The power at hand in a group.
    struct Potencia {
        std::size_t base;     // where it begins, with its sign behind "*" or "/"
        bool elevada = false; // a "^" has been read
    };

    void Lee(std::size_t i) {
        const char c = f_[i];
        const char anterior = i > 0 ? f_[i - 1] : '\0';
        if (c == '(') {
            grupos_.push_back({.base = i + 1});
        } else if (c == ')') {
            if (grupos_.size() == 1)
                throw ErrorEjecución(ArgumentoInválido);
            grupos_.pop_back();
        } else if (c == '^') {
            LeePotencia(i);
        } else if (EsOperadorFuerte(c) ||
                   (EsSigno(c) && anterior != 'E' && !EsOperadorFuerte(anterior))) {
            grupos_.back() = {.base = i + 1};
        }
    }

    void LeePotencia(std::size_t i) {
        Potencia& potencia = grupos_.back();
        const std::size_t base = potencia.base;
        const bool conSigno = base > 0 && f_[base] == '-' && EsOperadorFuerte(f_[base - 1]);
        if (potencia.elevada || (conSigno && ElSignoCuenta(f_, i))) {
            abre_.push_back(base);
            cierra_.push_back(i);
        }
        potencia.elevada = true;
    }

    std::string_view f_;
    std::vector<Potencia> grupos_ = std::vector<Potencia>(1);
    std::vector<std::size_t> abre_;
    std::vector<std::size_t> cierra_;
};

} // namespace

std::string EncierraBases(std::string_view f) {
    return LectorDePotencias(f).DevEncerrado();
}

std::string ResuelveMarcas(Contexto& contexto, std::string_view marcado) {
    std::vector<std::size_t> abiertas;   // the marks Cierra not yet matched
    std::vector<std::size_t> paréntesis; // the marks to be kept, in no order
    LectorDesdeElFinal lector(marcado);
    bool negativo = false;   // the run of signs that has just been read, folded
    bool dePotencia = false; // what the run stands before
    bool enSignos = false;
    for (std::size_t i = marcado.size(); i-- > 0;) {
        if (i % LetrasEntrePreguntas == 0)
            contexto.Vigila();
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
                dePotencia = lector.EsBaseQueElSignoCambia();
            }
            negativo ^= c == '-';
            enSignos = true;
        } else {
            enSignos = false;
        }
        lector.Lee(i);
    }
    std::ranges::sort(paréntesis);
    std::string resuelto;
    resuelto.reserve(marcado.size());
    auto siguiente = paréntesis.begin();
    for (std::size_t i = 0; i < marcado.size(); ++i) {
        if (i % LetrasEntrePreguntas == 0)
            contexto.Vigila();
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
