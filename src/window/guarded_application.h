#pragma once

#include <QApplication>
#include <string>
#include <utility>

#include "platform/messages.h"

namespace borvik {

/// The application with a guard around each event: a fault in a form or anywhere else in the event loop is a message,
/// the event is given up, and the program and all that was entered live on.
class GuardedApplication : public QApplication {
public:
    /// @param messages  where faults are shown; must outlive the application
    GuardedApplication(int& argc, char** argv, Messages& messages) : QApplication(argc, argv), messages_(&messages) {}

    /// @return where faults were shown before
    Messages& tellFaultsTo(Messages& messages) { return *std::exchange(messages_, &messages); }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    void tell(const std::string& fault, const QEvent& event);

    Messages* messages_;
    std::string lastFault_;
    bool telling_ = false;
};

}  // namespace borvik
