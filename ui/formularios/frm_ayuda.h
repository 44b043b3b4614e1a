// The help window: the notation that the program accepts.
#pragma once

#include <QDialog>
#include <QPlainTextEdit>

namespace quiralto {

class FrmAyuda : public QDialog {
public:
    explicit FrmAyuda(QWidget* padre);

private:
    void cmdAyuda_Click();

    QPlainTextEdit* txtAyuda_;
};

// The text of the topic, lines separated by CR LF.
QString DevTextoAyuda();

} // namespace quiralto
