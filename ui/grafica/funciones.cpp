#include "ui/grafica/funciones.h"

#include "engine/evaluacion/evalua.h"
#include "engine/lenguaje/compila.h"
#include "engine/lenguaje/sintaxis.h"
#include "ui/grafica/nombres.h"

#include <algorithm>

namespace quiralto {
namespace {

bool EsFórmula(const Contexto& contexto, std::string texto) {
    return !CompruebaSintaxis(contexto, texto);
}

bool EsLetra(char c) {
    return c >= 'A' && c <= 'Z';
}

} // namespace

bool EsMediaEscrita(const Contexto& contexto, std::string_view texto) {
    const auto abiertos = std::ranges::count(texto, '(');
    const auto cerrados = std::ranges::count(texto, ')');
    if (texto.empty() || cerrados > abiertos)
        return false;
    const auto esFórmulaCon = [&](std::string_view resto) {
        std::string completo(texto);
        completo += resto;
        const auto faltan = std::ranges::count(completo, '(') - cerrados;
        return EsFórmula(contexto, completo.append(static_cast<std::size_t>(faltan), ')'));
    };
    if (esFórmulaCon("") || esFórmulaCon("X") || esFórmulaCon("1"))
        return true;
    std::size_t letras = texto.size();
    while (letras > 0 && EsLetra(texto[letras - 1]))
        --letras;
    const std::string_view comienzo = texto.substr(letras);
    return !comienzo.empty() &&
           std::ranges::any_of(DevNombresFunción(), [&](std::string_view nombre) {
               return nombre.starts_with(comienzo) &&
                      esFórmulaCon(std::string(nombre.substr(comienzo.size())) + "(X");
           });
}

void FuncionesGráficas::Lee(FunciónGráfica& función) {
    función.corregido = función.texto;
    función.rechazo = CompruebaSintaxis(contexto_, función.corregido);
    if (!función.rechazo) {
        try {
            función.programa = CompilaExpresión(función.corregido);
            función.versión = ++versión_;
            función.estado = EstadoTexto::Fórmula;
            return;
        } catch (const ErrorEjecución&) { // more operations than a program may have
            función.rechazo = Rechazo{.motivo = Motivo::FunciónDemasiadoLarga};
        }
    }
    función.corregido.clear();
    const bool sobra = función.rechazo->motivo == Motivo::FunciónDemasiadoLarga;
    función.estado = !sobra && EsMediaEscrita(contexto_, función.texto) ? EstadoTexto::MediaEscrita
                                                                        : EstadoTexto::Rechazado;
}

void FuncionesGráficas::Escribe(int índice, std::string_view texto) {
    FunciónGráfica& función = Función(índice);
    if (función.texto == texto)
        return;
    función.texto = texto;
    función.sinAsentar = true;
    función.apagadaAquí = false;
    if (!texto.empty()) {
        Lee(función);
        return;
    }
    función.estado = EstadoTexto::Vacío;
    función.rechazo.reset();
    función.programa.reset();
    función.corregido.clear();
}

bool FuncionesGráficas::Asienta(int índice) {
    FunciónGráfica& función = Función(índice);
    función.sinAsentar = false;
    if (función.estado == EstadoTexto::Fórmula) {
        función.texto = función.corregido;
        return true;
    }
    función.encendida = false;
    MuestraRechazo(contexto_, función.rechazo.value_or(Rechazo{.motivo = Motivo::SinFórmula}));
    return false;
}

void FuncionesGráficas::Quita(int índice) {
    Función(índice) = {};
}

void FuncionesGráficas::Enciende(int índice) {
    Función(índice).encendida = true;
    Función(índice).apagadaAquí = false;
}

void FuncionesGráficas::Apaga(int índice) {
    Función(índice).encendida = false;
    Función(índice).apagadaAquí = true;
}

std::optional<double> FuncionesGráficas::DevValor(int índice, double x) {
    FunciónGráfica& función = Función(índice);
    return función.EstáActiva() ? quiralto::DevValor(contexto_, *función.programa, x)
                                : std::nullopt;
}

std::optional<Lugar> FuncionesGráficas::DevPrimeraFunciónDefinida(double x) {
    for (int i = 0; i < CantidadFunciones; ++i)
        if (const std::optional<double> valor = DevValor(i, x))
            return Lugar{x, *valor};
    return std::nullopt;
}

} // namespace quiralto
