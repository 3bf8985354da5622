#include "pictures/beam_picture.h"

namespace borvik {

PicturePainter beamPicture(const Project& project) {
    return [&project](QPainter& painter, const QRectF& area, const Ink& ink) {
        double total = 0;
        int spans = 0;
        while (spans < kMaxSpans && project.Span(spans + 1) > 0) total += project.Span(++spans);
        if (spans == 0) return;
        const double line = painter.fontMetrics().lineSpacing();
        const double scale = (area.width() - 2 * line) / total;
        const double y = area.center().y(), height = 0.45 * line;
        const auto support = [&](double x) {
            painter.setPen(penOf(ink.line));
            painter.setBrush(Qt::NoBrush);
            const QPointF top(x, y + height);
            painter.drawPolygon(
                QPolygonF{{top, top + QPointF(-0.4 * line, 0.7 * line), top + QPointF(0.4 * line, 0.7 * line)}});
        };
        double x = area.left() + line;
        support(x);
        for (int span = 1; span <= spans; ++span) {
            const double width = project.Span(span) * scale;
            painter.setPen(penOf(ink.line));
            painter.setBrush(ink.steel);
            painter.drawRect(QRectF(x, y, width, height));
            const auto label = [&](const QString& text, double at) {
                if (painter.fontMetrics().horizontalAdvance(text) < width - 0.9 * line)
                    drawTextAt(painter, {x + width / 2, at}, text);
            };
            painter.setPen(ink.line);
            if (project.SpanSection.has(span))
                label(QString::fromStdString(project.SpanSection(span).DisplayName), y - 0.8 * line);
            painter.setPen(ink.dimension);
            label(QStringLiteral("%1:  %2 mm").arg(span).arg(project.Span(span)), y + height + 0.7 * line);
            x += width;
            support(x);
        }
    };
}

}  // namespace borvik
