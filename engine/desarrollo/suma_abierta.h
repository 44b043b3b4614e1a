// A sum that is being added up: successive additions cost what the shorter operand costs, and the
// result is that of collecting after each of them. An addition A + B puts first the terms that met
// a like one, in the order of B, with B's literal part and the sum of the coefficients; then the
// other terms of A, then those of B.
// Tested by desarrollo_test.cpp and desarrollo_propiedades_test.cpp.
#pragma once

#include "engine/desarrollo/semejantes.h"

#include <optional>

namespace quiralto {

class SumaAbierta {
public:
    SumaAbierta(TablaSímbolos& tabla, Términos suma);

    std::size_t Cantidad() const { return vivos_; }
    void AñadeDetrás(const Términos& b, int signo);  // *this + signo*b
    void AñadeDelante(const Términos& a, int signo); // a + signo*(*this)
    Términos Cierra() const;

private:
    struct Nodo {
        Término término;    // the coefficient without signo_; 0: gone
        std::int64_t orden; // the terms' places ascend
    };

    Coeficiente ConSigno(const Coeficiente& coeficiente, int signo) const {
        return signo < 0 ? -coeficiente : coeficiente;
    }
    std::uint32_t Busca(const Literal& literal, std::uint64_t hash);
    void Pon(std::uint32_t hallado, const Literal& literal, Coeficiente coeficiente,
             std::uint64_t hash, std::int64_t orden);
    void EmpiezaPrueba();

    TablaSímbolos& tabla_;
    std::vector<Nodo> nodos_;
    ÍndiceHash porLetra_;
    std::optional<ÍndiceSemejantes> porValores_; // once the test has begun
    bool soloDeX_ = true;                        // every node a number or a power of X
    bool soloNúmeros_ = true;                    // every node a number
    int signo_ = 1;                              // of all coefficients
    std::int64_t primero_ = 0;
    std::int64_t último_ = 0;
    std::size_t vivos_ = 0;
    std::size_t pasos_ = 0;
};

} // namespace quiralto
