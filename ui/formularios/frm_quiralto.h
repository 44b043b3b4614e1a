// The splash form: the program's name and picture.
#pragma once

#include <QWidget>

namespace quiralto {

class frmQuiralto : public QWidget {
public:
    frmQuiralto();

protected:
    void paintEvent(QPaintEvent* suceso) override;
};

} // namespace quiralto
