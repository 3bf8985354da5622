#include "forms/dialogs.h"

#include "forms/setup_dialog.h"

namespace borvik {

std::unique_ptr<QDialog> makeDialog(DialogKind kind, Session& session, Messages& messages,
                                    std::function<void()> changed, QWidget* parent) {
    switch (kind) {
        case DialogKind::Setup:
            return std::make_unique<SetupDialog>(session, messages, std::move(changed), parent);
        default:
            return nullptr;
    }
}

}  // namespace borvik
