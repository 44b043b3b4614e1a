#include "commands/ordenes.h"

#include "commands/fichero_primos.h"
#include "tests/apoyo.h"

#include <gtest/gtest.h>
#include <new>
#include <stdexcept>

namespace quiralto {
namespace {

constexpr const char* Soluciones = "Hallar soluciones ecuación";

std::vector<Mensaje> ErrorGeneral(const std::string& númeroYTipo) {
    return {{Icono::Crítico, "Se produjo el error número :" + númeroYTipo +
                                 ". Utilice valores diferentes para evitar este tipo de error. El "
                                 "proceso solicitado se cancelará."}};
}

TEST(EjecutaInstrucciones, UnTextoDesconocidoNoHaceNada) {
    for (const char* orden :
         {"", "Hallar", "hallar soluciones ecuación", "HALLAR SOLUCIONES ECUACIÓN",
          "Hallar soluciones ecuación ", " Hallar soluciones ecuación", "Hallar soluciones",
          "Hallar soluciones ecuacion"}) {
        Banco banco;
        Hoja hoja("X,0,1");
        hoja.líneas = {"antes"};
        hoja.líneaSeleccionada = "antes";
        EjecutaInstrucciones(banco.contexto, hoja, orden);
        EXPECT_EQ(hoja.texto, "X,0,1") << orden;
        EXPECT_EQ(hoja.líneas, std::vector<std::string>{"antes"}) << orden;
        EXPECT_EQ(hoja.líneaSeleccionada, "antes") << orden;
        EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{}) << orden;
    }
}

TEST(EjecutaInstrucciones, CadaOrdenTrabajaConSuEjemplo) {
    for (const Orden& orden : DevÓrdenes()) {
        Banco banco;
        CargaPrimos(banco.contexto, QUIRALTO_PRIMOS);
        Hoja hoja(std::string(orden.ejemplo));
        EjecutaInstrucciones(banco.contexto, hoja, orden.texto);
        EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{}) << orden.texto;
        EXPECT_TRUE(hoja.texto.starts_with(orden.ejemplo)) << orden.texto;
        EXPECT_GT(hoja.texto.size(), orden.ejemplo.size()) << orden.texto;
    }
}

TEST(EjecutaInstrucciones, HaceDeNuevoLaListaYOlvidaLaLíneaElegida) {
    Banco banco;
    Hoja hoja("x,0,1");
    EjecutaInstrucciones(banco.contexto, hoja, Soluciones);
    EXPECT_EQ(hoja.líneaSeleccionada, "x,0,1");
    hoja.texto = "X,0,1\r\n'nota";
    EjecutaInstrucciones(banco.contexto, hoja, Soluciones);
    EXPECT_EQ(hoja.líneaSeleccionada, std::nullopt);
    EXPECT_EQ(hoja.líneas, std::vector<std::string>{"X,0,1"});
}

TEST(EjecutaInstrucciones, UnaOrdenCanceladaDejaLaHojaComoEstaba) {
    const std::string antes = "SIN(X),-10,10\r\n'nota\r\n";
    for (const Orden& orden : DevÓrdenes()) {
        if (orden.menú != "Cálculo numérico con una variable")
            continue;
        int cuántas = 0; // how often an undisturbed run asks the watcher
        Banco completa;
        completa.vigilante.continúa = [&] { return ++cuántas > 0; };
        Hoja entera(antes);
        EjecutaInstrucciones(completa.contexto, entera, orden.texto);
        ASSERT_GT(cuántas, 0) << orden.texto << " never asks whether to go on";
        for (const int últimas : {0, 1, cuántas / 2, cuántas - 1}) {
            Banco banco;
            int quedan = últimas;
            banco.vigilante.continúa = [&] { return quedan-- > 0; };
            Hoja hoja(antes);
            EjecutaInstrucciones(banco.contexto, hoja, orden.texto);
            EXPECT_EQ(hoja.texto, antes) << orden.texto << " after " << últimas;
            EXPECT_EQ(hoja.líneaSeleccionada, std::nullopt) << orden.texto;
            EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{}) << orden.texto;
            // The context is as good as new.
            banco.vigilante.continúa = [] { return true; };
            EjecutaInstrucciones(banco.contexto, hoja, orden.texto);
            EXPECT_EQ(hoja.texto, entera.texto) << orden.texto << " after " << últimas;
        }
    }
}

TEST(EjecutaInstrucciones, UnErrorDeEjecuciónDejaLoEscritoYUnMensaje) {
    const struct {
        std::function<bool()> continúa;
        const char* númeroYTipo;
    } casos[] = {
        {[]() -> bool { throw ErrorEjecución(Desbordamiento); },
         "6. Tipo de error :Desbordamiento"},
        {[]() -> bool { throw ErrorEjecución(DivisiónPorCero); },
         "11. Tipo de error :División por cero"},
        {[]() -> bool { throw std::bad_alloc(); }, "7. Tipo de error :Memoria insuficiente"},
        {[]() -> bool { throw std::bad_array_new_length(); },
         "7. Tipo de error :Memoria insuficiente"},
        {[]() -> bool { throw std::length_error("texto"); },
         "5. Tipo de error :Argumento o llamada a procedimiento no válida"},
    };
    for (const auto& caso : casos) {
        Banco banco;
        banco.vigilante.continúa = caso.continúa;
        Hoja hoja("X,-1,1");
        EjecutaInstrucciones(banco.contexto, hoja, Soluciones);
        EXPECT_EQ(hoja.texto, "X,-1,1\r\n\r\n") << caso.númeroYTipo;
        EXPECT_EQ(banco.TomaMensajes(), ErrorGeneral(caso.númeroYTipo));
    }
}

TEST(EjecutaConTrampa, DiceSiElTrabajoHaLlegadoAlFinal) {
    Banco banco;
    EXPECT_TRUE(EjecutaConTrampa(banco.contexto, [] {}));
    EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{});
    EXPECT_FALSE(EjecutaConTrampa(banco.contexto, [] { throw ErrorEjecución(Desbordamiento); }));
    EXPECT_EQ(banco.TomaMensajes(), ErrorGeneral("6. Tipo de error :Desbordamiento"));
    EXPECT_FALSE(EjecutaConTrampa(banco.contexto, [] { throw std::bad_alloc(); }));
    EXPECT_EQ(banco.TomaMensajes(), ErrorGeneral("7. Tipo de error :Memoria insuficiente"));
    EXPECT_FALSE(EjecutaConTrampa(banco.contexto, [] { throw std::logic_error("otra cosa"); }));
    EXPECT_EQ(banco.TomaMensajes(),
              ErrorGeneral("5. Tipo de error :Argumento o llamada a procedimiento no válida"));
}

TEST(EjecutaConTrampa, DejaPasarLaCancelación) {
    Banco banco;
    EXPECT_THROW(EjecutaConTrampa(banco.contexto, [] { throw OrdenCancelada{}; }), OrdenCancelada);
    EXPECT_EQ(banco.TomaMensajes(), std::vector<Mensaje>{});
}

TEST(MensajeErrorGeneral, DaElNúmeroYSuDescripción) {
    const std::pair<int, const char*> casos[] = {
        {5, "5. Tipo de error :Argumento o llamada a procedimiento no válida"},
        {6, "6. Tipo de error :Desbordamiento"},
        {7, "7. Tipo de error :Memoria insuficiente"},
        {11, "11. Tipo de error :División por cero"},
        {14, "14. Tipo de error :Espacio de cadenas insuficiente"},
    };
    for (const auto& [número, númeroYTipo] : casos) {
        Banco banco;
        MensajeErrorGeneral(banco.contexto, número);
        EXPECT_EQ(banco.TomaMensajes(), ErrorGeneral(númeroYTipo));
    }
}

} // namespace
} // namespace quiralto
