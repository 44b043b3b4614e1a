// From bytes to formulas: every input is a text of the grammar, so that a fuzzer spends its time
// behind the syntax check and small changes of the bytes are small changes of the formula.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace quiralto {

class Gramática {
public:
    enum class Átomos : std::uint8_t { X, Letras, Incógnitas };

    Gramática(std::span<const std::uint8_t> octetos, Átomos átomos, bool conFunciones = true)
        : octetos_(octetos), átomos_(átomos), conFunciones_(conFunciones) {}

    std::uint8_t Octeto() {
        if (octetos_.empty())
            return 0;
        const std::uint8_t octeto = octetos_.front();
        octetos_ = octetos_.subspan(1);
        return octeto;
    }
    bool QuedaAlgo() const { return !octetos_.empty(); }

    // At most `tamaño` operands, a bounded depth: what the bytes do not say is an X.
    std::string Fórmula(int tamaño = 24) {
        quedan_ = tamaño;
        std::string texto;
        Suma(texto, 0);
        return texto;
    }

    std::string Número() {
        constexpr std::array<std::string_view, 16> Números = {
            "1",   "2",   "3",   "4",    "7",   "10", "0",     ".5",
            ".25", "2.5", "1.1", ".125", "100", "12", "1E+20", "123456789"};
        const std::uint8_t octeto = Octeto();
        if (octeto % 4 != 0)
            return std::string(Números[octeto / 4 % 7]); // mostly small whole ones
        return std::string(Números[octeto / 4 % Números.size()]);
    }

private:
    static constexpr int MáximaProfundidad = 6;

    void Suma(std::string& texto, int profundidad) {
        if (Octeto() % 6 == 5)
            texto += '-';
        Producto(texto, profundidad);
        for (int i = Octeto() % 4; i > 0 && quedan_ > 0; --i) {
            texto += Octeto() % 2 == 0 ? '+' : '-';
            Producto(texto, profundidad);
        }
    }
    void Producto(std::string& texto, int profundidad) {
        Potencia(texto, profundidad);
        for (int i = Octeto() % 3; i > 0 && quedan_ > 0; --i) {
            texto += Octeto() % 3 == 2 ? '/' : '*';
            if (Octeto() % 8 == 7)
                texto += '-';
            Potencia(texto, profundidad);
        }
    }
    void Potencia(std::string& texto, int profundidad) {
        Operando(texto, profundidad);
        if (Octeto() % 4 != 3 || quedan_ <= 0)
            return;
        constexpr std::array<std::string_view, 10> Exponentes = {"2",     "3", "-1", "-2",     ".5",
                                                                 "(1/3)", "4", "0",  "(-1/2)", "5"};
        const std::uint8_t octeto = Octeto();
        texto += '^';
        if (octeto < 240)
            texto += Exponentes[octeto % Exponentes.size()];
        else
            Operando(texto, profundidad + 1);
    }
    void Operando(std::string& texto, int profundidad) {
        --quedan_;
        const std::uint8_t octeto = Octeto();
        if (octeto % 8 >= 5 && profundidad < MáximaProfundidad && quedan_ > 0) {
            if (octeto % 8 == 7 && conFunciones_) {
                constexpr std::array<std::string_view, 10> Funciones = {
                    "SIN", "COS", "EXP", "SQR", "LOG", "ATN", "TAN", "ARCSIN", "SEC", "COSEC"};
                texto += Funciones[octeto / 8 % Funciones.size()];
            }
            texto += '(';
            Suma(texto, profundidad + 1);
            texto += ')';
        } else if (octeto % 8 >= 3) {
            texto += Número();
        } else {
            Átomo(texto, octeto / 8);
        }
    }
    void Átomo(std::string& texto, int cuál) {
        switch (átomos_) {
        case Átomos::X:
            texto += 'X';
            break;
        case Átomos::Letras:
            texto += "ABXYabx"[cuál % 7];
            break;
        case Átomos::Incógnitas:
            texto += "X(" + std::to_string(1 + cuál % 5) + ")";
            break;
        }
    }

    std::span<const std::uint8_t> octetos_;
    Átomos átomos_;
    bool conFunciones_;
    int quedan_ = 0;
};

} // namespace quiralto
