#include "actions/crane_working.h"

namespace borvik::actions {
namespace {

constexpr const char* kMaker = "from the maker";

void explainVertical(const CraneData& crane, const CraneLoads& loads, Working working) {
    working.heading("Vertical loads, 2.5.2.1 and Figure 2.1");
    working.given("Qc1", crane.bridge, "kN", "bridge");
    working.given("Qc2", crane.crab, "kN", "crab");
    working.given("Qh", crane.hoist, "kN", "hoist load");
    working.given("l", crane.span, "m", "distance of the rails");
    working.given("emin", crane.emin, "m", "hook to the rail beside the crab");
    working.given("n", crane.wheels(), "", "wheels on a rail");
    working.step("Qmax", "Qc1/2 + (Qc2 + Qh)*(l - emin)/l", loads.loaded.sumCrab, "kN", "beside the crab");
    working.step("Qfar", "Qc1/2 + (Qc2 + Qh)*emin/l", loads.loaded.sumFar, "kN", "far rail");
    working.step("Qr_max", "Qmax/n", loads.loaded.crab, "kN", "a wheel, without dynamic factors");
    working.step("Qr_far", "Qfar/n", loads.loaded.far, "kN");
    working.step("Qr_unl", "(Qc1/2 + Qc2*(l - emin)/l)/n", loads.unloaded.crab, "kN", "unloaded, beside the crab");
    working.step("Qr_min", "(Qc1/2 + Qc2*emin/l)/n", loads.unloaded.far, "kN", "unloaded, far rail");
}

void explainFactors(const CraneData& crane, const CraneLoads& loads, Working working) {
    working.heading("Dynamic factors, 2.6");
    working.given("phi_1", loads.factors.phi1, "", "Table 2.4");
    if (crane.phi2) {
        working.given("phi_2", *crane.phi2, "", kMaker);
    } else {
        const HoistingRow row = hoistingRow(crane.hc);
        working.given("phi_2min", row.phi2Min, "", "Table 2.5");
        working.given("beta_2", row.beta2, "s/m", "Table 2.5");
        working.given("vh", crane.vh, "m/s");
        working.step("phi_2", "phi_2min + beta_2*vh", loads.factors.phi2, "", "Table 2.4");
    }
    working.given("dm", crane.released, "", "share of the load let go at once");
    working.given("beta_3", beta3(crane.release), "", "Table 2.4");
    working.step("phi_3", "1 - dm*(1 + beta_3)", loads.factors.phi3, "", "Table 2.4");
    working.given("phi_4", loads.factors.phi4, "", "Table 2.4");
    working.given("phi_5", loads.factors.phi5, "", "Table 2.6");
    working.step("phi_6", "(1 + phi_2)/2", loads.factors.phi6, "", "2.10(4)");
}

void explainAcceleration(const CraneData& crane, const CraneLoads& loads, Working working) {
    const Acceleration& moving = loads.moving;
    working.heading("Acceleration of the crane, 2.7.2 and 2.7.3");
    if (crane.phiOnK)
        working.given("xi_1", moving.xi1, "", "of the loads with phi1 and phi2");
    else
        working.step("xi_1", "Qmax/(Qmax + Qfar)", moving.xi1);
    working.step("xi_2", "1 - xi_1", moving.xi2);
    if (crane.K) {
        working.given("K", moving.K, "kN", kMaker);
    } else {
        working.given("mu", crane.mu, "", "friction");
        working.given("Qrmin", moving.Qrmin, "kN",
                      crane.phiOnK ? "unloaded, far rail, with phi1" : "unloaded, far rail");
        if (crane.drive == Drive::Single) {
            working.given("mw", crane.mw, "", "single drives");
            working.step("K", "mu*mw*Qrmin", moving.K, "kN", "2.7.3(3)");
        } else {
            working.given("K", moving.K, "kN", "mu times both wheels of the unloaded crane, 2.7.3(3)");
        }
    }
    working.step("HL", "phi_5*K/2", moving.HL, "kN", "along each rail");
    working.step("ls", "(xi_1 - 0.5)*l", moving.ls, "m");
    working.step("M", "K*ls", moving.M, "kNm");
    working.given("a", crane.guideDistance(), "m", "distance of the guides");
    const auto across = [&](const char* symbol, const char* formula, const std::optional<double>& maker, double value,
                            const char* rail) {
        if (maker)
            working.given(symbol, value, "kN", kMaker);
        else
            working.step(symbol, formula, value, "kN", rail);
    };
    across("HT1", "phi_5*xi_2*M/a", crane.HT1, moving.HT1, "far rail");
    across("HT2", "phi_5*xi_1*M/a", crane.HT2, moving.HT2, "rail beside the crab");
}

void explainSkewing(const CraneData& crane, const CraneLoads& loads, Working working) {
    const Skewing& skewing = loads.guidedByFarRail;
    working.heading("Skewing, 2.7.4, the far rail guides");
    if (crane.alpha) {
        working.given("alpha", skewing.angle.alpha, "", kMaker);
    } else {
        working.given("alpha_F", skewing.angle.slip, "", "clearance, Table 2.7");
        working.given("alpha_V", skewing.angle.wear, "", "wear, Table 2.7");
        working.given("alpha_0", skewing.angle.tolerances, "", "tolerances");
        working.step("alpha", "min(alpha_F + alpha_V + alpha_0, 0.015)", skewing.angle.alpha, "", "2.7.4(1)");
    }
    working.step("f", "0.3*(1 - exp(-250*alpha))", skewing.f, "", "2.7.4(2)");
    working.given("h", skewing.h, "m", "from the guide to the pole, Table 2.8");
    working.given("lambda_S", skewing.lambdaS, "", "Table 2.9");
    working.given("Qall", skewing.sumQr, "kN", "all wheels, with phi4");
    working.step("S", "f*lambda_S*Qall", skewing.S, "kN", "force of the guide");
    for (const auto& [rail, symbol] : {std::pair(Rail::Crab, "HS2"), {Rail::Far, "HS1"}})
        working.given(symbol, crane.HS ? *crane.HS : skewing.across(rail).front(), "kN",
                      crane.HS             ? kMaker
                      : rail == Rail::Crab ? "front wheel beside the crab"
                                           : "front wheel, far rail");
}

void explainOthers(const CraneData& crane, const CraneLoads& loads, Working working) {
    working.heading("Acceleration of the crab, 2.7.5");
    working.step("HT3", "0.10*(Qh + Qc2)", loads.HT3, "kN", "2.11.2(1)");
    working.step("HT3w", "HT3/(2*n)", loads.HT3PerWheel, "kN", "each wheel of both rails");
    working.heading("Fatigue, 2.12.1");
    working.step("phi_fat1", "(1 + phi_1)/2", loads.fatigue.phiFat1, "", "2.12.1(7)");
    working.step("phi_fat2", "(1 + phi_2)/2", loads.fatigue.phiFat2, "", "2.12.1(7)");
    working.given("Qs", loads.fatigue.self, "kN", "self-weight on a wheel");
    working.given("Ql", loads.fatigue.hoist, "kN", "hoist load on a wheel");
    working.given("lambda_s", loads.fatigue.lambdaSigma, "", "Table 2.12");
    working.given("lambda_t", loads.fatigue.lambdaTau, "", "Table 2.12");
    working.step("Qe_s", "lambda_s*(phi_fat1*Qs + phi_fat2*Ql)", loads.fatigue.QeSigma, "kN", "2.12.1(4)");
    working.step("Qe_t", "lambda_t*(phi_fat1*Qs + phi_fat2*Ql)", loads.fatigue.QeTau, "kN", "2.12.1(4)");
    if (!loads.bufferLoaded) return;
    const BufferForce& force = *loads.bufferLoaded;
    working.heading("Buffers, 2.11.1");
    working.given("phi_7", force.phi7, "", "of the buffer characteristic");
    working.given("v1", force.v1, "m/s", "70 % of the travel speed");
    working.given("mc", force.mass, "t", "crane and hoist load");
    working.given("SB", *crane.SB, "kN/m");
    working.step("HB", "phi_7*v1*sqrt(mc*SB)", force.HB1, "kN", "both rails together");
}

}  // namespace

void explainCrane(const CraneData& crane, const CraneLoads& loads, Working working) {
    explainVertical(crane, loads, working);
    explainFactors(crane, loads, working);
    explainAcceleration(crane, loads, working);
    explainSkewing(crane, loads, working);
    explainOthers(crane, loads, working);
}

}  // namespace borvik::actions
