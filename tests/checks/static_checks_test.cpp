#include "checks/static_checks.h"

#include <gtest/gtest.h>

#include "checks/samples.h"

namespace borvik {
namespace {

struct Girder {
    Project project = samples::project(2, samples::section());
    CheckResults check() { return RunCodeChecks({project, samples::flatRail(), samples::uls(2), samples::sls(2)}); }
};

TEST(CodeChecks, theCraneChoosesTheLocalChecks) {
    Girder girder;
    const CheckResults overhead = girder.check();
    EXPECT_EQ(overhead["Local"].spans(2)(1), "IR = Fz,Ed/Fz,Rd = ");
    EXPECT_EQ(overhead.find("VonMises"), nullptr);
    EXPECT_EQ(overhead["DefZ"].spans.size(), 2);

    girder.project.CraneType = CraneKind::Monorail;
    const CheckResults monorail = girder.check();
    EXPECT_EQ(monorail["Local"].spans(2)(1), "IR = Fz,Ed/Ff,Rd = ");
    EXPECT_EQ(monorail["VonMises"].spans(2)(1), "IR = SigvM/fyk = ");
}

TEST(CodeChecks, faultsNameCheckAndSpan) {
    const auto faultAfter = [](auto change) -> std::string {
        Girder girder;
        change(girder);
        try {
            (void)girder.check();
        } catch (const RuntimeFault& fault) {
            return fault.what();
        }
        return "no fault";
    };
    EXPECT_EQ(faultAfter([](Girder& girder) { girder.project.SpanSection(2).VzRd = 0; }).substr(0, 24),
              "Section checks, span 2: ");
    EXPECT_EQ(faultAfter([](Girder& girder) { girder.project.SpanSection(1).Iz = 0; }).substr(0, 36),
              "Lateral torsional buckling, span 1: ");
    EXPECT_EQ(faultAfter([](Girder& girder) { girder.project.SpanSection(2).It = -1e9; }),
              "Lateral torsional buckling, span 2: invalid operation, such as the root of a negative number");
    EXPECT_EQ(faultAfter([](Girder& girder) { girder.project.SpanSection(2).Hw = 0; }),
              "Patch load, span 2: division by zero");
    EXPECT_EQ(faultAfter([](Girder& girder) { girder.project.DefY = 0; }), "Deflection, span 1: division by zero");
}

}  // namespace
}  // namespace borvik
