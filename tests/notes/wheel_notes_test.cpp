#include <gtest/gtest.h>

#include "notes/noted_project.h"

using namespace borvik;
using namespace borvik::testing_support;

namespace {

const NoteCase kCases[]{
    // Largest wheel 30 kN, factors 1.35 x 1.1: the ratio grows by 1.485.
    {"D1",
     {},
     [](Session& session) { session.project.LfULS = session.project.PsiV1 = 1; },
     "patch load, span 3",
     0.057,
     0.084,
     0.02},
};

TEST(WheelNotes, SpeakWhereTheyMatter) {
    for (const NoteCase& noteCase : kCases) expectNote(noteCase);
}

}  // namespace
