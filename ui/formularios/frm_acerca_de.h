// The About window.
#pragma once

#include <QDialog>

namespace quiralto {

// Closing it unloads it.
class FrmAcercaDe : public QDialog {
public:
    explicit FrmAcercaDe(QWidget* padre);

private:
    void Command1_Click() { close(); }
};

} // namespace quiralto
