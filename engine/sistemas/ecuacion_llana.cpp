#include "engine/sistemas/ecuacion_llana.h"

#include "engine/base/caracteres.h"
#include "engine/numeros/numero.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace quiralto {
namespace {

// A number of fewer digits keeps all of them however it is rounded and written.
constexpr std::size_t Llanos = 14;

// 1, .1, .01, ...
const std::array<Coeficiente, Llanos>& Unidades() {
    static const std::array<Coeficiente, Llanos> unidades = [] {
        std::array<Coeficiente, Llanos> lista{};
        for (std::size_t i = 0; i < Llanos; ++i)
            lista[i] = Coeficiente(1, DevPotenciaDeDiez(static_cast<int>(i)));
        return lista;
    }();
    return unidades;
}

class Lector {
public:
    Lector(const Contexto& contexto, std::string_view línea) : contexto_(contexto), resto_(línea) {
        Salta();
    }

    std::optional<EcuaciónLineal> Lee() {
        if (!LeeLado(1) || !Toma('=') || !LeeLado(-1) || !resto_.empty())
            return std::nullopt;
        EcuaciónLineal ecuación;
        ecuación.términos.reserve(static_cast<std::size_t>(mayor_));
        for (int i = 1; i <= mayor_; ++i)
            if (Coeficiente& suma = DeÍndice(i); !suma.EsCero())
                ecuación.términos.push_back({i, std::move(suma)});
        ecuación.independiente = -DeÍndice(0);
        return ecuación.términos.empty() ? std::nullopt : std::optional(std::move(ecuación));
    }

private:
    // A sum of terms, each counted with the sign of its side.
    bool LeeLado(int signoDelLado) {
        char signo = LeeSigno();
        do {
            if (!LeeTérmino(signo == '-' ? -signoDelLado : signoDelLado))
                return false;
            signo = LeeSigno();
        } while (signo != '\0');
        return true;
    }

    bool LeeTérmino(int signo) {
        Coeficiente coeficiente = 1;
        int índice = 0;
        const bool hayNúmero =
            !resto_.empty() && (EsDígito(resto_.front()) || resto_.front() == '.');
        if (hayNúmero && !LeeNúmeroSinSigno(coeficiente))
            return false;
        if ((!hayNúmero || Toma('*')) && !LeeIncógnita(índice))
            return false;
        mayor_ = std::max(mayor_, índice);
        if (signo < 0)
            coeficiente.CambiaSigno();
        Coeficiente& suma = DeÍndice(índice);
        suma = suma.EsCero() ? std::move(coeficiente) : suma + coeficiente;
        return true;
    }

    bool LeeIncógnita(int& índice) {
        if (!Toma('X') && !Toma('x'))
            return false;
        if (!Toma('('))
            return false;
        for (; !resto_.empty() && EsDígito(resto_.front()); Avanza(1)) {
            índice = índice * 10 + (resto_.front() - '0');
            if (índice > MáximoÍndiceSln)
                return false;
        }
        return índice > 0 && Toma(')');
    }

    // Digits with at most one point, which is not the last of them; the number of decimals.
    std::optional<std::size_t> LeeDígitos(std::string& dígitos) {
        std::optional<std::size_t> enteros;
        for (; !resto_.empty() && (EsDígito(resto_.front()) || resto_.front() == '.'); Avanza(1)) {
            if (resto_.front() != '.')
                dígitos += resto_.front();
            else if (std::exchange(enteros, dígitos.size()))
                return std::nullopt;
        }
        const std::size_t decimales = dígitos.size() - enteros.value_or(dígitos.size());
        return enteros && decimales == 0 ? std::nullopt : std::optional(decimales);
    }

    bool LeeNúmeroSinSigno(Coeficiente& valor) {
        std::string dígitos;
        const std::optional<std::size_t> decimales = LeeDígitos(dígitos);
        if (!decimales)
            return false;
        if (dígitos.size() < Llanos &&
            *decimales <= static_cast<std::size_t>(contexto_.DígitosRedondeo)) {
            std::int64_t mantisa = 0;
            for (const char c : dígitos)
                mantisa = mantisa * 10 + (c - '0');
            valor = mantisa;
            if (*decimales > 0)
                valor *= Unidades()[*decimales];
            return true;
        }
        const NúmeroLeído leído =
            LeeNúmero(dígitos.insert(dígitos.size() - *decimales, *decimales > 0 ? "." : ""));
        if (leído.desborda)
            return false;
        const double redondo = Redondea(leído.valor, contexto_.DígitosRedondeo);
        valor = Coeficiente::DesdeDouble(Val(TextoNúmero(redondo)));
        return true;
    }

    char LeeSigno() {
        if (resto_.empty() || !EsSigno(resto_.front()))
            return '\0';
        const char signo = resto_.front();
        Avanza(1);
        return signo;
    }

    bool Toma(char c) {
        if (resto_.empty() || resto_.front() != c)
            return false;
        Avanza(1);
        return true;
    }

    void Avanza(std::size_t cuántos) {
        resto_.remove_prefix(cuántos);
        Salta();
    }

    void Salta() {
        while (!resto_.empty() && (resto_.front() == ' ' || resto_.front() == '\t'))
            resto_.remove_prefix(1);
    }

    Coeficiente& DeÍndice(int i) { return sumas_[static_cast<std::size_t>(i)]; }

    const Contexto& contexto_;
    std::string_view resto_;
    std::array<Coeficiente, MáximoÍndiceSln + 1> sumas_{}; // at 0 the numbers alone
    int mayor_ = 0;
};

} // namespace

std::optional<EcuaciónLineal> LeeEcuaciónLlana(const Contexto& contexto, std::string_view línea) {
    return Lector(contexto, línea).Lee();
}

} // namespace quiralto
