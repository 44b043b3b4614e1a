#include "engine/sistemas/ecuacion_lineal.h"

#include "engine/lenguaje/operaciones.h"
#include "engine/lenguaje/sintaxis.h"
#include "engine/sistemas/ecuacion_llana.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <random>

namespace quiralto {
namespace {

std::optional<EcuaciónLineal> Lee(Banco& banco, std::string texto) {
    const GuardaPrefijo prefijo(banco.contexto, std::string(PrefijoSln));
    EXPECT_TRUE(Sintaxis(banco.contexto, texto)) << texto;
    return LeeEcuaciónLineal(banco.contexto, texto);
}

TEST(EcuaciónLineal, LosFactoresSinIncógnitaSeEvalúanYSeSuman) {
    Banco banco;
    const auto suma = Lee(banco, "SIN(2)*SLN(1)+SQR(4)*SLN(1)-1");
    ASSERT_TRUE(suma);
    ASSERT_EQ(suma->términos.size(), 1U);
    EXPECT_NEAR(suma->términos[0].coeficiente.ADouble(), 2.909297426825682, 1e-14);
    EXPECT_EQ(suma->independiente.ADouble(), 1);
    // An unknown of which nothing is left is not in the expansion, as in 2*SLN(2)-2*SLN(2).
    const auto nada = Lee(banco, "SQR(4)*SLN(2)-2*SLN(2)+SLN(1)");
    ASSERT_TRUE(nada);
    ASSERT_EQ(nada->términos.size(), 1U);
    EXPECT_EQ(nada->términos[0].índice, 1);
    EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{});
}

TEST(EcuaciónLineal, LoQueNoLoEsSeRechaza) {
    const std::string noLineal =
        "Se ha hallado una expresión que no es una ecuación lineal o esta no tiene solución";
    const std::string índice = "El índice de una variable no está en el rango 1 a 256";
    const std::pair<const char*, std::string> casos[] = {
        {"SLN(1)*SLN(2)-1", noLineal},
        {"SLN(1)^2-1", noLineal},
        {"1/SLN(1)-1", noLineal},
        {"SIN(SLN(1))-1", noLineal},
        {"X*SLN(1)-1", noLineal},
        {"SLN(1)-SLN(1)", noLineal},
        {"2-1", noLineal},
        {"SLN(257)-1", índice},
        {"SLN(0)-1", índice},
        {"2^SLN(1)-1", noLineal},
    };
    for (const auto& [texto, mensaje] : casos) {
        Banco banco;
        EXPECT_FALSE(Lee(banco, texto)) << texto;
        EXPECT_EQ(banco.TomaMensajes(), (std::vector<Mensaje>{{Icono::Exclamación, mensaje}}))
            << texto;
    }
}

// The short way and the general one read the same equation.
TEST(EcuaciónLineal, EsLaDeLaLíneaLlana) {
    constexpr std::uint64_t Semilla = 20304;
    std::mt19937_64 azar(Semilla);
    for (int vez = 0; vez < 2000; ++vez) {
        Banco banco;
        banco.contexto.DígitosRedondeo = static_cast<int>(azar() % 16);
        std::string llana;
        std::string general;
        for (std::size_t k = 0; k < 1 + azar() % 6; ++k) {
            std::string número;
            for (std::size_t d = azar() % 4; d > 0; --d)
                número += static_cast<char>('0' + azar() % 10);
            if (número.empty() || azar() % 2 == 0) {
                número += '.';
                for (std::size_t d = 1 + azar() % 12; d > 0; --d)
                    número += static_cast<char>('0' + azar() % 10);
            }
            const std::string índice = std::to_string(7 * k + 1 + azar() % 7); // no like terms
            const std::string signo = azar() % 2 == 0 ? "-" : k == 0 ? "" : "+";
            llana += signo + número + "*X(" + índice + ")";
            general += signo + número + "*SLN(" + índice + ")";
        }
        const std::string constante =
            std::to_string(azar() % 1000) + "." + std::to_string(azar() % 1000);
        const auto corta = LeeEcuaciónLlana(banco.contexto, llana + "=" + constante);
        const auto larga = Lee(banco, general + "-(" + constante + ")");
        banco.TomaMensajes(); // where all is rounded away
        ASSERT_EQ(corta.has_value(), larga.has_value()) << llana << " seed " << Semilla;
        if (!corta)
            continue;
        EXPECT_TRUE(corta->independiente == larga->independiente) << llana;
        ASSERT_EQ(corta->términos.size(), larga->términos.size()) << llana;
        for (std::size_t i = 0; i < corta->términos.size(); ++i) {
            EXPECT_EQ(corta->términos[i].índice, larga->términos[i].índice) << llana;
            EXPECT_TRUE(corta->términos[i].coeficiente == larga->términos[i].coeficiente)
                << llana << ' ' << corta->términos[i].coeficiente.Texto(15) << ' '
                << larga->términos[i].coeficiente.Texto(15) << " seed " << Semilla;
        }
    }
}

} // namespace
} // namespace quiralto
