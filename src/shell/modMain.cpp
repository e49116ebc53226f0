#include "shell/modMain.h"

#include <QApplication>
#include <QMainWindow>

namespace tolva {

int SubMain(int argc, char** argv) {
    QApplication app(argc, argv);
    QMainWindow window;
    window.setWindowTitle("Tolva Resource Editor");
    window.show();
    return app.exec();
}

}  // namespace tolva
