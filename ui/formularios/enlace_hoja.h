// What graph and worksheet do for each other: a function becomes data, a line is drawn, and the
// point X goes where a result says.
#pragma once

#include "ui/acciones/acciones.h"
#include "ui/formularios/control_grafica.h"

#include <QMenu>
#include <QObject>

namespace quiralto {

class EnlaceHoja : public QObject {
public:
    struct Partes {
        CajaHoja& hoja;
        PanelFunciones& panel;
        VisorFunciones& visor;
        ControlGráfica& control;
    };

    // All of it outlives the link.
    EnlaceHoja(Contexto& contexto, Ejecutor& ejecutor, const Partes& partes,
               const Acciones& acciones);

private:
    void AbreMenúHoja(QMenu& menú, const QString& línea);
    void AñadeÓrdenes(QMenu& menú, QAction* antes);
    void AbreMenúFunción(int índice, QMenu& menú);
    void LlevaALaHoja(const std::string& función);
    void Dibuja(const QString& función);
    int PreguntaCaja() const;
    void LlevaPuntoX(const QString& línea);

    Contexto& contexto_;
    Ejecutor& ejecutor_;
    Partes partes_;
    Acciones acciones_;
};

} // namespace quiralto
