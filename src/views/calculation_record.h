#pragma once

#include <memory>

#include "calculation/session.h"
#include "groups/group_runs.h"
#include "notes/notes.h"

namespace borvik {

/// A finished calculation with the input it was made from. What is shown of it stays true to itself while the user
/// edits the project.
struct CalculationRecord {
    Project project;
    Results results;
    std::shared_ptr<const Notes> notes;         ///< never null
    std::shared_ptr<const GroupMatrix> groups;  ///< of a project with crane data; else null
};
using CalculationPtr = std::shared_ptr<const CalculationRecord>;

/// What stands at results that the input has left behind.
inline constexpr const char* kOutOfDate = "Out of date: the input has changed since this was calculated";

}  // namespace borvik
