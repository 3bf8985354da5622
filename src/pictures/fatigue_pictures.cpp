#include "pictures/fatigue_pictures.h"

#include <algorithm>

namespace borvik {

namespace {

enum class View { Section, Side };
enum class Stress { Along, Vertical, Shear, Transverse };
enum class Rail { None, Welded, WeldedClip, BoltedClip };
enum class Stiffener { None, Welded, Bolted };
enum class Support { None, Below, Above };

/// What one picture shows. Places are shares of the drawing's size: x to the right from the middle of the web, y
/// upwards from the underside.
struct Scene {
    FatigueDetail detail;
    View view;
    Stress stress;
    QPointF crack;
    Rail rail = Rail::None;
    Stiffener stiffener = Stiffener::None;
    Support support = Support::None;
    bool topWeld = false;
    bool bottomWeld = false;
    bool splice = false;
    bool wheelOnBottom = false;
    const char* text;
};

const Scene kScenes[] = {
    {.detail = FatigueDetail::RailWeldedClip,
     .view = View::Section,
     .stress = Stress::Along,
     .crack = {0.2, 1.0},
     .rail = Rail::WeldedClip,
     .text =
         "Rail clip welded to the top flange: stress along the flange\n\nTable 8.4, detail 1, by the length L of the "
         "attachment:\n80  L ≤ 50 mm\n71  50 < L ≤ 80 mm\n63  80 < L ≤ 100 mm\n56  L > 100 mm"},
    {.detail = FatigueDetail::RailBoltedClip,
     .view = View::Section,
     .stress = Stress::Along,
     .crack = {0.3, 0.97},
     .rail = Rail::BoltedClip,
     .text = "Rail clip bolted to the top flange: stress along the flange\n\nTable 8.1, detail 11:\n90  hole in the "
             "flange, net section"},
    {.detail = FatigueDetail::RailWelded,
     .view = View::Section,
     .stress = Stress::Along,
     .crack = {0.09, 1.0},
     .rail = Rail::Welded,
     .text =
         "Rail welded to the top flange: stress along the weld\n\nTable 8.2:\n112  automatic fillet welds from both "
         "sides, with stop and start positions, detail 3\n100  manual fillet weld, detail 5\n80  intermittent fillet "
         "weld, detail 8"},
    {.detail = FatigueDetail::StiffenerWelded,
     .view = View::Side,
     .stress = Stress::Along,
     .crack = {0.1, 0.06},
     .stiffener = Stiffener::Welded,
     .text = "Stiffener welded to the bottom flange: stress along the flange\n\nTable 8.4, detail 7, by the length l "
             "over both welds:\n80  l ≤ 50 mm\n71  50 < l ≤ 80 mm"},
    {.detail = FatigueDetail::StiffenerBolted,
     .view = View::Side,
     .stress = Stress::Along,
     .crack = {0.13, 0.03},
     .stiffener = Stiffener::Bolted,
     .text = "Stiffener bolted to the bottom flange: stress along the flange\n\nTable 8.1, detail 11:\n90  hole in the "
             "flange, net section"},
    {.detail = FatigueDetail::TopFlangeWebVertical,
     .view = View::Section,
     .stress = Stress::Vertical,
     .crack = {0.03, 0.93},
     .rail = Rail::Welded,
     .topWeld = true,
     .text = "Top flange to web under a wheel: vertical stress\n\nTable 8.10:\n160  rolled section\n71  full "
             "penetration tee-butt weld\n36  partial penetration or fillet welds (stress in the throat)"},
    {.detail = FatigueDetail::TopFlangeWebShear,
     .view = View::Side,
     .stress = Stress::Shear,
     .crack = {0.0, 0.93},
     .topWeld = true,
     .text = "Top flange to web: shear stress, with the local shear of the wheel\n\n100  rolled section or full "
             "penetration weld, Table 8.1, detail 6\n80  continuous fillet welds, Table 8.5, detail 8"},
    {.detail = FatigueDetail::BottomFlangeWeb,
     .view = View::Side,
     .stress = Stress::Shear,
     .crack = {0.0, 0.07},
     .bottomWeld = true,
     .text = "Bottom flange to web: shear stress\n\n100  rolled section, Table 8.1, detail 6\n80  continuous fillet "
             "welds, Table 8.5, detail 8"},
    {.detail = FatigueDetail::Splice,
     .view = View::Side,
     .stress = Stress::Along,
     .crack = {0.0, 0.03},
     .splice = true,
     .text =
         "Splice of the beam by butt welds: stress along the bottom flange\n\nTable 8.3:\n112  ground flush, "
         "detail 1 to 3\n90  ground flush with cope holes, detail 8; convexity at most 10 %, detail 5 and 6\n80  "
         "convexity at most 20 %: plates or plate girder without cope hole, rolled section with cope holes, detail 9 "
         "to 11\n63  whole rolled section without cope hole, not ground, detail 12\n36  from one side only, detail "
         "13\nReduced by (25/t)^0.2 where t > 25 mm"},
    {.detail = FatigueDetail::SupportPoint,
     .view = View::Side,
     .stress = Stress::Vertical,
     .crack = {0.1, 0.06},
     .stiffener = Stiffener::Welded,
     .support = Support::Below,
     .bottomWeld = true,
     .text = "Support point: vertical stress in web and stiffener from the reaction\n\nTable 8.5:\n80  toe failure "
             "of a cruciform joint, l < 50 mm, detail 1\n36  root failure of fillet welds, detail 3\n\ne  length of "
             "the bearing along the beam\nt  thickness of the stiffener"},
    {.detail = FatigueDetail::SupportEdge,
     .view = View::Side,
     .stress = Stress::Along,
     .crack = {0.26, 1.0},
     .support = Support::Above,
     .text =
         "Edge of the support on the top flange: stress along the flange\n\nTable 8.4 and 8.5, detail 6, cover "
         "plate or long attachment, thinner than the flange:\n56  flange up to 20 mm\n50  20 to 30 mm\n45  30 to 50 "
         "mm\nas thick as the flange or thicker: 50, 45, 40"},
    {.detail = FatigueDetail::SupportToTopFlange,
     .view = View::Section,
     .stress = Stress::Vertical,
     .crack = {0.12, 1.0},
     .support = Support::Above,
     .text = "Support to top flange: vertical stress from the reaction\n\nTable 8.5:\n80  full penetration weld, toe "
             "failure, l < 50 mm, detail 1\n36  fillet welds, root failure, detail 3\n\ne  length of the support along "
             "the beam\nt  thickness of its plate"},
    {.detail = FatigueDetail::SupportWebVertical,
     .view = View::Section,
     .stress = Stress::Vertical,
     .crack = {0.03, 0.93},
     .support = Support::Above,
     .topWeld = true,
     .text = "Top flange to web at the support: vertical stress from the reaction\n\n160  rolled section\n80  full "
             "penetration weld, Table 8.5, detail 1\n36  fillet welds, root failure, Table 8.5, detail 3"},
    {.detail = FatigueDetail::SupportWebShear,
     .view = View::Side,
     .stress = Stress::Shear,
     .crack = {0.0, 0.93},
     .support = Support::Above,
     .topWeld = true,
     .text = "Top flange to web at the support: shear stress\n\n100  rolled section or full penetration weld, Table "
             "8.1, detail 6\n80  continuous fillet welds, Table 8.5, detail 8"},
    {.detail = FatigueDetail::MonorailTopFlangeWeb,
     .view = View::Side,
     .stress = Stress::Shear,
     .crack = {0.0, 0.93},
     .topWeld = true,
     .text = "Top flange to web: shear stress\n\n100  rolled section or full penetration weld, Table 8.1, detail "
             "6\n80  continuous fillet welds, Table 8.5, detail 8"},
    {.detail = FatigueDetail::BottomFlangeBending,
     .view = View::Section,
     .stress = Stress::Transverse,
     .crack = {0.03, 0.07},
     .bottomWeld = true,
     .wheelOnBottom = true,
     .text = "Bottom flange to web under a wheel: transverse bending of the flange\n\n160  rolled section, Table "
             "8.1\n80  full penetration weld, Table 8.5, detail 1"},
    {.detail = FatigueDetail::BottomFlangeShear,
     .view = View::Side,
     .stress = Stress::Shear,
     .crack = {0.0, 0.07},
     .bottomWeld = true,
     .text = "Bottom flange to web: shear stress\n\n100  rolled section or full penetration weld, Table 8.1, detail "
             "6\n80  continuous fillet welds, Table 8.5, detail 8"},
};

/// Draws a scene into a square whose origin is the middle of the underside; one unit is the height of the beam.
class SceneDrawing {
public:
    SceneDrawing(QPainter& painter, const QPointF& foot, double size, const Ink& ink)
        : painter_(painter), foot_(foot), size_(size), ink_(ink) {}

    void draw(const Scene& scene) {
        beam(scene.view);
        if (scene.support != Support::None) support(scene.support, scene.view);
        if (scene.stiffener != Stiffener::None) stiffener(scene.stiffener);
        if (scene.rail != Rail::None) rail(scene.rail);
        if (scene.topWeld) webWeld(scene.view, kTop - kFlange, -1);
        if (scene.bottomWeld) webWeld(scene.view, kFlange, 1);
        if (scene.splice) splice();
        if (scene.wheelOnBottom) wheels();
        stress(scene.stress, scene.crack, scene.view);
        crack(scene.crack);
    }

private:
    static constexpr double kTop = 1.0, kFlange = 0.06, kHalfFlange = 0.36, kHalfWeb = 0.025, kHalfLength = 0.62,
                            kLeg = 0.06;

    [[nodiscard]] QPointF at(double x, double y) const { return {foot_.x() + x * size_, foot_.y() - y * size_}; }
    void plate(double x0, double y0, double x1, double y1, const QColor& fill) {
        painter_.setPen(penOf(ink_.line));
        painter_.setBrush(fill);
        painter_.drawRect(QRectF(at(x0, y1), at(x1, y0)));
    }
    void fillet(double x, double y, double toX, double toY) {
        painter_.setPen(penOf(ink_.weld));
        painter_.setBrush(ink_.weld);
        drawFillet(painter_, at(x, y), toX * kLeg * size_, -toY * kLeg * size_);
    }

    void beam(View view) {
        const double half = view == View::Section ? kHalfFlange : kHalfLength;
        const double halfWeb = view == View::Section ? kHalfWeb : kHalfLength;
        plate(-halfWeb, kFlange, halfWeb, kTop - kFlange, ink_.steel);
        plate(-half, 0, half, kFlange, ink_.steel);
        plate(-half, kTop - kFlange, half, kTop, ink_.steel);
    }
    void support(Support where, View view) {
        if (where == Support::Below) {
            plate(-0.2, -0.07, 0.2, 0, ink_.other);
            return;
        }
        const double half = view == View::Side ? 0.26 : 0.1;
        plate(-half, kTop, half, kTop + 0.28, ink_.other);
        for (const double side : {-1.0, 1.0}) fillet(side * half, kTop, side, 1);
    }
    void stiffener(Stiffener kind) {
        plate(-0.05, kFlange, 0.05, kTop - kFlange, ink_.other);
        if (kind == Stiffener::Welded) {
            for (const double side : {-1.0, 1.0}) fillet(side * 0.05, kFlange, side, 1);
            return;
        }
        plate(0.05, kFlange, 0.24, kFlange + 0.05, ink_.other);
        painter_.setPen(penOf(ink_.line, 2.5));
        painter_.drawLine(at(0.13, -0.06), at(0.13, kFlange + 0.13));
    }
    void rail(Rail kind) {
        plate(-0.09, kTop, 0.09, kTop + 0.13, ink_.other);
        for (const double side : {-1.0, 1.0}) {
            if (kind == Rail::Welded) {
                fillet(side * 0.09, kTop, side, 1);
                continue;
            }
            const double inner = side * 0.07, outer = side * (kind == Rail::WeldedClip ? 0.2 : 0.35);
            plate(std::min(inner, outer), kTop, std::max(inner, outer), kTop + 0.07, ink_.other);
            if (kind == Rail::WeldedClip) fillet(outer, kTop, side, 1);
            if (kind == Rail::BoltedClip) {
                painter_.setPen(penOf(ink_.line, 2.5));
                painter_.drawLine(at(side * 0.3, kTop - 0.14), at(side * 0.3, kTop + 0.14));
            }
        }
    }
    void webWeld(View view, double y, double up) {
        if (view == View::Section) {
            for (const double side : {-1.0, 1.0}) fillet(side * kHalfWeb, y, side, up);
            return;
        }
        painter_.setPen(penOf(ink_.weld, 3));
        painter_.drawLine(at(-kHalfLength, y), at(kHalfLength, y));
    }
    void splice() {
        painter_.setPen(penOf(ink_.weld, 3));
        painter_.drawLine(at(0, 0), at(0, kTop));
    }
    void wheels() {
        painter_.setPen(penOf(ink_.load, 1.5));
        for (const double side : {-1.0, 1.0}) drawArrow(painter_, at(side * 0.28, 0.4), at(side * 0.28, kFlange));
    }
    void stress(Stress kind, const QPointF& place, View view) {
        painter_.setPen(penOf(ink_.load, 2));
        const double x = place.x(), y = place.y();
        if (kind == Stress::Along && view == View::Side) {
            for (const double side : {-1.0, 1.0})
                drawArrow(painter_, at(side * 0.45, y < 0.5 ? -0.1 : 1.1), at(side * 0.75, y < 0.5 ? -0.1 : 1.1));
        } else if (kind == Stress::Along) {  // out of the picture: the head of an arrow
            painter_.setBrush(Qt::NoBrush);
            const QPointF head = at(-0.26, kTop - 0.16);
            painter_.drawEllipse(head, 0.05 * size_, 0.05 * size_);
            painter_.setBrush(ink_.load);
            painter_.drawEllipse(head, 0.015 * size_, 0.015 * size_);
        } else if (kind == Stress::Vertical) {
            const double side = x + 0.22;
            drawArrow(painter_, at(side, y + 0.01), at(side, y + 0.22));
            drawArrow(painter_, at(side, y - 0.01), at(side, y - 0.22));
        } else if (kind == Stress::Shear) {
            const double away = y > 0.5 ? -0.12 : 0.12;
            drawArrow(painter_, at(-0.5, y + away), at(-0.15, y + away));
            drawArrow(painter_, at(-0.15, y + 1.7 * away), at(-0.5, y + 1.7 * away));
        } else {
            for (const double side : {-1.0, 1.0}) drawArrow(painter_, at(side * 0.06, -0.1), at(side * 0.34, -0.1));
        }
    }
    void crack(const QPointF& place) {
        painter_.setPen(penOf(ink_.load, 1.6));
        painter_.setBrush(Qt::NoBrush);
        painter_.drawEllipse(at(place.x(), place.y()), 0.1 * size_, 0.1 * size_);
    }

    QPainter& painter_;
    QPointF foot_;
    double size_;
    const Ink& ink_;
};

}  // namespace

PicturePainter fatigueDetailPicture(FatigueDetail detail) {
    const auto* scene = std::find_if(std::begin(kScenes), std::end(kScenes),
                                     [detail](const Scene& each) { return each.detail == detail; });
    return [scene](QPainter& painter, const QRectF& area, const Ink& ink) {
        const double line = painter.fontMetrics().lineSpacing();
        const bool withText = area.width() > 50 * painter.fontMetrics().averageCharWidth();
        const double width = withText ? area.width() * 0.5 : area.width();
        const double size = std::min(area.height() / 1.5, width / 1.6);
        const QPointF foot(area.left() + width / 2, area.center().y() + 0.54 * size);
        SceneDrawing(painter, foot, size, ink).draw(*scene);
        if (!withText) return;
        painter.setPen(ink.line);
        painter.drawText(QRectF(area.left() + width + line, area.top(), width - 2 * line, area.height()),
                         Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap, QString::fromUtf8(scene->text));
    };
}

}  // namespace borvik
