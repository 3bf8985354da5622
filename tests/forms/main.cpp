#include <gtest/gtest.h>

#include <QApplication>

#include "forms/wheel_guard.h"

/// Windows are tested without a display, in the one style that looks and measures the same everywhere.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setStyle("Fusion");
    borvik::WheelGuard wheelGuard;
    application.installEventFilter(&wheelGuard);
    return RUN_ALL_TESTS();
}
