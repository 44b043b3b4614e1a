#include "engine/lenguaje/deriva.h"

#include "engine/base/caracteres.h"
#include "engine/lenguaje/lugares.h"
#include "engine/lenguaje/operaciones.h"
#include "engine/lenguaje/signos_de_base.h"
#include "engine/lenguaje/sintaxis.h"

#include <algorithm>
#include <deque>
#include <map>
#include <vector>

namespace quiralto {
namespace {

struct Fuente;

// A range of a text, inside one group.
struct Trozo {
    std::size_t principio = 0;
    std::size_t fin = 0;
    std::size_t grupo = 0;
    const Fuente* fuente = nullptr;
};

// A text to be derived: the whole input, or what a function is rewritten into, in which "u" stands
// for the function's argument. So a rewritten function takes the place of its row's text, however
// long the argument is.
struct Fuente {
    std::string_view texto;
    const Lugares* lugares;
    Trozo argumento; // of no source where the text is the input
};

std::string_view DevTexto(const Trozo& t) {
    return t.fuente->texto.substr(t.principio, t.fin - t.principio);
}

bool ContieneX(const Trozo& t) {
    return t.fuente->lugares->ContieneX(t.principio, t.fin);
}

bool EsReescrita(const Fuente& fuente) {
    return fuente.argumento.fuente != nullptr;
}

// What the piece is where it is but "u", else the piece.
Trozo ResuelveArgumento(Trozo t) {
    while (EsReescrita(*t.fuente) && DevTexto(t) == "u")
        t = t.fuente->argumento;
    return t;
}

// Hands over the text of the piece, part by part, with the arguments in it. The depth is that of
// the rows' rewriting: a row names only rows above it.
template <typename Recibe> void RecorreTexto(const Trozo& t, const Recibe& recibe) {
    std::string_view resto = DevTexto(t);
    if (EsReescrita(*t.fuente)) {
        for (std::size_t u = 0; (u = resto.find('u')) != std::string_view::npos;) {
            recibe(resto.substr(0, u));
            RecorreTexto(t.fuente->argumento, recibe);
            resto.remove_prefix(u + 1);
        }
    }
    recibe(resto);
}

// The rules, applied to marked pieces outer first and left to right. The text is written once,
// from its beginning to its end: what is still to be written waits on a stack, the next on top.
class Derivador {
public:
    Derivador(Contexto& contexto, std::string_view f)
        : contexto_(contexto), lugares_(f), f_{.texto = f, .lugares = &lugares_, .argumento = {}} {}

    std::string Deriva(const ObservadorDeRondas& observa) {
        Marca({0, f_.texto.size(), 0, &f_});
        Apila();
        while (!pendientes_.empty()) {
            if (observa && pendientes_.back().marcado)
                observa(DevRonda());
            const Pendiente siguiente = pendientes_.back();
            pendientes_.pop_back();
            if (!siguiente.marcado) {
                Escribe(siguiente.literal);
                continue;
            }
            if (++pasos_ % 1024 == 0)
                contexto_.Vigila();
            DerivaTrozo(siguiente.trozo);
            Apila();
        }
        return std::move(escrito_);
    }

private:
    struct Pendiente {
        bool marcado;
        std::string_view literal;
        Trozo trozo;
    };

    void Escribe(std::string_view texto) {
        if (escrito_.size() + texto.size() > MáximoTexto)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        constexpr std::size_t LetrasEntrePreguntas = std::size_t{1} << 18U;
        const std::size_t antes = escrito_.size() / LetrasEntrePreguntas;
        escrito_ += texto;
        if (escrito_.size() / LetrasEntrePreguntas != antes)
            contexto_.Vigila();
    }

    // The text as it stands: what is written and, from the top of the stack down, what waits.
    std::string DevRonda() const {
        std::string texto = escrito_;
        const auto añade = [&](std::string_view parte) { texto += parte; };
        std::for_each(pendientes_.rbegin(), pendientes_.rend(), [&](const Pendiente& pendiente) {
            if (!pendiente.marcado)
                return añade(pendiente.literal);
            añade("D(");
            RecorreTexto(pendiente.trozo, añade);
            añade(")D");
        });
        return ResuelveMarcas(contexto_, texto);
    }

    // The result of a rule, piece by piece: a text as it stands, or a piece still to be derived.
    void Pon(std::string_view literal) {
        resultado_.push_back({.marcado = false, .literal = literal, .trozo = {}});
    }
    void Pon(const Trozo& t) {
        RecorreTexto(t, [this](std::string_view parte) { Pon(parte); });
    }
    void Marca(const Trozo& t) {
        resultado_.push_back({.marcado = true, .literal = {}, .trozo = t});
    }
    // "*D(" t ")D"
    void PorDerivada(const Trozo& t) {
        Pon("*\x01");
        Marca(t);
        Pon("\x02");
    }
    void Apila() {
        pendientes_.insert(pendientes_.end(), resultado_.rbegin(), resultado_.rend());
        resultado_.clear();
    }

    void DerivaTrozo(Trozo t);
    void DerivaSumaOResta(const Trozo& u, const Trozo& v, bool resta);
    void DerivaProducto(const Trozo& u, const Trozo& v);
    template <typename F> bool DerivaDos(const Trozo& u, const Trozo& v, F escribe);
    void DerivaCociente(const Trozo& u, const Trozo& v);
    void DerivaPotencia(const Trozo& u, const Trozo& v, const Trozo& t);
    void DerivaFunción(const Trozo& t);
    void PonPlantilla(std::string_view plantilla, const Trozo& u);
    void MarcaReescrita(std::string_view texto, const Trozo& u);

    Contexto& contexto_;
    Lugares lugares_;
    Fuente f_;
    std::map<std::string_view, Lugares> lugaresReescritas_; // by the row's text
    std::deque<Fuente> reescritas_;
    std::string escrito_;
    std::vector<Pendiente> pendientes_;
    std::vector<Pendiente> resultado_;
    std::size_t pasos_ = 0;
};

void Derivador::DerivaTrozo(Trozo t) {
    for (;;) {
        t = ResuelveArgumento(t);
        const Lugares& lugares = *t.fuente->lugares;
        if (t.principio >= t.fin)
            throw ErrorEjecución(ArgumentoInválido);
        const auto izquierda = [&](std::size_t p) {
            return Trozo{t.principio, p, t.grupo, t.fuente};
        };
        const auto derecha = [&](std::size_t p) { return Trozo{p + 1, t.fin, t.grupo, t.fuente}; };
        const auto primero = [&](Operación operador) {
            return lugares.Primero(t.grupo, operador, t.principio, t.fin);
        };
        const auto último = [&](Operación operador) {
            return lugares.Último(t.grupo, operador, t.principio + 1, t.fin);
        };
        if (const std::size_t p = primero(Operación::Suma); p != t.fin)
            return DerivaSumaOResta(izquierda(p), derecha(p), false);
        if (const std::size_t p = último(Operación::Resta); p != t.fin)
            return DerivaSumaOResta(izquierda(p), derecha(p), true);
        if (const std::size_t p = primero(Operación::Producto); p != t.fin)
            return DerivaProducto(izquierda(p), derecha(p));
        if (const std::size_t p = último(Operación::Cociente); p != t.fin)
            return DerivaCociente(izquierda(p), derecha(p));
        const std::string_view texto = DevTexto(t);
        if (texto.front() == '-') {
            if (!ContieneX(t) && texto.size() > 1)
                return Pon("0");
            Pon("-");
            return Marca(derecha(t.principio));
        }
        if (const std::size_t p = primero(Operación::Potencia); p != t.fin)
            return DerivaPotencia(izquierda(p), derecha(p), t);
        if (texto.front() != '(' || texto.back() != ')')
            break;
        t = {t.principio + 1, t.fin - 1, lugares.GrupoEn(t.principio + 1), t.fuente};
    }
    const char c = DevTexto(t).front();
    if (DevTexto(t) == "X")
        return Pon("1");
    if (c == '.' || EsDígito(c))
        return Pon("0");
    DerivaFunción(t);
}

void Derivador::DerivaSumaOResta(const Trozo& u, const Trozo& v, bool resta) {
    const bool ux = ContieneX(u);
    const bool vx = ContieneX(v);
    if (!ux && !vx)
        return Pon("0");
    if (ux && vx)
        Pon("(");
    if (ux)
        Marca(u);
    if (vx && (ux || resta))
        Pon(resta ? "-" : "+");
    if (vx)
        Marca(v);
    if (ux && vx)
        Pon(")");
}

void Derivador::DerivaProducto(const Trozo& u, const Trozo& v) {
    const bool ux = ContieneX(u);
    const bool vx = ContieneX(v);
    if (ux && vx) {
        Pon("(");
        Pon(u);
        PorDerivada(v);
        Pon("+");
        Pon(v);
        PorDerivada(u);
        Pon(")");
    } else if (ux || vx) {
        Pon(ux ? v : u);
        PorDerivada(ux ? u : v);
    } else {
        Pon("0");
    }
}

// What `escribe` writes of two pieces of which one at least has X, in parentheses where both have;
// false, and "0", where none has.
template <typename F> bool Derivador::DerivaDos(const Trozo& u, const Trozo& v, F escribe) {
    const bool ux = ContieneX(u);
    const bool vx = ContieneX(v);
    if (!ux && !vx) {
        Pon("0");
        return false;
    }
    if (ux && vx)
        Pon("(");
    escribe(ux, vx);
    if (ux && vx)
        Pon(")");
    return true;
}

void Derivador::DerivaCociente(const Trozo& u, const Trozo& v) {
    const auto escribe = [&](bool ux, bool vx) {
        if (ux) {
            Pon(v);
            PorDerivada(u);
        }
        if (vx) {
            Pon("-");
            Pon(u);
            PorDerivada(v);
        }
    };
    if (!DerivaDos(u, v, escribe))
        return;
    Pon("/");
    Pon(v);
    Pon("^2");
}

// t is the whole power u^v.
void Derivador::DerivaPotencia(const Trozo& u, const Trozo& v, const Trozo& t) {
    DerivaDos(u, v, [&](bool ux, bool vx) {
        if (vx) {
            Pon(t);
            PorDerivada(v);
            Pon("*LOG(");
            Pon(u);
            Pon(")");
        }
        if (ux && vx)
            Pon("+");
        if (ux) {
            Pon(v);
            Pon("*");
            Pon(u);
            Pon("^(");
            Pon(v);
            Pon("-1)");
            PorDerivada(u);
        }
    });
}

void Derivador::DerivaFunción(const Trozo& t) {
    const std::string_view texto = DevTexto(t);
    const DescripciónOperación* const función = BuscaFunción(texto);
    if (función == nullptr || función->familia != Familia::Función || texto.back() != ')')
        throw ErrorEjecución(ArgumentoInválido);
    const std::size_t principio = t.principio + función->nombre.size() + 1;
    const Trozo u =
        ResuelveArgumento({principio, t.fin - 1, t.fuente->lugares->GrupoEn(principio), t.fuente});
    if (!ContieneX(u))
        return Pon("0");
    PonPlantilla(función->derivada, u);
}

// The text of a row's derivative, with the argument in it.
void Derivador::PonPlantilla(std::string_view plantilla, const Trozo& u) {
    while (!plantilla.empty()) {
        const std::size_t fin = std::min(plantilla.find_first_of("udD[]"), plantilla.size());
        if (fin > 0)
            Pon(plantilla.substr(0, fin));
        if (fin == plantilla.size())
            return;
        const char c = plantilla[fin];
        plantilla.remove_prefix(fin + 1);
        if (c == 'u') {
            Pon(u);
        } else if (c == 'd') {
            Marca(u);
        } else if (c == 'D') {
            const std::size_t cierra = plantilla.find(")D");
            MarcaReescrita(plantilla.substr(1, cierra - 1), u);
            plantilla.remove_prefix(cierra + 2);
        } else {
            Pon(c == '[' ? "\x01" : "\x02");
        }
    }
}

// Marks what a function of u is rewritten into.
void Derivador::MarcaReescrita(std::string_view texto, const Trozo& u) {
    const Lugares& lugares = lugaresReescritas_.try_emplace(texto, texto).first->second;
    reescritas_.push_back({.texto = texto, .lugares = &lugares, .argumento = u});
    Marca({0, texto.size(), 0, &reescritas_.back()});
}

} // namespace

std::string Deriva(Contexto& contexto, std::string_view f, const ObservadorDeRondas& observa) {
    const std::string texto = EncierraBases(f);
    const std::string derivada =
        ResuelveMarcas(contexto, Derivador(contexto, texto).Deriva(observa));
    contexto.Vigila();
    return SimplificaSignos(derivada);
}

} // namespace quiralto
