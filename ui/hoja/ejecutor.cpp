#include "ui/hoja/ejecutor.h"

#include "commands/ordenes.h"

#include <QScopedValueRollback>

#include <utility>

namespace quiralto {

Ejecutor::Ejecutor(Contexto& contexto, VigilanteÓrdenes& vigilante, CajaHoja& hoja, QObject* padre)
    : QObject(padre), contexto_(contexto), vigilante_(vigilante), hoja_(hoja) {
}

void Ejecutor::Corre(Hoja& hoja, std::string_view orden) {
    const QScopedValueRollback enMarcha(enMarcha_, true);
    const VigilanteÓrdenes::Guardia guardia(vigilante_);
    EjecutaInstrucciones(contexto_, hoja, orden);
}

void Ejecutor::Ejecuta(std::string_view orden) {
    if (enMarcha_)
        return;
    última_ = std::string(orden);
    const std::string anterior = hoja_.DevTexto();
    Hoja hoja(anterior);
    Corre(hoja, última_);
    hallazgos_ = std::move(hoja.hallazgos);
    // Commands only append.
    const std::string_view salida = std::string_view(hoja.texto).substr(anterior.size());
    if (!salida.empty())
        hoja_.PonTexto(hoja_.DevTexto().append(salida));
    if (hoja.líneaSeleccionada)
        hoja_.SeleccionaLínea(*hoja.líneaSeleccionada);
    for (const auto& trabajo : std::exchange(pendientes_, {}))
        trabajo();
    Q_EMIT terminada();
}

void Ejecutor::CuandoAcabe(std::function<void()> trabajo) {
    if (enMarcha_)
        pendientes_.push_back(std::move(trabajo));
    else
        trabajo();
}

} // namespace quiralto
