#pragma once

#include <QKeySequence>
#include <QLineEdit>
#include <QList>
#include <QObject>

namespace borvik {

[[nodiscard]] QList<QKeySequence> undoKeys();
[[nodiscard]] QList<QKeySequence> redoKeys();

/// Shares the keys of undo and redo between a text box and its window: the box takes back what has been typed into it
/// and not yet been taken over; with nothing of that kind the keys are the window's.
class UndoKeys : public QObject {
public:
    using QObject::QObject;
    void watch(QLineEdit* box) { box->installEventFilter(this); }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace borvik
