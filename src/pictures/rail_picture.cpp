#include "pictures/rail_picture.h"

#include <QPainterPath>
#include <algorithm>

#include "base/number_text.h"

namespace borvik {

namespace {

/// Half of a crane rail's outline, from the top of the head down, as shares of height, foot and head width.
QPolygonF railOutline(double h, double foot, double head, bool flat) {
    if (flat) return QPolygonF(QRectF(-foot / 2, -h, foot, h));
    const double web = head * 0.42;
    const QPolygonF right{{{head / 2, -h},
                           {head / 2, -0.62 * h},
                           {web / 2, -0.52 * h},
                           {web / 2, -0.3 * h},
                           {foot * 0.32, -0.17 * h},
                           {foot / 2, -0.1 * h},
                           {foot / 2, 0}}};
    QPolygonF outline = right;
    for (auto point = right.rbegin(); point != right.rend(); ++point) outline << QPointF(-point->x(), point->y());
    return outline;
}

void drawClip(QPainter& painter, const Ink& ink, double footEdge, double seat, double side, double size) {
    painter.setPen(penOf(ink.line));
    painter.setBrush(ink.other);
    painter.drawPolygon(QPolygonF{{{side * (footEdge - 0.3 * size), seat - 0.55 * size},
                                   {side * (footEdge + 1.2 * size), seat - 0.55 * size},
                                   {side * (footEdge + 1.2 * size), seat},
                                   {side * (footEdge + 0.12 * size), seat},
                                   {side * (footEdge + 0.12 * size), seat - 0.3 * size},
                                   {side * (footEdge - 0.3 * size), seat - 0.3 * size}}});
    painter.drawLine(QPointF(side * (footEdge + 0.7 * size), seat - 0.9 * size),
                     QPointF(side * (footEdge + 0.7 * size), seat + 0.9 * size));
}

QString symbol(const char* name, double value) {
    return QString::fromUtf8(name) + QStringLiteral(" = ") + QString::fromStdString(formatNumber(value, "0.0"));
}

}  // namespace

PicturePainter railPicture(const Project& project, const ReferenceTables& tables) {
    return [&project, &tables](QPainter& painter, const QRectF& area, const Ink& ink) {
        const RailRecord& rail = railOf(project, tables);
        const double h = rail.RailHr, b = std::max(double(rail.RailBr), 1.0), k = rail.RailKr;
        const bool flat = rail.Id != "A";
        const double line = painter.fontMetrics().lineSpacing();
        const double scale = std::min((area.width() - 10 * line) / std::max(b * 1.7, 1.0),
                                      (area.height() - 8 * line) / std::max(h, 1.0));
        const double H = h * scale, B = b * scale, K = (k > 0 ? k : b) * scale;
        const bool pad = project.RailFix == RailFixing::ResilientPad;
        const double padHeight = pad ? 0.45 * line : 0.0;
        painter.save();
        // the middle of what is drawn comes to the middle of the area
        painter.translate(area.center().x(), area.center().y() + (H + padHeight - 3.0 * line) / 2);
        painter.setPen(penOf(ink.line));
        painter.setBrush(ink.steel);
        const double flange = std::max(B * 1.7, 8 * line);
        painter.drawRect(QRectF(-flange / 2, 0, flange, line));
        painter.drawRect(QRectF(-0.35 * line, line, 0.7 * line, 1.5 * line));
        if (pad) {
            painter.setBrush(ink.faint);
            painter.drawRect(QRectF(-B / 2 - 0.2 * line, -padHeight, B + 0.4 * line, padHeight));
        }
        painter.setPen(penOf(ink.line, 1.4));
        painter.setBrush(ink.other);
        painter.drawPolygon(railOutline(H, B, K, flat).translated(0, -padHeight));
        for (const double side : {-1.0, 1.0}) {
            if (project.RailFix == RailFixing::Rigid) {
                painter.setPen(penOf(ink.weld));
                painter.setBrush(ink.weld);
                drawFillet(painter, {side * B / 2, 0}, side * 0.55 * line, -0.55 * line);
            } else {
                drawClip(painter, ink, B / 2, 0, side, 1.3 * line);
            }
        }
        painter.setPen(penOf(ink.dimension));
        const double right = std::max(B / 2 + 2.3 * line, K / 2 + line);
        drawDimension(painter, {right, -padHeight - H}, {right, -padHeight}, symbol("h", h));
        if (k > 0 && !flat)
            drawDimension(painter, {-K / 2, -padHeight - H - 0.6 * line}, {K / 2, -padHeight - H - 0.6 * line},
                          symbol("k", k));
        drawDimension(painter, {-B / 2, 3.9 * line}, {B / 2, 3.9 * line}, symbol("b", b));
        painter.restore();
    };
}

}  // namespace borvik
