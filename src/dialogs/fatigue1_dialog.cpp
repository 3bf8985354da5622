#include "dialogs/fatigue1_dialog.h"

#include "project/usual_values.h"

namespace borvik {

Fatigue1Dialog::Fatigue1Dialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : FatigueDialog("frmFatigue1", tr("Fatigue - Overhead crane"), session, messages, std::move(changed), parent) {
    Project& p = project_;
    using D = FatigueDetail;
    build({.details = {{"chkFat1",
                        tr("1 Rail to topflange"),
                        p.Fat1,
                        {{"txtFat1C1", tr("Cx ="), p.Fat1C1}},
                        {{"picInfoC1attach", tr("Welded Clip"), D::RailWeldedClip},
                         {"picInfoC1bolt", tr("Bolted Clip"), D::RailBoltedClip},
                         {"Command1", tr("Welded Rail"), D::RailWelded}}},
                       {"chkFat2",
                        tr("2 Stiffener to bottom flange"),
                        p.Fat2,
                        {{"txtFat2C1", tr("Cx ="), p.Fat2C1}},
                        {{"Command2", tr("Welded "), D::StiffenerWelded},
                         {"Command3", tr("Bolted "), D::StiffenerBolted}}},
                       {"chkFat3",
                        tr("3 Top flange/web"),
                        p.Fat3,
                        {{"txtFat3C1", tr("Cz ="), p.Fat3C1}, {"txtFat3C2", tr("Ct ="), p.Fat3C2}},
                        {{"Command4", tr("Vertical stress"), D::TopFlangeWebVertical},
                         {"Command5", tr("Shear stress"), D::TopFlangeWebShear}}},
                       {"chkFat4",
                        tr("4 Bottom flange/web"),
                        p.Fat4,
                        {{"txtFat4C1", tr("Ct ="), p.Fat4C1}},
                        {{"Command6", tr("Shear stress"), D::BottomFlangeWeb}}},
                       {"chkFat5",
                        tr("5 Beam Splice"),
                        p.Fat5,
                        {{"txtFat5C1", tr("Cx ="), p.Fat5C1}},
                        {{"Command7", tr("Splice"), D::Splice}}},
                       {"chkFat6",
                        tr("6  Support Point"),
                        p.Fat6,
                        {{"txtFat6C1", tr("Cz ="), p.Fat6C1}},
                        {{"Command8", tr("Vertical stress"), D::SupportPoint}}}},
           .splices = {p.ChkFat5Sp, p.Fat5Span, p.Fat5d1, "txtFat5d1"},
           .welds = {{"W1", p.W1, p.W1a, tr("Top flange to web")},
                     {"W2", p.W2, p.W2a, tr("Bottom flange to web")},
                     {"W3", p.W3, p.W3a, tr("Stiffener at the support")}},
           .support = {"txtFat6d1", p.Fat6d1, "txtWS1t", p.WS1t},
           .defaults = {{"Command9", tr("Default values -  welded profile"),
                         [&p] { setUsualOverheadDetails(p, SectionMake::Welded); }},
                        {"Command10", tr("Default values -  rolled profile"),
                         [&p] { setUsualOverheadDetails(p, SectionMake::Rolled); }}},
           .note = tr("Note 1) FW = Fillet Weld FP = Full penetration Weld")});
}

}  // namespace borvik
