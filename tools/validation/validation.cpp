#include "validation.h"

namespace borvik::validation {

Document validate(const ReferenceTables& tables) {
    Document document;
    document.text("# Validation");
    document.text(
        R"(This document is written by the program `validation` (tools/validation), which calculates every number in the
columns "program" with the program's own procedures. A test fails when one of them departs from the hand
calculation beside it, or when this file is not what the program writes now. To write it anew:

    build/release/tools/validation/validation docs/validation.md

The program stores numbers with 32 bits, about seven digits; "agree to 1e-6" is therefore full agreement.
E = 210000 N/mm2, G = E/2.6 = 80769 N/mm2. Sagging moments and upward reactions are positive.)");
    closedFormBeams(document);
    stiffnessSolution(document);
    rolledSections(document, tables);
    bucklingExamples(document, tables);
    wheelLoadExamples(document, tables);
    fatigueExamples(document, tables);
    byOthers(document);
    return document;
}

}  // namespace borvik::validation
