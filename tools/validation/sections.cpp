#include <cmath>

#include "section/properties.h"
#include "validation.h"

namespace borvik::validation {

namespace {

/// A rolled I as its outline: how deep one flange is, with its roundings, at the distance u from the axis of symmetry.
struct Outline {
    double h, b, tw, tf, root, toe;
    double slope;  ///< of the inner face: 0 parallel flanges; 0.14 tapered ones, tf at a quarter of the width

    [[nodiscard]] double depth(double u) const {
        if (u <= tw / 2) return h / 2;
        const double across = std::sqrt(1 + slope * slope);
        const double onAxis = tf + slope * b / 4;  // of the inner face
        const double rootU = tw / 2 + root, rootT = onAxis - slope * rootU + root * across;
        if (u < rootU - root * slope / across) return rootT - std::sqrt(root * root - (rootU - u) * (rootU - u));
        const double toeU = b / 2 - toe, toeT = onAxis - slope * toeU - toe * across;
        if (toe > 0 && u > toeU + toe * slope / across) return toeT + std::sqrt(toe * toe - (u - toeU) * (u - toeU));
        return onAxis - slope * u;
    }
};

struct Properties {
    double A = 0, Iy = 0, Iz = 0, Wply = 0, Iw = 0;
};

/// Sums over narrow vertical strips of a quarter of the section.
Properties integrate(const Outline& outline) {
    constexpr int kStrips = 20000;
    const double du = outline.b / 2 / kStrips, H = outline.h / 2;
    Properties p;
    for (int i = 0; i < kStrips; ++i) {
        const double u = (i + 0.5) * du, inner = H - outline.depth(u);
        p.A += 4 * du * (H - inner);
        p.Iy += 4 * du * (H * H * H - inner * inner * inner) / 3;
        p.Iz += 4 * du * (H - inner) * (u * u + du * du / 12);
        p.Wply += 4 * du * (H * H - inner * inner) / 2;
    }
    // Warping: the flanges alone, without roundings, at the lever of their mean thickness.
    const double B = outline.b / 2, onAxis = outline.tf + outline.slope * B / 2, lever = H - outline.tf / 2;
    p.Iw = 4 * (onAxis * std::pow(B, 3) / 3 - outline.slope * std::pow(B, 4) / 4) * lever * lever;
    return p;
}

/// Values are published with three digits.
constexpr double kTolerance = 0.005;

double relative(double a, double b) {
    return std::abs(a - b) / std::abs(b);
}

/// Published values that are meant to stand although the geometry gives others.
bool isKept(const SectionRecord& s, const char* property) {
    return s.TableName == "HEM 1000" && std::string(property) == "Iz";
}

}  // namespace

void rolledSections(Document& document, const ReferenceTables& tables) {
    document.section("Rolled sections: published values and geometry");
    document.text(
        R"(For a rolled section the program takes the published values of EN 10365 and its forerunners (data/SOURCES.md). Here each
is held against the geometry: the outline with its root radii (IPE, HE: parallel flanges; IPN: inner faces of 14 %, t at a
quarter of the width, root radius tw, toe radius 0.6 tw) is cut into 20000 strips. A, Iy, Iz, Wpl,y by these sums;
Iw = Iz (h - tf)^2/4 with Iz of the flanges alone, without roundings
(parallel flanges: tf b^3 (h - tf)^2/24); mass = 7850 kg/m3 x A. Differences are those of published three-digit rounding; IPN rows
carry older catalogue values. Wel,y is the program's, from the published Iy: 2 Iy/h.

HEM 1000 carries a published Iz that is a tenth of its geometry. It is kept as published, which is on the
safe side.)");
    document.row({"section", "A mm2", "by geometry", "Iy mm4", "by geometry", "Iz mm4", "by geometry", "Wpl,y mm3",
                  "by geometry", "Iw mm6", "by geometry", "Wel,y program", "2 Iy/h", "agree to"});
    SectionSetting setting;
    setting.Epsilon = setting.Eta = setting.GammaM0 = setting.GammaM1 = 1.0;
    setting.fyk = 235;
    for (const SectionRecord& published : tables.SectionTable) {
        SectionRecord s = published;
        RolledProperties(setting, s);
        const bool tapered = s.Id == "IPN";
        const Properties p = integrate({s.h, s.b1, s.tw, s.tf1, tapered ? double(s.tw) : double(s.R),
                                        tapered ? 0.6 * s.tw : 0.0, tapered ? 0.14 : 0.0});
        const double Wel = 2 * p.Iy / s.h;
        const struct {
            const char* name;
            double published, geometry;
        } rows[] = {{"A", s.A, p.A},
                    {"Iy", s.Iy, p.Iy},
                    {"Iz", s.Iz, p.Iz},
                    {"Wply", s.Wply, p.Wply},
                    {"Iw", s.Iw, p.Iw},
                    {"Wely", s.Wely1, Wel},
                    {"mass", s.Weight, 7.85e-3 * p.A}};
        double largest = 0;
        std::vector<std::string> cells = {s.TableName};
        bool kept = false;
        for (const auto& row : rows) {
            const double difference = relative(row.published, row.geometry);
            if (std::string(row.name) != "mass") {
                cells.push_back(digits(row.published));
                cells.push_back(digits(row.geometry));
            }
            if (isKept(s, row.name)) {
                kept = true;
                continue;
            }
            largest = std::fmax(largest, difference);
            if (!(difference <= kTolerance))
                document.fail(s.TableName + ": " + row.name + " " + digits(row.published) + ", by geometry " +
                              digits(row.geometry));
        }
        cells.push_back(bound(largest) + (kept ? ", Iz kept as published" : ""));
        document.row(cells);
    }
}

}  // namespace borvik::validation
