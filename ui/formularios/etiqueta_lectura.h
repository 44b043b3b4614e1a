// The status bar's line on what is being typed: why the text of the box with the focus is no
// formula, otherwise what there is on the worksheet.
#pragma once

#include <QLabel>

namespace quiralto {

class EtiquetaLectura : public QLabel {
public:
    explicit EtiquetaLectura(QWidget* padre = nullptr);

    // Empty where nothing is to be said.
    void PonMotivo(const QString& motivo);
    void PonLeído(const QString& leído);

protected:
    // Cut with an ellipsis where the bar is too short; the tooltip has it whole.
    void resizeEvent(QResizeEvent* suceso) override;

private:
    void Muestra();

    QString motivo_;
    QString leído_;
};

} // namespace quiralto
