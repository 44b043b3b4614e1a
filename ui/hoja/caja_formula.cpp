#include "ui/hoja/caja_formula.h"

#include <QApplication>
#include <QFontDatabase>
#include <QValidator>

namespace quiralto {
namespace {

// Sees every edit, however the text got in: what is pasted or dropped is upper-cased.
class EnMayúsculasSiempre : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& texto, int&) const override {
        texto = EnMayúsculas(texto);
        return Acceptable;
    }
};

} // namespace

CajaFórmula::CajaFórmula(QWidget* padre, Pitido pitido)
    : QLineEdit(padre), pitido_(std::move(pitido)) {
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setValidator(new EnMayúsculasSiempre(this));
    connect(this, &QLineEdit::inputRejected, this, [this] { pitido_(); }); // a text cut as too long
}

void CajaFórmula::MarcaErrónea(bool errónea) {
    if (errónea == errónea_)
        return;
    errónea_ = errónea;
    setAccessibleDescription(errónea ? QStringLiteral("La fórmula no es correcta") : QString());
    setToolTip(accessibleDescription());
    PonColores();
}

// Mixed from the palette, so that a dark one stays dark.
void CajaFórmula::PonColores() {
    QPalette paleta = QApplication::palette(this);
    if (errónea_) {
        const bool oscura = paleta.color(QPalette::Base).lightness() < 128;
        paleta.setColor(QPalette::Base, oscura ? QColor(92, 34, 34) : QColor(255, 224, 224));
        paleta.setColor(QPalette::Text, oscura ? QColor(255, 214, 214) : QColor(140, 0, 0));
    }
    if (paleta != palette())
        setPalette(paleta);
}

void CajaFórmula::changeEvent(QEvent* suceso) {
    QLineEdit::changeEvent(suceso);
    if (suceso->type() == QEvent::ApplicationPaletteChange)
        PonColores();
}

void CajaFórmula::keyPressEvent(QKeyEvent* suceso) {
    if (!EsTecleado(*suceso)) {
        QLineEdit::keyPressEvent(suceso);
        return;
    }
    QKeyEvent filtrado = FiltraSuceso(*suceso, pitido_);
    if (!filtrado.text().isEmpty())
        QLineEdit::keyPressEvent(&filtrado);
    suceso->accept();
}

void CajaFórmula::inputMethodEvent(QInputMethodEvent* suceso) {
    FiltraSuceso(*suceso, pitido_);
    QLineEdit::inputMethodEvent(suceso);
}

void CajaFórmula::focusInEvent(QFocusEvent* suceso) {
    QLineEdit::focusInEvent(suceso);
    SeleccionaTexto();
    entraConRatón_ = suceso->reason() == Qt::MouseFocusReason;
}

void CajaFórmula::mousePressEvent(QMouseEvent* suceso) {
    QLineEdit::mousePressEvent(suceso);
    if (std::exchange(entraConRatón_, false))
        SeleccionaTexto(); // the click has just undone it
}

void CajaFórmula::focusOutEvent(QFocusEvent* suceso) {
    QLineEdit::focusOutEvent(suceso);
    switch (suceso->reason()) {
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
    case Qt::ActiveWindowFocusReason:
        break;
    default:
        alSalir();
    }
}

} // namespace quiralto
