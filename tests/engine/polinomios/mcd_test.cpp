#include "engine/polinomios/mcd.h"

#include "engine/polinomios/division.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <random>

namespace quiralto {
namespace {

class MCDDePolinomios : public testing::Test {
protected:
    Polinomio Lee(std::string_view texto) {
        return ReduceTérminos(banco.contexto, LeePolinomio(texto));
    }
    std::string Escribe(const Polinomio& p) { return EscribePolinomio(banco.contexto, p); }
    Polinomio Por(const Polinomio& p, const Polinomio& q) {
        return MultiplicaPolinomios(banco.contexto, p, q);
    }
    // With whole coefficients up to `máximo` and a leading one that is not 0.
    Polinomio DevAleatorio(int grado, int máximo) {
        Monomios<double> términos;
        const auto uno = [&] {
            return static_cast<double>(azar() % static_cast<std::uint64_t>(2 * máximo + 1)) -
                   máximo;
        };
        for (int e = 0; e < grado; ++e)
            términos.push_back({static_cast<double>(e), uno()});
        términos.push_back({static_cast<double>(grado), máximo - 1.0});
        return ReduceTérminos(banco.contexto, términos);
    }
    bool SonAsociados(const Polinomio& p, const Polinomio& q) {
        return DevGrado(p) == DevGrado(q) && DivideSiExacta(banco.contexto, p, q).has_value();
    }

    Banco banco;
    std::mt19937_64 azar{20270};
};

TEST_F(MCDDePolinomios, EsElÚltimoDivisorDeLaCadena) {
    const struct {
        const char* p;
        const char* q;
        const char* mcd;
    } casos[] = {
        {"X^2-1", "X^2-1", "X^2-1"},
        {"X^2-1", "X-1", "X-1"},
        {"X-1", "X^2-1", "X-1"},
        {"X^2-1", "X^2-3*X+2", "3*X-3"},
        {"X^2-3*X+2", "X^2-1", "-3*X+3"},
        {"X-1", "X-2", "1"},
        {"X", "X+3", "-3"},
        {"4", "6", "6"},
        {"0", "X-1", "X-1"},
        {"X-1", "0", "X-1"},
        {"0", "0", "0"},
        {".5*X^2-.5", "X^2-3*X+2", "1.5*X-1.5"},
        {"X^5", "X^3", "X^3"},
        {"X^6-X^2", "X^4-X^2", "X^4-X^2"},
        {"X^1000000-1", "X^500000-1", "X^500000-1"},
        {"X^1000000", "X+1", "1"},
        // The chain ends in 4/3*X-4/3 and in 10/9.
        {"X^2-1", "3*X^2-4*X+1", "X-1"},
        {"X^2+1", "3*X+1", "1"},
        {"2*X^3+3*X^2+2*X+1", "2*X^2+3*X+1", "X+1"},
        // 12345678^2 and 123456789^2, of which the second has too many digits to be written in
        // full.
        {"X^2", "X-12345678", "152415765279684"},
        {"X^2", "X-123456789", "1"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Escribe(MCDPolinomios(banco.contexto, Lee(caso.p), Lee(caso.q))), caso.mcd)
            << caso.p << " , " << caso.q;
}

TEST_F(MCDDePolinomios, LosDecimalesDependenDeLasCifrasDeRedondeo) {
    // The chain ends in 1.25*X-1.25.
    const char* p = "4*X^2-4";
    const char* q = "4*X^2+X-5";
    EXPECT_EQ(Escribe(MCDPolinomios(banco.contexto, Lee(p), Lee(q))), "-X+1");
    banco.contexto.DígitosRedondeo = 1;
    EXPECT_EQ(Escribe(MCDPolinomios(banco.contexto, Lee("4*X^2+X-5"), Lee("16*X-16"))), "16*X-16");
    // .25*X-.25 has two places
    const Polinomio a = Lee("X^2-1");
    const Polinomio b = Lee("4*X^2-3*X-1"); // X^2-1 less a quarter of it: .75*X-.75
    EXPECT_EQ(Escribe(MCDPolinomios(banco.contexto, a, b)), "X-1");
    banco.contexto.DígitosRedondeo = 2;
    EXPECT_EQ(Escribe(MCDPolinomios(banco.contexto, a, b)), ".75*X-.75");
}

TEST_F(MCDDePolinomios, ElFactorComúnEsPrimitivoYPositivo) {
    const struct {
        const char* p;
        const char* q;
        const char* común;
    } casos[] = {
        {"X^2-1", "X^2-3*X+2", "X-1"},
        {"-2*X+2", "-4*X^2+4", "X-1"},
        {"X", "X+3", "1"},
        {"4", "6", "1"},
        {".5*X-.25", "X^2-.25", "2*X-1"},
        {"6*X^3", "-4*X^2", "X^2"},
        {"5", "X", "1"},
    };
    for (const auto& caso : casos)
        EXPECT_EQ(Escribe(MCDPrimitivo(banco.contexto, Lee(caso.p), Lee(caso.q))), caso.común)
            << caso.p << " , " << caso.q;
}

TEST_F(MCDDePolinomios, NuncaPierdeUnFactorComún) {
    for (int i = 0; i < 400; ++i) {
        const Polinomio común = DevAleatorio(i % 9, 1 + i % 50 + 2);
        const Polinomio a = DevAleatorio(i % 7, 30);
        const Polinomio b = DevAleatorio(i % 5, 1000);
        const Polinomio p = Por(a, común);
        const Polinomio q = Por(b, común);
        const Polinomio mcd = MCDPrimitivo(banco.contexto, p, q);
        EXPECT_TRUE(DivideSiExacta(banco.contexto, mcd, común)) << i;
        const auto restoP = DivideSiExacta(banco.contexto, p, mcd);
        const auto restoQ = DivideSiExacta(banco.contexto, q, mcd);
        ASSERT_TRUE(restoP && restoQ) << i;
        EXPECT_TRUE(EsConstante(MCDPrimitivo(banco.contexto, *restoP, *restoQ))) << i;
        EXPECT_TRUE(SonAsociados(MCDPolinomios(banco.contexto, p, q), mcd)) << i;
        EXPECT_TRUE(SonAsociados(MCDPolinomios(banco.contexto, q, p), mcd)) << i;
    }
}

TEST_F(MCDDePolinomios, LosCoeficientesDeMuchasPalabrasTambién) {
    // The common factor's coefficients need more than one prime.
    Polinomio común = DevConstante(1);
    for (int i = 0; i < 6; ++i)
        común = Por(común, DevAleatorio(4, 900000000));
    const Polinomio p = Por(común, DevAleatorio(5, 900000000));
    const Polinomio q = Por(común, DevAleatorio(5, 900000000));
    const Polinomio mcd = MCDPrimitivo(banco.contexto, p, q);
    EXPECT_EQ(DevGrado(mcd), 24);
    EXPECT_TRUE(SonAsociados(mcd, común));
}

TEST_F(MCDDePolinomios, LasFraccionesSonExactas) {
    const Polinomio tercio = DividePolinomios(banco.contexto, Lee("1"), Lee("3")).cociente;
    const Polinomio séptimo = DividePolinomios(banco.contexto, Lee("1"), Lee("7")).cociente;
    const Polinomio p = Por(Lee("X^2-X+1"), SumaPolinomios(Por(tercio, Lee("X")), séptimo));
    const Polinomio q = Por(Lee("X-5"), SumaPolinomios(Por(tercio, Lee("X")), séptimo));
    EXPECT_EQ(Escribe(MCDPrimitivo(banco.contexto, p, q)), "7*X+3");
    EXPECT_EQ(Escribe(MCDPolinomios(banco.contexto, p, q)), "7*X+3");
}

TEST_F(MCDDePolinomios, LosRealesSiguenLaCadenaRedondeada) {
    const Polinomio p = AReal(Lee("X^2-1"));
    const Polinomio q = AReal(Lee("X^2-3*X+2"));
    EXPECT_EQ(Escribe(MCDPolinomios(banco.contexto, p, q)), "3*X-3");
    EXPECT_EQ(Escribe(MCDPrimitivo(banco.contexto, p, q)), "X-1");
    const Polinomio ruido = AReal(SumaPolinomios(p, AReal(PolinomioReal{{1, 1e-12}})));
    EXPECT_EQ(Escribe(MCDPrimitivo(banco.contexto, ruido, q)), "X-1");
    EXPECT_EQ(Escribe(MCDPrimitivo(banco.contexto, p, AReal(Lee("X^2+X+7")))), "1");
    EXPECT_EQ(Escribe(MCDPolinomios(banco.contexto, Lee("X^1.5-X^.5"), Lee("X^.5"))), "X^.5");
}

TEST_F(MCDDePolinomios, DivideSóloLoQueNoDejaResto) {
    const struct {
        const char* dividendo;
        const char* divisor;
        const char* cociente; // empty: none
    } casos[] = {
        {"X^2-1", "X-1", "X+1"},
        {"X^2+1", "X-1", ""},
        {"X^9", "10*X-1", ""}, // what is left would be rounded to 0
        {"X", "X^2", ""},
        {"X^2", "X", "X"},
        {"X^3+1", "X", ""},
        {"0", "X", "0"},
        {"X^2-1", "2", ".5*X^2-.5"},
        {"6*X^2-6", "-4*X+4", "-1.5*X-1.5"},
        {"X^1000000-1", "X^500000+1", "X^500000-1"},
        {"X^1000000+X", "X^999999+1", "X"},
        {"X^1000000", "X+1", ""},
        {"X^1E+15+1", "X^2+X+1", ""},
        {".3*X^2-.03*X", ".1*X-.01", "3*X"},
    };
    for (const auto& caso : casos) {
        const auto cociente =
            DivideSiExacta(banco.contexto, Lee(caso.dividendo), Lee(caso.divisor));
        EXPECT_EQ(cociente ? Escribe(*cociente) : "", caso.cociente) << caso.dividendo;
    }
    // X^1E+15-1 is a multiple of X-1, but the quotient has more terms than can be held.
    try {
        DivideSiExacta(banco.contexto, Lee("X^1E+15-1"), Lee("X-1"));
        FAIL();
    } catch (const ErrorEjecución& error) {
        EXPECT_EQ(error.Número(), 14);
    }
}

TEST_F(MCDDePolinomios, ElVigilanteCortaLaBúsqueda) {
    const Polinomio p = DevAleatorio(3000, 1000);
    const Polinomio q = DevAleatorio(2999, 1000);
    int veces = 0;
    banco.vigilante.continúa = [&] { return ++veces < 100; };
    EXPECT_THROW(MCDPolinomios(banco.contexto, p, q), OrdenCancelada);
    EXPECT_LE(veces, 100);
}

} // namespace
} // namespace quiralto
