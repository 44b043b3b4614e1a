#include "engine/base/rechazo.h"

#include "tests/apoyo.h"

#include <gtest/gtest.h>

#include <set>

namespace quiralto {
namespace {

TEST(Rechazo, PoneSusArgumentosEnElTexto) {
    EXPECT_EQ(TextoRechazo({Motivo::CarácterExtraño, {"Ñ"}, 2}), "Error de sintáxis: 'Ñ'");
    EXPECT_EQ(TextoRechazo({Motivo::FinalNoPermitido, {"{0}"}}),
              "No está permitido terminar con: {0}");
    EXPECT_EQ(TextoRechazo({Motivo::NoSonNúmeros, {" 3", "enteros"}}),
              "Se esperaba una lista de  3 números, separados por comas,  ó separados por al "
              "menos una línea  en el rango de los enteros");
    EXPECT_EQ(TextoRechazo({Motivo::Callado}), "");
}

TEST(Rechazo, CadaMotivoDiceOtraCosa) {
    std::set<std::string> textos;
    for (int i = 0; i < static_cast<int>(Motivo::Cantidad); ++i)
        EXPECT_TRUE(textos.insert(TextoRechazo({static_cast<Motivo>(i), {"a", "b"}})).second) << i;
}

TEST(Rechazo, SeMuestraUnaVezConSuIconoYSuFallo) {
    const struct {
        Motivo motivo;
        std::vector<Mensaje> mensajes;
        int fallo;
    } casos[] = {
        {Motivo::EsCero, {{Icono::Exclamación, "No está permitido el número cero"}}, SinFallo},
        {Motivo::SobranLíneas, {{Icono::Ninguno, "Se esperaba unas sola línea de datos"}}, 0},
        {Motivo::OperaciónEntreCero,
         {{Icono::Exclamación,
           "Se intentó dividir por cero, la operación solicitada será cancelada"}},
         DivisiónPorCero},
        {Motivo::Callado, {}, SinFallo},
    };
    for (const auto& caso : casos) {
        Banco banco;
        MuestraRechazo(banco.contexto, {caso.motivo});
        EXPECT_EQ(banco.TomaMensajes(), caso.mensajes);
        EXPECT_EQ(banco.contexto.ErrorCódigo, caso.fallo);
    }
}

TEST(Acepta, MuestraLoRechazadoYPasaLoLeído) {
    Banco banco;
    EXPECT_TRUE(Acepta(banco.contexto, std::optional<Rechazo>{}));
    EXPECT_EQ(Acepta(banco.contexto, std::variant<int, Rechazo>(7)), 7);
    EXPECT_EQ(banco.TomaMensajes().size(), 0U);
    EXPECT_FALSE(Acepta(banco.contexto, std::optional(Rechazo{Motivo::EsCero})));
    EXPECT_EQ(Acepta(banco.contexto, std::variant<int, Rechazo>(Rechazo{Motivo::EsNegativo})),
              std::nullopt);
    EXPECT_EQ(banco.TomaMensajes(),
              (std::vector<Mensaje>{{Icono::Exclamación, "No está permitido el número cero"},
                                    {Icono::Exclamación, "No se permiten valores negativos"}}));
}

} // namespace
} // namespace quiralto
