#include "dialogs/dialogs.h"

#include "dialogs/beam_dialog.h"
#include "dialogs/fatigue1_dialog.h"
#include "dialogs/fatigue2_dialog.h"
#include "dialogs/lateral_buckling_dialog.h"
#include "dialogs/load_dialog.h"
#include "dialogs/load_runway_dialog.h"
#include "dialogs/prof_reinf_dialog.h"
#include "dialogs/profile_dialog.h"
#include "dialogs/rail_dialog.h"
#include "dialogs/setup_dialog.h"

namespace borvik {

namespace {

using Changed = std::function<void()>;

template <class Form>
std::unique_ptr<InputDialog> make(Session& session, Messages& messages, Changed changed, QWidget* parent) {
    return std::make_unique<Form>(session, messages, std::move(changed), parent);
}

}  // namespace

std::unique_ptr<InputDialog> makeDialog(DialogKind kind, Session& session, Messages& messages, Changed changed,
                                        QWidget* parent) {
    using Maker = std::unique_ptr<InputDialog> (*)(Session&, Messages&, Changed, QWidget*);
    const auto maker = [kind]() -> Maker {
        switch (kind) {
            case DialogKind::Setup:
                return make<SetupDialog>;
            case DialogKind::Beam:
                return make<BeamDialog>;
            case DialogKind::Load:
                return make<LoadDialog>;
            case DialogKind::LoadRunway:
                return make<LoadRunwayDialog>;
            case DialogKind::Rail:
                return make<RailDialog>;
            case DialogKind::Lateral:
                return make<LateralBucklingDialog>;
            case DialogKind::Fatigue1:
                return make<Fatigue1Dialog>;
            case DialogKind::Fatigue2:
                return make<Fatigue2Dialog>;
            case DialogKind::Profile:
                return make<ProfileDialog>;
            case DialogKind::ProfReinf:
                return make<ProfReinfDialog>;
        }
        return nullptr;
    }();
    return maker == nullptr ? nullptr : maker(session, messages, std::move(changed), parent);
}

}  // namespace borvik
