// Entry of the window tests: one QApplication for the whole run, offscreen
// unless a platform was chosen.
#include <QApplication>
#include <cstdlib>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (!std::getenv("QT_QPA_PLATFORM")) setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
