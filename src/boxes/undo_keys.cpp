#include "boxes/undo_keys.h"

#include <QKeyEvent>

namespace borvik {

QList<QKeySequence> undoKeys() {
    return {QKeySequence(Qt::CTRL | Qt::Key_Z)};
}

QList<QKeySequence> redoKeys() {
    return {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)};
}

bool UndoKeys::eventFilter(QObject* watched, QEvent* event) {
    const bool asks = event->type() == QEvent::ShortcutOverride;
    if (!asks && event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const QKeySequence pressed(key->keyCombination());
    const bool undo = undoKeys().contains(pressed);
    if (!undo && !redoKeys().contains(pressed)) return false;
    auto* box = static_cast<QLineEdit*>(watched);
    const bool own = undo ? box->isModified() && box->isUndoAvailable() : box->isRedoAvailable();
    if (asks) {
        event->setAccepted(own);
    } else if (own) {
        undo ? box->undo() : box->redo();
    }
    return true;
}

}  // namespace borvik
