#pragma once

#include <string>

#include "calculation/session.h"
#include "second_opinion/second_opinion.h"

namespace borvik {

/// The second opinion as text: of each span lateral torsional buckling beside that of the check, a table of the
/// positions, and the working of the governing one. Ends in a newline.
[[nodiscard]] std::string secondOpinionText(const Session& session, const SecondOpinion& opinion);

}  // namespace borvik
