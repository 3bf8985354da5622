#pragma once

#include "project/project.h"

namespace borvik {

/// Brings the section of every span 1..NofSpans up to date: rolled sections are loaded anew from the table, welded ones
/// built from their dimensions, reinforcement added, then class and resistances. CurrentSection of the context is left
/// holding the last of them. Nothing piles up: two runs in a row give the same.
/// @throws RuntimeFault  naming the span: a designation that the section table doesn't have, or an arithmetic fault
void UpdateSections(const ReferenceTables& tables, Project& project, ProjectContext& context);

/// The same for one section.
/// @param section  in: family, dimensions, reinforcement; out: every computed property
void UpdateSection(const ReferenceTables& tables, const Project& project, const ProjectContext& context,
                   SectionRecord& section);

/// Sets InUse of each row of SectionList: true when some span's section has its DisplayName.
void MarkSectionsInUse(Project& project);

}  // namespace borvik
