#include "forms/dialog_frames.h"

#include <QDialog>
#include <QEvent>
#include <QMessageBox>
#include <QWindow>

namespace borvik {

bool DialogFrames::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Polish || !watched->isWidgetType()) return false;
    auto* dialog = qobject_cast<QDialog*>(watched);
    const bool ours =
        dialog != nullptr && (watched->objectName().startsWith("frm") || qobject_cast<QMessageBox*>(dialog) != nullptr);
    if (!ours || dialog->windowFlags().testFlag(Qt::WindowMaximizeButtonHint)) return false;
    const Qt::WindowFlags flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                  Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    dialog->overrideWindowFlags(flags);
    if (QWindow* window = dialog->windowHandle()) window->setFlags(flags);
    return false;
}

}  // namespace borvik
