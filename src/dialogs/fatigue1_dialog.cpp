#include "dialogs/fatigue1_dialog.h"

#include "project/usual_values.h"

namespace borvik {

Fatigue1Dialog::Fatigue1Dialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : FatigueDialog("frmFatigue1", tr("Fatigue - Overhead crane"), session, messages, std::move(changed), parent) {
    Project& p = project_;
    using D = FatigueDetail;
    build({.catalogue = kOverheadDetails,
           .stem = "Fat",
           .details = {{{{"picInfoC1attach", tr("Welded Clip"), D::RailWeldedClip},
                         {"picInfoC1bolt", tr("Bolted Clip"), D::RailBoltedClip},
                         {"Command1", tr("Welded Rail"), D::RailWelded}}},
                       {{{"Command2", tr("Welded "), D::StiffenerWelded},
                         {"Command3", tr("Bolted "), D::StiffenerBolted}}},
                       {{{"Command4", tr("Vertical stress"), D::TopFlangeWebVertical},
                         {"Command5", tr("Shear stress"), D::TopFlangeWebShear}}},
                       {{{"Command6", tr("Shear stress"), D::BottomFlangeWeb}}},
                       {{{"Command7", tr("Splice"), D::Splice}}},
                       {{{"Command8", tr("Vertical stress"), D::SupportPoint}}}},
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
