#include "section/section.h"

#include <algorithm>

#include "section/resistance.h"

namespace borvik {

namespace {

void update(const ReferenceTables& tables, const SectionSetting& setting, SectionRecord& section,
            Working working = {}) {
    if (isWelded(section)) {
        WeldedProperties(setting, section);
    } else {
        // A copy: loading overwrites the field that the name would be read from.
        const std::string designation = section.TableName;
        LoadRolled(tables, designation, section);
        RolledProperties(setting, section);
    }
    SectionResistance(setting, section, working);
}

/// What the properties of a section depend on beside its own dimensions.
SectionSetting settingOf(const ReferenceTables& tables, const Project& project) {
    SectionSetting setting;
    setting.CraneType = project.CraneType;
    setting.LoadLevel = project.LoadLevel;
    setting.StiffenerMode = project.StiffenerMode;
    setting.RailHr = railOf(project, tables).RailHr;
    setting.Epsilon = epsilonOf(project.fyk);
    setting.fyk = project.fyk;
    setting.Eta = project.Eta;
    setting.GammaM0 = project.GammaM0;
    setting.GammaM1 = project.GammaM1;
    return setting;
}

}  // namespace

void UpdateSections(const ReferenceTables& tables, Project& project) {
    const SectionSetting setting = settingOf(tables, project);
    for (int span = 1; span <= project.NofSpans; ++span) {
        watched("Section properties", span, [&] {
            // A copy: a designation that the table doesn't have leaves the span's section as it was.
            SectionRecord section = project.SpanSection(span);
            update(tables, setting, section);
            project.SpanSection(span) = section;
        });
    }
}

void updateSection(const ReferenceTables& tables, const Project& project, SectionRecord& section) {
    watched("Section properties", 0, [&] { update(tables, settingOf(tables, project), section); });
}

void explainSection(const ReferenceTables& tables, const Project& project, int span, Working working) {
    SectionRecord section = project.SpanSection(span);
    watched("Section properties", span, [&] { update(tables, settingOf(tables, project), section, working); });
}

void LoadRolled(const ReferenceTables& tables, const std::string& TableName, SectionRecord& section) {
    const int index = findSection(tables, TableName);
    if (index < 0) throw RuntimeFault("the section table has no \"" + TableName + "\"");
    const SectionRecord& row = tables.SectionTable(index);

    section.Id = row.Id;
    section.CType = row.CType;
    section.Fab = row.Fab;
    section.TableName = row.TableName;
    section.TableIndex = static_cast<std::int16_t>(index);
    section.DisplayName = row.TableName;
    section.h = row.h;
    section.b1 = row.b1;
    section.b2 = row.b2;
    section.tf1 = row.tf1;
    section.tf2 = row.tf2;
    section.tw = row.tw;
    section.R = row.R;
    section.A = row.A;
    section.Weight = row.Weight;
    section.Iy = row.Iy;
    section.Wply = row.Wply;
    section.Iz = row.Iz;
    section.WplZ = row.WplZ;
    section.It = row.It;
    section.Iw = row.Iw;
    section.GIt = row.GIt;
    section.EIw = row.EIw;
}

void MarkSectionsInUse(Project& project) {
    for (SectionRecord& listed : project.SectionList) {
        listed.InUse =
            std::any_of(project.SpanSection.begin(), project.SpanSection.end(), [&](const SectionRecord& used) {
                return !used.DisplayName.empty() && used.DisplayName == listed.DisplayName;
            });
    }
}

}  // namespace borvik
