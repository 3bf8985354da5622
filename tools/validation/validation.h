#pragma once

#include "document.h"
#include "tables/reference_tables.h"

namespace borvik::validation {

/// Continuous beams against textbook closed forms.
void closedFormBeams(Document& document);
/// A long beam against the displacement method.
void stiffnessSolution(Document& document);
/// Every rolled section against its geometry, and the elastic moduli against the published ones.
void rolledSections(Document& document, const ReferenceTables& tables);
/// Checks against hand calculations written out in full.
void bucklingExamples(Document& document, const ReferenceTables& tables);
void wheelLoadExamples(Document& document, const ReferenceTables& tables);
void fatigueExamples(Document& document, const ReferenceTables& tables);

/// Published calculations.
void byOthers(Document& document);

/// The whole document, docs/validation.md.
[[nodiscard]] Document validate(const ReferenceTables& tables);

}  // namespace borvik::validation
