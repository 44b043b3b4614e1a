// Compares two drawings of the icon: compara_iconos SIZE FILE DRAWN. Renderers differ in how they
// smooth an edge, so a few levels of difference a pixel are none. In every size both curves must be
// there to be seen.

#include <QColor>
#include <QImage>

#include <cstdlib>
#include <iostream>

namespace {

int Diferencia(QRgb a, QRgb b) {
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
           std::abs(qBlue(a) - qBlue(b)) + std::abs(qAlpha(a) - qAlpha(b));
}

template <typename Condición> int Cuenta(const QImage& imagen, Condición&& condición) {
    int píxeles = 0;
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            píxeles += condición(imagen.pixel(x, y)) ? 1 : 0;
    return píxeles;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 4)
        return 2;
    const int tamaño = std::atoi(argv[1]);
    const QImage guardada(QString::fromLocal8Bit(argv[2]));
    const QImage dibujada(QString::fromLocal8Bit(argv[3]));
    if (guardada.size() != QSize(tamaño, tamaño) || guardada.size() != dibujada.size()) {
        std::cerr << argv[2] << " or its drawing is not of that size\n";
        return 1;
    }
    constexpr double MáximaMedia = 6; // of 1020
    double suma = 0;
    for (int y = 0; y < tamaño; ++y)
        for (int x = 0; x < tamaño; ++x)
            suma += Diferencia(guardada.pixel(x, y), dibujada.pixel(x, y));
    const double media = suma / tamaño / tamaño;
    const int rojos =
        Cuenta(guardada, [](QRgb p) { return qRed(p) > 220 && qGreen(p) < 110 && qBlue(p) < 110; });
    const int azules =
        Cuenta(guardada, [](QRgb p) { return qBlue(p) > 220 && qGreen(p) < 110 && qRed(p) < 110; });
    std::cout << tamaño << ": mean difference " << media << ", red " << rojos << ", blue " << azules
              << '\n';
    const bool seVe = rojos >= tamaño && azules >= tamaño / 2;
    return media <= MáximaMedia && seVe ? 0 : 1;
}
