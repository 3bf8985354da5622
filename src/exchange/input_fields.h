#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <variant>

#include "project/project.h"

namespace borvik {

/// A choice of the project: its words stand in the order of its numbers, from `first` on.
struct Choice {
    int first;
    std::span<const char* const> words;
};

/// A field of the project that the user enters, as scripts name it.
struct InputField {
    using Member = std::variant<std::string Project::*, Single Project::*, std::int16_t Project::*, bool Project::*,
                                FixedArray<std::int32_t, 1, 30> Project::*, FixedArray<Single, 1, 6> Project::*,
                                FixedArray<Single, 1, 8> Project::*, FixedArray<Single, 1, 10> Project::*,
                                FixedArray<bool, 1, 10> Project::*, CraneKind Project::*, TwoCranes Project::*,
                                EndPost Project::*, LoadPoint Project::*, RailFixing Project::*, LtbCase Project::*>;
    const char* name;
    const char* unit;  ///< empty for numbers without one, texts, flags and choices
    Member member;
};

/// All of them but the sections, in the order of the project file.
[[nodiscard]] std::span<const InputField> inputFields();

[[nodiscard]] Choice wordsOf(CraneKind);
[[nodiscard]] Choice wordsOf(TwoCranes);
[[nodiscard]] Choice wordsOf(EndPost);
[[nodiscard]] Choice wordsOf(LoadPoint);
[[nodiscard]] Choice wordsOf(RailFixing);
[[nodiscard]] Choice wordsOf(LtbCase);

}  // namespace borvik
