#include "engine/sistemas/grado.h"

#include "engine/base/azar.h"
#include "engine/numeros/campo_primo.h"
#include "engine/numeros/enteros_en_double.h"
#include "engine/numeros/numero.h"
#include "engine/numeros/primos_grandes.h"

#include <cmath>
#include <cstdlib>
#include <optional>
#include <vector>

namespace quiralto {
namespace {

constexpr double MáximoExponente = 1024;

// Which registers the instructions fill.
std::vector<bool> DevCalculados(const Programa& programa) {
    std::vector<bool> calculados(programa.registros.size(), false);
    for (const Instrucción& instrucción : programa.instrucciones)
        calculados[static_cast<std::size_t>(instrucción.resultado)] = true;
    calculados[0] = true; // X
    return calculados;
}

bool EsExponenteNatural(double exponente) {
    return EsEntero(exponente) && exponente >= 0 && exponente <= MáximoExponente;
}

// How many terms the products and powers have before like ones are collected. None: there is
// something else in the formula.
std::optional<double> CuentaTérminos(const Programa& programa) {
    const std::vector<bool> calculados = DevCalculados(programa);
    std::vector<double> términos(programa.registros.size(), 1);
    for (const Instrucción& i : programa.instrucciones) {
        const double a = términos[static_cast<std::size_t>(i.izquierdo)];
        const double b = términos[static_cast<std::size_t>(i.derecho)];
        double& resultado = términos[static_cast<std::size_t>(i.resultado)];
        const DescripciónOperación* const fila = BuscaOperación(i.código);
        switch (fila == nullptr ? Familia::Función : fila->familia) {
        case Familia::Suma:
        case Familia::Resta:
        case Familia::Cociente:
            resultado = a + b;
            break;
        case Familia::Producto:
            resultado = a * b;
            break;
        case Familia::Potencia:
            if (calculados[static_cast<std::size_t>(i.derecho)] ||
                !EsExponenteNatural(programa.registros[static_cast<std::size_t>(i.derecho)]))
                return std::nullopt;
            resultado = std::pow(a, programa.registros[static_cast<std::size_t>(i.derecho)]);
            break;
        case Familia::Símbolo:
            break;
        case Familia::Función:
            return std::nullopt;
        }
    }
    return términos[programa.Resultado()];
}

class Recta {
public:
    Recta(const Programa& programa, std::uint64_t primo) : programa_(programa), campo_(primo) {}

    // The value at X(i) = a(i) + t * b(i), with numbers that are drawn once; none for a division by
    // zero.
    std::optional<CampoPrimo::Resto> DevValor(std::uint64_t t) const {
        std::vector<CampoPrimo::Resto> restos;
        for (const double constante : programa_.registros)
            restos.push_back(DevConstante(constante));
        restos[0] = DevIncógnita(0, t); // X itself
        for (const Instrucción& i : programa_.instrucciones) {
            const CampoPrimo::Resto a = restos[static_cast<std::size_t>(i.izquierdo)];
            const CampoPrimo::Resto b = restos[static_cast<std::size_t>(i.derecho)];
            if (i.código == Operación::Cociente && b == 0)
                return std::nullopt;
            restos[static_cast<std::size_t>(i.resultado)] = Opera(i, a, b, t);
        }
        return restos[programa_.Resultado()];
    }

    const CampoPrimo& Campo() const { return campo_; }

private:
    CampoPrimo::Resto Opera(const Instrucción& i, CampoPrimo::Resto a, CampoPrimo::Resto b,
                            std::uint64_t t) const {
        switch (BuscaOperación(i.código)->familia) {
        case Familia::Suma:
            return campo_.Suma(a, b);
        case Familia::Resta:
            return campo_.Resta(a, b);
        case Familia::Producto:
            return campo_.Producto(a, b);
        case Familia::Cociente:
            return campo_.Producto(a, campo_.Inverso(b));
        case Familia::Potencia:
            return campo_.Potencia(a,
                                   static_cast<std::uint64_t>(
                                       programa_.registros[static_cast<std::size_t>(i.derecho)]));
        case Familia::Símbolo:
        case Familia::Función:
            break;
        }
        return DevIncógnita(campo_.DevValor(b), t);
    }

    CampoPrimo::Resto DevIncógnita(std::uint64_t índice, std::uint64_t t) const {
        Azar azar;
        azar.Siembra(índice + 1);
        const CampoPrimo::Resto a = campo_.AResto(azar() % campo_.Primo());
        const CampoPrimo::Resto b = campo_.AResto(azar() % campo_.Primo());
        return campo_.Suma(a, campo_.Producto(campo_.AResto(t), b));
    }

    CampoPrimo::Resto DevConstante(double valor) const {
        if (!std::isfinite(valor))
            return 0; // a register that an instruction fills
        const FormaEntera forma = DevFormaEntera(valor);
        const CampoPrimo::Resto potencia = campo_.Potencia(
            campo_.AResto(10), static_cast<std::uint64_t>(std::abs(forma.exponente)));
        const CampoPrimo::Resto mantisa =
            campo_.AResto(static_cast<std::uint64_t>(forma.mantisa) % campo_.Primo());
        const CampoPrimo::Resto absoluto =
            campo_.Producto(mantisa, forma.exponente < 0 ? campo_.Inverso(potencia) : potencia);
        return valor < 0 ? campo_.Resta(0, absoluto) : absoluto;
    }

    const Programa& programa_;
    CampoPrimo campo_;
};

} // namespace

bool PasaDeGradoUno(const Programa& programa) {
    constexpr double PocosTérminos = 4096;
    const std::optional<double> términos = CuentaTérminos(programa);
    if (!términos || *términos <= PocosTérminos)
        return false;
    const Recta recta(programa, SucesiónDePrimos().Siguiente());
    const CampoPrimo& campo = recta.Campo();
    const auto a = recta.DevValor(1);
    const auto b = recta.DevValor(2);
    const auto c = recta.DevValor(3);
    return a && b && c && campo.Suma(*a, *c) != campo.Suma(*b, *b);
}

} // namespace quiralto
