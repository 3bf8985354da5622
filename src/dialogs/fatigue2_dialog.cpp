#include "dialogs/fatigue2_dialog.h"

#include "project/usual_values.h"

namespace borvik {

Fatigue2Dialog::Fatigue2Dialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : FatigueDialog("frmFatigue2", tr("Fatigue - Monorail"), session, messages, std::move(changed), parent) {
    Project& p = project_;
    using D = FatigueDetail;
    build({.details = {{"chkFat1",
                        tr("1 Edge of support"),
                        p.FatR1,
                        {{"txtFatR1C1", tr("Cx ="), p.FatR1C1}},
                        {{"Command1", tr("Flange stress"), D::SupportEdge}}},
                       {"chkFat2",
                        tr("2 Support to top flange"),
                        p.FatR2,
                        {{"txtFatR2C1", tr("Cz ="), p.FatR2C1}},
                        {{"Command2", tr("Vertical stress"), D::SupportToTopFlange}}},
                       {"chkFat3",
                        tr("3 Top flange/web at support"),
                        p.FatR3,
                        {{"txtFatR3C1", tr("Cz ="), p.FatR3C1}, {"txtFatR3C2", tr("Ct ="), p.FatR3C2}},
                        {{"Command3", tr("Vertical stress"), D::SupportWebVertical},
                         {"Command10", tr("Shear stress"), D::SupportWebShear}}},
                       {"chkFat4",
                        tr("4 Top flange/web"),
                        p.FatR4,
                        {{"txtFatR4C1", tr("Ct ="), p.FatR4C1}},
                        {{"Command4", tr("Shear stress"), D::MonorailTopFlangeWeb}}},
                       {"chkFat5",
                        tr("5 Beam Splice"),
                        p.FatR5,
                        {{"txtFatR5C1", tr("Cx ="), p.FatR5C1}},
                        {{"Command5", tr("Flange stress"), D::Splice}}},
                       {"chkFat6",
                        tr("6 Bottom flange/web"),
                        p.FatR6,
                        {{"txtFatR6C1", tr("Cy ="), p.FatR6C1}, {"txtFatR6C2", tr("Ct ="), p.FatR6C2}},
                        {{"Command6", tr(" Tranverse flange bending "), D::BottomFlangeBending},
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
