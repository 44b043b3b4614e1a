#include "engine/sistemas/ecuacion_lineal.h"

#include "engine/base/rechazo.h"
#include "engine/desarrollo/desarrollo.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/operaciones.h"
#include "engine/numeros/numero.h"
#include "engine/sistemas/grado.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace quiralto {
namespace {

bool RechazaNoLineal(Contexto& contexto) {
    MuestraRechazo(contexto, {.motivo = Motivo::NoEsEcuaciónLineal});
    return false;
}

// The index of a lone unknown, rounded to a whole number (a half to the even one); 0 where it is no
// number in the range.
int DevIndiceSln(std::string_view base) {
    const std::string_view índice = base.substr(PrefijoSln.size());
    const NúmeroLeído leído = LeeNúmero(índice);
    const double entero = std::nearbyint(leído.valor);
    const bool número = leído.longitud + 1 == índice.size();
    return número && entero >= 1 && entero <= MáximoÍndiceSln ? static_cast<int>(entero) : 0;
}

// Whether the base is one call of SLN and nothing else.
bool EsIncógnita(const Base& base) {
    return (base.clase == ClaseBase::Variable || base.clase == ClaseBase::Función) &&
           base.texto.starts_with(PrefijoSln);
}

class Lector {
public:
    Lector(Contexto& contexto, TablaSímbolos& tabla) : contexto_(contexto), tabla_(tabla) {}

    bool SintaxisSln(const Términos& suma) {
        for (const Término& término : suma)
            if (!LeeTérmino(término))
                return false;
        return hayIncógnitas_ || RechazaNoLineal(contexto_);
    }

    EcuaciónLineal Toma() {
        EcuaciónLineal ecuación;
        ecuación.independiente = independiente_;
        ecuación.redondeada = tabla_.HayRedondeados();
        for (int i = 1; i <= MáximoÍndiceSln; ++i)
            if (const auto& coeficiente = coeficientes_[static_cast<std::size_t>(i)])
                ecuación.términos.push_back({i, *coeficiente});
        return ecuación;
    }

private:
    bool LeeTérmino(const Término& término) {
        Coeficiente coeficiente = término.coeficiente;
        int índice = 0;
        for (const Factor& factor : término.literal) {
            const Base& base = tabla_.BaseDe(factor.símbolo);
            // What is left where unknowns cancel in exponents; any other number is evaluated.
            if (base.clase == ClaseBase::Euler && tabla_.EsLlano(factor.símbolo)) {
                const double exponente = factor.exponente.Valor().ADouble();
                coeficiente *= tabla_.DevRedondeado(std::exp(exponente));
                continue;
            }
            if (!tabla_.EsLlano(factor.símbolo) || factor.exponente != 1 || !EsIncógnita(base))
                return RechazaNoLineal(contexto_);
            if (!IndiceCorrectoSln(base.texto))
                return false;
            if (índice != 0)
                return RechazaNoLineal(contexto_);
            índice = DevIndiceSln(base.texto);
        }
        if (índice == 0) {
            independiente_ -= coeficiente;
        } else {
            std::optional<Coeficiente>& suma = coeficientes_[static_cast<std::size_t>(índice)];
            suma = suma ? *suma + coeficiente : coeficiente;
            hayIncógnitas_ = true;
        }
        return true;
    }

    bool IndiceCorrectoSln(std::string_view base) {
        if (DevIndiceSln(base) != 0)
            return true;
        MuestraRechazo(contexto_, {.motivo = Motivo::ÍndiceFueraDeRango});
        return false;
    }

    Contexto& contexto_;
    TablaSímbolos& tabla_;
    std::array<std::optional<Coeficiente>, MáximoÍndiceSln + 1> coeficientes_{}; // of those met
    Coeficiente independiente_;
    bool hayIncógnitas_ = false;
};

} // namespace

std::optional<EcuaciónLineal> LeeEcuaciónLineal(Contexto& contexto, std::string_view expresión) {
    TablaSímbolos tabla(contexto, ClaseDesarrollo::EcuaciónLineal);
    const Programa programa = CompilaExpresión(expresión);
    if (PasaDeGradoUno(programa)) {
        RechazaNoLineal(contexto);
        return std::nullopt;
    }
    const Términos suma = DesarrollaEnTérminos(tabla, programa);
    Lector lector(contexto, tabla);
    if (!lector.SintaxisSln(suma))
        return std::nullopt;
    return lector.Toma();
}

} // namespace quiralto
