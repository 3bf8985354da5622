#pragma once

#include <optional>
#include <string>
#include <vector>

#include "actions/crane_data.h"
#include "project/project.h"

namespace borvik {

/// What a project has beside its record.
struct Attached {
    std::vector<actions::CraneData> cranes = {};  ///< none, crane 1, or both
    /// Points held sideways, for the second opinion: span from 1, mm from its left support, mm above the shear centre
    /// or, where none is given, the middle of the top flange.
    struct LateralSupport {
        int span = 1;
        double x = 0;
        std::optional<double> z;
    };
    std::vector<LateralSupport> lateralSupports = {};
    bool freeWarping = false;  ///< girders jointed at the supports: their ends warp alone
    bool farRails = false;     ///< groups are compared for the rail far from the crab too
};

/// Reads what is attached to a project: a JSON object with "Cranes", by the names of docs/crane-loads.md, and
/// "FarRails"; "LateralSupports" (a list of "Span", "X" and perhaps "Z") and "FreeWarping".
/// @param fault  why it can't be used, in words for the user: what a form has not finished is kept as it was entered
[[nodiscard]] Attached attachedOf(const Project& project, std::string* fault = nullptr);

/// Puts it in place. Names of other versions that stand there already are kept; with nothing left there is no
/// attachment.
void attach(Project& project, const Attached& attached);

/// What stands as "Attached" in a JSON text whose numbers are 32 bits wide, until withAttached puts the attachment of
/// the project there, which keeps all its digits.
inline constexpr const char* kAttachedMark = "@";
[[nodiscard]] std::string withAttached(std::string json, const Project& project);

}  // namespace borvik
