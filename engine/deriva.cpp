#include "engine/deriva.h"

#include "engine/caracteres.h"
#include "engine/sintaxis.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

namespace quiralto {
namespace {

// Around the derivative of a piece that stands directly behind "*", "/" or "^": it becomes a pair
// of parentheses, or nothing, once the whole text is known. Control characters, so that nothing of
// the language is mistaken for them.
constexpr char Abre = '\x01';
constexpr char Cierra = '\x02';

constexpr std::size_t MáximoOperadores = 2'000'000; // bounds the memory of the analysis

[[noreturn]] void RechazaTexto() {
    throw ErrorEjecución(ArgumentoInválido);
}

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
                RechazaTexto();
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

// "3*-X^2" to "3*(-X)^2": the sign belongs to the base, and now the text says so.
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

// The places of the operators of one group (or of the whole text), ascending, by kind.
struct Grupo {
    std::size_t principio = 0; // of its contents
    std::size_t fin = 0;
    std::array<std::vector<std::uint32_t>, 5> lugares; // "+", "-", "*", "/", "^"
};

enum Clase : std::size_t { Suma, Resta, Producto, Cociente, Potencia };

// What the rules ask of the text, found in one pass.
class Análisis {
public:
    explicit Análisis(std::string_view f) : f_(f) {
        std::vector<std::size_t> abiertos(1, 0);
        grupos_.push_back({.principio = 0, .fin = f.size(), .lugares = {}});
        std::size_t operadores = 0;
        for (std::size_t i = 0; i < f.size(); ++i) {
            const char c = f[i];
            if (c == 'X') {
                equis_.push_back(static_cast<std::uint32_t>(i));
            } else if (c == '(') {
                abiertos.push_back(grupos_.size());
                grupos_.push_back({.principio = i + 1, .fin = f.size(), .lugares = {}});
            } else if (c == ')') {
                if (abiertos.size() == 1)
                    RechazaTexto();
                grupos_[abiertos.back()].fin = i;
                abiertos.pop_back();
            } else if (const auto clase = std::string_view("+-*/^").find(c);
                       clase != std::string_view::npos && SepararíaEn(i)) {
                grupos_[abiertos.back()].lugares[clase].push_back(static_cast<std::uint32_t>(i));
            } else {
                continue;
            }
            if (++operadores > MáximoOperadores)
                throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        }
        if (abiertos.size() != 1)
            RechazaTexto();
    }

    bool ContieneX(std::size_t principio, std::size_t fin) const {
        const auto primera = std::ranges::lower_bound(equis_, principio);
        return primera != equis_.end() && *primera < fin;
    }

    // The group whose contents begin at `principio`.
    std::size_t GrupoEn(std::size_t principio) const {
        const auto grupo = std::ranges::lower_bound(grupos_, principio, {}, &Grupo::principio);
        if (grupo == grupos_.end() || grupo->principio != principio)
            RechazaTexto();
        return static_cast<std::size_t>(grupo - grupos_.begin());
    }

    std::size_t FinDeGrupo(std::size_t grupo) const { return grupos_[grupo].fin; }

    // The first or last operator of a kind in a range of a group, or the range's end.
    std::size_t Primero(std::size_t grupo, Clase clase, std::size_t principio,
                        std::size_t fin) const {
        const auto& lugares = grupos_[grupo].lugares[clase];
        const auto lugar = std::ranges::lower_bound(lugares, principio);
        return lugar != lugares.end() && *lugar < fin ? *lugar : fin;
    }
    std::size_t Último(std::size_t grupo, Clase clase, std::size_t principio,
                       std::size_t fin) const {
        const auto& lugares = grupos_[grupo].lugares[clase];
        const auto lugar = std::ranges::lower_bound(lugares, fin);
        return lugar != lugares.begin() && *std::prev(lugar) >= principio ? *std::prev(lugar) : fin;
    }

private:
    // A sign that belongs to an exponent or to the operand behind it separates nothing. (A sign at
    // the beginning of a range is the caller's to tell.)
    bool SepararíaEn(std::size_t i) const {
        if (!EsSigno(f_[i]) || i == 0)
            return true;
        return f_[i - 1] != 'E' && (f_[i] == '+' || !EsOperadorFuerte(f_[i - 1]));
    }

    std::string_view f_;
    std::vector<std::uint32_t> equis_;
    std::vector<Grupo> grupos_; // by ascending principio
};

// A range of the text, inside one group.
struct Trozo {
    std::size_t principio;
    std::size_t fin;
    std::size_t grupo;
};

// The rules, applied to marked pieces outer first and left to right. The text is written once,
// from its beginning to its end: what is still to be written waits on a stack, the next on top.
class Derivador {
public:
    Derivador(Contexto& contexto, std::string_view f) : contexto_(contexto), f_(f), análisis_(f) {}

    std::string Deriva() {
        Marca({0, f_.size(), 0});
        Apila();
        while (!pendientes_.empty()) {
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

    std::string_view Texto(const Trozo& t) const {
        return f_.substr(t.principio, t.fin - t.principio);
    }
    bool ContieneX(const Trozo& t) const { return análisis_.ContieneX(t.principio, t.fin); }

    void Escribe(std::string_view texto) {
        if (escrito_.size() + texto.size() > MáximoTexto)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        escrito_ += texto;
    }

    // The result of a rule, piece by piece: a text as it stands, or a piece still to be derived.
    void Pon(std::string_view literal) {
        resultado_.push_back({.marcado = false, .literal = literal, .trozo = {}});
    }
    void Pon(const Trozo& t) { Pon(Texto(t)); }
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
    void DerivaSuma(const Trozo& u, const Trozo& v);
    void DerivaResta(const Trozo& u, const Trozo& v);
    void DerivaProducto(const Trozo& u, const Trozo& v);
    void DerivaCociente(const Trozo& u, const Trozo& v);
    void DerivaPotencia(const Trozo& u, const Trozo& v, const Trozo& t);
    void DerivaFunción(const Trozo& t);
    void DerivaArcoseno(const Trozo& u);

    Contexto& contexto_;
    std::string_view f_;
    Análisis análisis_;
    std::string escrito_;
    std::vector<Pendiente> pendientes_;
    std::vector<Pendiente> resultado_;
    std::size_t pasos_ = 0;
};

void Derivador::DerivaTrozo(Trozo t) {
    for (;;) {
        if (t.principio >= t.fin)
            RechazaTexto();
        const auto izquierda = [&](std::size_t p) { return Trozo{t.principio, p, t.grupo}; };
        const auto derecha = [&](std::size_t p) { return Trozo{p + 1, t.fin, t.grupo}; };
        const auto primero = [&](Clase clase) {
            return análisis_.Primero(t.grupo, clase, t.principio, t.fin);
        };
        const auto último = [&](Clase clase) {
            return análisis_.Último(t.grupo, clase, t.principio + 1, t.fin);
        };
        if (const std::size_t p = primero(Suma); p != t.fin)
            return DerivaSuma(izquierda(p), derecha(p));
        if (const std::size_t p = último(Resta); p != t.fin)
            return DerivaResta(izquierda(p), derecha(p));
        if (const std::size_t p = primero(Producto); p != t.fin)
            return DerivaProducto(izquierda(p), derecha(p));
        if (const std::size_t p = último(Cociente); p != t.fin)
            return DerivaCociente(izquierda(p), derecha(p));
        if (f_[t.principio] == '-') {
            Pon("-");
            return Marca({t.principio + 1, t.fin, t.grupo});
        }
        if (const std::size_t p = primero(Potencia); p != t.fin)
            return DerivaPotencia(izquierda(p), derecha(p), t);
        if (f_[t.principio] != '(' || f_[t.fin - 1] != ')')
            break;
        t = {t.principio + 1, t.fin - 1, análisis_.GrupoEn(t.principio + 1)};
    }
    const char c = f_[t.principio];
    if (Texto(t) == "X")
        return Pon("1");
    if (c == '.' || EsDígito(c))
        return Pon("0");
    DerivaFunción(t);
}

void Derivador::DerivaSuma(const Trozo& u, const Trozo& v) {
    const bool ux = ContieneX(u);
    const bool vx = ContieneX(v);
    if (ux && vx) {
        Pon("(");
        Marca(u);
        Pon("+");
        Marca(v);
        Pon(")");
    } else if (ux || vx) {
        Marca(ux ? u : v);
    } else {
        Pon("0");
    }
}

void Derivador::DerivaResta(const Trozo& u, const Trozo& v) {
    const bool ux = ContieneX(u);
    const bool vx = ContieneX(v);
    if (ux && vx) {
        Pon("(");
        Marca(u);
        Pon("-");
        Marca(v);
        Pon(")");
    } else if (ux) {
        Marca(u);
    } else if (vx) {
        Pon("-");
        Marca(v);
    } else {
        Pon("0");
    }
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

void Derivador::DerivaCociente(const Trozo& u, const Trozo& v) {
    const bool ux = ContieneX(u);
    const bool vx = ContieneX(v);
    if (!ux && !vx)
        return Pon("0");
    if (ux && vx)
        Pon("(");
    if (ux) {
        Pon(v);
        PorDerivada(u);
    }
    if (vx) {
        Pon("-");
        Pon(u);
        PorDerivada(v);
    }
    if (ux && vx)
        Pon(")");
    Pon("/");
    Pon(v);
    Pon("^2");
}

// t is the whole power u^v.
void Derivador::DerivaPotencia(const Trozo& u, const Trozo& v, const Trozo& t) {
    const bool ux = ContieneX(u);
    const bool vx = ContieneX(v);
    if (!ux && !vx)
        return Pon("0");
    if (ux && vx)
        Pon("(");
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
    if (ux && vx)
        Pon(")");
}

void Derivador::DerivaFunción(const Trozo& t) {
    const std::string_view texto = Texto(t);
    const std::size_t paréntesis = texto.find('(');
    if (paréntesis == std::string_view::npos || texto.back() != ')')
        RechazaTexto();
    const std::string_view nombre = texto.substr(0, paréntesis);
    const std::size_t principio = t.principio + paréntesis + 1;
    const Trozo u{principio, t.fin - 1, análisis_.GrupoEn(principio)};
    if (!ContieneX(u))
        return Pon("0");
    const auto conArgumento = [&](std::string_view antes, std::string_view después) {
        Pon(antes);
        Pon(u);
        Pon(después);
    };
    if (nombre == "COS")
        Pon("-");
    if (nombre == "SEC" || nombre == "COSEC") {
        // D(1/COS(u))D and D(1/SIN(u))D, a step further
        const bool secante = nombre == "SEC";
        Pon(secante ? "-1*\x01-" : "-1*\x01");
        Marca(u);
        conArgumento(secante ? "*SIN(" : "*COS(", ")\x02");
        return conArgumento(secante ? "/COS(" : "/SIN(", ")^2");
    }
    if (nombre == "ARCSIN")
        return DerivaArcoseno(u);
    Marca(u);
    if (nombre == "SIN")
        conArgumento("*COS(", ")");
    else if (nombre == "COS")
        conArgumento("*SIN(", ")");
    else if (nombre == "TAN")
        conArgumento("/COS(", ")^2");
    else if (nombre == "ATN")
        conArgumento("/(1+(", ")^2)");
    else if (nombre == "LOG")
        conArgumento("/(", ")");
    else if (nombre == "EXP")
        conArgumento("*EXP(", ")");
    else if (nombre == "SQR")
        conArgumento("/(2*SQR(", "))");
    else
        RechazaTexto();
}

// D(ATN(u/SQR(-u*u+1)))D with u in parentheses, by the rules for ATN, quotient, SQR and product.
void Derivador::DerivaArcoseno(const Trozo& u) {
    const auto raíz = [&] {
        Pon("SQR(-(");
        Pon(u);
        Pon(")*(");
        Pon(u);
        Pon(")+1)");
    };
    const auto argumento = [&] {
        Pon("(");
        Pon(u);
        Pon(")");
    };
    Pon("(");
    raíz();
    PorDerivada(u);
    Pon("-");
    argumento();
    Pon("*\x01(-");
    argumento();
    PorDerivada(u);
    Pon("+");
    argumento();
    Pon("*\x01-");
    Marca(u);
    Pon("\x02)/(2*");
    raíz();
    Pon(")\x02)/");
    raíz();
    Pon("^2/(1+(");
    argumento();
    Pon("/");
    raíz();
    Pon(")^2)");
}

// Makes the marks around a derivative that begins with a negative power parentheses, and drops all
// others. Signs are counted as they will be folded.
std::string ResuelveMarcas(std::string_view escrito) {
    std::vector<std::size_t> abiertas;   // the marks Cierra not yet matched
    std::vector<std::size_t> paréntesis; // the marks to be kept, in no order
    LectorDesdeElFinal lector;
    bool negativo = false;   // the run of signs that has just been read, folded
    bool dePotencia = false; // what the run stands before
    bool enSignos = false;
    for (std::size_t i = escrito.size(); i-- > 0;) {
        const char c = escrito[i];
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
        const char anterior = i > 0 ? escrito[i - 1] : '\0';
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
    resuelto.reserve(escrito.size());
    auto siguiente = paréntesis.begin();
    for (std::size_t i = 0; i < escrito.size(); ++i) {
        const char c = escrito[i];
        if (c != Abre && c != Cierra) {
            resuelto += c;
        } else if (siguiente != paréntesis.end() && *siguiente == i) {
            resuelto += c == Abre ? '(' : ')';
            ++siguiente;
        }
    }
    return resuelto;
}

} // namespace

std::string Deriva(Contexto& contexto, std::string_view f) {
    const std::string texto = EncierraBasesConSigno(f);
    return SimplificaSignos(ResuelveMarcas(Derivador(contexto, texto).Deriva()));
}

} // namespace quiralto
