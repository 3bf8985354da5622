#pragma once

#include <functional>
#include <optional>
#include <ostream>
#include <string>

#include "notes/notes.h"

namespace borvik::testing_support {

/// The default project (three spans of 6 m HEA 300, rail, one crane of two wheels) with something changed, calculated.
/// Fails the test when the project is refused.
[[nodiscard]] Session calculated(const std::function<void(Session&)>& change = {});

/// Equal spans of HEA 300 under wheel 1 of 100 kN alone: no dead load, no horizontal load, no rail, all factors 1.
void oneWheel(Session& session, int spans, int length);

/// Wheel 1 stands still at x, mm from the left end of the beam.
void standsAt(Session& session, double x);

/// Gives the first span a welded section, "Is" or "Iu".
void weldedSection(Session& session, const char* family, double h, double b1, double b2, double tw, double tf);

/// What the rule of that key finds in a calculated session, as the list of notes would tell it: nullopt when it is
/// silent.
[[nodiscard]] std::optional<NoteFinding> findingOf(const Session& session, const std::string& key);

/// A project in which a note matters, with the two numbers computed by hand, and one in which it doesn't.
struct NoteCase {
    const char* key;
    std::function<void(Session&)> matters;  ///< changes the default project
    std::function<void(Session&)> silent;
    std::string what{};  ///< of the largest change; empty: no number is expected
    double shown = 0, other = 0;
    double tolerance = 0.0006;  ///< relative to the larger number
};
std::ostream& operator<<(std::ostream& out, const NoteCase& noteCase);

/// Expects what the case says.
void expectNote(const NoteCase& noteCase);

}  // namespace borvik::testing_support
