#include "ui/formularios/marco_barra.h"

#include <QBoxLayout>
#include <QLabel>
#include <QSignalBlocker>

namespace quiralto {

QWidget* CreaMarcoBarra(const DatosBarra& datos, Qt::Orientation orientación, bool vuelveA0,
                        const std::function<void(int)>& alCambiar) {
    const bool horizontal = orientación == Qt::Horizontal;
    auto* marco = new QFrame;
    marco->setFrameShape(QFrame::StyledPanel);
    marco->setToolTip(datos.explicación);
    auto* caja =
        new QBoxLayout(horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, marco);
    caja->setContentsMargins(6, 4, 6, 4);
    caja->setSpacing(6);

    auto* barra = new QScrollBar(orientación, marco);
    barra->setObjectName(datos.nombre);
    barra->setAccessibleName(datos.título);
    barra->setAccessibleDescription(datos.explicación);
    barra->setFocusPolicy(Qt::StrongFocus);
    barra->setRange(-datos.mitad, datos.mitad);
    barra->setPageStep(datos.página);
    barra->setValue(0);
    barra->setTracking(!vuelveA0);
    barra->setInvertedControls(!horizontal); // as a rule the right arrow goes to the left
    auto* etiqueta = new QLabel(datos.título, marco);
    etiqueta->setBuddy(barra);
    if (!horizontal) {
        etiqueta->setWordWrap(true);
        etiqueta->setAlignment(Qt::AlignHCenter);
        marco->setFixedWidth(etiqueta->fontMetrics().horizontalAdvance(QStringLiteral("Control")) +
                             20);
    }
    caja->addWidget(etiqueta);
    caja->addWidget(barra, 1, horizontal ? Qt::Alignment() : Qt::AlignHCenter);
    QObject::connect(barra, &QScrollBar::valueChanged, marco, [=](int valor) {
        alCambiar(valor);
        if (vuelveA0)
            PonBarra(*barra, 0);
    });
    return marco;
}

void PonBarra(QScrollBar& barra, int valor) {
    const QSignalBlocker callada(barra);
    barra.setValue(valor);
}

} // namespace quiralto
