// The colours of the worksheet: what the commands do not read as data (comments, and results
// however they are written) stands apart from the data.
#pragma once

#include <QPalette>
#include <QSyntaxHighlighter>

namespace quiralto {

// The colour of comments and results, and of the line under a faulty one, on the palette's paper.
QColor DevColorComentario(const QPalette& paleta);
QColor DevColorErrónea(const QPalette& paleta);

class Resaltado : public QSyntaxHighlighter {
public:
    explicit Resaltado(QTextDocument* documento) : QSyntaxHighlighter(documento) {}

    // All lines anew where it is another colour.
    void PonColor(const QColor& color);

protected:
    void highlightBlock(const QString& texto) override;

private:
    QColor color_;
};

} // namespace quiralto
