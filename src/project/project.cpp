#include "project/project.h"

#include <cmath>

namespace borvik {

const FixedArray<Single, 0, 9> LambdaSigma =
    FixedArray<Single, 0, 9>::of(0.198, 0.25, 0.315, 0.397, 0.5, 0.63, 0.794, 1.0, 1.26, 1.32);
const FixedArray<Single, 0, 9> LambdaTau =
    FixedArray<Single, 0, 9>::of(0.379, 0.436, 0.5, 0.575, 0.66, 0.758, 0.871, 1.0, 1.149, 1.32);
const FixedArray<const char*, 0, 9> CraneClassName =
    FixedArray<const char*, 0, 9>::of("S0", "S1", "S2", "S3", "S4", "S5", "S6", "S7", "S8", "S9");

namespace {

/// A welded section that the section form starts with. Its other properties come with its first use.
SectionRecord weldedTemplate(const SectionRecord& blank, const char* family, const char* name) {
    SectionRecord section;
    section.Id = family;
    section.Fab = "W";
    section.DisplayName = name;
    section.ReinfText = blank.ReinfText;
    section.ReinfD = blank.ReinfD;
    section.ReinfB = blank.ReinfB;
    section.ReinfT = blank.ReinfT;
    section.h = 700;
    section.b1 = 300;
    section.tw = 15;
    section.tf1 = 25;
    return section;
}

void setSections(const SectionRecord& blank, Project& project) {
    SectionRecord equalFlanges = weldedTemplate(blank, "Is", "Is 700x300x15x25");
    equalFlanges.b2 = 300;
    SectionRecord unequalFlanges = weldedTemplate(blank, "Iu", "Iu 700x300x200x15x25x25");
    unequalFlanges.b2 = 200;
    unequalFlanges.tf2 = 25;
    project.SectionList = Array<SectionRecord>(0, 2);
    project.SectionList(0) = blank;
    project.SectionList(1) = equalFlanges;
    project.SectionList(2) = unequalFlanges;

    project.SpanSection = Array<SectionRecord>(1, kMaxSpans);
    for (int i = 1; i <= 3; ++i) project.SpanSection(i) = blank;
}

void setBeamAndLoads(Project& project) {
    project.Proj = "TestProjekt";
    project.Ident = "TestTravers";
    project.NofSpans = 3;
    project.Span(1) = 4000;
    project.Span(2) = 5000;
    project.Span(3) = 6000;
    project.NofCranes = 1;
    project.TwoCraneMode = TwoCranes::Independent;
    project.CraneClass1 = 3;
    project.CraneClass2 = 1;
    project.CraneClassR = 3;
    project.PsiV1 = project.PsiH1 = project.PsiV2 = project.PsiH2 = 1.1;
    project.V(1) = 30;
    project.V(2) = 40;
    project.H(1) = 3;
    project.Avst(1) = 1900;
    project.SelfWeight = true;
    project.HasLoadsY = true;
    project.CraneType = CraneKind::Overhead;
    project.StiffenerMode = EndPost::NonRigid;
    project.LoadLevel = LoadPoint::TopOfRail;
    project.RailFix = RailFixing::NotRigid;
    project.LtbCurve = LtbCase::RolledOrWelded;
    project.DefaultCfactor = true;
    project.Inn = 15;
}

/// Two splices in use, and the places that the form shows for the first four.
void setSplices(FixedArray<bool, 1, 10>& inUse, FixedArray<Single, 1, 10>& span, FixedArray<Single, 1, 10>& distance) {
    inUse = FixedArray<bool, 1, 10>::of(true, true);
    span = FixedArray<Single, 1, 10>::of(2, 3, 2, 3);
    distance = FixedArray<Single, 1, 10>::of(1000, 1000, 4000, 3000);
}

void setOverheadDetails(Project& project) {
    project.Fat1 = true;
    project.Fat1C1 = 90;
    project.Fat2 = true;
    project.Fat2C1 = 80;
    project.Fat3 = true;
    project.Fat3C1 = 160;
    project.Fat3C2 = 100;
    project.Fat4 = false;
    project.Fat4C1 = 100;
    project.Fat5 = true;
    project.Fat5C1 = 80;
    setSplices(project.ChkFat5Sp, project.Fat5Span, project.Fat5d1);
    project.Fat6 = true;
    project.Fat6C1 = 80;
    project.Fat6d1 = 100;
    project.W1 = kFullPenetrationWeld;
    project.W1a = 5;
    project.W2 = project.W3 = kFilletWeld;
    project.W2a = project.W3a = 4;
    project.WS1t = "15";
}

void setMonorailDetails(Project& project) {
    project.FatR1 = true;
    project.FatR1C1 = 56;
    project.FatR2 = true;
    project.FatR2C1 = 80;
    project.FatR3 = true;
    project.FatR3C1 = 80;
    project.FatR3C2 = 100;
    project.FatR4 = false;
    project.FatR4C1 = 100;
    project.FatR5 = true;
    project.FatR5C1 = 80;
    setSplices(project.ChkFatR5Sp, project.FatR5Span, project.FatR5d1);
    project.FatR6 = true;
    project.FatR6C1 = 160;
    project.FatR6C2 = 100;
    project.RW1 = project.RW2 = project.RW3 = project.RW4 = kFullPenetrationWeld;
    project.RW1a = project.RW2a = project.RW3a = project.RW4a = 5;
    project.RWS1t = "15";
    project.RWS1d = 150;
}

void setFactors(Project& project) {
    project.fyk = 355;
    project.Eta = 1.2;
    project.LamdaLT0 = project.LamdaLT0w = 0.4;
    project.Beta = project.Betaw = 0.75;
    project.GammaM0 = project.GammaM1 = 1.0;
    project.GammaFf = 1.0;
    project.GammaMf = 1.15;
    project.DefY = project.DefZ = 600;
    project.LfULS = 1.35;
    project.LfSLS = 1.0;
}

}  // namespace

Single epsilonOf(double fyk) {
    return fyk > 0.0 ? Single(std::sqrt(235.0 / fyk)) : Single(0.0);
}

const RailRecord& railOf(const Project& project, const ReferenceTables& tables) {
    static const RailRecord none;
    const int row = findRail(tables, project.RailName);
    if (row >= 0) return tables.RailTable(row);
    return tables.RailTable.has(kDefaultRail) ? tables.RailTable(kDefaultRail) : none;
}

SectionRecord blankSection(const ReferenceTables& tables) {
    SectionRecord section = tables.SectionTable(kDefaultSection);
    section.Reinforced = false;
    section.InUse = true;
    section.ReinfD = 100;
    section.ReinfB = 200;
    section.ReinfT = 10;
    section.ReinfText.clear();
    return section;
}

Project DefaultProject(const ReferenceTables& tables) {
    Project project;
    setSections(blankSection(tables), project);
    setBeamAndLoads(project);
    setOverheadDetails(project);
    setMonorailDetails(project);
    setFactors(project);
    project.SteelGrade = tables.MaterialTable(kDefaultMaterial).MatName;
    project.RailName = tables.RailTable(kDefaultRail).Name;
    return project;
}

}  // namespace borvik
