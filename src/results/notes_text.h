#pragma once

#include <string>

#include "calculation/session.h"

namespace borvik {

/// The notes that a session keeps of its last run as plain text for a terminal: one paragraph a note, wrapped, with its
/// check and effect as a heading and the number it would change to; at the end the assumptions that always hold.
/// Without results a line that says so.
[[nodiscard]] std::string notesText(const Session& session);

}  // namespace borvik
