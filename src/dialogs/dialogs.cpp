#include "dialogs/dialogs.h"

#include <algorithm>

#include "dialogs/beam_dialog.h"
#include "dialogs/crane_data_dialog.h"
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

template <class Form>
std::unique_ptr<InputDialog> make(Session& session, Messages& messages, std::function<void()> changed,
                                  QWidget* parent) {
    return std::make_unique<Form>(session, messages, std::move(changed), parent);
}

constexpr FormKind kForms[] = {
    {.kind = DialogKind::Setup,
     .window = "frmSetup",
     .helpPage = "setup.md",
     .make = make<SetupDialog>,
     .key = "Setup",
     .node = "Setup"},
    {.kind = DialogKind::Beam,
     .window = "frmBeam",
     .helpPage = "beam.md",
     .make = make<BeamDialog>,
     .key = "Beam",
     .node = "Beam",
     .menu = {"mnuBeam", "Beam", 2}},
    {.kind = DialogKind::Profile,
     .window = "frmProfile",
     .helpPage = "profile.md",
     .make = make<ProfileDialog>,
     .key = "Profile",
     .node = "Profile",
     .menu = {"mnuProfile", "Profile", 1}},
    {.kind = DialogKind::ProfReinf,
     .window = "frmProfReinf",
     .helpPage = "reinforcement.md",
     .make = make<ProfReinfDialog>},
    {.kind = DialogKind::Rail,
     .window = "frmRail",
     .helpPage = "rail.md",
     .make = make<RailDialog>,
     .cranes = FormKind::Overhead,
     .key = "Rail",
     .node = "Rail",
     .menu = {"mnuRail", "Rail", 3},
     .refusal = {"Rail not available for  beams", " Rail not available for Monorails"}},
    {.kind = DialogKind::Lateral,
     .window = "frmvipping",
     .helpPage = "lateral-torsional-buckling.md",
     .make = make<LateralBucklingDialog>,
     .key = "LatTors",
     .node = "Lateral Tors Buckl",
     .menu = {"mnuLateral", "Lateral Torsional Buckling", 4}},
    {.kind = DialogKind::Load,
     .window = "frmLoad",
     .helpPage = "loads-overhead-crane.md",
     .make = make<LoadDialog>,
     .cranes = FormKind::Overhead,
     .key = "Load",
     .node = "Loads",
     .menu = {"mnuLoad", "Load", 5}},
    {.kind = DialogKind::LoadRunway,
     .window = "frmLoadRunway",
     .helpPage = "loads-monorail.md",
     .make = make<LoadRunwayDialog>,
     .cranes = FormKind::Monorail,
     .key = "Load",
     .node = "Loads"},
    {.kind = DialogKind::Fatigue1,
     .window = "frmFatigue1",
     .helpPage = "fatigue-overhead-crane.md",
     .make = make<Fatigue1Dialog>,
     .cranes = FormKind::Overhead,
     .key = "Fatigue",
     .node = "Fatigue",
     .menu = {"mnuFatigue", "Fatigue", 6}},
    {.kind = DialogKind::Fatigue2,
     .window = "frmFatigue2",
     .helpPage = "fatigue-monorail.md",
     .make = make<Fatigue2Dialog>,
     .cranes = FormKind::Monorail,
     .key = "Fatigue",
     .node = "Fatigue"},
    {.kind = DialogKind::CraneData,
     .window = "frmCraneData",
     .helpPage = "crane-data.md",
     .make = make<CraneDataDialog>,
     .cranes = FormKind::Overhead,
     .menu = {"mnuCraneData", "Crane data", 7},
     .refusal = {"Crane data are those of overhead cranes", "Crane data are those of overhead cranes"}},
};

}  // namespace

std::span<const FormKind> formKinds() {
    return kForms;
}

const FormKind* findForm(std::string_view node, bool monorail) {
    const FormKind* ofOtherCrane = nullptr;
    if (node.empty()) return nullptr;
    for (const FormKind& form : kForms) {
        if (node != form.node) continue;
        if (form.cranes != (monorail ? FormKind::Overhead : FormKind::Monorail)) return &form;
        ofOtherCrane = &form;
    }
    return ofOtherCrane;
}

std::unique_ptr<InputDialog> makeDialog(DialogKind kind, Session& session, Messages& messages,
                                        std::function<void()> changed, QWidget* parent) {
    const auto* row =
        std::find_if(std::begin(kForms), std::end(kForms), [kind](const FormKind& form) { return form.kind == kind; });
    auto form = row->make(session, messages, std::move(changed), parent);
    form->setOpener([&session, &messages, owner = form.get()](DialogKind other, std::function<void()> edited) {
        return makeDialog(other, session, messages, std::move(edited), owner);
    });
    return form;
}

}  // namespace borvik
