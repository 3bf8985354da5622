#include "project/input_ranges.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "base/number_text.h"

namespace borvik {

namespace {

Single numberIn(const Single& field) {
    return field;
}
Single numberIn(const std::string& field) {
    return DecimalValue(field);
}
Single numberIn(std::int32_t field) {
    return Single(field);
}

std::string numbered(const char* stem, int number) {
    return stem + std::to_string(number);
}

/// The list while it grows: entries of one form behind its name.
class InputList {
public:
    void form(const char* name) { form_ = name; }
    template <class Field>
    void add(const Field& field, const std::string& name, const Range& range, bool counts = true) {
        entries_.push_back({&field, std::string(form_) + ": " + name, numberIn(field), range, counts});
    }
    [[nodiscard]] std::vector<InputNumber> take() { return std::move(entries_); }

private:
    const char* form_ = "";
    std::vector<InputNumber> entries_;
};

void addSetup(InputList& list, const Project& p) {
    list.form("Setup");
    // 0 is accepted though the form's message says "0 <": a limit state can be switched off by its factor.
    list.add(p.LfULS, "load factor ULS", between(0, 4));
    list.add(p.LfSLS, "load factor SLS", between(0, 4));
    list.add(p.GammaFf, "gammaFf", between(0.5, 1.5));
    // The lower limit looks at the vertical limit: a project whose DefZ is below 200 refuses any DefY, and with a sound
    // DefZ the horizontal limit may be as loose as one likes.
    list.add(p.DefY, "limit of dy, L/", p.DefZ >= 200 ? atMost(2000) : noNumber());
    list.add(p.DefZ, "limit of dz, L/", between(200, 2000));
    list.add(p.Eta, "n of the shear area", between(1.0, 1.2));
    list.add(p.LamdaLT0, "lamdaLT,0, rolled", between(0.1, 0.8));
    list.add(p.LamdaLT0w, "lamdaLT,0, welded", between(0.1, 0.8));
    // The form's message names 0.8 for the first though anything up to 1.0 is accepted.
    list.add(p.Beta, "beta, rolled", between(0.1, 1.0));
    list.add(p.Betaw, "beta, welded", between(0.1, 1.0));
    list.add(p.GammaM0, "gammaM0", between(0.5, 1.5));
    list.add(p.GammaM1, "gammaM1", between(0.5, 1.5));
    list.add(p.GammaMf, "gammaMf", between(0.5, 1.5));
}

void addCrane(InputList& list, const Project& p, int crane, bool counts) {
    const int wheel0 = crane == 1 ? 0 : 4, gap0 = crane == 1 ? 0 : 3;
    list.add(crane == 1 ? p.PsiV1 : p.PsiV2, numbered("Psi", crane) + "V", atLeast(0.8), counts);
    // The horizontal factor is held to 1.0, though its message is that of the vertical one.
    list.add(crane == 1 ? p.PsiH1 : p.PsiH2, numbered("Psi", crane) + "H", atLeast(1.0), counts);
    for (int wheel = wheel0 + 1; wheel <= wheel0 + 4; ++wheel) {
        list.add(p.V(wheel), numbered("Vk of wheel ", wheel), wheel == wheel0 + 1 ? moreThan(0) : atLeast(0), counts);
        list.add(p.H(wheel), numbered("Hk of wheel ", wheel), anyNumber(), counts);
    }
    for (int gap = 1; gap <= 3; ++gap)
        list.add(p.Avst(gap0 + gap), numbered("distance behind wheel ", wheel0 + gap), atLeast(0), counts);
}

void addLoads(InputList& list, const Project& p) {
    const bool overhead = p.CraneType == CraneKind::Overhead, two = overhead && p.NofCranes == 2;
    list.form("Loads");
    list.add(p.Gangway, "qk of the gangway", atLeast(0), overhead);
    list.add(p.Position, "position of the first wheel", atLeast(0), p.Fixerad);
    list.add(p.MinAvst, "distance of the cranes", moreThan(100), two);
    list.add(p.Inn, "n", atLeast(5), !overhead);
    addCrane(list, p, 1, true);
    addCrane(list, p, 2, two);
}

void addBuckling(InputList& list, const Project& p) {
    const bool entered = !p.DefaultCfactor;
    list.form("Lateral Tors Buckl");
    const struct {
        const char* zone;
        const Single &c1, *c2, &c3;
    } zones[] = {{"end span, positive moment", p.C1EndPos, &p.C2EndPos, p.C3EndPos},
                 {"mid span, positive moment", p.C1MidPos, &p.C2MidPos, p.C3MidPos},
                 {"end span, negative moment", p.C1EndNeg, nullptr, p.C3EndNeg},
                 {"mid span, negative moment", p.C1MidNeg, nullptr, p.C3MidNeg}};
    for (const auto& each : zones) {
        const std::string zone = std::string(", ") + each.zone;
        list.add(each.c1, "C1" + zone, atLeast(1.0), entered);
        if (each.c2 != nullptr) list.add(*each.c2, "C2" + zone, atLeast(0.3), entered);
        list.add(each.c3, "C3" + zone, atLeast(0.3), entered);
    }
}

using Splices = FixedArray<Single, 1, 10>;

/// The four splices of a form.
void addSplices(InputList& list, const Project& p, const Splices& span, const Splices& distance,
                const FixedArray<bool, 1, 10>& used, bool checked) {
    for (int j = 1; j <= kFormSplices; ++j) {
        const std::string splice = numbered("splice ", j);
        const int at = spliceSpan(p, span(j));
        list.add(span(j), splice + ", span", between(1, p.NofSpans), checked && used(j));
        list.add(distance(j), splice + ", d", at == 0 ? atLeast(10) : between(10, p.Span(at)), checked && used(j));
    }
}

/// A category of a detail, or a throat.
template <class Field>
struct Entry {
    const char* name;
    const Field& field;
    bool counts;
};

void addFatigue(InputList& list, std::initializer_list<Entry<std::int16_t>> categories,
                std::initializer_list<Entry<Single>> throats) {
    for (const auto& each : categories) list.add(each.field, each.name, between(36, 160), each.counts);
    for (const auto& each : throats)
        list.add(each.field, std::string("a of weld ") + each.name, atLeast(3), each.counts);
}

void addOverheadFatigue(InputList& list, const Project& p) {
    const bool here = p.CraneType == CraneKind::Overhead;
    addFatigue(list,
               {{"Cx of detail 1", p.Fat1C1, here && p.Fat1},
                {"Cx of detail 2", p.Fat2C1, here && p.Fat2},
                {"Cz of detail 3", p.Fat3C1, here && p.Fat3},
                {"Ct of detail 3", p.Fat3C2, here && p.Fat3},
                {"Ct of detail 4", p.Fat4C1, here && p.Fat4},
                {"Cx of detail 5", p.Fat5C1, here && p.Fat5},
                {"Cz of detail 6", p.Fat6C1, here && p.Fat6}},
               {{"W1", p.W1a, here && p.W1 == kFilletWeld},
                {"W2", p.W2a, here && p.W2 == kFilletWeld},
                {"W3", p.W3a, here && p.W3 == kFilletWeld}});
    addSplices(list, p, p.Fat5Span, p.Fat5d1, p.ChkFat5Sp, here && p.Fat5);
    list.add(p.Fat6d1, "e of the support", between(25, 1000), here && p.Fat6);
    list.add(p.WS1t, "t of the support", between(2, 100), here && p.Fat6);
}

void addMonorailFatigue(InputList& list, const Project& p) {
    const bool here = p.CraneType != CraneKind::Overhead;
    const bool support = here && (p.FatR1 || p.FatR2 || p.FatR3);
    addFatigue(list,
               {{"Cx of detail 1", p.FatR1C1, here && p.FatR1},
                {"Cz of detail 2", p.FatR2C1, here && p.FatR2},
                {"Cz of detail 3", p.FatR3C1, here && p.FatR3},
                {"Ct of detail 3", p.FatR3C2, here && p.FatR3},
                {"Ct of detail 4", p.FatR4C1, here && p.FatR4},
                {"Cx of detail 5", p.FatR5C1, here && p.FatR5},
                {"Cy of detail 6", p.FatR6C1, here && p.FatR6},
                {"Ct of detail 6", p.FatR6C2, here && p.FatR6}},
               {{"W1", p.RW1a, here && p.RW1 == kFilletWeld},
                {"W2", p.RW2a, here && p.RW2 == kFilletWeld},
                {"W3", p.RW3a, here && p.RW3 == kFilletWeld},
                {"W4", p.RW4a, here && p.RW4 == kFilletWeld}});
    addSplices(list, p, p.FatR5Span, p.FatR5d1, p.ChkFatR5Sp, here && p.FatR5);
    list.add(p.RWS1d, "e of the support", between(25, 1000), support);
    list.add(p.RWS1t, "t of the support", between(2, 100), support);
}

}  // namespace

bool Range::holds(Single value) const {
    const float number = value.stored();
    if (empty || !std::isfinite(number)) return false;
    const bool highEnough = withoutLowest ? number > lowest.stored() : number >= lowest.stored();
    const bool lowEnough = withoutHighest ? number < highest.stored() : number <= highest.stored();
    return highEnough && lowEnough;
}

std::string Range::inWords() const {
    if (empty) return "none until another value of this form has been corrected";
    const std::string low = generalText(lowest), high = generalText(highest);
    const bool hasLow = std::isfinite(double(lowest)), hasHigh = std::isfinite(double(highest));
    if (!hasLow && !hasHigh) return "any number";
    if (hasLow && hasHigh && *this == between(lowest, highest)) return low + " to " + high;
    std::string words;
    if (hasLow) words = (withoutLowest ? "more than " : "at least ") + low;
    if (hasHigh) words += std::string(hasLow ? ", " : "") + (withoutHighest ? "less than " : "at most ") + high;
    return words;
}

Range anyNumber() {
    return {};
}

Range noNumber() {
    return {.empty = true};
}

Range atLeast(double lowest) {
    return {.lowest = lowest};
}

Range atMost(double highest) {
    return {.highest = highest};
}

Range moreThan(double lowest) {
    return {.lowest = lowest, .withoutLowest = true};
}

Range between(double lowest, double highest) {
    return {.lowest = lowest, .highest = highest};
}

Range spanLengthRange() {
    return between(200, 4000000);
}

int spliceSpan(const Project& project, Single entered) {
    const int spans = std::min<int>(project.NofSpans, kMaxSpans);
    return between(1, spans).holds(entered) ? roundHalfEven(entered) : 0;
}

int splicesInUse(const Project& project) {
    return static_cast<int>(std::count(project.ChkFat5Sp.begin(), project.ChkFat5Sp.end(), true) +
                            std::count(project.ChkFatR5Sp.begin(), project.ChkFatR5Sp.end(), true));
}

std::vector<InputNumber> inputNumbers(const Project& project) {
    InputList list;
    list.form("Material");
    list.add(project.fyk, "fyk", between(50, 2000));
    list.form("Beam");
    for (int span = 1; span <= std::min<int>(project.NofSpans, kMaxSpans); ++span)
        list.add(project.Span(span), numbered("length of span ", span), spanLengthRange());
    addSetup(list, project);
    addLoads(list, project);
    addBuckling(list, project);
    list.form("Fatigue");
    addOverheadFatigue(list, project);
    addMonorailFatigue(list, project);
    return list.take();
}

InputNumber inputNumber(const Project& project, const void* field) {
    for (const InputNumber& each : inputNumbers(project))
        if (each.field == field) return each;
    throw std::logic_error("no form enters this field");
}

std::vector<std::string> valuesOutOfRange(const Project& project) {
    std::vector<std::string> texts;
    for (const InputNumber& each : inputNumbers(project)) {
        // Where nothing at all is accepted, another value is the one to mend.
        if (!each.counts || each.range.empty || each.range.holds(each.value)) continue;
        const bool bothSides = std::isfinite(double(each.range.lowest)) && std::isfinite(double(each.range.highest));
        texts.push_back(each.name + " = " + generalText(each.value) + (bothSides ? " lies outside " : " is not ") +
                        each.range.inWords());
    }
    return texts;
}

}  // namespace borvik
