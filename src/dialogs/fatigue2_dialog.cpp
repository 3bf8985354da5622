#include "dialogs/fatigue2_dialog.h"

#include "project/usual_values.h"

namespace borvik {

Fatigue2Dialog::Fatigue2Dialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : FatigueDialog("frmFatigue2", tr("Fatigue - Monorail"), session, messages, std::move(changed), parent) {
    Project& p = project_;
    using D = FatigueDetail;
    build({.catalogue = kMonorailDetails,
           .stem = "FatR",
           .details = {{{{"Command1", tr("Flange stress"), D::SupportEdge}}, tr("1 Edge of support")},
                       {{{"Command2", tr("Vertical stress"), D::SupportToTopFlange}}},
                       {{{"Command3", tr("Vertical stress"), D::SupportWebVertical},
                         {"Command10", tr("Shear stress"), D::SupportWebShear}}},
                       {{{"Command4", tr("Shear stress"), D::MonorailTopFlangeWeb}}},
                       {{{"Command5", tr("Flange stress"), D::Splice}}},
                       {{{"Command6", tr(" Tranverse flange bending "), D::BottomFlangeBending},
                         {"Command7", tr("Shear stress"), D::BottomFlangeShear}}}},
           .splices = {p.ChkFatR5Sp, p.FatR5Span, p.FatR5d1, "txtFatR5d1"},
           .welds = {{"RW1", p.RW1, p.RW1a, tr("Support to top flange")},
                     {"RW2", p.RW2, p.RW2a, tr("Top flange to web at the support")},
                     {"RW3", p.RW3, p.RW3a, tr("Top flange to web")},
                     {"RW4", p.RW4, p.RW4a, tr("Bottom flange to web")}},
           .support = {"txtRWS1d", p.RWS1d, "txtRWS1t", p.RWS1t},
           .defaults = {{"Command9", tr("Default values -  welded profile"),
                         [&p] { setUsualMonorailDetails(p, SectionMake::Welded); }},
                        {"Command8", tr("Default values -  rolled profile"),
                         [&p] { setUsualMonorailDetails(p, SectionMake::Rolled); }}},
           .note = tr("Note 1) FW = Fillet Weld FP = Full Penetration Weld")});
}

void Fatigue2Dialog::settle(Project& project) const {
    const auto& used = project.ChkFatR5Sp;
    // It is the flag of the overhead crane that falls here; the input check clears that of the monorail.
    if (!used(1) && !used(2) && !used(3) && !used(4)) project.Fat5 = false;
}

void Fatigue2Dialog::accept() {
    settle(project_);
    FatigueDialog::accept();
}

}  // namespace borvik
