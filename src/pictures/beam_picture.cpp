#include "pictures/beam_picture.h"

#include <algorithm>
#include <vector>

namespace borvik {

namespace {

/// Places of the supports along the picture, from the left end on.
std::vector<double> supportsOf(const Project& project, double left, double width) {
    std::vector<double> places{0.0};
    for (int span = 1; span <= kMaxSpans && project.Span(span) > 0; ++span)
        places.push_back(places.back() + project.Span(span));
    for (double& place : places) place = left + place / std::max(places.back(), 1.0) * width;
    return places;
}

QString sectionName(const Project& project, int span) {
    return project.SpanSection.has(span) ? QString::fromStdString(project.SpanSection(span).DisplayName).trimmed()
                                         : QString();
}

/// What stands for a section where its name has no room: A to Z, then A' and so on.
QString letter(qsizetype section) {
    constexpr int kLetters = 26;
    return QChar(u'A' + static_cast<char16_t>(section % kLetters)) + QString(section / kLetters, u'\'');
}

/// What stands at the spans: the texts of the first kind that fits every span; nothing where none does.
QStringList firstThatFits(const QFontMetrics& font, const std::vector<double>& supports,
                          const std::vector<QStringList>& kinds) {
    constexpr double kApart = 4.0;
    for (const QStringList& texts : kinds) {
        bool fits = true;
        for (qsizetype i = 0; i < texts.size(); ++i) {
            const auto span = static_cast<std::size_t>(i);
            fits = fits && font.horizontalAdvance(texts[i]) + kApart <= supports[span + 1] - supports[span];
        }
        if (fits) return texts;
    }
    return QStringList(static_cast<qsizetype>(supports.size()) - 1);
}

}  // namespace

PicturePainter beamPicture(const Project& project) {
    return [&project](QPainter& painter, const QRectF& area, const Ink& ink) {
        const QFontMetrics font = painter.fontMetrics();
        const double line = font.lineSpacing();
        const std::vector<double> supports = supportsOf(project, area.left() + line, area.width() - 2 * line);
        const int spans = static_cast<int>(supports.size()) - 1;
        if (spans == 0) return;
        QStringList names, numbers, lengths, both, legend, numbersOfNames;
        for (int span = 1; span <= spans; ++span) {
            names += sectionName(project, span);
            numbers += QString::number(span);
            lengths += QString::number(project.Span(span));
            both += QStringLiteral("%1:  %2 mm").arg(span).arg(project.Span(span));
            if (!names.last().isEmpty() && !legend.contains(names.last())) legend += names.last();
            numbersOfNames += names.last().isEmpty() ? QString() : letter(legend.indexOf(names.last()));
        }
        const QStringList above = firstThatFits(font, supports, {names, numbersOfNames});
        const QStringList below = firstThatFits(font, supports, {both, lengths, numbers});
        const bool lettered = above != names;
        const double height = 0.45 * line, whole = (lettered ? 4.0 : 3.0) * line;
        const double y = area.center().y() - whole / 2 + 1.1 * line;
        for (int i = 0; i <= spans; ++i) {
            const double x = supports[static_cast<std::size_t>(i)];
            if (i < spans) {
                const double next = supports[static_cast<std::size_t>(i) + 1];
                painter.setPen(penOf(ink.line));
                painter.setBrush(ink.steel);
                painter.drawRect(QRectF(x, y, next - x, height));
                drawTextAt(painter, {(x + next) / 2, y - 0.6 * line}, above[i]);
                painter.setPen(ink.dimension);
                drawTextAt(painter, {(x + next) / 2, y + height + line}, below[i]);
            }
            painter.setPen(penOf(ink.line));
            painter.setBrush(Qt::NoBrush);
            const QPointF top(x, y + height);
            const double half = std::min(0.4 * line, 0.3 * (supports.back() - supports.front()) / spans);
            painter.drawPolygon(QPolygonF{{top, top + QPointF(-half, 1.75 * half), top + QPointF(half, 1.75 * half)}});
        }
        if (!lettered) return;
        for (qsizetype i = 0; i < legend.size(); ++i) legend[i] = letter(i) + QStringLiteral(" = ") + legend[i];
        painter.setPen(ink.line);
        const QRectF foot(area.left(), y + 1.9 * line, area.width(), line);
        painter.drawText(
            foot, Qt::AlignLeft | Qt::AlignVCenter,
            font.elidedText(legend.join(QStringLiteral(",  ")), Qt::ElideRight, static_cast<int>(foot.width())));
    };
}

}  // namespace borvik
