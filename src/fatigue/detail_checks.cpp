#include "fatigue/detail_checks.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <string>

#include "analysis/results.h"
#include "base/fault.h"
#include "base/number_text.h"
#include "fatigue/stress_history.h"
#include "fatigue/wheel_stress.h"

namespace borvik {

namespace {

/// A point of the girder; at a support or splice also its number.
struct Place {
    int span = 0;
    int point = 1;
    int row = 0;
};

/// The stress there, 0 at a span beyond the girder (a monorail's splice read at the other field's span).
double stressAt(const Table<Single>& table, const Place& place) {
    return place.span >= 1 && place.span <= table.rows() ? double(table(place.span, place.point)) : 0.0;
}

/// One summand of the damage sum: factor x D^exponent, and what is printed of it.
struct Summand {
    double D = 0.0;
    int exponent = 0;
    double factor = 1.0;
    const Term* term = nullptr;  ///< printed with its numbers; none: D itself is printed
    double range = 0.0;
    const char* joint = " + ";  ///< text between it and the summand before
};

struct Damage {
    std::array<Summand, 6> summands;
    std::size_t count = 0;

    void add(const Summand& summand) { summands[count++] = summand; }
    [[nodiscard]] double sum() const {
        double total = 0.0;
        for (std::size_t i = 0; i < count; ++i) {
            total += summands[i].factor * std::pow(summands[i].D, summands[i].exponent);
        }
        return total;
    }
};

/// Local stresses under the wheel in one span, as far as the detail needs them.
struct LocalStress {
    WheelStress wheel;
    Single SigBend;
};

bool uses(const Detail& detail, Stress stress) {
    return std::any_of(detail.terms.begin(), detail.terms.end(),
                       [stress](const Term& term) { return term.exponent != 0 && term.stress == stress; });
}

/// Both ends of a stress range and where the cranes stand there. A stress that a wheel makes where it stands, wherever
/// that is, has none.
struct StressExtremes {
    Effect effect = Effect::TopFlange;
    int place = 0, point = 0;  ///< as in CraneStand
    double largest = 0.0, smallest = 0.0;
    WalkPosition largestAt, smallestAt;
};

std::optional<StressExtremes> extremesOf(Stress stress, const StressSet& set, const Place& place) {
    const int i = place.span, k = place.point;
    if (stress == Stress::Support || stress == Stress::HangerReaction)
        return StressExtremes{Effect::Rz,
                              place.row,
                              0,
                              set.RzMax(place.row),
                              set.RzMin(place.row),
                              set.At.RzMax(place.row),
                              set.At.RzMin(place.row)};
    if (i < 1 || i > set.At.MyMax.rows()) return std::nullopt;
    if (stress == Stress::TopFlange)  // hogging pulls the top flange
        return StressExtremes{Effect::TopFlange, i, k, set.Sig1Max(i, k), set.Sig1Min(i, k), set.At.MyMin(i, k),
                              set.At.MyMax(i, k)};
    if (stress == Stress::BottomFlange)
        return StressExtremes{Effect::BottomFlange, i, k, set.Sig2Max(i, k), set.Sig2Min(i, k), set.At.MyMax(i, k),
                              set.At.MyMin(i, k)};
    if (stress == Stress::Web || stress == Stress::WebAndWheel)
        return StressExtremes{Effect::Web,       i, k, set.TauMax(i, k), set.TauMin(i, k), set.At.VzMax(i, k),
                              set.At.VzMin(i, k)};
    return std::nullopt;
}

/// The check of one detail.
class DetailCheck {
public:
    DetailCheck(const Detail& detail, const DetailInput& input, Cranes cranes)
        : detail_(detail), in_(input), project_(input.project), cranes_(cranes) {}

    void run(FatigueResults& results) const {
        Array<RowSet> rows(1, rowCount());
        RowSet governing;
        double largest = 0.0;
        for (int row = 1; row <= rows.last(); ++row) {
            watched(detail_.name, atSplices() ? 0 : std::min<int>(row, project_.NofSpans),
                    [&] { check(row, rows(row)); });
            rows(row).Origin.detail = &detail_;
            rows(row).Origin.row = row;
            largest = std::max(largest, rows(row).LargestOfPoints);
            if (ranksAbove(rows(row)(3), governing(3))) governing = rows(row);
        }
        governing.LargestOfPoints = largest;
        results.FatRows(detail_.rows) = std::move(rows);
        results.FatResult(detail_.result) = std::move(governing);
    }

    [[nodiscard]] std::vector<DamagePoint> sums() const;
    /// How the damage sum of a row comes about.
    void explain(int row, Working working) const;

private:
    [[nodiscard]] bool atSplices() const;
    [[nodiscard]] const SpliceFields& splices() const;
    [[nodiscard]] int rowCount() const;
    [[nodiscard]] bool checkedAt(int row) const;
    [[nodiscard]] Place firstPlace(int row) const;
    [[nodiscard]] int lastPoint(const Place& first) const;
    [[nodiscard]] std::string placeText(const Place& place) const;

    // Stress and damage at a place
    [[nodiscard]] LocalStress localStress(const Place& place, Working working = {}) const;
    [[nodiscard]] double inThroats(const Weld& weld, const Place& place, double tau) const;
    [[nodiscard]] double hangerReaction(const Weld& weld, const Place& place) const;
    [[nodiscard]] double range(const Term& term, int crane, const StressSet& set, const Place& place,
                               const LocalStress& local) const;
    [[nodiscard]] Summand summand(const Term& term, double range) const;
    [[nodiscard]] double category(std::int16_t Project::*field) const { return project_.*field; }
    void addCrane(Damage& damage, int crane, const StressSet& set, const Place& place, const LocalStress& local) const;
    void addEachSet(Damage& damage, const Place& place, const LocalStress& local, Working working) const;
    void addTopFlangeWeld(Damage& damage, const Place& place, const LocalStress& local, Working working) const;
    void addBottomFlangeWeld(Damage& damage, const Place& place, Working working) const;
    /// @param working  where the D values of cranes that act together are explained
    [[nodiscard]] Damage damageAt(const Place& place, const LocalStress& local, Working working = {}) const;
    [[nodiscard]] std::string numbers(const Damage& damage) const;

    [[nodiscard]] std::array<CraneStand, 2> standsFor(const Place& place) const;

    /// The damage that governs a row, and where; its ratio goes into row 3 of the texts.
    struct Governing {
        Damage damage;
        Place place;
    };
    [[nodiscard]] Governing governingOf(int row, RowSet& texts) const;
    void explainRange(const Term& term, int crane, const StressSet& set, const Place& place, Working working) const;
    void explainD(const Term& term, double value, std::size_t number, Working working) const;
    void check(int row, RowSet& texts) const;

    const Detail& detail_;
    const DetailInput& in_;
    const Project& project_;
    Cranes cranes_;
};

bool DetailCheck::atSplices() const {
    return detail_.places == Places::Splices || detail_.places == Places::MonorailSplices;
}

const SpliceFields& DetailCheck::splices() const {
    return detail_.places == Places::MonorailSplices ? kMonorailSplices : kOverheadSplices;
}

int DetailCheck::rowCount() const {
    if (atSplices()) return kCheckedSplices;
    return detail_.places == Places::SpanPoints ? project_.NofSpans : project_.NofSpans + 1;
}

bool DetailCheck::checkedAt(int row) const {
    return !atSplices() || (project_.*splices().used)(row);
}

int DetailCheck::lastPoint(const Place& first) const {
    return detail_.places == Places::SpanPoints ? kPoints : first.point;
}

Place DetailCheck::firstPlace(int row) const {
    const int n = project_.NofSpans;
    if (atSplices()) {
        const int span = roundHalfEven((project_.*splices().span)(row));
        const double distance = (project_.*splices().distance)(row);
        const int point = roundHalfEven(distance * 20.0 / project_.Span(span) + 1.0);
        return {roundHalfEven((project_.*splices().stressSpan)(row)), point, row};
    }
    if (detail_.places == Places::SpanPoints) return {row, 1, row};
    const int span = detail_.places == Places::StrongerSide ? strongerSpanAtSupport(project_, row) : std::min(row, n);
    return {span, span == row ? 1 : kPoints, row};
}

std::string DetailCheck::placeText(const Place& place) const {
    if (detail_.places == Places::StrongerSide || detail_.places == Places::RightOfSupport) {
        return " <  1.00 ( Support: " + generalText(place.row) + ")";
    }
    int span = place.span;
    std::string spanText = generalText(span);
    if (atSplices()) {
        const Single stored = (project_.*splices().span)(place.row);
        span = roundHalfEven(stored);
        spanText = generalText(stored);
    }
    const std::int64_t twentieths = std::int64_t{place.point - 1} * project_.Span(span);
    return " <  1.00 ( " + spanText + "/" + formatNumber(static_cast<double>(twentieths) / 20.0, "0") + " mm)";
}

LocalStress DetailCheck::localStress(const Place& place, Working working) const {
    LocalStress local;
    if (uses(detail_, Stress::Wheel)) {
        local.wheel = wheelStress(project_, in_.rail, in_.factors, project_.SpanSection(place.span), working);
    }
    if (uses(detail_, Stress::FlangeBending)) {
        local.SigBend = flangeBending(project_, in_.factors, project_.SpanSection(place.span), working);
    }
    return local;
}

/// Shear of the web in the two throats of a fillet weld; in the web itself with full penetration.
double DetailCheck::inThroats(const Weld& weld, const Place& place, double tau) const {
    if (project_.*weld.kind != kFilletWeld) return tau;
    return project_.SpanSection(place.span).tw / (2.0 * project_.*weld.throat) * tau;
}

/// Range of the vertical stress under a hanger: crane 1's reaction, spread through the flange, in web or weld.
double DetailCheck::hangerReaction(const Weld& weld, const Place& place) const {
    const SectionRecord& section = project_.SpanSection(place.span);
    const double bearing = 2.0 * section.tf1 + project_.RWS1d;
    const double area =
        project_.*weld.kind == kFilletWeld ? 2.0 * bearing * project_.*weld.throat : bearing * section.tw;
    const double LamSig = in_.factors.Cr1.LamSig;
    return std::abs(LamSig * in_.Cr1.RzMax(place.row) / area - LamSig * in_.Cr1.RzMin(place.row) / area);
}

double DetailCheck::range(const Term& term, int crane, const StressSet& set, const Place& place,
                          const LocalStress& local) const {
    switch (term.stress) {
        case Stress::TopFlange:
            return stressAt(set.Sig1Range, place);
        case Stress::BottomFlange:
            return stressAt(set.Sig2Range, place);
        case Stress::Web:
            return inThroats(term.weld, place, stressAt(set.TauRange, place));
        case Stress::Support:
            return set.SigSupRange(place.row);
        case Stress::Wheel:
            return local.wheel.SigLoc(crane);
        case Stress::WebAndWheel:
            return inThroats(term.weld, place, stressAt(set.TauRange, place)) + local.wheel.TauLoc(crane);
        case Stress::HangerReaction:
            return hangerReaction(term.weld, place);
        case Stress::FlangeBending:
            return local.SigBend;
    }
    return 0.0;
}

Summand DetailCheck::summand(const Term& term, double range) const {
    const double GammaFf = project_.GammaFf;
    const double GammaMf = project_.GammaMf;
    const double C = category(term.category);
    Summand summand{.exponent = term.exponent, .term = &term, .range = range};
    switch (term.factors) {
        case Factors::Usual:
            summand.D = GammaFf * range / (C / GammaMf);
            break;
        case Factors::LoadOutside:
            summand.factor = GammaFf;
            summand.D = range / (C / GammaMf);
            break;
        case Factors::CategoryDivided:
            summand.D = range * GammaFf / C / GammaMf;
            break;
    }
    return summand;
}

void DetailCheck::addCrane(Damage& damage, int crane, const StressSet& set, const Place& place,
                           const LocalStress& local) const {
    const char* joint = " + ";  // between cranes; between the terms of one crane the blanks fall away
    for (const Term& term : detail_.terms) {
        if (term.exponent == 0) continue;
        Summand next = summand(term, range(term, crane, set, place, local));
        next.joint = joint;
        damage.add(next);
        joint = "+";
    }
}

/// A D value of the sum of three: stored as a single, and the power is taken of what is stored.
Summand stored(double D, int exponent) {
    return {.D = Single(D), .exponent = exponent};
}

void DetailCheck::addEachSet(Damage& damage, const Place& place, const LocalStress& local, Working working) const {
    const Term& term = detail_.terms[0];
    const char* const names[] = {"Crane 1", "Crane 2", "Both cranes"};
    const StressSet* const sets[] = {&in_.Cr1, &in_.Cr2, &in_.Cr12};
    for (std::size_t i = 0; i < std::size(sets); ++i) {
        const Summand each = summand(term, range(term, 1, *sets[i], place, local));
        damage.add(stored(each.D, term.exponent));
        if (!working) continue;
        working.heading(names[i]);
        explainRange(term, 1, *sets[i], place, working);
        explainD(term, each.D, damage.count, working);
    }
}

/// The weld of top flange and web under the larger of the two cranes' wheels. Factors are crossed over between the
/// cranes, and differently for a fillet weld (all direct terms with the factor of both cranes); crane 1's shear is that
/// of both cranes; no throat factor applies to the web's shear; LamTauN of both cranes is read by nothing. Note G11.
void DetailCheck::addTopFlangeWeld(Damage& damage, const Place& place, const LocalStress& local,
                                   Working working) const {
    const auto& [Cr1, Cr2, Cr12] = in_.factors;
    const double F1 = largestWheel(project_, 1);
    const double F2 = largestWheel(project_, 2);
    const double F = F1 > F2 ? Cr1.PhiFat * F1 : Cr2.PhiFat * F2;
    const bool fillet = project_.W1 == kFilletWeld;

    struct Crane {
        double LamSigN, LamTauN;
        const StressSet& set;
    };
    const Crane cranes[] = {
        {Cr12.LamSigN, Cr1.LamTauN, in_.Cr12},
        {fillet ? Cr12.LamSigN : Cr2.LamSigN, Cr2.LamTauN, in_.Cr2},
        {fillet ? Cr12.LamSigN : Cr2.LamSigN, Cr2.LamTauN, in_.Cr12},
    };
    const auto& [direct, shear] = detail_.terms;
    if (working) working.heading("Both cranes together, note G11");
    working.given("F", F, "kN", "largest wheel of both cranes times phi_fat");
    for (const Crane& crane : cranes) {
        const double s = local.wheel.spread.stress(crane.LamSigN, F);
        const double t = local.wheel.spread.stress(kLocalShear * crane.LamTauN, F);
        const double web = stressAt(crane.set.TauRange, place);
        const Summand ofDirect = summand(direct, s), ofShear = summand(shear, t + web);
        damage.add(stored(ofDirect.D, direct.exponent));
        working.given("lambda_sN", crane.LamSigN, "", "lambda times N^(1/3)");
        working.step("range", "lambda_sN*F*10^3/leff/tw1", s, "MPa", "EN 1993-6 5.7.1");
        explainD(direct, ofDirect.D, damage.count, working);
        damage.add(stored(ofShear.D, shear.exponent));
        working.given("lambda_tN", crane.LamTauN, "", "lambda times N^(1/5)");
        working.given("tau_web", web, "MPa", "range of the walk, lambda included");
        working.step("range", "0.4*lambda_tN*F*10^3/leff/tw1 + tau_web", t + web, "MPa", "EN 1993-6 5.7.2");
        explainD(shear, ofShear.D, damage.count, working);
    }
}

/// The web's shear in the weld W2, here with the load factor inside the power. A fillet weld takes the throat factor of
/// W1 in addition, and a full penetration weld keeps the throat factor of its own: note G12.
void DetailCheck::addBottomFlangeWeld(Damage& damage, const Place& place, Working working) const {
    const Term& term = detail_.terms[0];
    const double GammaFf = project_.GammaFf;
    const double tw = project_.SpanSection(place.span).tw;
    const double C = category(term.category) / project_.GammaMf;
    const double load = project_.W2 == kFilletWeld ? tw * GammaFf / (2.0 * project_.W1a) : GammaFf;
    if (working) working.heading("Both cranes together, note G12");
    working.given("tw", tw, "mm");
    working.given("a1", project_.W1a, "mm", "throat of the weld at the top flange");
    working.given("a2", project_.W2a, "mm", "throat of the weld");
    working.given("C", category(term.category), "MPa", "category of the detail");
    const char* const formula = project_.W2 == kFilletWeld ? "tw*gamma_Ff/(2*a1)*range*tw/(2*a2)/(C/gamma_Mf)"
                                                           : "gamma_Ff*range*tw/(2*a2)/(C/gamma_Mf)";
    for (const StressSet* set : {&in_.Cr1, &in_.Cr2, &in_.Cr12}) {
        const double r = stressAt(set->TauRange, place);
        const double D = load * r * tw / (2.0 * project_.W2a) / C;
        damage.add(stored(D, term.exponent));
        working.given("range", r, "MPa", "of the walk, lambda included");
        if (working) working.step(("D_" + std::to_string(damage.count)).c_str(), formula, D, "", "EN 1993-1-9 8(3)");
    }
}

Damage DetailCheck::damageAt(const Place& place, const LocalStress& local, Working working) const {
    Damage damage;
    if (cranes_ == Cranes::Together) {
        switch (detail_.together) {
            case Together::EachSet:
                addEachSet(damage, place, local, working);
                break;
            case Together::TopFlangeWeld:
                addTopFlangeWeld(damage, place, local, working);
                break;
            case Together::BottomFlangeWeld:
                addBottomFlangeWeld(damage, place, working);
                break;
        }
        return damage;
    }
    addCrane(damage, 1, in_.Cr1, place, local);
    if (cranes_ == Cranes::Independent) addCrane(damage, 2, in_.Cr2, place, local);
    return damage;
}

std::string DetailCheck::numbers(const Damage& damage) const {
    std::string text;
    for (std::size_t i = 0; i < damage.count; ++i) {
        const Summand& summand = damage.summands[i];
        if (i > 0) text += summand.joint;
        if (summand.term == nullptr) {
            text += formatNumber(summand.D, "0.000");
        } else {
            const std::string range = formatNumber(summand.range, "0.0");
            text += "[" + formatNumber(project_.GammaFf, "0.00") + "*" +
                    (summand.term->bracketed ? "(" + range + ")" : range) + "/(" +
                    formatNumber(category(summand.term->category), "0") + "/" + formatNumber(project_.GammaMf, "0.00") +
                    ")]";
        }
        text += "^" + generalText(summand.exponent);
    }
    return text + " = ";
}

/// The positions between which the stress of the detail ranges at a place, the one of the larger magnitude first. Of
/// several walks it is the one with the largest range.
std::array<CraneStand, 2> DetailCheck::standsFor(const Place& place) const {
    const struct {
        const StressSet& set;
        WalkOf walk;
    } walks[] = {{in_.Cr1, WalkOf::FatigueCrane1}, {in_.Cr2, WalkOf::FatigueCrane2}, {in_.Cr12, WalkOf::FatigueBoth}};
    std::array<CraneStand, 2> stands;
    double widest = 0.0;
    for (const auto& [set, walk] : walks) {
        if (set.At.MyMax.rows() == 0) continue;
        for (const Term& term : detail_.terms) {
            const auto extremes = term.exponent == 0 ? std::nullopt : extremesOf(term.stress, set, place);
            if (!extremes || !(std::abs(extremes->largest - extremes->smallest) > widest)) continue;
            widest = std::abs(extremes->largest - extremes->smallest);
            const CraneStand stand{walk, extremes->effect, {}, extremes->place, extremes->point};
            stands = {stand, stand};
            const bool largestFirst = std::abs(extremes->largest) >= std::abs(extremes->smallest);
            stands[largestFirst ? 0 : 1].at = extremes->largestAt;
            stands[largestFirst ? 1 : 0].at = extremes->smallestAt;
            break;
        }
    }
    return stands;
}

DetailCheck::Governing DetailCheck::governingOf(int row, RowSet& texts) const {
    Place place = firstPlace(row);
    const int last = lastPoint(place);
    const LocalStress local = localStress(place);
    Governing governing;
    for (; place.point <= last; ++place.point) {
        const Damage damage = damageAt(place, local);
        const double ratio = damage.sum();
        texts.LargestOfPoints = std::max(texts.LargestOfPoints, ratio);
        const std::string IrText = detail_.rankedByFullDigits ? plainText(ratio) : formatNumber(ratio, "0.000");
        if (!ranksAbove(IrText, texts(3))) continue;
        texts(3) = detail_.rankedByFullDigits ? formatNumber(ratio, "0.000") : IrText;
        texts.Ratio = ratio;
        governing = {damage, place};
    }
    return governing;
}

void DetailCheck::check(int row, RowSet& texts) const {
    if (!checkedAt(row)) return;

    const auto [governing, governingPlace] = governingOf(row, texts);
    texts(1) = detail_.label[static_cast<std::size_t>(cranes_)];
    texts(2) = numbers(governing);
    texts(4) = placeText(governingPlace);
    texts.Stands = standsFor(governingPlace);
}

/// Both ends of a stress range, as the walk left them, and the range that the term takes.
void DetailCheck::explainRange(const Term& term, int crane, const StressSet& set, const Place& place,
                               Working working) const {
    const char* source = "of the walk, lambda included";
    const auto ends = [&](double largest, double smallest) {
        working.given("max_", largest, "MPa", source);
        working.given("min_", smallest, "MPa", source);
    };
    const auto inWeb = [&](const char* local) {
        const bool fillet = project_.*term.weld.kind == kFilletWeld;
        if (fillet) {
            working.given("tw", project_.SpanSection(place.span).tw, "mm");
            working.given("a", project_.*term.weld.throat, "mm", "throat of the weld");
        }
        return std::string(fillet ? "tw/(2*a)*abs(max_ - min_)" : "abs(max_ - min_)") + local;
    };
    const std::string number = std::to_string(crane);
    const bool known = place.span >= 1 && place.span <= set.Sig1Max.rows();
    const int i = place.span, k = place.point;
    std::string formula;
    switch (term.stress) {
        case Stress::TopFlange:
            if (known) ends(set.Sig1Max(i, k), set.Sig1Min(i, k));
            formula = "abs(max_ - min_)";
            break;
        case Stress::BottomFlange:
            if (known) ends(set.Sig2Max(i, k), set.Sig2Min(i, k));
            formula = "abs(max_ - min_)";
            break;
        case Stress::Web:
        case Stress::WebAndWheel:
            if (known) ends(set.TauMax(i, k), set.TauMin(i, k));
            formula = inWeb(term.stress == Stress::Web ? "" : (" + tau_loc" + number).c_str());
            break;
        case Stress::Support:
            working.given("max_", set.SigSupMax(place.row), "MPa", "reaction times lambda over the bearing area");
            working.given("min_", set.SigSupMin(place.row), "MPa");
            formula = "abs(max_ - min_)";
            break;
        case Stress::Wheel:
            formula = "sigma_loc" + number;
            break;
        case Stress::FlangeBending:
            formula = "sigma_loc";
            break;
        case Stress::HangerReaction:
            break;
    }
    const double taken = range(term, crane, set, place, localStress(place));
    if (formula.empty() || (!known && term.stress != Stress::Support))
        working.given("range", taken, "MPa", "chapter 12 of the manual");
    else
        working.step("range", formula.c_str(), taken, "MPa");
}

/// The D value of a term from its range. @param number  of the D value, from 1
void DetailCheck::explainD(const Term& term, double value, std::size_t number, Working working) const {
    if (!working) return;
    const std::string D = "D_" + std::to_string(number);
    working.given("C", category(term.category), "MPa", "category of the detail");
    switch (term.factors) {
        case Factors::Usual:
            working.step(D.c_str(), "gamma_Ff*range/(C/gamma_Mf)", value, "", "EN 1993-1-9 8(3)");
            break;
        case Factors::LoadOutside:
            working.step(D.c_str(), "range/(C/gamma_Mf)", value, "", "note G4");
            break;
        case Factors::CategoryDivided:
            working.step(D.c_str(), "range*gamma_Ff/C/gamma_Mf", value, "", "note G3");
            break;
    }
}

void DetailCheck::explain(int row, Working working) const {
    RowSet texts;
    const Governing found = governingOf(row, texts);
    const Damage& governing = found.damage;
    const Place& place = found.place;
    working.given("gamma_Ff", project_.GammaFf, "");
    working.given("gamma_Mf", project_.GammaMf, "", "EN 1993-1-9 Table 3.1");
    const CraneFactors* factors[] = {&in_.factors.Cr1, &in_.factors.Cr2};
    for (int crane = 1; crane <= (cranes_ == Cranes::Alone ? 1 : 2); ++crane) {
        working.heading(crane == 1 ? "Crane 1" : "Crane 2");
        working.given("phi_fat", factors[crane - 1]->PhiFat, "", "(1 + psi)/2, EN 1991-3 2.12.1(7)");
        working.given("lambda_s", factors[crane - 1]->LamSig, "", "of the crane class, EN 1991-3 Table 2.12");
        working.given("lambda_t", factors[crane - 1]->LamTau, "", "the same for shear");
    }
    if (uses(detail_, Stress::Wheel) || uses(detail_, Stress::FlangeBending))
        working.heading("Local stress of a wheel");
    (void)localStress(place, working);
    const std::string where = placeText(place);
    working.heading(("Place" + where.substr(where.find('(') + 1, where.find(')') - where.find('(') - 1)).c_str());
    // Of cranes that act together the D values are explained where they are made.
    if (cranes_ == Cranes::Together) (void)damageAt(place, localStress(place), working);
    std::string sum;
    for (std::size_t i = 0; i < governing.count; ++i) {
        const Summand& summand = governing.summands[i];
        const std::string number = std::to_string(i + 1);
        if (summand.term != nullptr) {
            // The terms of crane 1 come first, then those of crane 2.
            const std::size_t terms = governing.count / (cranes_ == Cranes::Independent ? 2 : 1);
            const int crane = i < terms ? 1 : 2;
            working.heading(crane == 1 ? "Stress range of crane 1" : "Stress range of crane 2");
            explainRange(*summand.term, crane, crane == 1 ? in_.Cr1 : in_.Cr2, place, working);
            explainD(*summand.term, summand.D, i + 1, working);
        }
        sum += (i == 0 ? "" : " + ") + std::string(summand.factor != 1.0 ? "gamma_Ff*" : "") + "D_" + number + "^" +
               std::to_string(summand.exponent);
    }
    working.heading("Damage");
    working.step("IR", sum.c_str(), texts.Ratio, "", "EN 1993-1-9 8(2), A.5");
}

std::vector<DamagePoint> DetailCheck::sums() const {
    std::vector<DamagePoint> sums;
    for (int row = 1; row <= rowCount(); ++row) {
        if (!checkedAt(row)) continue;
        Place place = firstPlace(row);
        const int last = lastPoint(place);
        const LocalStress local = localStress(place);
        for (; place.point <= last; ++place.point)
            sums.push_back({row, place.span, place.point, damageAt(place, local).sum()});
    }
    return sums;
}

}  // namespace

std::vector<DamagePoint> damageSums(const Detail& detail, const DetailInput& input, Cranes cranes) {
    return DetailCheck(detail, input, cranes).sums();
}

void explainDetail(const Detail& detail, const DetailInput& input, Cranes cranes, int row, Working working) {
    DetailCheck(detail, input, cranes).explain(row, working);
}

void checkDetails(std::span<const Detail> details, const DetailInput& input, Cranes cranes, FatigueResults& results) {
    for (const Detail& detail : details) {
        if (input.project.*detail.checked) DetailCheck(detail, input, cranes).run(results);
    }
}

}  // namespace borvik
