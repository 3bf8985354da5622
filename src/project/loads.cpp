#include "project/loads.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace borvik {

namespace {

/// WheelV of four wheels from slot `first` on.
void loadWheels(const Project& project, int crane, double factor, int first, RunLoads& loads) {
    for (int i = 0; i < 4; ++i) loads.WheelV(first + i) = factor * project.V((crane == 1 ? 1 : 5) + i);
}

}  // namespace

double heaviestWheel(const Project& project, int crane) {
    const auto first = project.V.begin() + (crane == 1 ? 0 : 4);
    return *std::max_element(first, first + 4);
}

double heaviestWheel(const Project& project) {
    return *std::max_element(project.V.begin(), project.V.end());
}

double smallestDistance(const Project& project) {
    double smallest = 0;
    for (int i = 1; i <= 3; ++i)
        if (project.Avst(i) != 0)
            smallest = smallest == 0 ? double(project.Avst(i)) : std::fmin(smallest, project.Avst(i));
    return smallest;
}

Single deadLoad(const Project& project, const RailRecord& rail, double factor, int span, Working working) {
    Single q = 0;
    const double weight = project.SpanSection(span).Weight;
    std::string sum;
    working.given("gamma", factor, "", "load factor");
    if (project.CraneType == CraneKind::Overhead) {
        q = project.Gangway * factor;
        working.given("qg", project.Gangway, "kN/m", "gangway");
        if (working) sum = "gamma*qg";
        if (project.RailOn) {
            q += (rail.RailWeight * factor / 1000) * 9.81;
            working.given("gr", rail.RailWeight, "kg/m", "rail");
            if (working) sum += " + gamma*gr*9.81/10^3";
        }
    }
    if (project.SelfWeight) {
        q += (factor * weight / 1000) * 9.81;
        working.given("gs", weight, "kg/m", "beam");
        if (working) sum += std::string(sum.empty() ? "" : " + ") + "gamma*gs*9.81/10^3";
    }
    if (sum.empty())
        working.given("qk", q, "kN/m", "none is asked for");
    else
        working.step("qk", sum.c_str(), q, "kN/m");
    return q;
}

void setDeadLoad(const Project& project, const RailRecord& rail, double factor, RunLoads& loads) {
    for (int i = 1; i <= project.NofSpans; ++i) loads.SpanLoad(i) = deadLoad(project, rail, factor, i);
}

void setUlsLoads(const Project& project, const RailRecord& rail, RunLoads& loads) {
    setDeadLoad(project, rail, project.LfULS, loads);
    for (int w = 1; w <= 8; ++w) {
        loads.WheelV(w) = (w <= 4 ? project.PsiV1 : project.PsiV2) * project.LfULS * project.V(w);
        loads.WheelH(w) = (w <= 4 ? project.PsiH1 : project.PsiH2) * project.LfULS * project.H(w);
    }
    loads.WheelGap = project.Avst;
}

void setSlsLoads(const Project& project, const RailRecord& rail, RunLoads& loads) {
    setDeadLoad(project, rail, project.LfSLS, loads);
    for (int w = 1; w <= 8; ++w) {
        loads.WheelV(w) = project.LfSLS * project.V(w);
        loads.WheelH(w) = project.LfSLS * project.H(w);
    }
    loads.WheelGap = project.Avst;
}

void ClearSpanLoad(const Project& project, RunLoads& loads) {
    for (int i = 1; i <= project.NofSpans; ++i) loads.SpanLoad(i) = 0.0;
}

void setFatigueCrane1(const Project& project, double PhiFat, bool train, RunLoads& loads) {
    loads.WheelGap = project.Avst;
    loadWheels(project, 1, PhiFat, 1, loads);
    loadWheels(project, 2, train ? PhiFat : 0.0, 5, loads);
    loads.NCranes = 1;
}

void setFatigueCrane2(const Project& project, double PhiFat, RunLoads& loads) {
    for (int i = 1; i <= 4; ++i) loads.WheelH(i) = 0.0;
    for (int i = 1; i <= 3; ++i) loads.WheelGap(i) = project.Avst(i + 3);
    loadWheels(project, 2, PhiFat, 1, loads);
}

void setFatigueBoth(const Project& project, double PhiFat1, double PhiFat2, RunLoads& loads) {
    for (int i = 1; i <= 8; ++i) loads.WheelH(i) = 0.0;
    loadWheels(project, 1, PhiFat1, 1, loads);
    loadWheels(project, 2, PhiFat2, 5, loads);
}

}  // namespace borvik
