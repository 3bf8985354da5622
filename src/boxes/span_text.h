#pragma once

#include <QString>
#include <optional>
#include <vector>

#include "project/project.h"

namespace borvik {

/// The message for a length that is no number, and for one outside its limits.
inline constexpr const char* kNoLength = "Input string mismatch ";
inline constexpr const char* kLengthLimits = " 200 < Beam length L < 2 ";

/// A length of a span as typed, in whole mm.
/// @param refusal  set to the message when there is none
[[nodiscard]] std::optional<int> typedLength(const QString& text, const char*& refusal);

/// The entry of the project's list with that name, blanks and capitals apart; -1 for none.
[[nodiscard]] int listedSection(const Project& project, const QString& name);

/// What a row of the beam is given; what is left out stays as it is.
struct SpanEntry {
    std::optional<int> length;   ///< mm
    std::optional<int> section;  ///< index in SectionList
};

/// The rows of a column of lengths, of sections, or of both, as a spreadsheet copies them.
/// @param refusal  set to the row and its fault when any cell is faulty; nothing is returned then
[[nodiscard]] std::vector<SpanEntry> pastedSpans(const Project& project, const QString& text, QString& refusal);

}  // namespace borvik
