#include "pictures/info_pictures.h"

#include <QPainterPath>

namespace borvik {

namespace {

void drawTable(QPainter& painter, const QRectF& area, const Ink& ink, const QList<QStringList>& rows) {
    const double rowHeight = area.height() / static_cast<double>(rows.size());
    const double columnWidth = area.width() / static_cast<double>(rows.front().size());
    QFont bold = painter.font();
    bold.setBold(true);
    for (qsizetype r = 0; r < rows.size(); ++r) {
        for (qsizetype c = 0; c < rows[r].size(); ++c) {
            const QRectF cell(area.left() + columnWidth * static_cast<double>(c),
                              area.top() + rowHeight * static_cast<double>(r), columnWidth, rowHeight);
            painter.save();
            painter.setPen(penOf(ink.faint));
            painter.drawRect(cell);
            painter.restore();
            painter.save();
            if (r == 0 || c == 0) painter.setFont(bold);
            painter.setPen(ink.line);
            painter.drawText(cell, Qt::AlignCenter | Qt::TextWordWrap, rows[r][c]);
            painter.restore();
        }
    }
}

/// A beam on two supports, bent by `sag`; returns the middle of the bent axis.
QPointF drawBentBeam(QPainter& painter, const QPointF& left, const QPointF& right, double sag, const Ink& ink) {
    painter.setPen(QPen(ink.faint, 1, Qt::DashLine));
    painter.drawLine(left, right);
    QPainterPath bent(left);
    const QPointF middle((left.x() + right.x()) / 2, left.y() + 2 * sag);
    bent.quadTo(middle, right);
    painter.setPen(penOf(ink.line, 2.5));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(bent);
    painter.setPen(penOf(ink.line));
    painter.setBrush(ink.steel);
    for (const QPointF& foot : {left, right})
        painter.drawPolygon(QPolygonF{{foot, foot + QPointF(-7, 13), foot + QPointF(7, 13)}});
    return {middle.x(), left.y() + sag};
}

}  // namespace

PicturePainter fatigueFactorPicture() {
    return [](QPainter& painter, const QRectF& area, const Ink& ink) {
        const double line = painter.fontMetrics().lineSpacing();
        painter.setPen(ink.line);
        drawTextAt(painter, {area.center().x(), area.top() + line},
                   QStringLiteral("EN 1993-1-9, Table 3.1: recommended values of γMf"));
        drawTable(painter, area.adjusted(line, 2.5 * line, -line, -6 * line), ink,
                  {{QStringLiteral("Assessment method"), QStringLiteral("Low consequence of failure"),
                    QStringLiteral("High consequence of failure")},
                   {QStringLiteral("Damage tolerant"), QStringLiteral("1.00"), QStringLiteral("1.15")},
                   {QStringLiteral("Safe life"), QStringLiteral("1.15"), QStringLiteral("1.35")}});
        painter.drawText(
            QRectF(area.left() + line, area.bottom() - 5 * line, area.width() - 2 * line, 5 * line),
            Qt::AlignLeft | Qt::TextWordWrap,
            QStringLiteral("Damage tolerant: cracks are found by regular inspection and the load can be carried "
                           "by other parts meanwhile. Safe life: no inspection for fatigue is foreseen. The "
                           "national annex may give other values."));
    };
}

PicturePainter deflectionLimitPicture() {
    return [](QPainter& painter, const QRectF& area, const Ink& ink) {
        const double line = painter.fontMetrics().lineSpacing();
        const struct {
            QString title, symbol;
            double at;
        } planes[] = {
            {QStringLiteral("Vertical, EN 1993-6 Table 7.2:  δz ≤ L / 600 and ≤ 25 mm (25 mm is not checked)"),
             QStringLiteral("δz"), 0.0},
            {QStringLiteral("Horizontal, EN 1993-6 Table 7.1:  δy ≤ L / 600"), QStringLiteral("δy"), 0.5}};
        for (const auto& plane : planes) {
            const double top = area.top() + area.height() * plane.at;
            painter.setPen(ink.line);
            drawTextAt(painter, {area.center().x(), top + line}, plane.title);
            const QPointF left(area.left() + area.width() * 0.15, top + area.height() * 0.2);
            const QPointF right(area.right() - area.width() * 0.15, left.y());
            const QPointF lowest = drawBentBeam(painter, left, right, area.height() * 0.1, ink);
            painter.setPen(penOf(ink.dimension));
            drawDimension(painter, {lowest.x(), left.y()}, lowest, plane.symbol);
            const double below = area.height() * 0.17;
            drawDimension(painter, left + QPointF(0, below), right + QPointF(0, below), QStringLiteral("L"));
        }
    };
}

PicturePainter loadCombinationPicture() {
    return [](QPainter& painter, const QRectF& area, const Ink& ink) {
        const double line = painter.fontMetrics().lineSpacing();
        const double size = std::min(area.height(), area.width() * 0.5);
        const QPointF foot(area.left() + area.width() * 0.24, area.bottom() - line);
        const double h = size * 0.55, b = h * 0.55, t = h * 0.07;
        painter.setPen(penOf(ink.line));
        painter.setBrush(ink.steel);
        painter.drawRect(QRectF(foot.x() - b / 2, foot.y() - t, b, t));
        painter.drawRect(QRectF(foot.x() - t / 2, foot.y() - h + t, t, h - 2 * t));
        painter.drawRect(QRectF(foot.x() - b / 2, foot.y() - h, b, t));
        painter.setBrush(ink.other);
        const double railTop = foot.y() - h - 1.6 * t;
        painter.drawRect(QRectF(foot.x() - 0.8 * t, railTop, 1.6 * t, 1.6 * t));
        painter.setPen(penOf(ink.load, 1.8));
        drawArrow(painter, {foot.x(), railTop - 5 * line}, {foot.x(), railTop});
        drawTextAt(painter, {foot.x() + line, railTop - 4 * line}, QStringLiteral("ψV · Vk"),
                   Qt::AlignLeft | Qt::AlignVCenter);
        drawArrow(painter, {foot.x() - 0.8 * t - 4 * line, railTop + 0.5 * t}, {foot.x() - 0.8 * t, railTop + 0.5 * t});
        drawTextAt(painter, {foot.x() - 0.8 * t - 2.5 * line, railTop}, QStringLiteral("ψH · Hk"),
                   Qt::AlignHCenter | Qt::AlignBottom);
        for (const double x : {0.3, 0.5, 0.7})
            drawArrow(painter, {foot.x() + b * x, foot.y() - h - 1.5 * line}, {foot.x() + b * x, foot.y() - h});
        drawTextAt(painter, {foot.x() + b * 0.7 + line, foot.y() - h - line}, QStringLiteral("qk"),
                   Qt::AlignLeft | Qt::AlignVCenter);
        painter.setPen(ink.line);
        painter.drawText(
            QRectF(area.left() + area.width() * 0.5, area.top() + line, area.width() * 0.48, area.height() - 2 * line),
            Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap,
            QStringLiteral(
                "Vk, Hk  characteristic wheel loads, vertical and horizontal\n"
                "qk  self-weight, rail and gangway\n"
                "ψV, ψH  dynamic factors\n\n"
                "ULS  all loads with the factor of the ultimate limit state and the dynamic factors\n\n"
                "SLS  all loads with the factor of the serviceability limit state, without dynamic factors\n\n"
                "FLS  vertical loads of the moving cranes alone, with (1 + ψV) / 2, EN 1991-3, 2.12.1(7)"));
    };
}

}  // namespace borvik
