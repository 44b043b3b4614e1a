#include "ui/formularios/etiqueta_lectura.h"

namespace quiralto {

EtiquetaLectura::EtiquetaLectura(QWidget* padre) : QLabel(padre) {
    setObjectName(QStringLiteral("lectura"));
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // it never widens the window
    setIndent(6);
}

void EtiquetaLectura::PonMotivo(const QString& motivo) {
    motivo_ = motivo;
    Muestra();
}

void EtiquetaLectura::PonLeído(const QString& leído) {
    leído_ = leído;
    Muestra();
}

void EtiquetaLectura::resizeEvent(QResizeEvent* suceso) {
    QLabel::resizeEvent(suceso);
    Muestra();
}

void EtiquetaLectura::Muestra() {
    const QString& entero = motivo_.isEmpty() ? leído_ : motivo_;
    const QString cabe = fontMetrics().elidedText(entero, Qt::ElideRight, width() - 2 * indent());
    if (text() != cabe)
        setText(cabe);
    setToolTip(entero);
    setAccessibleName(entero);
}

} // namespace quiralto
