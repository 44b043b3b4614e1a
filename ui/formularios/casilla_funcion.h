// The check box of a function: a frame and a tick that can be told from the ground in every
// palette, and a mark around it while it has the focus.
#pragma once

#include <QCheckBox>

namespace quiralto {

class CasillaFunción : public QCheckBox {
public:
    using QCheckBox::QCheckBox;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* suceso) override;
    bool hitButton(const QPoint& lugar) const override { return rect().contains(lugar); }
};

} // namespace quiralto
