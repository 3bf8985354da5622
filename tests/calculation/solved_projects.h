#pragma once

#include <filesystem>
#include <random>
#include <string>

#include "calculation/calculation.h"

namespace borvik::testing_support {

/// A session with the reference tables and the default project; `messages` are those of its runs.
struct TestSession : Session {
    TestSession();
    /// A session with the project of a file.
    explicit TestSession(const std::filesystem::path& file);
    bool calculate(WalkMethod method = WalkMethod::Fast);
    /// Everything that the last run produced, bit by bit.
    [[nodiscard]] std::string json() const;

    MessageList messages;
};

/// A project as the forms could have made it: 1 to 5 spans of rolled or welded sections, reinforced or not, one crane,
/// two in every mode or a hoist, every fatigue detail. It passes the input checks; the beam is short so that many are
/// quick.
[[nodiscard]] Project randomProject(const Session& session, std::mt19937& random);

}  // namespace borvik::testing_support
