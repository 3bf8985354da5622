#pragma once

#include <string>

#include "base/working.h"
#include "project/project.h"

namespace borvik {

/// Brings the section of every span 1..NofSpans up to date: rolled sections are loaded anew from the table, welded ones
/// built from their dimensions, reinforcement added, then class and resistances. Nothing piles up: two runs in a row
/// give the same.
/// @throws RuntimeFault  naming the span: a designation that the section table doesn't have, or an arithmetic fault
void UpdateSections(const ReferenceTables& tables, Project& project);

/// The same for one section.
/// @param section  in: family, dimensions, reinforcement; out: every computed property
/// @throws RuntimeFault  as UpdateSections, without a span
void updateSection(const ReferenceTables& tables, const Project& project, SectionRecord& section);

/// Takes down how classes and resistances of a span's section come about.
/// @param project  as settled by a calculation
/// @throws RuntimeFault  on an arithmetic fault
void explainSection(const ReferenceTables& tables, const Project& project, int span, Working working);

/// Copies the first row of the section table with this designation into the section: family, dimensions and the
/// published properties, weak-axis modulus WplZ included; DisplayName becomes the designation. Every other field stays.
/// Loading anew at each update is what lets reinforcement be added to A, It, Iy and Iz without piling up.
/// @throws RuntimeFault  when no row has the designation
void LoadRolled(const ReferenceTables& tables, const std::string& TableName, SectionRecord& section);

/// Sets InUse of each row of SectionList: true when some span's section has its DisplayName.
void MarkSectionsInUse(Project& project);

}  // namespace borvik
