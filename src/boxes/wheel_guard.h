#pragma once

#include <QObject>

namespace borvik {

/// Keeps the mouse wheel from changing what it merely passes: choice boxes, number spinners and tabs take it only while
/// they have the focus, and leave it to the page around them otherwise. Installed on the application.
class WheelGuard : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace borvik
