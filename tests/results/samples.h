#pragma once

#include <cmath>

#include "calculation/session.h"

namespace borvik {

/// A beam of equal sections under one two-wheel crane.
inline Project sampleProject(int spans, int length = 6000) {
    Project project;
    project.NofSpans = static_cast<std::int16_t>(spans);
    project.NofCranes = 1;
    project.CraneType = 1;
    project.HasLoadsY = true;
    project.SpanSection = Array<SectionRecord>(1, 30);
    for (int span = 1; span <= spans; ++span) {
        project.Span(span) = length;
        project.SpanSection(span).DisplayName = "HEA 300";
    }
    project.V(1) = 30;
    project.V(2) = 40;
    project.H(1) = 3;
    project.Avst(1) = 1900;
    return project;
}

/// A shape over a span that is easy to follow: a half wave of height `amplitude`.
inline double wave(int k, double amplitude) {
    return amplitude * std::sin(M_PI * (k - 1) / 20.0);
}

inline StressSet sampleStresses(const Project& project, double factor) {
    const int spans = project.NofSpans;
    StressSet set(spans);
    for (int span = 1; span <= spans; ++span) {
        for (int k = 1; k <= 21; ++k) {
            set.Sig1Max(span, k) = factor * wave(k, 5);
            set.Sig1Min(span, k) = -factor * wave(k, 30);
            set.Sig1Range(span, k) = factor * wave(k, 35);
            set.Sig2Max(span, k) = factor * wave(k, 30);
            set.Sig2Min(span, k) = -factor * wave(k, 5);
            set.Sig2Range(span, k) = factor * wave(k, 35);
            set.TauMax(span, k) = factor * (21 - k);
            set.TauMin(span, k) = -factor * (k - 1);
            set.TauRange(span, k) = factor * 20;
        }
        const double length = project.Span(span);
        const auto peak = [span](Table<Single>& table, double value, double x) {
            table(span, 1) = value;
            table(span, 2) = x;
        };
        peak(set.Sig1MaxPeak, 5 * factor, 0.5 * length);
        peak(set.Sig1MinPeak, -30 * factor, 0.5 * length);
        peak(set.Sig1RangePeak, 35 * factor, 0.5 * length);
        peak(set.Sig2MaxPeak, 30 * factor, 0.5 * length);
        peak(set.Sig2MinPeak, -5 * factor, 0.5 * length);
        peak(set.Sig2RangePeak, 35 * factor, 0.5 * length);
        peak(set.TauMaxPeak, 20 * factor, 0);
        peak(set.TauMinPeak, -20 * factor, length);
        peak(set.TauRangePeak, 20 * factor, 0);
    }
    for (int support = 1; support <= spans + 1; ++support) {
        set.RzMax(support) = 50000 * factor;
        set.RzMin(support) = -2500 * factor;
    }
    return set;
}

/// Results with numbers that a test can tell apart: in a span, My from -60 to 120 kNm, Vz from -80 to 90 kN, Mz from -2
/// to 4 kNm, Vy from -5 to 6 kN, deflections of 5.0 and 0.7 mm.
inline Results sampleResults(const Project& project) {
    const int spans = project.NofSpans;
    Results results;
    UlsResults& uls = results.Uls;
    for (auto* cube : {&uls.MyMaxPoint, &uls.MyMinPoint, &uls.VzMaxPoint, &uls.VzMinPoint})
        *cube = Cube<Single>(spans, 21, 8);
    for (auto* cube : {&uls.MzMaxPoint, &uls.MzMinPoint, &uls.VyMaxPoint, &uls.VyMinPoint})
        *cube = Cube<Single>(spans, 21, 6);
    for (auto* table : {&uls.MyMaxSpan, &uls.MyMinSpan, &uls.VzMaxSpan, &uls.VzMinSpan})
        *table = Table<Single>(spans, 9);
    for (auto* table : {&uls.MzMaxSpan, &uls.MzMinSpan, &uls.VyMaxSpan, &uls.VyMinSpan})
        *table = Table<Single>(spans, 7);
    for (auto* array : {&uls.RzMax, &uls.RzMin, &uls.RyMax, &uls.RyMin}) *array = Array<Single>(1, spans + 1);
    results.Sls.UzMaxPoint = results.Sls.UyMaxPoint = Cube<Single>(spans, 21, 3);
    results.Sls.UzMaxSpan = results.Sls.UyMaxSpan = Table<Single>(spans, 3);
    for (int span = 1; span <= spans; ++span) {
        for (int k = 1; k <= 21; ++k) {
            uls.MyMaxPoint(span, k, 1) = wave(k, 120e6);
            uls.MyMinPoint(span, k, 1) = -3e6 * (k - 1);
            uls.VzMaxPoint(span, k, 2) = 4500.0 * (21 - k);
            uls.VzMinPoint(span, k, 2) = -4000.0 * (k - 1);
            uls.MzMaxPoint(span, k, 3) = wave(k, 4e6);
            uls.MzMinPoint(span, k, 3) = -0.1e6 * (k - 1);
            uls.VyMaxPoint(span, k, 4) = 300.0 * (21 - k);
            uls.VyMinPoint(span, k, 4) = -250.0 * (k - 1);
            results.Sls.UzMaxPoint(span, k, 1) = -wave(k, 5.0);
            results.Sls.UyMaxPoint(span, k, 1) = -wave(k, 0.7);
        }
        const auto record = [span](Table<Single>& table, int slot, double value, double x) {
            table(span, slot) = value;
            table(span, table.columns()) = x;
        };
        const double length = project.Span(span);
        record(uls.MyMaxSpan, 1, 120e6, length / 2);
        record(uls.MyMinSpan, 1, -60e6, length);
        record(uls.VzMaxSpan, 2, 90000, 0);
        record(uls.VzMinSpan, 2, -80000, length);
        record(uls.MzMaxSpan, 3, 4e6, length / 2);
        record(uls.MzMinSpan, 3, -2e6, length);
        record(uls.VyMaxSpan, 4, 6000, 0);
        record(uls.VyMinSpan, 4, -5000, length);
        results.Sls.UzMaxSpan(span, 1) = 5.0;
        results.Sls.UyMaxSpan(span, 1) = 0.7;
    }
    for (int support = 1; support <= spans + 1; ++support) {
        uls.RzMax(support) = 100000.0 + support;
        uls.RzMin(support) = -12340;
        uls.RyMax(support) = 7000;
        uls.RyMin(support) = -600;
    }
    results.Fatigue.Cr1 = sampleStresses(project, 1.0);
    if (project.NofCranes == 2) {
        results.Fatigue.Cr2 = sampleStresses(project, 0.5);
        results.Fatigue.Cr12 = sampleStresses(project, 1.5);
    }
    return results;
}

template <int Rows>
RowSet<Rows> rowSet(const std::string& formula, double ratio, const std::string& text) {
    RowSet<Rows> set;
    set(1) = formula + " = ";
    set(2) = "1/2 = ";
    set(3) = text;
    set(4) = " <  1.00 (" + formula + ")";
    set.Ratio = ratio;
    return set;
}

}  // namespace borvik
