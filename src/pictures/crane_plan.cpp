#include "pictures/crane_plan.h"

#include <algorithm>
#include <cmath>

#include "base/number_text.h"

namespace borvik {
namespace {

using actions::CraneData;
using actions::GroupLoads;

QString kN(double force) {
    return QString::fromStdString(formatNumber(std::abs(force), "0.0")) + " kN";
}

/// The plan within its area: metres to points. The rails run from left to right, the rail beside the crab below.
struct Drawn {
    double scale = 1.0;
    QPointF origin;  ///< of the first wheel on the far rail
    [[nodiscard]] QPointF at(double along, double across) const {
        return origin + QPointF(along * scale, across * scale);
    }
};

std::vector<double> wheelsOf(const CraneData& crane) {
    std::vector<double> wheels{0.0};
    for (const double gap : crane.spacing) wheels.push_back(wheels.back() + gap);
    return wheels;
}

void drawCrane(QPainter& painter, const Ink& ink, const Drawn& drawn, const CraneData& crane) {
    const double over = 0.12 * crane.span;
    painter.setPen(penOf(ink.line, 2.0));
    for (const double rail : {0.0, crane.span})
        painter.drawLine(drawn.at(-over, rail), drawn.at(crane.base() + over, rail));
    const double middle = crane.base() / 2.0, half = std::max(0.03 * crane.span, 0.15 * crane.base());
    painter.setPen(penOf(ink.line));
    painter.setBrush(ink.steel);
    painter.drawRect(QRectF(drawn.at(middle - half, 0.0), drawn.at(middle + half, crane.span)));
    painter.setBrush(ink.other);
    const double crab = crane.span - crane.emin;
    const double size = 0.05 * crane.span;
    painter.drawRect(QRectF(drawn.at(middle - 1.3 * half, crab - size), drawn.at(middle + 1.3 * half, crab + size)));
    for (const double rail : {0.0, crane.span}) {
        painter.setBrush(ink.steel);
        painter.drawRect(
            QRectF(drawn.at(-0.3 * half, rail - 0.35 * size), drawn.at(crane.base() + 0.3 * half, rail + 0.35 * size)));
        painter.setBrush(ink.load);
        for (const double wheel : wheelsOf(crane))
            painter.drawRect(QRectF(drawn.at(wheel - 0.5 * size, rail - 0.2 * size),
                                    drawn.at(wheel + 0.5 * size, rail + 0.2 * size)));
    }
    painter.setBrush(Qt::NoBrush);
}

/// The forces across both rails, as long as they are large against the largest.
void drawForces(QPainter& painter, const Ink& ink, const Drawn& drawn, const CranePlan& plan, const GroupLoads& group) {
    const double line = painter.fontMetrics().lineSpacing();
    double largest = 0.0;
    for (const auto* rail : {&group.crab, &group.far})
        for (const double force : rail->H) largest = std::max(largest, std::abs(force));
    if (largest <= 0.0) return;
    painter.setPen(penOf(ink.load, 2.0));
    const std::vector<double> wheels = wheelsOf(plan.crane);
    const auto across = [&](const std::vector<double>& forces, double rail) {
        for (std::size_t i = 0; i < forces.size(); ++i) {
            if (forces[i] == 0.0) continue;
            const double length = (1.0 + 2.0 * std::abs(forces[i]) / largest) * line * (forces[i] > 0.0 ? 1.0 : -1.0);
            const QPointF tail = drawn.at(wheels[i], rail), tip = tail + QPointF(0.0, length);
            drawArrow(painter, tail, tip);
            drawTextAt(painter, tip + QPointF(0.4 * line, length > 0.0 ? 0.2 * line : -0.2 * line),
                       kN(forces[i] * group.psiH), Qt::AlignLeft | Qt::AlignVCenter);
        }
    };
    across(group.far.H, 0.0);
    across(group.crab.H, plan.crane.span);
}

void drawPole(QPainter& painter, const Ink& ink, const Drawn& drawn, const CranePlan& plan) {
    const actions::Skewing& skewing = plan.loads->guidedByFarRail;
    const double guided = plan.crane.span * 0.0;
    const QPointF pole = drawn.at(skewing.h, guided + skewing.xiOther * plan.crane.span);
    painter.setPen(penOf(ink.dimension, 1.5));
    painter.drawEllipse(pole, 4.0, 4.0);
    drawTextAt(painter, pole + QPointF(8.0, 0.0), QObject::tr("pole"), Qt::AlignLeft | Qt::AlignVCenter);
}

}  // namespace

PicturePainter cranePlan(std::function<const CranePlan&()> asked) {
    return [asked = std::move(asked)](QPainter& painter, const QRectF& area, const Ink& ink) {
        const CranePlan& plan = asked();
        const CraneData& crane = plan.crane;
        const double line = painter.fontMetrics().lineSpacing();
        if (!(crane.span > 0.0) || crane.wheels() == 0 || !(crane.base() > 0.0)) {
            painter.setPen(ink.faint);
            drawTextAt(painter, area.center(), QObject::tr("Span and wheel distances are needed"));
            return;
        }
        const double width = crane.base() + 0.24 * crane.span;
        Drawn drawn;
        drawn.scale = std::min((area.width() - 9.0 * line) / width, (area.height() - 9.0 * line) / crane.span);
        if (drawn.scale <= 0.0) return;
        drawn.origin =
            area.center() - QPointF(crane.base() * drawn.scale / 2.0 + 2.0 * line, crane.span * drawn.scale / 2.0);
        drawCrane(painter, ink, drawn, crane);
        painter.setPen(ink.line);
        const double right = crane.base() + 0.13 * crane.span;
        drawTextAt(painter, drawn.at(right, 0.0), QObject::tr("far rail"), Qt::AlignLeft | Qt::AlignVCenter);
        drawTextAt(painter, drawn.at(right, crane.span), QObject::tr("beside the crab"),
                   Qt::AlignLeft | Qt::AlignVCenter);
        if (!plan.loads) return;
        const auto& groups = plan.loads->groups;
        const auto group = std::find_if(groups.begin(), groups.end(),
                                        [&](const GroupLoads& each) { return each.group == plan.group; });
        if (group == groups.end()) return;
        drawForces(painter, ink, drawn, plan, *group);
        if (plan.group == 5) drawPole(painter, ink, drawn, plan);
    };
}

}  // namespace borvik
