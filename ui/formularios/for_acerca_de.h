// The About window.
#pragma once

#include <QWidget>

namespace quiralto {

class forAcercaDe : public QWidget {
public:
    explicit forAcercaDe(QWidget* padre);

private:
    void Command1_Click() { close(); }
};

} // namespace quiralto
