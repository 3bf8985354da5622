#pragma once

#include <string>

#include "fatigue/crane_factors.h"
#include "fatigue/detail_checks.h"
#include "fatigue/fatigue_results.h"
#include "project/project.h"

namespace borvik {

/// A girder of two spans, 10 m and 8 m, whose right span is the stiffer one, with numbers that are easy by hand:
/// GammaFf = 1.1, and a category of 115 MPa over GammaMf = 1.15 is 100 MPa, one of 92 MPa is 80 MPa. No detail is
/// checked yet; all other categories are 36 MPa and all stress ranges small and different, so that what a check should
/// not have read shows.
struct Girder {
    Project project;
    RailRecord rail;
    FatigueFactors factors;
    StressSet Cr1{2}, Cr2{2}, Cr12{2};

    Girder() {
        Project& p = project;
        p.NofSpans = 2;
        p.Span(1) = 10000;
        p.Span(2) = 8000;
        p.GammaFf = 1.1;
        p.GammaMf = 1.15;
        p.SpanSection = Array<SectionRecord>(1, 2);
        p.SpanSection(1) = section(500, 200, 10, 20, 200, 2e8);
        p.SpanSection(2) = section(600, 250, 12, 25, 300, 3e8);
        for (std::int16_t* category :
             {&p.Fat1C1, &p.Fat2C1, &p.Fat3C1, &p.Fat3C2, &p.Fat4C1, &p.Fat5C1, &p.Fat6C1, &p.FatR1C1, &p.FatR2C1,
              &p.FatR3C1, &p.FatR3C2, &p.FatR4C1, &p.FatR5C1, &p.FatR6C1, &p.FatR6C2}) {
            *category = 36;
        }
        for (std::string* weld : {&p.W1, &p.W2, &p.W3, &p.RW1, &p.RW2, &p.RW3, &p.RW4}) *weld = "FP";
        for (Single* throat : {&p.W1a, &p.W2a, &p.W3a, &p.RW1a, &p.RW2a, &p.RW3a, &p.RW4a}) *throat = 3;
        small(Cr1);
        small(Cr2);
        small(Cr12);

        // A plate without height: leff = 4.25 (If/tw)^(1/3), and in span 1 beff = 100 + 20 mm, If = 20^3 120/12 =
        // 80000 mm4, leff = 4.25 x 20 = 85 mm.
        p.RailFix = RailFixing::ResilientPad;
        rail.Id = "P";
        rail.RailBr = 100;
        rail.RailAx = 1000;
        // Wheels of 100 and 50 kN with 1.1 and 1.2 weigh 110 and 60 kN; over 85 mm and the web of 10 mm these are
        // 129.41 and 70.59 MPa before the factors below.
        p.V = decltype(p.V)::of(80, 100, 90, 0, 50, 40, 0, 30);
        factors.Cr1 = {4, 0.5, 0.3, 0.85, 0.425, 1.1};
        factors.Cr2 = {3, 0.2, 0.1, 0.34, 0.17, 1.2};
        factors.Cr12 = {7, 0.3, 0.2, 0.51, 9.0, 0.0};
    }

    static SectionRecord section(double h, double b, double tw, double tf, double EzEl, double Iy) {
        SectionRecord section;
        section.Fab = "W";
        section.h = h;
        section.b1 = section.b2 = b;
        section.tw = tw;
        section.tf1 = section.tf2 = tf;
        section.Hw = h - 2 * tf;
        section.EzEl = EzEl;
        section.Iy = Iy;
        return section;
    }

    static void small(StressSet& set) {
        for (int i = 1; i <= 2; ++i) {
            for (int k = 1; k <= 21; ++k) {
                set.Sig1Range(i, k) = 1 + 0.01 * k;
                set.Sig2Range(i, k) = 2 + 0.01 * k;
                set.TauRange(i, k) = 3;
            }
        }
        for (int i = 1; i <= 3; ++i) set.SigSupRange(i) = 4;
    }

    [[nodiscard]] FatigueResults check(const std::array<Detail, 6>& details, Cranes cranes) const {
        FatigueResults results;
        checkDetails(details, {project, rail, factors, Cr1, Cr2, Cr12}, cranes, results);
        return results;
    }
};

}  // namespace borvik
