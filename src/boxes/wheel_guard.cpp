#include "boxes/wheel_guard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QTabBar>

namespace borvik {

namespace {

bool changesByWheel(const QObject* object) {
    return qobject_cast<const QComboBox*>(object) != nullptr ||
           qobject_cast<const QAbstractSpinBox*>(object) != nullptr ||
           qobject_cast<const QTabBar*>(object) != nullptr ||
           (qobject_cast<const QAbstractSlider*>(object) != nullptr &&
            qobject_cast<const QScrollBar*>(object) == nullptr);
}

}  // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Polish && changesByWheel(watched)) {
        auto* widget = static_cast<QWidget*>(watched);
        if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
    }
    if (event->type() == QEvent::Wheel && changesByWheel(watched) && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace borvik
