#pragma once

#include "project/project.h"

namespace borvik {

/// The fields of a section in the order of the project file. `visit(fields...)` is called with any number of them;
/// `visit.fixedText(text)` with a text of fixed length.
/// @param section  a SectionRecord, const for a visitor that only reads it
template <class Visitor, class Section>
void visitSection(Visitor& visit, Section& section) {
    auto& s = section;
    visit(s.Id, s.Fab, s.TableName, s.TableIndex, s.CType, s.Spare1, s.ReinfText, s.ReinfSuffix, s.Reinforced);
    visit(s.DisplayName, s.InUse);
    visit(s.h, s.b1, s.b2, s.tw, s.tf1, s.tf2, s.R, s.Spare2, s.ReinfD, s.ReinfB, s.ReinfT, s.TfMax, s.Spare3);
    visit(s.A, s.It, s.Iy, s.Iz, s.IzLoadedFlange, s.IzTop, s.IzBottom, s.Iw, s.Spare4, s.GIt, s.EIw, s.Weight);
    visit(s.EzEl, s.EzEffPos, s.EzEffNeg, s.EzPl, s.Spare5);
    visit(s.Hw, s.CWeb, s.CTop, s.CBottom, s.ClassTopFlange, s.ClassBottomFlange, s.WebFatigueClass);
    visit(s.ClassWebPos, s.ClassWebNeg, s.ClassPos, s.ClassNeg);
    visit(s.Av, s.WyPos, s.WyNeg, s.Wely1, s.Wely2, s.WelMin, s.Wply, s.WplZ, s.Spare6, s.WplZTop, s.WplZBottom);
    visit(s.WeffTopPos, s.WeffBottomPos, s.WeffTopNeg, s.WeffBottomNeg, s.VzRd, s.VplRd);
    visit(s.MyRdPos, s.MyRdPosTop, s.MyRdPosBottom, s.MyRdNeg, s.MyRdNegTop, s.MyRdNegBottom, s.Spare7, s.MzRd);
    visit(s.Spare8, s.Zs, s.Zg, s.ZjPos, s.ZjNeg, s.Spare9);
    for (auto& text : s.SpareText) visit.fixedText(text);
}

/// The fields of a project in the order of the project file, which is nothing but this order: no field may move.
/// `visit(fields...)` gets numbers, flags, texts, arrays of them, and the two arrays of sections.
template <class Visitor, class Record>
void visitProject(Visitor& visit, Record& project) {
    auto& p = project;
    visit(p.Proj, p.Ident, p.Span, p.BeamLength, p.NofSpans, p.BeamChecked, p.Spare1, p.MinAvst, p.Gangway,
          p.NofCranes);

    visit(p.Position, p.Fixerad, p.TwoCraneMode, p.Spare2, p.FatigueSpare, p.CraneClass1, p.CraneClass2, p.CraneClassR);
    visit(p.PsiV1, p.PsiH1, p.PsiV2, p.PsiH2, p.V, p.H, p.Avst);

    visit(p.SectionList, p.SpanSection);
    visit(p.SelfWeight, p.Spare3, p.HasLoadsY, p.CraneType, p.StiffenerMode, p.LoadLevel);
    visit(p.RailName, p.RailFix, p.RailOn);

    visit(p.LtbCurve, p.DefaultCfactor);
    visit(p.C1EndPos, p.C2EndPos, p.C3EndPos, p.C1MidPos, p.C2MidPos, p.C3MidPos);
    visit(p.C1EndNeg, p.C2EndNeg, p.C3EndNeg, p.C1MidNeg, p.C2MidNeg, p.C3MidNeg);
    visit(p.Inn);

    visit(p.Fat1, p.Fat1C1, p.Fat1Spare1, p.Fat1Spare2, p.Fat1Spare3);
    visit(p.Fat2, p.Fat2C1, p.Fat2Spare1, p.Fat2Spare2, p.Fat2Spare3);
    visit(p.Fat3, p.Fat3C1, p.Fat3C2, p.Fat3Spare1, p.Fat3Spare2);
    visit(p.Fat4, p.Fat4C1, p.Fat4Spare1, p.Fat4Spare2, p.Fat4Spare3);
    visit(p.Fat5, p.Fat5C1, p.ChkFat5Sp, p.Fat5Span, p.Fat5d1, p.Fat5Spare);
    visit(p.Fat6, p.Fat6C1, p.Fat6Spare1, p.Fat6d1, p.Fat6Spare2);
    visit(p.W1, p.W1a, p.W2, p.W2a, p.W3, p.W3a, p.WSpare1, p.WSpare1a, p.WSpare2, p.WSpare2a);
    visit(p.WS1t, p.WS1Spare, p.WSpare3, p.WSpare3a);

    visit(p.FatR1, p.FatR1C1, p.FatR1Spare1, p.FatR1Spare2, p.FatR1Spare3);
    visit(p.FatR2, p.FatR2C1, p.FatR2Spare1, p.FatR2Spare2, p.FatR2Spare3);
    visit(p.FatR3, p.FatR3C1, p.FatR3C2, p.FatR3Spare1, p.FatR3Spare2);
    visit(p.FatR4, p.FatR4C1, p.FatR4Spare1, p.FatR4Spare2, p.FatR4Spare3);
    visit(p.FatR5, p.FatR5C1, p.ChkFatR5Sp, p.FatR5Span, p.FatR5d1, p.FatR5Spare);
    visit(p.FatR6, p.FatR6C1, p.FatR6C2, p.FatR6Spare1, p.FatR6Spare2);
    visit(p.RW1, p.RW1a, p.RW2, p.RW2a, p.RW3, p.RW3a, p.RW4, p.RW4a, p.RWSpare1, p.RWSpare1a);
    visit(p.RWS1t, p.RWS1d, p.RWSpare2, p.RWSpare2a);

    visit(p.SteelGrade, p.fyk, p.Eta, p.LamdaLT0, p.LamdaLT0w, p.Beta, p.Betaw, p.GammaM0, p.GammaM1, p.GammaFf,
          p.GammaMf);
    visit(p.DefY, p.DefZ, p.LfULS, p.LfSLS, p.SetupSpare1, p.CraneLength1, p.CraneLength2, p.CranesLength,
          p.MinDistConst);
    visit(p.SetupSpare2, p.StartStopOutside, p.SetupSpare3);
}

}  // namespace borvik
