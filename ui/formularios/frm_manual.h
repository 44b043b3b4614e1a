// The manual of the program, out of the program itself.
#pragma once

#include <QTextBrowser>

namespace quiralto {

// A window with the text and a box that looks for words in it.
class FrmManual : public QWidget {
public:
    explicit FrmManual(QWidget* padre);

private:
    // Shows the heading that a link names as the web does: small letters, hyphens for blanks.
    void MuestraEnlace(const QUrl& enlace);
    // The next place behind the cursor, beginning anew at the end.
    void Busca(const QString& texto);

    QTextBrowser* texto_;
};

} // namespace quiralto
