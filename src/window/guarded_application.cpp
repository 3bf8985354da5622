#include "window/guarded_application.h"

#include <QEvent>
#include <exception>

namespace borvik {

namespace {

/// An event that the user has just caused and waits to see the effect of.
bool isInput(const QEvent& event) {
    switch (event.type()) {
        case QEvent::KeyPress:
        case QEvent::Shortcut:
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Drop:
            return true;
        default:
            return false;
    }
}

}  // namespace

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    try {
        return QApplication::notify(receiver, event);
    } catch (const std::exception& fault) {
        tell(fault.what(), *event);
    } catch (...) {
        tell("unknown", *event);
    }
    return true;  // given up, not to be offered to the parent as well
}

/// A fault that comes again with each repaint is shown once.
void GuardedApplication::tell(const std::string& fault, const QEvent& event) {
    if (telling_ || (fault == lastFault_ && !isInput(event))) return;
    lastFault_ = fault;
    telling_ = true;
    messages_->show("This could not be done: " + fault + "\n\nEverything entered is kept.");
    telling_ = false;
}

}  // namespace borvik
