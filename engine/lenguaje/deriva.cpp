#include "engine/lenguaje/deriva.h"

#include "engine/base/caracteres.h"
#include "engine/lenguaje/lugares.h"
#include "engine/lenguaje/operaciones.h"
#include "engine/lenguaje/signos_de_base.h"
#include "engine/lenguaje/sintaxis.h"

#include <algorithm>
#include <vector>

namespace quiralto {
namespace {

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
    Derivador(Contexto& contexto, std::string_view f) : contexto_(contexto), f_(f), lugares_(f) {}

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
    bool ContieneX(const Trozo& t) const { return lugares_.ContieneX(t.principio, t.fin); }

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
    void PonPlantilla(std::string_view plantilla, const Trozo& u);

    Contexto& contexto_;
    std::string_view f_;
    Lugares lugares_;
    std::string escrito_;
    std::vector<Pendiente> pendientes_;
    std::vector<Pendiente> resultado_;
    std::size_t pasos_ = 0;
};

void Derivador::DerivaTrozo(Trozo t) {
    for (;;) {
        if (t.principio >= t.fin)
            throw ErrorEjecución(ArgumentoInválido);
        const auto izquierda = [&](std::size_t p) { return Trozo{t.principio, p, t.grupo}; };
        const auto derecha = [&](std::size_t p) { return Trozo{p + 1, t.fin, t.grupo}; };
        const auto primero = [&](Operación operador) {
            return lugares_.Primero(t.grupo, operador, t.principio, t.fin);
        };
        const auto último = [&](Operación operador) {
            return lugares_.Último(t.grupo, operador, t.principio + 1, t.fin);
        };
        if (const std::size_t p = primero(Operación::Suma); p != t.fin)
            return DerivaSumaOResta(izquierda(p), derecha(p), false);
        if (const std::size_t p = último(Operación::Resta); p != t.fin)
            return DerivaSumaOResta(izquierda(p), derecha(p), true);
        if (const std::size_t p = primero(Operación::Producto); p != t.fin)
            return DerivaProducto(izquierda(p), derecha(p));
        if (const std::size_t p = último(Operación::Cociente); p != t.fin)
            return DerivaCociente(izquierda(p), derecha(p));
        if (f_[t.principio] == '-') {
            if (!ContieneX(t) && t.fin - t.principio > 1)
                return Pon("0");
            Pon("-");
            return Marca({t.principio + 1, t.fin, t.grupo});
        }
        if (const std::size_t p = primero(Operación::Potencia); p != t.fin)
            return DerivaPotencia(izquierda(p), derecha(p), t);
        if (f_[t.principio] != '(' || f_[t.fin - 1] != ')')
            break;
        t = {t.principio + 1, t.fin - 1, lugares_.GrupoEn(t.principio + 1)};
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
    const DescripciónOperación* const función = BuscaFunción(texto);
    if (función == nullptr || función->familia != Familia::Función || texto.back() != ')')
        throw ErrorEjecución(ArgumentoInválido);
    const std::size_t principio = t.principio + función->nombre.size() + 1;
    const Trozo u{principio, t.fin - 1, lugares_.GrupoEn(principio)};
    if (!ContieneX(u))
        return Pon("0");
    PonPlantilla(función->derivada, u);
}

// The text of a row's derivative, with the argument in it.
void Derivador::PonPlantilla(std::string_view plantilla, const Trozo& u) {
    while (!plantilla.empty()) {
        const std::size_t fin = std::min(plantilla.find_first_of("ud[]"), plantilla.size());
        if (fin > 0)
            Pon(plantilla.substr(0, fin));
        if (fin == plantilla.size())
            return;
        if (plantilla[fin] == 'u')
            Pon(u);
        else if (plantilla[fin] == 'd')
            Marca(u);
        else
            Pon(plantilla[fin] == '[' ? "\x01" : "\x02");
        plantilla.remove_prefix(fin + 1);
    }
}

} // namespace

std::string Deriva(Contexto& contexto, std::string_view f, const ObservadorDeRondas& observa) {
    const std::string texto = EncierraBases(f);
    return SimplificaSignos(ResuelveMarcas(Derivador(contexto, texto).Deriva(observa)));
}

} // namespace quiralto
