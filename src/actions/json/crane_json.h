#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "actions/crane_data.h"
#include "actions/crane_fields.h"
#include "actions/crane_loads.h"

/// Crane data and crane loads as JSON; docs/crane-loads.md has the names. Names and
/// units are those of the fields in actions/crane_fields.h, besides which `wheels`,
/// `base` and `e` repeat what `spacing` and the first wheel say: they must agree.
namespace borvik::actions {

using Json = nlohmann::ordered_json;

struct ReadCrane {
    CraneData crane;
    std::vector<FieldMessage> faults, remarks;
    [[nodiscard]] bool isGood() const { return faults.empty(); }
};

/// Reads crane data and checks them (checkCrane). Unknown and missing names, wrong types and values out of range are
/// faults, each under the name of its field; "crane" where the value is no object at all.
[[nodiscard]] ReadCrane craneFromJson(const Json& json);

/// What craneFromJson reads back to the bit. Optional fields that the crane lacks are left out.
[[nodiscard]] Json craneToJson(const CraneData& crane);

/// The loads by name, full precision; no intermediate value that the names below don't have.
[[nodiscard]] Json loadsToJson(const CraneLoads& loads);

/// Text to JSON, any name in an object once.
/// @throws std::runtime_error  saying what is wrong and where
[[nodiscard]] Json parseJson(const std::string& text);

}  // namespace borvik::actions
