#include "pictures/moment_picture.h"

#include <QPainterPath>

namespace borvik {

PicturePainter momentPicture(MomentZone zone) {
    return [zone](QPainter& painter, const QRectF& area, const Ink& ink) {
        constexpr int kSpans = 3;
        const bool end = zone == MomentZone::EndPositive || zone == MomentZone::EndNegative;
        const bool positive = zone == MomentZone::EndPositive || zone == MomentZone::MidPositive;
        const double span = area.width() * 0.94 / kSpans, left = area.left() + area.width() * 0.03;
        const double axis = area.center().y(), rise = area.height() * 0.36;
        const double sag = positive ? rise : 0.25 * rise, hog = positive ? 0.25 * rise : rise;
        for (int i = 0; i < kSpans; ++i) {
            const double x0 = left + span * i, x1 = x0 + span;
            // drawn on the tension side: a sagging moment below the axis
            const double m0 = i == 0 ? 0.0 : -hog, m1 = i == kSpans - 1 ? 0.0 : -hog;
            QPainterPath moment(QPointF(x0, axis));
            moment.lineTo(x0, axis + m0);
            moment.quadTo((x0 + x1) / 2, axis + 2 * sag - (m0 + m1) / 2, x1, axis + m1);
            moment.lineTo(x1, axis);
            const bool marked = end ? i != 1 : i == 1;
            painter.save();
            painter.setClipRect(
                QRectF(x0, positive ? axis : area.top(), span, positive ? area.bottom() - axis : axis - area.top()));
            if (marked) painter.fillPath(moment, ink.steel);
            painter.restore();
            painter.setPen(marked ? penOf(ink.load, 1.4) : penOf(ink.faint));
            painter.setBrush(Qt::NoBrush);
            painter.drawPath(moment);
        }
        painter.setPen(penOf(ink.line, 1.4));
        painter.drawLine(QPointF(left, axis), QPointF(left + kSpans * span, axis));
        const double foot = area.height() * 0.09;
        for (int i = 0; i <= kSpans; ++i) {
            const QPointF top(left + span * i, axis);
            painter.setPen(penOf(ink.line));
            painter.drawPolygon(QPolygonF{{top, top + QPointF(-foot, 1.6 * foot), top + QPointF(foot, 1.6 * foot)}});
        }
        // The sign stands in the marked area: in mid span, or beside the first inner support.
        const double x = positive ? (end ? 0.5 : 1.5) : (end ? 0.91 : 1.09);
        drawTextAt(painter, {left + span * x, positive ? axis + 0.5 * sag : axis - 0.2 * hog},
                   positive ? QStringLiteral("+") : QStringLiteral("–"));
    };
}

}  // namespace borvik
