#include "engine/numeros/coeficiente.h"

#include "engine/base/fallos.h"
#include "engine/numeros/numero.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace quiralto {
namespace {

Coeficiente Fracción(std::int64_t n, std::int64_t d) {
    return {Entero(n), Entero(d)};
}

int DevError(auto f) {
    try {
        f();
    } catch (const ErrorEjecución& error) {
        return error.Número();
    }
    return 0;
}

TEST(Coeficiente, LosProductosDeDosPalabrasSonLosDeLosEnteros) {
    for (const std::int64_t a : {INT64_MAX, std::int64_t{7'000'000'000'000'000'000},
                                 std::int64_t{6'521'908'912'666'391'107}, -INT64_MAX})
        for (const std::int64_t b : {INT64_MAX, std::int64_t{7'000'000'000'000'000'000},
                                     std::int64_t{-6'521'908'912'666'391'106}}) {
            EXPECT_EQ(Coeficiente(a) * Coeficiente(b), Coeficiente(Entero(a) * Entero(b), 1));
            const Entero de = 4'294'967'291; // the largest prime of 32 bits
            EXPECT_EQ(Coeficiente(a, de) + Coeficiente(b, 3),
                      Coeficiente(Entero(a) * 3 + Entero(b) * de, de * 3));
        }
}

TEST(Coeficiente, SumaYMultiplicaSinPerderNada) {
    Coeficiente suma;
    for (int i = 0; i < 7; ++i)
        suma += Fracción(1, 7);
    EXPECT_TRUE(suma.EsUno());
    EXPECT_EQ(Fracción(1, 3) + Fracción(1, 7), Fracción(10, 21));
    EXPECT_EQ((Fracción(1, 3) + Fracción(1, 7)) * 21, 10);
    EXPECT_EQ(Fracción(6, -4), Fracción(-3, 2));
    EXPECT_EQ(Fracción(2, 3) / Fracción(4, 9), Fracción(3, 2));
    EXPECT_TRUE((Fracción(1, 3) - Fracción(1, 3)).EsCero());
    EXPECT_EQ(Fracción(-2, 3).Potencia(-3), Fracción(-27, 8));
    EXPECT_EQ(Coeficiente().Potencia(0), 1);
    EXPECT_LE(sizeof(Coeficiente), 16U);
}

// Each law on numbers of every size, from those held in place to those past MáximosBits.
TEST(Coeficiente, CumpleLasLeyesConNúmerosDeTodoTamaño) {
    constexpr std::uint64_t Semilla = 11;
    std::mt19937_64 azar(Semilla);
    const auto sortea = [&] {
        const auto n = static_cast<std::int64_t>(azar() >> azar() % 63);
        const auto d = static_cast<std::int64_t>(azar() >> (1 + azar() % 63)) + 1;
        return Fracción(azar() % 2 == 0 ? n : -n, d).Potencia(1 + static_cast<int>(azar() % 3));
    };
    for (int i = 0; i < 5000; ++i) {
        const Coeficiente a = sortea();
        const Coeficiente b = sortea();
        const Coeficiente c = sortea();
        EXPECT_EQ((a + b) + c, a + (b + c)) << i;
        EXPECT_EQ((a * b) * c, a * (b * c)) << i;
        EXPECT_EQ(a * (b + c), a * b + a * c) << i;
        EXPECT_TRUE((a + b - a - b).EsCero()) << i;
        if (!b.EsCero()) {
            EXPECT_EQ(a / b * b, a) << i;
        }
        EXPECT_NEAR((a * b).ADouble(), a.ADouble() * b.ADouble(),
                    1e-15 * std::fabs(a.ADouble() * b.ADouble()))
            << i;
        if (const Coeficiente mcd = DevMCD(a, b); !mcd.EsCero()) {
            EXPECT_TRUE((a / mcd).EsEntero() && (b / mcd).EsEntero()) << i;
        }
    }
}

TEST(Coeficiente, PasaADoubleMásAlláDelTamaño) {
    const Coeficiente exacto = Coeficiente(2).Potencia(1000);
    EXPECT_TRUE(exacto.EsExacto());
    EXPECT_EQ(exacto.ADouble(), std::ldexp(1, 1000));
    const Coeficiente fracción = Fracción(1, 3).Potencia(700) * Coeficiente(2).Potencia(1000);
    EXPECT_TRUE(fracción.EsExacto());
    const Coeficiente inexacto = fracción * Fracción(1, 3).Potencia(100);
    EXPECT_FALSE(inexacto.EsExacto());
    EXPECT_NEAR(inexacto.ADouble() / (std::pow(2, 1000) / std::pow(3, 400) / std::pow(3, 400)), 1,
                1e-12);
    EXPECT_FALSE((inexacto - inexacto).EsExacto());
    EXPECT_TRUE((inexacto - inexacto).EsCero());
}

TEST(Coeficiente, AcabaConUnErrorLoQueNoCabeEnUnDouble) {
    const Coeficiente grande = Coeficiente::DesdeTexto("1E+300");
    EXPECT_EQ(DevError([&] { grande* grande* grande; }), Desbordamiento);
    EXPECT_EQ(DevError([&] { grande.Potencia(-5); }), Desbordamiento);
    EXPECT_EQ(DevError([&] { grande.Potencia(int64_t{1} << 40); }), Desbordamiento);
    EXPECT_EQ(DevError([] { Coeficiente(1) / Coeficiente(0); }), DivisiónPorCero);
    EXPECT_EQ(DevError([] { Coeficiente(0).Potencia(-1); }), DivisiónPorCero);
    EXPECT_EQ(DevError([] { Coeficiente::DesdeTexto("1E+400"); }), Desbordamiento);
}

TEST(Coeficiente, LeeDecimalesYDoublesComoSeEscriben) {
    const struct {
        const char* texto;
        Coeficiente valor;
    } casos[] = {
        {"4.3", Fracción(43, 10)},
        {"-.125", Fracción(-1, 8)},
        {"1E+20", Coeficiente(10).Potencia(20)},
        {"1.5D-3*X", Fracción(3, 2000)},
        {"123456789012345678", 123456789012345678},
        {"0.000", 0},
        {"X", 0},
        {"1E-400", 0},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Coeficiente::DesdeTexto(caso.texto), caso.valor) << caso.texto;
    EXPECT_EQ(Coeficiente::DesdeDouble(4.3), Fracción(43, 10));
    EXPECT_EQ(Coeficiente::DesdeDouble(-0.1), Fracción(-1, 10));
    EXPECT_EQ(Coeficiente::DesdeDouble(1.0 / 3), Coeficiente::DesdeTexto(".333333333333333"));
    EXPECT_EQ(Coeficiente::DesdeDouble(1e300), Coeficiente(10).Potencia(300));
}

TEST(Coeficiente, TomaUnDoubleHastaSuÚltimoBit) {
    EXPECT_EQ(Coeficiente::DesdeBits(0.75), Fracción(3, 4));
    EXPECT_EQ(Coeficiente::DesdeBits(-6), Coeficiente(-6));
    EXPECT_EQ(Coeficiente::DesdeBits(0), Coeficiente(0));
    EXPECT_EQ(Coeficiente::DesdeBits(std::ldexp(3, 90)),
              Coeficiente(3) * Coeficiente(2).Potencia(90));
    for (const double x : {0.1, std::sqrt(2.0), -1.0 / 3, 1e300, 1e-300}) {
        EXPECT_TRUE(Coeficiente::DesdeBits(x).EsExacto()) << x;
        EXPECT_EQ(Coeficiente::DesdeBits(x).ADouble(), x);
    }
    EXPECT_NE(Coeficiente::DesdeBits(0.1), Fracción(1, 10));
    EXPECT_EQ(DevError([] { Coeficiente::DesdeBits(HUGE_VAL); }), Desbordamiento);
    EXPECT_EQ(DevError([] { Coeficiente::DesdeBits(std::nan("")); }), ArgumentoInválido);
}

TEST(Coeficiente, SeRedondeaComoSeEscribe) {
    const struct {
        Coeficiente valor;
        int dígitos;
        const char* texto;
    } casos[] = {
        {Fracción(1, 3), 8, ".33333333"},
        {Fracción(-2, 3), 8, "-.66666667"},
        {Fracción(1, 2), 0, "1"},
        {Fracción(-1, 2), 0, "-1"},
        {Fracción(43, 10), 15, "4.3"},
        {Fracción(1, 3), 15, ".333333333333333"},
        {Coeficiente::DesdeTexto("123456789.123456789"), 8, "123456789.123457"},
        {Coeficiente(10).Potencia(20), 8, "1E+20"},
        {Fracción(5, 1000000000), 8, ".00000001"},
        {Fracción(4, 1000000000), 8, "0"},
    };
    for (const auto& [valor, dígitos, texto] : casos) {
        EXPECT_EQ(valor.Texto(dígitos), texto);
        // what is written is read back as what was written
        EXPECT_EQ(Coeficiente::DesdeTexto(texto), valor.Escrito(dígitos)) << texto;
        EXPECT_EQ(valor.Escrito(dígitos).Escrito(dígitos), valor.Escrito(dígitos)) << texto;
    }
}

TEST(Coeficiente, SeCopiaYSeMueve) {
    Coeficiente grande = Coeficiente(3).Potencia(200);
    Coeficiente copia = grande;
    copia += 1;
    EXPECT_EQ(copia - grande, 1);
    const Coeficiente movido = std::move(grande);
    EXPECT_EQ(copia - movido, 1);
    const Coeficiente& misma = copia;
    copia = misma;
    EXPECT_EQ(copia - movido, 1);
    copia = 5;
    EXPECT_EQ(copia, 5);
}

} // namespace
} // namespace quiralto
