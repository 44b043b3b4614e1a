// The splash form: the program's name and picture.
#pragma once

#include <QWidget>

namespace quiralto {

class FrmQuiralto : public QWidget {
public:
    FrmQuiralto();

protected:
    void paintEvent(QPaintEvent* suceso) override;
};

} // namespace quiralto
