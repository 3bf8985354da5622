#include "project/loads.h"

namespace borvik {

void setDeadLoad(const Project& project, const RailRecord& rail, double factor, RunLoads& loads) {
    for (int i = 1; i <= project.NofSpans; ++i) {
        Single& q = loads.SpanLoad(i);
        q = 0;
        if (project.CraneType == CraneKind::Overhead) {
            q = project.Gangway * factor;
            if (project.RailOn) q += (rail.RailWeight * factor / 1000) * 9.81;
        }
        if (project.SelfWeight) q += (factor * project.SpanSection(i).Weight / 1000) * 9.81;
    }
}

void setUlsLoads(const Project& project, const RailRecord& rail, RunLoads& loads) {
    setDeadLoad(project, rail, project.LfULS, loads);
    for (int w = 1; w <= 8; ++w) {
        loads.WheelV(w) = (w <= 4 ? project.PsiV1 : project.PsiV2) * project.LfULS * project.V(w);
        loads.WheelH(w) = (w <= 4 ? project.PsiH1 : project.PsiH2) * project.LfULS * project.H(w);
    }
    loads.WheelGap = project.Avst;
}

}  // namespace borvik
