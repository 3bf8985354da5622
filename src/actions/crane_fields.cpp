#include "actions/crane_fields.h"

#include <algorithm>
#include <cmath>
#include <type_traits>

#include "actions/skewing.h"
#include "actions/vertical_loads.h"
#include "base/number_text.h"

namespace borvik::actions {

namespace {

using Crane = CraneData;

std::string withUnit(double value, const char* unit) {
    return plainText(value) + (*unit != '\0' ? " " : "") + unit;
}

/// What no field shows by itself. In the order of the form.
void checkTogether(const Crane& crane, CraneCheck& check) {
    const auto fault = [&](const char* field, std::string what) { check.faults.push_back({field, std::move(what)}); };
    if (crane.emin >= crane.span / 2)
        fault("emin", withUnit(crane.emin, "m") + " is beyond mid-span: less than half the span of " +
                          withUnit(crane.span, "m") + " is needed");
    if (crane.release == Release::Hook && crane.released > 0)
        fault("released", "a hook lets go of nothing: grab or magnet is needed as release, or 0");
    if (crane.drive == Drive::Central && !crane.K && wheelLoads(crane, {1, 0}).far <= 0)
        fault("drive", "central needs a load on the far wheels of the unloaded crane: bridge, or crab with emin, is 0");
    if (crane.mw > 2 * crane.wheels())
        fault("mw",
              plainText(crane.mw) + " drives are more than the crane's " + plainText(2 * crane.wheels()) + " wheels");
    if (isCoupled(crane.system) != (crane.m > 0))
        fault("m", isCoupled(crane.system) ? "coupled wheels (CFF, CFM) need a number of coupled pairs"
                                           : "independent wheels (IFF, IFM) have no coupled pairs");
    if (crane.m > crane.wheels())
        fault("m",
              plainText(crane.m) + " coupled pairs are more than the " + plainText(crane.wheels()) + " wheel pairs");
    if (crane.guide == Guide::Rollers && crane.e1 <= 0)
        fault("e", "guide rollers need the distance of the first wheel behind the front roller, greater than 0");
    if (crane.guide == Guide::Flanges && crane.e1 != 0)
        fault("e", "with flanges the first wheel is the front guide: its distance is 0");
    if (crane.guide == Guide::Flanges && crane.aExt)
        fault("aExt", "with flanges the outer wheels are the guides: the distance follows from spacing");
    const int ofBuffer = int{crane.v.has_value()} + int{crane.SB.has_value()} + int{crane.xib.has_value()};
    if (ofBuffer != 0 && ofBuffer != 3)
        fault(!crane.v ? "v" : !crane.SB ? "SB" : "xib", "end stops need v, SB and xib");
}

}  // namespace

const std::vector<NumberField>& numberFields() {
    static const std::vector<NumberField> fields = {
        {"bridge", "weight of the bridge without the crab", "kN", 0, 5000, false, &Crane::bridge},
        {"crab", "weight of the crab", "kN", 0, 5000, false, &Crane::crab},
        {"hoist", "hoist load", "kN", 0, 5000, true, &Crane::hoist},
        {"span", "span of the crane", "m", 0, 200, true, &Crane::span},
        {"emin", "smallest distance of the hook from the rail", "m", 0, 100, false, &Crane::emin},
        {"vh", "steady hoisting speed", "m/s", 0, 2, false, &Crane::vh},
        {"released", "share of the hoist load let go at once", "", 0, 1, false, &Crane::released},
        {"eta", "share of the hoist load that stays without payload", "", 0, 1, false, &Crane::eta},
        {"phi1", "dynamic factor of the self-weight", "", 0.9, 1.1, false, &Crane::phi1},
        {"phi2", "dynamic factor of the hoist load, from the maker", "", 1, 5, false, &Crane::phi2},
        {"phi4", "dynamic factor of travelling", "", 1, 5, false, &Crane::phi4},
        {"phi5", "dynamic factor of the drive force", "", 1, 3, false, &Crane::phi5},
        {"mu", "friction of the driven wheels", "", 0, 1, true, &Crane::mu},
        {"mw", "number of single drives", "", 1, 8, false, &Crane::mw},
        {"K", "drive force, from the maker", "kN", 0, 5000, false, &Crane::K},
        {"HT1", "acceleration across the far rail, from the maker", "kN", 0, 5000, false, &Crane::HT1},
        {"HT2", "acceleration across the rail beside the crab, from the maker", "kN", 0, 5000, false, &Crane::HT2},
        {"m", "number of coupled wheel pairs", "", 0, 4, false, &Crane::m},
        {"aExt", "distance of the guide rollers", "m", 0, 200, true, &Crane::aExt},
        {"slip", "clearance between rail and guide", "mm", 0, 100, false, &Crane::slip},
        {"railhead", "width of the rail head", "mm", 0, 300, true, &Crane::railhead},
        {"alpha", "skewing angle, from the maker", "rad", 0, 1, false, &Crane::alpha},
        {"HS", "skewing force, from the maker", "kN", 0, 5000, false, &Crane::HS},
        {"S", "class for fatigue", "", 0, 9, false, &Crane::S},
        {"v", "long travel speed", "m/s", 0, 10, false, &Crane::v},
        {"SB", "spring constant of the buffer", "kN/m", 0, 1e6, true, &Crane::SB},
        {"xib", "buffer characteristic", "", 0, 1, false, &Crane::xib},
    };
    return fields;
}

const std::vector<ChoiceField>& choiceFields() {
    static const std::vector<ChoiceField> fields = {
        {"hc",
         "hoisting class",
         {"HC1", "HC2", "HC3", "HC4"},
         false,
         [](const Crane& c) { return static_cast<int>(c.hc); },
         [](Crane& c, int i) { c.hc = static_cast<HoistingClass>(i); }},
        {"release",
         "how the load is let go",
         {"hook", "grab", "magnet"},
         true,
         [](const Crane& c) { return static_cast<int>(c.release); },
         [](Crane& c, int i) { c.release = static_cast<Release>(i); }},
        {"drive",
         "drive",
         {"single", "central"},
         false,
         [](const Crane& c) { return static_cast<int>(c.drive); },
         [](Crane& c, int i) { c.drive = static_cast<Drive>(i); }},
        {"system",
         "wheel system",
         {"CFF", "IFF", "CFM", "IFM"},
         false,
         [](const Crane& c) { return static_cast<int>(c.system); },
         [](Crane& c, int i) { c.system = static_cast<WheelSystem>(i); }},
        {"guide",
         "guide",
         {"flanges", "rollers"},
         false,
         [](const Crane& c) { return static_cast<int>(c.guide); },
         [](Crane& c, int i) { c.guide = static_cast<Guide>(i); }},
    };
    return fields;
}

std::optional<double> NumberField::of(const CraneData& crane) const {
    return std::visit([&](auto field) -> std::optional<double> { return crane.*field; }, member);
}

void NumberField::set(CraneData& crane, double value) const {
    std::visit(
        [&](auto field) {
            if constexpr (std::is_same_v<decltype(field), int CraneData::*>)
                crane.*field = static_cast<int>(value);
            else
                crane.*field = value;
        },
        member);
}

std::string NumberField::faultOf(double value) const {
    if (!std::isfinite(value)) return std::string("not a number (") + what + ")";
    const bool inside = (aboveLeast ? value > least : value >= least) && value <= most;
    if (!inside)
        return withUnit(value, unit) + " is outside the range of " + (aboveLeast ? "more than " : "") +
               plainText(least) + " to " + withUnit(most, unit) + " (" + what + ")";
    if (isInteger() && value != std::floor(value)) return plainText(value) + " is no whole number (" + what + ")";
    return "";
}

std::optional<int> ChoiceField::find(std::string_view word) const {
    const auto found = std::find(words.begin(), words.end(), word);
    if (found == words.end()) return std::nullopt;
    return static_cast<int>(found - words.begin());
}

std::string ChoiceField::listed() const {
    std::string list;
    for (const std::string_view& word : words)
        list += (list.empty() ? "" : &word == &words.back() ? " or " : ", ") + std::string(word);
    return list;
}

CraneCheck checkCrane(const CraneData& crane) {
    CraneCheck check;
    const auto fault = [&](const char* field, std::string what) { check.faults.push_back({field, std::move(what)}); };
    for (const NumberField& field : numberFields())
        if (const std::optional<double> value = field.of(crane))
            if (const std::string wrong = field.faultOf(*value); !wrong.empty()) fault(field.name, wrong);
    for (const ChoiceField& field : choiceFields()) {
        const int chosen = field.of(crane);
        if (chosen < 0 || chosen >= static_cast<int>(field.words.size()))
            fault(field.name, field.listed() + " is needed (" + field.what + ")");
    }
    if (const std::string wrong = kWheelCount.faultOf(crane.wheels()); !wrong.empty()) fault(kWheelCount.name, wrong);
    for (const double gap : crane.spacing)
        if (const std::string wrong = kSpacing.faultOf(gap); !wrong.empty()) fault(kSpacing.name, wrong);
    if (!(crane.e1 >= 0 && crane.e1 <= kSpacing.most))
        fault("e", withUnit(crane.e1, "m") + " is outside the range of 0 to " + withUnit(kSpacing.most, "m") +
                       " (distance of the first wheel behind the front guide)");
    if (check.isGood()) checkTogether(crane, check);
    if (check.isGood() && angleOf(crane).sum > kLargestAlpha)
        check.remarks.push_back({"alpha", plainText(angleOf(crane).sum) + " is cut to " + plainText(kLargestAlpha) +
                                              ", its largest value"});
    return check;
}

}  // namespace borvik::actions
