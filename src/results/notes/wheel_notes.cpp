#include <algorithm>

#include "checks/local_checks.h"
#include "notes/note_rules.h"

namespace borvik {

namespace {

bool overhead(const Session& session) {
    return session.project.CraneType == 1;
}

/// The largest ratio of the spans, and where.
template <class Rows>
NoteChange worst(const char* what, const Array<Rows>& shown, const Array<Rows>& other) {
    int span = 1;
    for (int i = 2; i <= other.last(); ++i)
        if (other(i).Ratio > other(span).Ratio) span = i;
    return {inSpan(what, span), shown(span).Ratio, other(span).Ratio};
}

/// Each wheel with load factor and the dynamic factor of its crane.
std::optional<NoteFinding> patchLoadFactors(const Session& session) {
    if (!overhead(session)) return std::nullopt;
    Project factored = session.project;
    for (int wheel = 1; wheel <= 8; ++wheel)
        factored.V(wheel) = (wheel <= 4 ? factored.PsiV1 : factored.PsiV2) * factored.LfULS * factored.V(wheel);
    ProjectContext context = session.context;
    CheckResults checks;
    PatchLoadCheck(factored, context, checks);
    return NoteFinding{{worst("patch load", session.results->Checks.LocalSpan, checks.LocalSpan)}, ""};
}

constexpr NoteRule kRules[]{
    {"D1", NoteCheck::WheelLoad, NoteEffect::Unsafe,
     "The patch load check takes the wheel load as entered, without load factor and without dynamic factor.",
     "with both", "EN 1993-6 6.5, EN 1991-3 2.4", patchLoadFactors},
};

}  // namespace

std::span<const NoteRule> wheelNotes() {
    return kRules;
}

}  // namespace borvik
