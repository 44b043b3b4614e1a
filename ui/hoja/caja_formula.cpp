#include "ui/hoja/caja_formula.h"

#include "ui/dibujo/contraste.h"
#include "ui/dibujo/fuentes.h"
#include "ui/dibujo/texto_qt.h"
#include "ui/grafica/nombres.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>
#include <QScopedValueRollback>
#include <QSignalBlocker>
#include <QStringList>
#include <QStyle>
#include <QValidator>

#include <algorithm>
#include <utility>

namespace quiralto {
namespace {

// Sees every edit, however the text got in: what is pasted or dropped is upper-cased, and blanks
// are swallowed as typed ones are.
class ComoTecleado : public QValidator {
public:
    using QValidator::QValidator;
    State validate(QString& texto, int& cursor) const override {
        const QString delante = EnMayúsculas(QStringView(texto).left(cursor));
        texto = delante + EnMayúsculas(QStringView(texto).mid(cursor));
        cursor = static_cast<int>(delante.size());
        return Acceptable;
    }
};

bool EsLetra(QChar carácter) {
    return carácter >= u'A' && carácter <= u'Z';
}

QStringList DevNombres() {
    QStringList nombres;
    for (const std::string_view nombre : DevNombresFunción())
        nombres += DevQString(nombre) + u'(';
    nombres.sort();
    return nombres;
}

// Whether the focus comes from another control of the window, not back from a menu, a list, a
// dialog or another program.
bool VieneDeOtroControl(Qt::FocusReason motivo) {
    return motivo != Qt::PopupFocusReason && motivo != Qt::MenuBarFocusReason &&
           motivo != Qt::ActiveWindowFocusReason;
}

bool EsTeclaDeElegir(const QEvent& suceso) {
    if (suceso.type() != QEvent::KeyPress)
        return false;
    const int tecla = dynamic_cast<const QKeyEvent&>(suceso).key();
    return tecla == Qt::Key_Tab || tecla == Qt::Key_Return || tecla == Qt::Key_Enter;
}

} // namespace

CajaFormula::CajaFormula(QWidget* padre, Pitido pitido)
    : QLineEdit(padre), pitido_(std::move(pitido)) {
    setFont(DevFuenteFija());
    PonColores();
    setValidator(new ComoTecleado(this));
    connect(this, &QLineEdit::inputRejected, this, [this] { pitido_(); }); // a text cut as too long
    connect(this, &QLineEdit::textEdited, this, &CajaFormula::Ofrece);
    connect(this, &QLineEdit::cursorPositionChanged, this, [this] {
        if (OfreceNombres() && DevComienzoNombre().isEmpty())
            nombres_->popup()->hide();
    });
}

void CajaFormula::PonMotivo(const QString& motivo) {
    if (motivo == motivo_)
        return;
    motivo_ = motivo;
    setAccessibleDescription(motivo); // which also announces it
    setToolTip(motivo);
    PonColores();
}

// Mixed from the palette, so that a dark one stays dark.
void CajaFormula::PonColores() {
    if (poniendo_)
        return;
    const QScopedValueRollback poniendo(poniendo_, true);
    QPalette paleta; // but for these colours the desktop's
    paleta.setColor(QPalette::PlaceholderText, DevTextoSuave(QApplication::palette(this)));
    if (EsErrónea()) {
        const bool oscura = QApplication::palette(this).color(QPalette::Base).lightness() < 128;
        paleta.setColor(QPalette::Base, oscura ? QColor(92, 34, 34) : QColor(255, 224, 224));
        paleta.setColor(QPalette::Text, oscura ? QColor(255, 214, 214) : QColor(140, 0, 0));
    }
    setPalette(paleta);
}

void CajaFormula::Reescribe(const QString& texto) {
    if (texto == text())
        return;
    const QSignalBlocker callada(this);
    selectAll();
    insert(texto);
    if (!hasFocus())
        setCursorPosition(0); // a long text is seen from its beginning
}

bool CajaFormula::OfreceNombres() const {
    return nombres_ != nullptr && nombres_->popup()->isVisible();
}

// The letters before the cursor that can begin a name; those of an exponent cannot.
QString CajaFormula::DevComienzoNombre() const {
    const QString delante = text().left(cursorPosition());
    qsizetype comienzo = delante.size();
    while (comienzo > 0 && EsLetra(delante[comienzo - 1]))
        --comienzo;
    if (comienzo > 0 && (delante[comienzo - 1].isDigit() || delante[comienzo - 1] == u'.'))
        return {};
    return delante.mid(comienzo);
}

void CajaFormula::Ofrece() {
    const QString comienzo = DevComienzoNombre();
    if (comienzo.isEmpty() && nombres_ == nullptr)
        return;
    if (nombres_ == nullptr) {
        nombres_ = new QCompleter(DevNombres(), this);
        nombres_->setWidget(this);
        nombres_->popup()->setFont(font());
        nombres_->popup()->setObjectName(QStringLiteral("nombres"));
        nombres_->popup()->setAccessibleName(QStringLiteral("Funciones"));
        connect(nombres_, qOverload<const QString&>(&QCompleter::activated), this,
                &CajaFormula::Escoge);
    }
    nombres_->setCompletionPrefix(comienzo);
    if (comienzo.isEmpty() || nombres_->completionCount() == 0 || !hasFocus()) {
        nombres_->popup()->hide();
        return;
    }
    nombres_->popup()->setCurrentIndex({});
    nombres_->complete(DevLugarLista(comienzo));
}

// Under the box, with the names of the list below the beginning that is typed.
QRect CajaFormula::DevLugarLista(const QString& comienzo) const {
    constexpr int Ancho = 140;
    const int margen = nombres_->popup()->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const int izquierda = cursorRect().center().x() - fontMetrics().horizontalAdvance(comienzo) -
                          margen - nombres_->popup()->frameWidth();
    return {std::max(izquierda, 0), 0, Ancho, height()};
}

void CajaFormula::Escoge(const QString& nombre) {
    const QString comienzo = DevComienzoNombre();
    const bool tieneParéntesis = text().mid(cursorPosition()).startsWith(u'(');
    const QString entero = tieneParéntesis ? nombre.chopped(1) : nombre;
    cursorBackward(true, static_cast<int>(comienzo.size()));
    insert(entero);
}

// Tab and Enter choose the row that is marked in the list; without one they are themselves.
bool CajaFormula::event(QEvent* suceso) {
    if (!OfreceNombres() || !EsTeclaDeElegir(*suceso))
        return QLineEdit::event(suceso);
    if (nombres_->popup()->currentIndex().isValid()) {
        suceso->ignore();
        return false;
    }
    nombres_->popup()->hide();
    QLineEdit::event(suceso);
    // The list has kept the key from whoever would have got it next, as the default button.
    if (!suceso->isAccepted() && parentWidget() != nullptr)
        QCoreApplication::sendEvent(parentWidget(), suceso);
    suceso->accept();
    return true;
}

void CajaFormula::changeEvent(QEvent* suceso) {
    QLineEdit::changeEvent(suceso);
    if (suceso->type() == QEvent::PaletteChange)
        PonColores();
}

void CajaFormula::keyPressEvent(QKeyEvent* suceso) {
    if (EsMnemónico(*suceso)) {
        suceso->ignore();
        return;
    }
    if (!EsTecleado(*suceso)) {
        QLineEdit::keyPressEvent(suceso);
        return;
    }
    QKeyEvent filtrado = FiltraSuceso(*suceso, pitido_);
    if (!filtrado.text().isEmpty())
        QLineEdit::keyPressEvent(&filtrado);
    suceso->accept();
}

void CajaFormula::inputMethodEvent(QInputMethodEvent* suceso) {
    FiltraSuceso(*suceso, pitido_);
    QLineEdit::inputMethodEvent(suceso);
}

void CajaFormula::focusInEvent(QFocusEvent* suceso) {
    QLineEdit::focusInEvent(suceso);
    Q_EMIT enfocada(true);
    if (!VieneDeOtroControl(suceso->reason()))
        return;
    SeleccionaTexto();
    entraConRatón_ = suceso->reason() == Qt::MouseFocusReason;
}

void CajaFormula::mousePressEvent(QMouseEvent* suceso) {
    QLineEdit::mousePressEvent(suceso);
    if (std::exchange(entraConRatón_, false))
        SeleccionaTexto(); // the click has just undone it
}

void CajaFormula::contextMenuEvent(QContextMenuEvent* suceso) {
    QMenu* const menú = createStandardContextMenu();
    menú->setObjectName(QStringLiteral("MenúContextualFórmula"));
    menú->setAttribute(Qt::WA_DeleteOnClose);
    Q_EMIT menuPedido(menú);
    menú->popup(suceso->globalPos());
}

void CajaFormula::focusOutEvent(QFocusEvent* suceso) {
    QLineEdit::focusOutEvent(suceso);
    Q_EMIT enfocada(false);
    if (VieneDeOtroControl(suceso->reason()))
        Q_EMIT abandonada();
}

} // namespace quiralto
