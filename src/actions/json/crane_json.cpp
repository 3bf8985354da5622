#include "actions/json/crane_json.h"

#include <cmath>
#include <set>
#include <stdexcept>

#include "base/number_text.h"

namespace borvik::actions {

namespace {

/// Reads names of an object, keeps what is wrong with them, and knows which nobody asked for.
class FieldReader {
public:
    FieldReader(const Json& object, std::vector<FieldMessage>& faults) : object_(object), faults_(faults) {}

    void fault(const std::string& name, std::string text) { faults_.push_back({name, std::move(text)}); }

    /// @return the value, or null, said to be a fault, where a required one is missing
    const Json* find(const std::string& name, bool isOptional = false) {
        known_.insert(name);
        const auto found = object_.find(name);
        if (found != object_.end()) return &*found;
        if (!isOptional) fault(name, "missing");
        return nullptr;
    }

    std::optional<double> number(const NumberField& field) {
        const Json* value = find(field.name, field.isOptional() || std::string_view(field.name) == "released");
        return value != nullptr ? number(field, *value) : std::nullopt;
    }
    std::optional<double> number(const NumberField& field, const Json& value) {
        if (!value.is_number()) {
            fault(field.name, "a number is needed (" + std::string(field.what) + "), not " + value.type_name());
            return std::nullopt;
        }
        const double read = value.get<double>();
        const std::string wrong = field.faultOf(read);
        if (wrong.empty()) return read;
        fault(field.name, wrong);
        return std::nullopt;
    }

    /// A list of numbers. @return empty where there is a fault
    std::vector<double> list(const NumberField& field) {
        const Json* value = find(field.name);
        if (value == nullptr) return {};
        std::vector<double> read;
        if (!value->is_array())
            fault(field.name, std::string("a list of numbers is needed, not ") + value->type_name());
        else
            for (const Json& each : *value) {
                const std::optional<double> one = number(field, each);
                if (!one) return {};
                read.push_back(*one);
            }
        return read;
    }

    void choice(const ChoiceField& field, CraneData& crane) {
        const Json* value = find(field.name, field.isOptional);
        if (value == nullptr) return;
        const auto chosen = value->is_string() ? field.find(value->get_ref<const std::string&>()) : std::nullopt;
        if (chosen)
            field.set(crane, *chosen);
        else
            fault(field.name, field.listed() + " is needed (" + field.what + "), not " + shown(*value));
    }

    bool yesOrNo(const std::string& name) {
        const Json* value = find(name);
        if (value == nullptr) return false;
        if (!value->is_boolean()) fault(name, std::string("true or false is needed, not ") + value->type_name());
        return value->is_boolean() && value->get<bool>();
    }

    void refuseUnknown() {
        for (const auto& [name, value] : object_.items())
            if (known_.count(name) == 0) fault(name, "unknown name");
    }

private:
    static std::string shown(const Json& value) {
        return value.is_primitive() ? value.dump(-1, ' ', false, Json::error_handler_t::replace) : value.type_name();
    }

    const Json& object_;
    std::vector<FieldMessage>& faults_;
    std::set<std::string> known_;
};

constexpr double kSame = 1e-6;  // m: distances that are given twice may differ by their rounding
constexpr NumberField kBase{"base", "distance of the outer wheels",           "m", 0, 150,
                            true,   static_cast<double CraneData::*>(nullptr)};
constexpr NumberField kE{"e",   "distance of a wheel from the front guide", "m", 0, 200,
                         false, static_cast<double CraneData::*>(nullptr)};

/// Wheels are given three times: number, distances from each other, distances from the guide.
void readWheels(FieldReader& reader, CraneData& crane, const std::vector<FieldMessage>& faults) {
    const std::size_t before = faults.size();
    const std::optional<double> wheels = reader.number(kWheelCount);
    crane.spacing = reader.list(kSpacing);
    const std::optional<double> base = reader.number(kBase);
    const std::vector<double> e = reader.list(kE);
    if (faults.size() > before) return;
    const auto n = static_cast<std::size_t>(*wheels);
    if (crane.spacing.size() + 1 != n)
        return reader.fault("spacing", std::to_string(n) + " wheels have " + std::to_string(n - 1) +
                                           " distances, not " + std::to_string(crane.spacing.size()));
    if (std::abs(*base - crane.base()) > kSame)
        reader.fault("base", plainText(*base) + " m is not the sum of spacing, " + plainText(crane.base()) + " m");
    if (e.size() != n)
        return reader.fault("e", std::to_string(n) + " wheels have as many distances from the front guide, not " +
                                     std::to_string(e.size()));
    crane.e1 = e.front();
    const std::vector<double> followed = crane.e();
    for (std::size_t j = 0; j < n; ++j)
        if (std::abs(e[j] - followed[j]) > kSame)
            return reader.fault("e", plainText(e[j]) + " m of wheel " + std::to_string(j + 1) +
                                         " does not follow from the first one and spacing, " + plainText(followed[j]) +
                                         " m");
}

Json toJson(const std::vector<double>& forces) {
    Json list = Json::array();
    for (const double force : forces) list.push_back(force + 0.0);  // no negative zero
    return list;
}

Json toJson(const Acceleration& moving) {
    return {{"xi1", moving.xi1}, {"xi2", moving.xi2}, {"Qrmin", moving.Qrmin}, {"K", moving.K},    {"ls", moving.ls},
            {"M", moving.M},     {"HL", moving.HL},   {"HT1", moving.HT1},     {"HT2", moving.HT2}};
}

Json toJson(const Skewing& skewed) {
    return {{"alpha", skewed.angle.alpha},
            {"f", skewed.f},
            {"h", skewed.h},
            {"lambdaS", skewed.lambdaS},
            {"S", skewed.S},
            {"HSL", skewed.HSL},
            {"guidedRail", toJson(skewed.guidedRail)},
            {"otherRail", toJson(skewed.otherRail)}};
}

Json toJson(const std::vector<GroupLoads>& groups) {
    Json list = Json::array();
    for (const GroupLoads& group : groups)
        list.push_back({{"group", group.group}, {"V", group.crab.V}, {"psiV", group.crab.psiV}, {"VFar", group.far.V}});
    return list;
}

}  // namespace

ReadCrane craneFromJson(const Json& json) {
    ReadCrane read;
    if (!json.is_object()) {
        read.faults.push_back(
            {"crane", std::string("an object with the crane's data is needed, not ") + json.type_name()});
        return read;
    }
    FieldReader reader(json, read.faults);
    for (const NumberField& field : numberFields())
        if (const std::optional<double> value = reader.number(field)) field.set(read.crane, *value);
    for (const ChoiceField& field : choiceFields()) reader.choice(field, read.crane);
    readWheels(reader, read.crane, read.faults);
    read.crane.phiOnK = reader.yesOrNo("phi_on_K");
    reader.refuseUnknown();
    if (!read.isGood()) return read;
    CraneCheck check = checkCrane(read.crane);
    read.faults = std::move(check.faults);
    read.remarks = std::move(check.remarks);
    return read;
}

Json craneToJson(const CraneData& crane) {
    Json json = Json::object();
    for (const NumberField& field : numberFields())
        if (const std::optional<double> value = field.of(crane))
            json[field.name] = field.isInteger() ? Json(static_cast<int>(*value)) : Json(*value);
    for (const ChoiceField& field : choiceFields())
        json[field.name] = std::string(field.words[static_cast<std::size_t>(field.of(crane))]);
    json["wheels"] = crane.wheels();
    json["base"] = crane.base();
    json["spacing"] = crane.spacing;
    json["e"] = crane.e();
    json["phi_on_K"] = crane.phiOnK;
    return json;
}

Json loadsToJson(const CraneLoads& loads) {
    Json json = {
        {"phi2", loads.factors.phi2},
        {"phi6", loads.factors.phi6},
        {"phiFat1", loads.factors.phiFat1},
        {"phiFat2", loads.factors.phiFat2},
        {"QrMax", loads.loaded.crab},
        {"QrMaxFar", loads.loaded.far},
        {"QrMinCrab", loads.unloaded.crab},
        {"QrMin", loads.unloaded.far},
        {"Acceleration", toJson(loads.moving)},
        {"Skewing",
         {{"GuidedByCrabRail", toJson(loads.guidedByCrabRail)}, {"GuidedByFarRail", toJson(loads.guidedByFarRail)}}},
        {"HT3", loads.HT3},
        {"Groups", toJson(loads.groups)},
        {"QeSigma", loads.fatigue.QeSigma},
        {"QeTau", loads.fatigue.QeTau}};
    if (loads.bufferLoaded)
        json["Buffer"] = {{"phi7", loads.bufferLoaded->phi7},
                          {"HB1", loads.bufferLoaded->HB1},
                          {"HB1Unloaded", loads.bufferUnloaded->HB1}};
    return json;
}

Json parseJson(const std::string& text) {
    std::vector<std::set<std::string>> names;
    const auto namesOnce = [&](int, Json::parse_event_t event, Json& value) {
        if (event == Json::parse_event_t::object_start) names.emplace_back();
        if (event == Json::parse_event_t::object_end) names.pop_back();
        if (event == Json::parse_event_t::key && !names.back().insert(value.get<std::string>()).second)
            throw std::runtime_error(value.get<std::string>() + ": given twice");
        return true;
    };
    try {
        return Json::parse(text, namesOnce);
    } catch (const Json::exception& error) {
        // Behind the library's own mark, "[json.exception...] ".
        const std::string what = error.what();
        const std::size_t mark = what.find("] ");
        throw std::runtime_error("not JSON: " + (mark == std::string::npos ? what : what.substr(mark + 2)));
    }
}

}  // namespace borvik::actions
