#include <gtest/gtest.h>

#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

const NoteCase kCases[]{
    // Wheel 1 carries V 100, wheel 2, 2 m behind, H 50 kN; span 6 m. HEA 300, S355, class 3: My,Rd = 182.6e6/145 x 355
    // =
    // 447.1 kNm, Mz,Rd = 300^2 x 14/4 x 355/1.5 = 74.55 kNm. Wheel 1 in the middle: My = 150, Mz = 50 x 1 x 3/6 = 25:
    // 0.671. Wheel 2 in the middle: My = 100 x 1 x 3/6 = 50, Mz = 75: 0.112 + 1.006.
    {"C1",
     [](Session& session) {
         oneWheel(session, 1, 6000);
         session.project.H(2) = 50;
         session.project.Avst(1) = 2000;
     },
     [](Session& session) { oneWheel(session, 1, 6000); }, "bending, span 1, x = 3000 mm", 0.671, 1.118},
    // Two spans of 6 m, 500 kN and H 30 kN in the middle of the first: over the support 3PL/32: My = 281.25, Mz = 16.88
    // kNm. Plates 100 x 10 make the top flange internal (class 1), the bottom flange stays class 3. ez = 158.28, Iy =
    // 197.4e6: My,Rd = 197.4e6/158.28 x 355 = 442.8; Mz,Rd = (315000 + 310 x 1000) x 355 = 221.9 kNm.
    // 0.6352^2 + 0.0761 = 0.4795; 0.6352 + 0.0761.
    {"C2",
     [](Session& session) {
         oneWheel(session, 2, 6000);
         standsAt(session, 3000);
         session.project.V(1) = 500;
         session.project.H(1) = 30;
         for (int span = 1; span <= 2; ++span) session.project.SpanSection(span).Reinforced = true;
     },
     {},
     "bending, span 2",
     0.4795,
     0.7112},
};

TEST(BendingNotes, SpeakWhereTheyMatter) {
    for (const NoteCase& noteCase : kCases) expectNote(noteCase);
}

}  // namespace
