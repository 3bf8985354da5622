#pragma once

#include <string>

#include "section/geometry.h"
#include "section/resistance.h"
#include "section/section.h"

namespace borvik::test {

/// What is stored as a single is right to half a unit of its last bit, 6e-8; sums of a few stored numbers to twice
/// that.
constexpr double kStored = 1.2e-7;

inline SectionRecord welded(const std::string& id, double h, double b1, double b2, double tw, double tf1, double tf2) {
    SectionRecord s;
    s.Id = id;
    s.Fab = "W";
    s.h = h;
    s.b1 = b1;
    s.b2 = b2;
    s.tw = tw;
    s.tf1 = tf1;
    s.tf2 = tf2;
    return s;
}

inline SectionRecord reinforced(SectionRecord s, double depth, double thickness) {
    s.Reinforced = true;
    s.ReinfD = depth;
    s.ReinfT = thickness;
    s.ReinfSuffix = "+PL";
    return s;
}

/// Overhead crane on a rail of 65 mm, S235 with epsilon 1, so that limits and slendernesses are round numbers.
inline SectionSetting settingS235() {
    SectionSetting setting;
    setting.RailHr = 65.0;
    setting.Epsilon = 1.0;
    setting.fyk = 235.0;
    setting.Eta = 1.2;
    setting.GammaM0 = 1.0;
    setting.GammaM1 = 1.1;
    return setting;
}

/// A section table of two rows, HEA 300 in row 1, with published values.
inline ReferenceTables smallTables() {
    SectionRecord hea;
    hea.Id = "HEA";
    hea.CType = 1;
    hea.Fab = "R";
    hea.TableName = "HEA 300";
    hea.h = 290.0;
    hea.b1 = hea.b2 = 300.0;
    hea.tf1 = hea.tf2 = 14.0;
    hea.tw = 8.5;
    hea.R = 27.0;
    hea.A = 11250.0;
    hea.Weight = 88.3;
    hea.Iy = 182.6e6;
    hea.Wply = 1.38e6;
    hea.Iz = 63.1e6;
    hea.WplZ = 421000.0;
    hea.It = 856000.0;
    hea.Iw = 1.2e12;
    SectionRecord other = hea;
    other.TableName = "HEA 280";
    ReferenceTables tables;
    tables.SectionTable = Array<SectionRecord>(0, 1);
    tables.SectionTable(0) = other;
    tables.SectionTable(1) = hea;
    return tables;
}

inline SectionRecord rolled(const std::string& designation) {
    SectionRecord s;
    s.Id = "HEA";
    s.TableName = designation;
    s.DisplayName = designation;
    return s;
}

inline SectionRecord completed(SectionRecord s, const SectionSetting& setting = settingS235()) {
    WeldedProperties(setting, s);
    SectionResistance(setting, s);
    return s;
}

}  // namespace borvik::test
