#include "exchange/attached.h"

#include "actions/json/crane_json.h"

namespace borvik {
namespace {

using Json = actions::Json;
constexpr const char* kCranes = "Cranes";
constexpr const char* kFarRails = "FarRails";
constexpr const char* kSupports = "LateralSupports";
constexpr const char* kFreeWarping = "FreeWarping";
constexpr std::size_t kMostCranes = 2;

bool readSupports(const Json& list, Attached& attached) {
    if (!list.is_array()) return false;
    for (const Json& each : list) {
        if (!each.is_object() || !each.contains("Span") || !each["Span"].is_number_integer() || !each.contains("X") ||
            !each["X"].is_number() || (each.contains("Z") && !each["Z"].is_number()))
            return false;
        Attached::LateralSupport support{each["Span"].get<int>(), each["X"].get<double>(), std::nullopt};
        if (each.contains("Z")) support.z = each["Z"].get<double>();
        attached.lateralSupports.push_back(support);
    }
    return true;
}

Json objectOf(const Project& project, std::string& fault) {
    if (project.Attached.empty()) return Json::object();
    try {
        Json object = actions::parseJson(project.Attached);
        if (object.is_object()) return object;
        fault = "what is attached to the project is no JSON object";
    } catch (const std::runtime_error& error) {
        fault = error.what();
    }
    return Json::object();
}

}  // namespace

Attached attachedOf(const Project& project, std::string* fault) {
    std::string found;
    Attached attached;
    const Json object = objectOf(project, found);
    if (object.contains(kSupports) && !readSupports(object[kSupports], attached))
        found = "LateralSupports must be a list of Span, X and perhaps Z";
    if (object.contains(kFreeWarping)) attached.freeWarping = object[kFreeWarping] == true;
    if (object.contains(kFarRails)) attached.farRails = object[kFarRails] == true;
    if (object.contains(kCranes)) {
        const Json& cranes = object[kCranes];
        if (!cranes.is_array() || cranes.size() > kMostCranes) {
            found = "Cranes must be a list of one crane or two";
        } else {
            for (const Json& each : cranes) {
                const actions::ReadCrane read = actions::craneFromJson(each);
                attached.cranes.push_back(read.crane);
                if (!read.isGood() && found.empty())
                    found = "crane " + std::to_string(attached.cranes.size()) + ": " + read.faults.front().line();
            }
        }
    }
    if (fault != nullptr) *fault = found;
    return attached;
}

void attach(Project& project, const Attached& attached) {
    std::string ignored;
    Json object = objectOf(project, ignored);
    object.erase(kCranes);
    object.erase(kFarRails);
    object.erase(kSupports);
    object.erase(kFreeWarping);
    for (const Attached::LateralSupport& support : attached.lateralSupports) {
        Json each{{"Span", support.span}, {"X", support.x}};
        if (support.z) each["Z"] = *support.z;
        object[kSupports].push_back(std::move(each));
    }
    if (attached.freeWarping) object[kFreeWarping] = true;
    if (!attached.cranes.empty()) {
        Json cranes = Json::array();
        for (const actions::CraneData& crane : attached.cranes) cranes.push_back(actions::craneToJson(crane));
        object[kCranes] = std::move(cranes);
        if (attached.farRails) object[kFarRails] = true;
    }
    project.Attached = object.empty() ? "" : object.dump();
}

std::string withAttached(std::string json, const Project& project) {
    if (project.Attached.empty()) return json;
    std::string fault;
    const std::string text = objectOf(project, fault).dump(-1, ' ', false, Json::error_handler_t::replace);
    // A quote within any text is escaped: this is found as key and value alone.
    for (const std::string key : {"\"Attached\": ", "\"Attached\":"}) {
        const auto at = json.find(key + "\"" + kAttachedMark + "\"");
        if (at == std::string::npos) continue;
        json.replace(at + key.size(), std::string_view(kAttachedMark).size() + 2, text);
        break;
    }
    return json;
}

}  // namespace borvik
