#include "ui/formularios/marco_barra.h"

#include "ui/dibujo/contraste.h"

#include <QBoxLayout>
#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>

namespace quiralto {

MarcoBarra::MarcoBarra(const DatosBarra& datos, QWidget* padre)
    : QFrame(padre), barra_(new QScrollBar(datos.orientación, this)) {
    const bool horizontal = datos.orientación == Qt::Horizontal;
    setFrameShape(QFrame::StyledPanel);
    setToolTip(datos.explicación);
    auto* caja =
        new QBoxLayout(horizontal ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom, this);
    caja->setContentsMargins(6, 4, 6, 4);
    caja->setSpacing(6);

    barra_->installEventFilter(this);
    barra_->setObjectName(datos.nombre);
    barra_->setAccessibleName(datos.título);
    barra_->setAccessibleDescription(datos.explicación);
    barra_->setFocusPolicy(Qt::StrongFocus);
    barra_->setRange(-datos.mitad, datos.mitad);
    barra_->setPageStep(datos.página);
    barra_->setValue(0);
    barra_->setTracking(!datos.vuelveA0);
    barra_->setInvertedControls(!horizontal); // as a rule the right arrow goes to the left
    auto* etiqueta = new QLabel(datos.título, this);
    etiqueta->setBuddy(barra_);
    if (!horizontal) {
        etiqueta->setWordWrap(true);
        etiqueta->setAlignment(Qt::AlignHCenter);
        setFixedWidth(etiqueta->fontMetrics().horizontalAdvance(QStringLiteral("Control")) + 20);
    }
    caja->addWidget(etiqueta);
    caja->addWidget(barra_, 1, horizontal ? Qt::Alignment() : Qt::AlignHCenter);
    connect(barra_, &QScrollBar::valueChanged, this, [this, vuelve = datos.vuelveA0](int valor) {
        Q_EMIT cambiada(valor);
        if (vuelve)
            PonBarra(*barra_, 0);
    });
}

bool MarcoBarra::eventFilter(QObject* objeto, QEvent* suceso) {
    if (suceso->type() == QEvent::FocusIn || suceso->type() == QEvent::FocusOut)
        update();
    return QFrame::eventFilter(objeto, suceso);
}

void MarcoBarra::paintEvent(QPaintEvent* suceso) {
    QFrame::paintEvent(suceso);
    if (!barra_->hasFocus())
        return;
    QPainter pintor(this);
    pintor.setRenderHint(QPainter::Antialiasing);
    DibujaFoco(pintor, QRectF(rect()), palette());
}

void PonBarra(QScrollBar& barra, int valor) {
    const QSignalBlocker callada(barra);
    barra.setValue(valor);
}

} // namespace quiralto
