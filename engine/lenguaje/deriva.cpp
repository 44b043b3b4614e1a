#include "engine/lenguaje/deriva.h"

#include "engine/base/caracteres.h"
#include "engine/lenguaje/lugares.h"
#include "engine/lenguaje/signos_de_base.h"
#include "engine/lenguaje/sintaxis.h"

#include <vector>

namespace quiralto {
namespace {

[[noreturn]] void RechazaTexto() {
    throw ErrorEjecución(ArgumentoInválido);
}

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
    Derivador(Contexto& contexto, std::string_view f)
        : contexto_(contexto), f_(f), operadores_(f) {}

    std::string Deriva(const ObservadorDeRondas& observa) {
        Marca({0, f_.size(), 0});
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

    std::string_view Texto(const Trozo& t) const {
        return f_.substr(t.principio, t.fin - t.principio);
    }
    bool ContieneX(const Trozo& t) const { return operadores_.ContieneX(t.principio, t.fin); }

    void Escribe(std::string_view texto) {
        if (escrito_.size() + texto.size() > MáximoTexto)
            throw ErrorEjecución(EspacioDeCadenasInsuficiente);
        escrito_ += texto;
    }

    // The text as it stands: what is written and, from the top of the stack down, what waits.
    std::string DevRonda() const {
        std::string texto = escrito_;
        for (auto p = pendientes_.rbegin(); p != pendientes_.rend(); ++p) {
            texto += p->marcado ? "D(" : "";
            texto += p->marcado ? Texto(p->trozo) : p->literal;
            texto += p->marcado ? ")D" : "";
        }
        return ResuelveMarcas(texto);
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
    void DerivaSumaOResta(const Trozo& u, const Trozo& v, bool resta);
    void DerivaProducto(const Trozo& u, const Trozo& v);
    void DerivaCociente(const Trozo& u, const Trozo& v);
    void DerivaPotencia(const Trozo& u, const Trozo& v, const Trozo& t);
    void DerivaFunción(const Trozo& t);
    void DerivaArcoseno(const Trozo& u);

    Contexto& contexto_;
    std::string_view f_;
    Operadores operadores_;
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
            return operadores_.Primero(t.grupo, clase, t.principio, t.fin);
        };
        const auto último = [&](Clase clase) {
            return operadores_.Último(t.grupo, clase, t.principio + 1, t.fin);
        };
        if (const std::size_t p = primero(Suma); p != t.fin)
            return DerivaSumaOResta(izquierda(p), derecha(p), false);
        if (const std::size_t p = último(Resta); p != t.fin)
            return DerivaSumaOResta(izquierda(p), derecha(p), true);
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
        t = {t.principio + 1, t.fin - 1, operadores_.GrupoEn(t.principio + 1)};
    }
    const char c = f_[t.principio];
    if (Texto(t) == "X")
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
    const Trozo u{principio, t.fin - 1, operadores_.GrupoEn(principio)};
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

} // namespace

std::string Deriva(Contexto& contexto, std::string_view f, const ObservadorDeRondas& observa) {
    const std::string texto = EncierraBasesConSigno(f);
    return SimplificaSignos(ResuelveMarcas(Derivador(contexto, texto).Deriva(observa)));
}

} // namespace quiralto
