// The tests of the window: on the offscreen platform, unless they are to have a screen, with the
// application prepared as the program prepares it.

#include "tests/ui/dialogos.h"
#include "ui/programa/aplicacion.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QUIRALTO_CON_PANTALLA"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication aplicación(argc, argv);
    quiralto::PreparaAplicación(aplicación);
    testing::InitGoogleTest(&argc, argv);
    const quiralto::VigíaDeDiálogos vigía;
    return RUN_ALL_TESTS();
}
