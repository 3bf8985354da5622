#include "pictures/section_picture.h"

#include <QPainterPath>
#include <algorithm>

#include "base/number_text.h"

namespace borvik {

namespace {

/// Maps millimetres of a section, y upwards from its underside and x from the middle of its web, to the picture.
struct Frame {
    QPointF foot;
    double scale;
    [[nodiscard]] QPointF at(double x, double y) const { return {foot.x() + x * scale, foot.y() - y * scale}; }
    [[nodiscard]] QRectF plate(double left, double bottom, double width, double height) const {
        return {at(left, bottom + height), QSizeF(width * scale, height * scale)};
    }
};

QString dimensionText(const char* symbol, double value, const char* mask) {
    return QString::fromUtf8(symbol) + QString::fromStdString(formatNumber(value, mask)) + QStringLiteral(" mm");
}

/// One piece, its roots rounded between web and flanges.
QPainterPath rolledOutline(const Frame& frame, const SectionRecord& s) {
    const double h = s.h, b1 = s.b1, b2 = s.b2, tw = s.tw, tf1 = s.tf1, tf2 = s.tf2, R = s.R;
    QPainterPath outline(frame.at(-b1 / 2, h));
    const auto lineTo = [&](double x, double y) { outline.lineTo(frame.at(x, y)); };
    const auto root = [&](double side, double y, double fromAngle) {
        const QPointF centre = frame.at(side * (tw / 2 + R), y), corner(R * frame.scale, R * frame.scale);
        outline.arcTo(QRectF(centre - corner, centre + corner), fromAngle, 90);
    };
    lineTo(b1 / 2, h);
    lineTo(b1 / 2, h - tf1);
    root(1, h - tf1 - R, 90);
    root(1, tf2 + R, 180);
    lineTo(b2 / 2, tf2);
    lineTo(b2 / 2, 0);
    lineTo(-b2 / 2, 0);
    lineTo(-b2 / 2, tf2);
    root(-1, tf2 + R, 270);
    root(-1, h - tf1 - R, 0);
    lineTo(-b1 / 2, h - tf1);
    outline.closeSubpath();
    return outline;
}

/// A rolled section is one piece; a welded one three plates with their welds.
void drawSection(QPainter& painter, const Frame& frame, const SectionRecord& s, const Ink& ink) {
    const double h = s.h, b1 = s.b1, b2 = s.b2, tw = s.tw, tf1 = s.tf1, tf2 = s.tf2;
    painter.setPen(penOf(ink.line, 1.2));
    painter.setBrush(ink.steel);
    if (s.Fab != "W" && s.R > 0) {
        painter.drawPath(rolledOutline(frame, s));
        return;
    }
    painter.drawRect(frame.plate(-tw / 2, tf2, tw, h - tf1 - tf2));
    painter.drawRect(frame.plate(-b2 / 2, 0, b2, tf2));
    painter.drawRect(frame.plate(-b1 / 2, h - tf1, b1, tf1));
    const double leg = s.R * frame.scale;
    painter.setBrush(ink.weld);
    painter.setPen(penOf(ink.weld));
    for (const double side : {-1.0, 1.0}) {
        drawFillet(painter, frame.at(side * tw / 2, h - tf1), side * leg, leg);
        drawFillet(painter, frame.at(side * tw / 2, tf2), side * leg, -leg);
    }
}

/// Two plates: at the tips of the top flange from its mid-plane down, or under it, flush with its tips.
void drawPlates(QPainter& painter, const Frame& frame, const SectionRecord& s, const Ink& ink) {
    if (!s.Reinforced) return;
    const bool under = s.ReinfText == "PL2";
    const double t = s.ReinfT, d = s.ReinfD, half = s.b1 / 2;
    const double top = under ? s.h - s.tf1 : s.h - s.tf1 / 2;
    painter.setPen(penOf(ink.line, 1.2));
    painter.setBrush(ink.other);
    for (const double side : {-1.0, 1.0}) {
        const double inner = side * (under ? half - t : half), outer = side * (under ? half : half + t);
        painter.drawRect(frame.plate(std::min(inner, outer), top - d, t, d));
    }
}

void drawLoadPoint(QPainter& painter, const Frame& frame, const SectionRecord& s, LoadPoint level, const Ink& ink) {
    const double line = painter.fontMetrics().lineSpacing();
    const double heights[] = {double(s.h), double(s.h), s.EzEl + s.Zs, double(s.tf2)};
    QPointF tip = frame.at(0, heights[std::clamp(static_cast<int>(level), 1, 4) - 1]);
    if (level == LoadPoint::TopOfRail) {  // the load stands on a rail
        const QRectF rail(tip.x() - 0.5 * line, tip.y() - line, line, line);
        painter.setPen(penOf(ink.line));
        painter.setBrush(ink.other);
        painter.drawRect(rail);
        tip.ry() -= line;
    }
    if (level == LoadPoint::BottomFlange) tip.rx() -= std::min(s.b1, s.b2) * 0.35 * frame.scale;
    painter.setPen(penOf(ink.load, 2));
    drawArrow(painter, tip - QPointF(0, 2.2 * line), tip);
}

}  // namespace

PicturePainter sectionPicture(const SectionRecord& section, const Project& project) {
    return [&section, &project](QPainter& painter, const QRectF& area, const Ink& ink) {
        const double h = section.h, widest = std::max(double(section.b1), double(section.b2));
        if (h <= 0 || widest <= 0) return;
        const double line = painter.fontMetrics().lineSpacing();
        const QString ofFlange = dimensionText("tf = ", section.tf1, "0.0");
        const QString ofWeb = dimensionText("tw = ", section.tw, "0.0");
        const double wordy = painter.fontMetrics().horizontalAdvance(ofFlange) + line;
        // The thicknesses stand between the flanges where those are wide enough, else at the left of the section.
        const double across = widest + 2 * section.ReinfT;
        const auto scaleWith = [&](double left) {
            return std::min((area.width() - left - 7 * line) / across, (area.height() - 8 * line) / h);
        };
        const double clear = (std::min(section.b1, section.b2) - section.tw) / 2;
        const bool within = !section.Reinforced && section.Id != "Iu" && clear * scaleWith(line) > wordy;
        const double leftOf = within ? line : 7 * line;
        const double scale = scaleWith(leftOf);
        const QRectF room = area.adjusted(leftOf, 5 * line, -7 * line, -3 * line);
        const Frame frame{{room.center().x(), room.center().y() + h * scale / 2}, scale};
        drawSection(painter, frame, section, ink);
        drawPlates(painter, frame, section, ink);
        drawLoadPoint(painter, frame, section, project.LoadLevel, ink);

        painter.setPen(penOf(ink.dimension));
        const double right = widest / 2 * scale + section.ReinfT * scale + 1.2 * line;
        const QPointF top = frame.at(0, h), foot = frame.at(0, 0);
        drawDimension(painter, top + QPointF(right, 0), foot + QPointF(right, 0), dimensionText("H = ", h, "0"));
        const double half1 = section.b1 / 2 * scale;
        const double above = top.y() - (project.LoadLevel <= LoadPoint::TopFlange ? 3.6 : 1.0) * line;
        drawDimension(painter, {top.x() - half1, above}, {top.x() + half1, above},
                      dimensionText("B = ", section.b1, "0"));
        const double left = foot.x() - widest / 2 * scale - section.ReinfT * scale - 0.5 * line;
        const auto note = [&](const QPointF& to, const QString& text) {
            painter.setPen(penOf(ink.faint));
            painter.drawLine(QPointF(left, to.y()), to);
            painter.setPen(penOf(ink.dimension));
            drawTextAt(painter, {left, to.y()}, text, Qt::AlignRight | Qt::AlignVCenter);
        };
        if (within) {
            const double x = frame.at(-section.tw / 2 - clear / 2, 0).x(), y = frame.at(0, h / 2).y();
            drawTextAt(painter, {x, y - 0.6 * line}, ofFlange);
            drawTextAt(painter, {x, y + 0.6 * line}, ofWeb);
        } else {
            note(frame.at(-section.b1 / 2, h - section.tf1 / 2), ofFlange);
            note(frame.at(-section.tw / 2, h / 2), ofWeb);
        }
        if (section.Id != "Iu") return;
        note(frame.at(-section.b2 / 2, section.tf2 / 2), dimensionText("tf2 = ", section.tf2, "0.0"));
        const double half2 = section.b2 / 2 * scale, below = foot.y() + 2.2 * line;
        drawDimension(painter, {foot.x() - half2, below}, {foot.x() + half2, below},
                      dimensionText("b2 = ", section.b2, "0"));
    };
}

PicturePainter reinforcementPicture(const SectionRecord& section) {
    return [&section](QPainter& painter, const QRectF& area, const Ink& ink) {
        const double h = section.h, b = section.b1, t = section.ReinfT, d = section.ReinfD;
        if (h <= 0 || b <= 0) return;
        const double line = painter.fontMetrics().lineSpacing();
        const QRectF room = area.adjusted(2 * line, 2 * line, -8 * line, -3 * line);
        const double scale = std::min(room.width() / (b + 2 * t), room.height() / (0.75 * h));
        // the bottom of the section lies outside: only its upper part matters here
        const Frame frame{{room.center().x(), room.top() + h * scale}, scale};
        painter.save();
        painter.setClipRect(area.adjusted(0, 0, 0, -line));
        drawSection(painter, frame, section, ink);
        drawPlates(painter, frame, section, ink);
        painter.restore();
        if (!section.Reinforced) return;
        const bool under = section.ReinfText == "PL2";
        const double outer = (b / 2 + (under ? 0 : t)) * scale, top = under ? h - section.tf1 : h - section.tf1 / 2;
        painter.setPen(penOf(ink.dimension));
        const double x = frame.foot.x() + outer + line;
        drawDimension(painter, {x, frame.at(0, top).y()}, {x, frame.at(0, top - d).y()},
                      dimensionText("hr = ", d, "0"));
        const QPointF at = frame.at(b / 2 - (under ? t : 0), top - d);
        drawArrow(painter, at + QPointF(-1.5 * line, line), at + QPointF(0, line));
        drawArrow(painter, at + QPointF(t * scale + 1.5 * line, line), at + QPointF(t * scale, line));
        const QString thickness = dimensionText("tr = ", t, "0.0");
        const double most = area.right() - painter.fontMetrics().horizontalAdvance(thickness);
        drawTextAt(painter, {std::min(at.x() + 0.5 * line, most), at.y() + 1.8 * line}, thickness,
                   Qt::AlignLeft | Qt::AlignVCenter);
    };
}

PicturePainter endPostPicture(EndPost endPost) {
    return [endPost](QPainter& painter, const QRectF& area, const Ink& ink) {
        const double line = painter.fontMetrics().lineSpacing();
        const double flange = 0.3 * line, support = 0.7 * line;
        const double height = area.height() - support - 0.2 * line, length = std::min(area.width(), 2.2 * height);
        const QRectF beam(area.center().x() - length / 2, area.top(), length, height);
        painter.setPen(penOf(ink.line));
        painter.setBrush(ink.steel);
        painter.drawRect(beam);
        painter.drawRect(QRectF(beam.left(), beam.top(), length, flange));
        painter.drawRect(QRectF(beam.left(), beam.bottom() - flange, length, flange));
        const double overSupport = beam.left() + 0.3 * height;
        painter.setBrush(ink.other);
        const auto stiffener = [&](double x) {
            painter.drawRect(QRectF(x - 0.12 * line, beam.top() + flange, 0.24 * line, height - 2 * flange));
        };
        stiffener(overSupport);
        if (endPost == EndPost::Rigid) stiffener(beam.left() + 0.12 * line);
        const QPointF foot(overSupport, beam.bottom());
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(
            QPolygonF{{foot, foot + QPointF(-0.6 * support, support), foot + QPointF(0.6 * support, support)}});
    };
}

}  // namespace borvik
