#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calculation/session.h"

namespace borvik {

struct CheckWorking;
struct GroupMatrix;
struct SecondOpinion;
struct SupportReactions;

/// What a result file holds where it is asked for.
struct JsonExtras {
    bool notes = false;                                   ///< those that the session keeps; else their key is null
    const SecondOpinion* opinion = nullptr;               ///< key SecondOpinion; null: no such key
    const std::vector<CheckWorking>* workings = nullptr;  ///< key Derivations; null: no such key
    const SupportReactions* reactions = nullptr;          ///< key SupportReactions; null: no such key
    const GroupMatrix* groups = nullptr;                  ///< key Groups; null: no such key
};

/// Everything that the last run of a session produced, as one JSON object on one line (UTF-8, ends
/// in a newline), for scripts and for comparison with other programs. Keys are the names of the code
/// in a fixed order; docs/results-json.md describes them. Arrays hold their entries in index order
/// and drop index bases: the first entry of an array over the spans is span 1. A stored number is
/// written as a decimal text that reads back as the same 32-bit number; texts stand character for
/// character. Without results (refused input, run-time fault) the result keys are null.
/// @param messages  texts of the message boxes of the run, in order
/// @param file      path of the project as the user gave it; nothing for the default project
/// @param program   name and version, such as "Borvik 1.2.3"
/// @param extras    what else was asked for
[[nodiscard]] std::string resultsJson(const Session& session, const std::vector<std::string>& messages,
                                      const std::optional<std::string>& file, const std::string& program,
                                      const JsonExtras& extras = {});

}  // namespace borvik
