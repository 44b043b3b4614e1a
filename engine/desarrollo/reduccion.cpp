#include "engine/desarrollo/reduccion.h"

#include "engine/desarrollo/cancela_potencias.h"
#include "engine/desarrollo/cancela_sumas.h"

namespace quiralto {

void Reduce(TablaSímbolos& tabla, FracciónAbierta& f) {
    if (f.abajo.empty())
        return;
    const GuardaProfundidad guarda(tabla);
    tabla.contexto.Vigila();
    do {
        AbreGrupos(tabla, f);
        SubeNegativos(tabla, f);
        CancelaPotencias(tabla, f);
        while (SacaComunes(tabla, f) || CancelaSumas(tabla, f))
            CancelaPotencias(tabla, f);
    } while (CancelaPorValores(tabla, f));
}

} // namespace quiralto
