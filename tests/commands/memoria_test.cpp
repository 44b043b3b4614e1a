// Memory that runs out at any place of any command: the n-th request fails, for every n.

#include "commands/fichero_primos.h"
#include "commands/ordenes.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>
#include <new>

namespace {

// How many requests are still served; negative: all of them.
long quedan = -1;
bool todos = false; // whether those behind a failed one fail too
bool faltó = false;
long peticiones = 0;

void* Pide(std::size_t tamaño) {
    ++peticiones;
    if (quedan == 0) {
        quedan = todos ? 0 : -1;
        faltó = true;
        throw std::bad_alloc();
    }
    quedan -= quedan > 0 ? 1 : 0;
    void* const memoria = std::malloc(tamaño == 0 ? 1 : tamaño);
    if (memoria == nullptr)
        throw std::bad_alloc();
    return memoria;
}

} // namespace

void* operator new(std::size_t tamaño) {
    return Pide(tamaño);
}
void* operator new[](std::size_t tamaño) {
    return Pide(tamaño);
}
void operator delete(void* memoria) noexcept {
    std::free(memoria);
}
void operator delete[](void* memoria) noexcept {
    std::free(memoria);
}
void operator delete(void* memoria, std::size_t) noexcept {
    std::free(memoria);
}
void operator delete[](void* memoria, std::size_t) noexcept {
    std::free(memoria);
}

namespace quiralto {
namespace {

// Keeps the last message in place, so that showing it asks for nothing either.
class MensajesSinMemoria : public Mensajes {
public:
    void Muestra(Icono icono, std::string_view texto) override {
        ++cuántos;
        último = icono;
        longitud = texto.copy(búfer.data(), búfer.size());
    }
    std::string_view Texto() const { return {búfer.data(), longitud}; }

    int cuántos = 0;
    Icono último = Icono::Ninguno;

private:
    std::array<char, 512> búfer{};
    std::size_t longitud = 0;
};

constexpr std::string_view SinMemoria =
    "Se produjo el error número :7. Tipo de error :Memoria insuficiente. Utilice valores "
    "diferentes para evitar este tipo de error. El proceso solicitado se cancelará.";

class Memoria : public testing::TestWithParam<bool> {};

struct Prueba {
    std::string orden;
    std::string hoja;
};

// The examples of the table, and worksheets that reach further.
std::vector<Prueba> DevPruebas() {
    std::vector<Prueba> pruebas = {
        {"Resolver sistema lineal",
         "12345678.12345678*X(1)+98765432.1*X(2)+3*X(3)=1/7\r\nSIN(2)*X(4)-3*(X(2)+X(3))=X(1)\r\n"
         "X(1)/3-87654321.8765*X(3)+X(5)=5"},
        {"Resolver sistema lineal",
         "12345678.12345678*X(1)+98765432.1*X(2)=1\r\n3.7654321*X(1)-7777777.77*X(2)=2"},
        {"Derivar", "SIN(COS(12*X^(X+3)-2))+11*X^-3*SIN(X)-3"},
        {"Derivar", "X*SQR(1-X^2)/(1+1/(1+EXP(-X)))"},
        {"Desarrollo completo", "(X/7+1)/(X^2-1)+1/(1+1/(1+X))"},
        {"Desarrollo simplificado", "(X+1)^20*(X/3-1)^9"},
        {"Simplificar función racional", "(X^3/7-1/7)/(X^2-1)+(1.5*X+2)^-3"},
        {"Mínimo común múltiplo función racional", "1.5*X^2+1.5*X-3,X^2+9*X+14,X^2-7*X-18"},
        {"Desarrollo simplificado multivariable", "(A+B/3-C)^3/(A-B)+SIN(A+B)+SIN(B+A)"},
        {"Hallar polinomio de Lagrange", ".123456789,1,2.3456789,-3,4.56789,7,-8.9,.1,.7,2"},
        {"Hallar mínimo común múltiplo", "1590175129,7405926,131328571,.123456789012345"},
        {"Hallar soluciones ecuación", "X^2,5"}, // refused
        {"Resolver sistema lineal", "X(1)=1\r\nX(1)*X(2)=3"},
    };
    for (const Orden& orden : DevÓrdenes())
        pruebas.push_back({std::string(orden.texto), std::string(orden.ejemplo)});
    return pruebas;
}

// Runs the command with the n-th request failing; true where it needed fewer.
bool CorreHasta(const Prueba& prueba, long n) {
    static Primos primos = [] {
        Banco banco;
        CargaPrimos(banco.contexto, QUIRALTO_PRIMOS);
        return banco.contexto.TablaPrimos;
    }();
    MensajesSinMemoria mensajes;
    VigilanteDePrueba vigilante;
    Contexto contexto(mensajes, vigilante, primos);
    contexto.generador.Siembra(1);
    Hoja hoja(prueba.hoja);
    faltó = false;
    quedan = n;
    EjecutaInstrucciones(contexto, hoja, prueba.orden);
    quedan = -1;
    const bool bastaba = !faltó;
    EXPECT_TRUE(hoja.texto.starts_with(prueba.hoja)) << prueba.orden << ' ' << n;
    EXPECT_EQ(contexto.PrefijoVariable, "") << prueba.orden << ' ' << n;
    if (!bastaba) {
        EXPECT_EQ(mensajes.cuántos, 1) << prueba.orden << ' ' << n;
        EXPECT_EQ(mensajes.último, Icono::Crítico);
        EXPECT_EQ(mensajes.Texto(), SinMemoria) << prueba.orden << ' ' << n;
    }
    return bastaba;
}

TEST_P(Memoria, SiFaltaEnCualquierSitioQuedanLaHojaYElMensaje) {
    todos = GetParam();
    long total = 0;
    for (const Prueba& prueba : DevPruebas()) {
        long n = 0;
        while (!CorreHasta(prueba, n) && !HasFailure())
            ++n;
        EXPECT_GT(n, 0) << prueba.orden;
        total += n;
    }
    RecordProperty("total", std::to_string(total));
}

INSTANTIATE_TEST_SUITE_P(UnaYTodas, Memoria, testing::Bool(), [](const auto& datos) {
    return datos.param ? "LasSiguientesTambien" : "UnaSola";
});

TEST(MemoriaDeLosMensajes, ElErrorGeneralNoPideNinguna) {
    MensajesSinMemoria mensajes;
    VigilanteDePrueba vigilante;
    Primos primos{};
    Contexto contexto(mensajes, vigilante, primos);
    const long antes = peticiones;
    for (const int número : {5, 6, 7, 11, 14, 99})
        MensajeErrorGeneral(contexto, número);
    EXPECT_EQ(peticiones, antes);
    EXPECT_EQ(mensajes.cuántos, 6);
    EXPECT_EQ(mensajes.Texto(),
              "Se produjo el error número :99. Tipo de error :Error definido por la aplicación. "
              "Utilice valores diferentes para evitar este tipo de error. El proceso solicitado "
              "se cancelará.");
}

} // namespace
} // namespace quiralto
