#include "ui/formularios/frm_manual.h"

#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBlock>
#include <QVBoxLayout>

namespace quiralto {
namespace {

QString DevAncla(const QString& título) {
    QString ancla;
    for (const QChar c : título.toLower())
        if (c.isLetterOrNumber() || c == u'-' || c == u' ')
            ancla += c == u' ' ? QChar(u'-') : c;
    return ancla;
}

QTextBlock BuscaTítulo(const QTextDocument& documento, const QString& ancla) {
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next())
        if (bloque.blockFormat().headingLevel() > 0 && DevAncla(bloque.text()) == ancla)
            return bloque;
    return {};
}

// Room above headings; worksheets and terminals on a ground of their own, wrapped.
void Acomoda(const QTextDocument& documento, const QColor& fondo) {
    constexpr qreal Hueco = 14;
    for (QTextBlock bloque = documento.begin(); bloque.isValid(); bloque = bloque.next()) {
        QTextBlockFormat forma = bloque.blockFormat();
        if (forma.headingLevel() > 0)
            forma.setTopMargin(Hueco);
        if (forma.hasProperty(QTextFormat::BlockCodeFence)) {
            forma.setBackground(fondo);
            forma.setLeftMargin(Hueco);
            forma.setNonBreakableLines(false);
        }
        QTextCursor(bloque).setBlockFormat(forma);
    }
}

// As wide as the form shows without being scrolled.
void EncogeImágenes(const QTextDocument& documento) {
    constexpr qreal Ancho = 760;
    QTextCursor cursor(documento.find(QString(QChar::ObjectReplacementCharacter)));
    while (!cursor.isNull()) {
        QTextImageFormat forma = cursor.charFormat().toImageFormat();
        if (forma.isValid()) {
            forma.setWidth(Ancho);
            cursor.setCharFormat(forma);
        }
        cursor = documento.find(QString(QChar::ObjectReplacementCharacter), cursor);
    }
}

} // namespace

FrmManual::FrmManual(QWidget* padre) : QWidget(padre, Qt::Window), texto_(new QTextBrowser(this)) {
    setObjectName(QStringLiteral("frmManual"));
    setWindowTitle(QStringLiteral("Manual"));
    auto* buscar = new QLineEdit(this);
    buscar->setObjectName(QStringLiteral("txtBuscar"));
    buscar->setClearButtonEnabled(true);
    auto* etiqueta = new QLabel(QStringLiteral("&Buscar (Intro, el siguiente)"), this);
    etiqueta->setBuddy(buscar);
    texto_->setObjectName(QStringLiteral("txtManual"));
    texto_->setAccessibleName(QStringLiteral("Manual"));
    texto_->setOpenLinks(false);
    texto_->setSource(QUrl(QStringLiteral("qrc:/manual/manual.md")),
                      QTextDocument::MarkdownResource);
    Acomoda(*texto_->document(), palette().color(QPalette::AlternateBase));
    EncogeImágenes(*texto_->document());
    texto_->moveCursor(QTextCursor::Start);
    auto* fila = new QHBoxLayout;
    fila->addWidget(etiqueta);
    fila->addWidget(buscar, 1);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(12, 12, 12, 12);
    columna->addLayout(fila);
    columna->addWidget(texto_, 1);
    connect(texto_, &QTextBrowser::anchorClicked, this,
            [this](const QUrl& enlace) { MuestraEnlace(enlace); });
    connect(buscar, &QLineEdit::returnPressed, this, [this, buscar] { Busca(buscar->text()); });
    connect(new QShortcut(QKeySequence(Qt::Key_Escape), this), &QShortcut::activated, this,
            &QWidget::close);
    texto_->setFocus();
    resize(820, 680);
}

void FrmManual::MuestraEnlace(const QUrl& enlace) {
    const QTextBlock título = BuscaTítulo(*texto_->document(), enlace.fragment());
    if (!título.isValid())
        return;
    // From the end upwards, so that the heading stands at the top.
    texto_->moveCursor(QTextCursor::End);
    texto_->setTextCursor(QTextCursor(título));
    texto_->verticalScrollBar()->setValue(texto_->verticalScrollBar()->value() +
                                          texto_->cursorRect().top());
}

void FrmManual::Busca(const QString& texto) {
    if (texto.isEmpty() || texto_->find(texto))
        return;
    texto_->moveCursor(QTextCursor::Start);
    texto_->find(texto);
}

} // namespace quiralto
