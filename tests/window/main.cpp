#include <gtest/gtest.h>

#include "boxes/wheel_guard.h"
#include "window/guarded_application.h"

/// Windows are tested without a display, in the one style that looks and measures the same everywhere.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    borvik::MessageList faults;
    borvik::GuardedApplication application(argc, argv, faults);
    QApplication::setStyle("Fusion");
    borvik::WheelGuard wheelGuard;
    application.installEventFilter(&wheelGuard);
    const int failed = RUN_ALL_TESTS();
    for (const std::string& fault : faults.texts) std::cerr << "a fault in the event loop: " << fault << '\n';
    return failed != 0 || !faults.texts.empty() ? 1 : 0;
}
