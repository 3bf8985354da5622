#pragma once

#include <string>
#include <vector>

#include "analysis/results.h"
#include "checks/check_rows.h"
#include "project/project.h"

namespace borvik::samples {

/// A section with round resistances: VzRd 500 kN, MyRd 300 and 250 kNm, MzRd 50 kNm, web 400 x 10.
inline SectionRecord section(int classPos = 1, int classNeg = 1) {
    SectionRecord s;
    s.Id = "HEA";
    s.Fab = "R";
    s.h = 440;
    s.b1 = s.b2 = 220;
    s.tw = 10;
    s.tf1 = s.tf2 = 20;
    s.R = 20;
    s.Hw = 400;
    s.Iy = 2e8;
    s.Iz = s.IzBottom = 1e7;
    s.It = 1e6;
    s.EzEl = 150;
    s.VzRd = 500;
    s.MyRdPos = 300;
    s.MyRdNeg = 250;
    s.MzRd = 50;
    s.WyPos = s.WyNeg = 1e6;
    s.ClassPos = static_cast<std::int16_t>(classPos);
    s.ClassNeg = static_cast<std::int16_t>(classNeg);
    return s;
}

/// A project of that section in every span of 5 m, all partial factors 1, fyk 250 MPa.
inline Project project(int spans, const SectionRecord& section) {
    Project p;
    p.NofSpans = static_cast<std::int16_t>(spans);
    p.SpanSection = Array<SectionRecord>(1, kMaxSpans);
    for (int span = 1; span <= spans; ++span) {
        p.Span(span) = 5000;
        p.SpanSection(span) = section;
    }
    p.BeamLength = 5000.0 * spans;
    p.fyk = 250;
    p.GammaM0 = p.GammaM1 = p.PsiV1 = p.LfULS = 1;
    p.CraneType = CraneKind::Overhead;
    p.V(1) = 100;
    p.RailFix = RailFixing::NotRigid;
    p.DefZ = p.DefY = 500;
    p.LtbCurve = LtbCase::General;
    p.C1EndPos = p.C1MidPos = p.C1EndNeg = p.C1MidNeg = 1;
    return p;
}

/// A flat bar 60 x 40 as rail.
inline RailRecord flatRail() {
    RailRecord rail;
    rail.Id = "P";
    rail.RailAx = 2400;
    rail.RailBr = rail.RailKr = 60;
    rail.RailHr = 40;
    return rail;
}

/// Results of a walk with all records at zero.
inline UlsResults uls(int spans) {
    UlsResults r;
    r.MyMaxSpan = r.MyMinSpan = r.VzMaxSpan = r.VzMinSpan = Table<Single>(spans, 9);
    r.MySupportSpan = Table<Single>(spans, 8);
    return r;
}

inline SlsResults sls(int spans) {
    SlsResults r;
    r.UzMaxSpan = r.UyMaxSpan = Table<Single>(spans, 3);
    return r;
}

inline void setRow(Table<Single>& table, int row, const std::vector<double>& slots) {
    for (std::size_t i = 0; i < slots.size(); ++i) table(row, static_cast<int>(i) + 1) = slots[i];
}

inline std::vector<std::string> texts(const RowSet& rows, int count = 8) {
    return {rows.Text.begin(), rows.Text.begin() + count};
}

}  // namespace borvik::samples
