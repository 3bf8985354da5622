#pragma once

#include <QObject>

namespace borvik {

/// Forms and message boxes belong to the window below them, so their frames have no button to minimise or maximise
/// them, unless a form asks for one. Installed on the application.
class DialogFrames : public QObject {
public:
    using QObject::QObject;
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace borvik
