// A scroll bar in a frame with its title; the frame is marked while the bar has the focus.
#pragma once

#include <QFrame>
#include <QScrollBar>

namespace quiralto {

struct DatosBarra {
    QString nombre;      // of the bar
    QString título;      // of its frame
    QString explicación; // what it does, as tool tip
    int mitad;           // it runs from -mitad to mitad
    int página;
    Qt::Orientation orientación;
    bool vuelveA0; // it is a pair of step buttons
};

class MarcoBarra : public QFrame {
    Q_OBJECT

public:
    explicit MarcoBarra(const DatosBarra& datos, QWidget* padre = nullptr);

    QScrollBar& DevBarra() const { return *barra_; }

Q_SIGNALS:
    // A value that the user gives the bar: at once or, of a pair of step buttons, once it is let
    // go; those then go back to 0.
    void cambiada(int valor);

protected:
    bool eventFilter(QObject* objeto, QEvent* suceso) override;
    void paintEvent(QPaintEvent* suceso) override;

private:
    QScrollBar* barra_;
};

// Moves a bar without its being taken for the user's doing.
void PonBarra(QScrollBar& barra, int valor);

} // namespace quiralto
