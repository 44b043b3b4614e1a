#include "ui/grafica/escena.h"

#include "engine/numeros/numero.h"
#include "ui/grafica/marcas_eje.h"
#include "ui/grafica/pista.h"

#include <algorithm>
#include <cmath>

namespace quiralto {
namespace {

constexpr double PartesDelRango = 10000; // to which the window is written in words
constexpr double PasosPorUnidad = 1000;  // likewise a unit of the axes
constexpr int DécimasPorUnidad = 10;     // of the bar of the point X

std::string DevTextoVentana(const Ventana& v) {
    const double porX = (v.XMáx - v.XMín) / PartesDelRango;
    const double porY = (v.YMáx - v.YMín) / PartesDelRango;
    return "X de " + TextoCoordenada(v.XMín, porX) + " a " + TextoCoordenada(v.XMáx, porX) +
           " · Y de " + TextoCoordenada(v.YMín, porY) + " a " + TextoCoordenada(v.YMáx, porY);
}

int DevBarra(const Ventana& ventana, double x) {
    const double s = std::clamp(DevXlógico(ventana, x), -MediaEscala, MediaEscala);
    return static_cast<int>(std::lround(s * DécimasPorUnidad));
}

// For whoever does not see the picture.
std::string Describe(const Escena& escena) {
    std::string texto = escena.textoVentana + ". Punto X=" + escena.textoPuntoX;
    for (const EntradaLeyenda& entrada : escena.leyenda) {
        const std::string& valor = escena.textosValor.at(static_cast<std::size_t>(entrada.índice));
        texto += ". " + entrada.texto;
        texto += valor.empty() ? ", sin valor en X" : ", en X vale " + valor;
    }
    if (escena.cuadro.marcas != nullptr)
        texto += ". Marcas: " + DevTextoMarcas(*escena.cuadro.marcas);
    return texto;
}

std::string DevMotivo(const FunciónGráfica& función) {
    if (!función.rechazo)
        return {};
    const std::string pista = DevPista(función.texto);
    return TextoRechazo(*función.rechazo) + (pista.empty() ? "" : " · " + pista);
}

void ComponeTextos(Escena& escena, const Vista& vista) {
    const Ventana& v = vista.DevVentana();
    escena.textoPuntoX = TextoEnRango(vista.DevPuntoX(), vista.DevAncho());
    escena.textosExtremos = {TextoNúmero(v.XMáx), TextoNúmero(v.XMín), TextoNúmero(v.YMáx),
                             TextoNúmero(v.YMín)};
    escena.textoVentana = DevTextoVentana(v);
    escena.textosUnidad = {TextoCoordenada(vista.UnidadX(), vista.UnidadX() / PasosPorUnidad),
                           TextoCoordenada(vista.UnidadY(), vista.UnidadY() / PasosPorUnidad)};
    escena.barraX = DevBarra(v, vista.DevPuntoX());
}

} // namespace

Cuadro SinAtenuadas(Cuadro cuadro) {
    for (Curva& curva : cuadro.curvas)
        if (curva.atenuada)
            curva = {};
    return cuadro;
}

// The points are those of the last scene where nothing has changed that they come from.
const std::shared_ptr<const ListaPuntos>& Compositor::DevPuntos(Contexto& contexto,
                                                                const Muestra& pedida, int índice,
                                                                const Programa& programa) {
    Muestra& muestra = muestras_.at(static_cast<std::size_t>(índice));
    if (muestra.puntos == nullptr || muestra.versión != pedida.versión ||
        muestra.ventana != pedida.ventana || muestra.CantidadPuntos != pedida.CantidadPuntos) {
        muestra = pedida;
        muestra.puntos = std::make_shared<const ListaPuntos>(
            CargaPuntos(contexto, programa, pedida.ventana, pedida.CantidadPuntos));
    }
    return muestra.puntos;
}

Escena Compositor::Compone(Contexto& contexto, const Vista& vista, FuncionesGráficas& funciones,
                           Hallados& hallados, const Opciones& opciones) {
    Escena escena;
    escena.cuadro.ventana = vista.DevVentana();
    escena.cuadro.método = opciones.método;
    escena.marcador.PuntoX = vista.DevPuntoX();
    for (int i = 0; i < CantidadFunciones; ++i) {
        const FunciónGráfica& función = funciones[i];
        const auto lugar = static_cast<std::size_t>(i);
        escena.vacía = escena.vacía && función.estado == EstadoTexto::Vacío;
        escena.motivos.at(lugar) = DevMotivo(función);
        if (función.EstáActiva() || función.EstáAtenuada())
            escena.cuadro.curvas.at(lugar) = {
                DevPuntos(contexto,
                          {función.versión, vista.DevVentana(), opciones.CantidadPuntos, {}}, i,
                          *función.programa),
                función.EstáAtenuada()};
        if (función.EstáActiva())
            escena.leyenda.push_back({i, "f" + std::to_string(i) + "(X)=" + función.texto});
        if (const std::optional<double> valor = funciones.DevValor(i, vista.DevPuntoX())) {
            escena.marcador.valores.at(lugar) = valor;
            escena.textosValor.at(lugar) = TextoNúmero(Redondea(*valor, contexto.DígitosRedondeo));
        }
    }
    ComponeTextos(escena, vista);
    escena.cuadro.marcas = hallados.DevMarcas(contexto, funciones);
    escena.descripción = Describe(escena);
    return escena;
}

} // namespace quiralto
