#include "engine/desarrollo/sumando.h"

#include "engine/desarrollo/algebra_suma.h"
#include "engine/numeros/numero.h"

#include <algorithm>

namespace quiralto {

const Términos& Sumando::Cerrada() {
    if (abierta_) {
        suma_ = abierta_->Cierra();
        abierta_.reset();
    }
    return suma_;
}

void Sumando::Añade(TablaSímbolos& tabla, Sumando b, double signo) {
    factores.clear();
    if (b.Cantidad() == 0)
        return;
    if (Cantidad() == 0 && signo > 0) {
        *this = std::move(b);
    } else if (Cantidad() >= b.Cantidad()) {
        Abre(tabla);
        abierta_->AñadeDetrás(b.Cerrada(), signo);
    } else {
        b.Abre(tabla);
        b.abierta_->AñadeDelante(Cerrada(), signo);
        *this = std::move(b);
    }
    factores.clear();
}

void Sumando::Abre(TablaSímbolos& tabla) {
    if (!abierta_)
        abierta_ = std::make_unique<SumaAbierta>(tabla, std::move(suma_));
}

std::vector<Términos> DevFactores(Sumando& a, Sumando& b) {
    std::vector<Términos> factores;
    for (Sumando* const uno : {&a, &b}) {
        const Términos& suma = uno->Cerrada();
        if (uno->factores.empty() && suma.size() > 1 && suma.size() <= MáximosTérminosDeFactor)
            factores.push_back(suma);
        factores.insert(factores.end(), uno->factores.begin(), uno->factores.end());
    }
    constexpr std::size_t MáximosFactores = 32;
    if (factores.size() > MáximosFactores)
        factores.resize(MáximosFactores);
    return factores;
}

Términos MultiplicaYFunde(TablaSímbolos& tabla, const Términos& a, const Términos& b) {
    Términos producto = MultiplicaSumas(tabla, a, b);
    if (a.size() > 1 || b.size() > 1)
        FundeSemejantes(tabla, producto);
    return producto;
}

Términos ElevaYFunde(TablaSímbolos& tabla, const Términos& base, const Términos& exponente) {
    Términos potencia = ElevaSuma(tabla, base, exponente);
    FundeSemejantes(tabla, potencia);
    return potencia;
}

IdSímbolo DevLlamada(TablaSímbolos& tabla, const DescripciónOperación& función,
                     const std::string& argumento) {
    std::string texto(función.nombre);
    ((texto += '(') += argumento) += ')';
    constexpr double MáximoÍndice = 1e6;
    if (función.familia == Familia::Símbolo &&
        argumento.find_first_not_of("0123456789") == std::string::npos && Val(argumento) >= 1 &&
        Val(argumento) <= MáximoÍndice)
        return tabla.DevVariable(Val(argumento), std::move(texto));
    return tabla.DevBase({.clase = ClaseBase::Función, .texto = std::move(texto)});
}

} // namespace quiralto
