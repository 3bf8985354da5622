#include "pictures/crane_pictures.h"

#include <algorithm>
#include <vector>

#include "base/number_text.h"

namespace borvik {

namespace {

constexpr double kNominalGap = 1000;  // mm, where nothing has been entered yet

// Parts of the cranes' picture, in lines of text.
constexpr double kLeftOfWheels = 4.5, kBelowBeam = 1.7, kBelowDimension = 0.35;

struct Wheel {
    int number;
    double x;  ///< mm from wheel 1
    bool present;
    QString gapText;  ///< distance from the wheel before
};

double totalOf(const Project& project, int firstGap) {
    double total = 0;
    for (int gap = firstGap; gap < firstGap + 3; ++gap) total += project.Avst(gap);
    return total;
}

/// The four wheels of a crane, from x on. A missing wheel takes a place of its own, so that its number can be read.
void placeCrane(const Project& project, int firstWheel, int firstGap, double x, double nominal,
                std::vector<Wheel>& wheels) {
    for (int i = 0; i < 4; ++i) {
        const double gap = i == 0 ? 0.0 : double(project.Avst(firstGap + i - 1));
        if (i > 0) x += gap > 0 ? gap : nominal;
        const QString text = i == 0 ? QString() : gap > 0 ? QString::fromStdString(formatNumber(gap, "0")) : QString();
        wheels.push_back({firstWheel + i, x, i == 0 || gap > 0, text});
    }
}

std::vector<Wheel> placeWheels(const Project& project, bool twoCranes) {
    const double longest = std::max({totalOf(project, 1), twoCranes ? totalOf(project, 4) : 0.0, 2 * kNominalGap});
    const double nominal = longest * 0.25;
    std::vector<Wheel> wheels;
    placeCrane(project, 1, 1, 0.0, nominal, wheels);
    if (twoCranes) {
        const double between = project.MinAvst;
        placeCrane(project, 5, 4, wheels.back().x + std::max(between, nominal), nominal, wheels);
        if (between > 0) wheels[4].gapText = QStringLiteral("≥ ") + QString::fromStdString(formatNumber(between, "0"));
    }
    return wheels;
}

void drawWheels(QPainter& painter, const QRectF& area, const Ink& ink, const std::vector<Wheel>& wheels, bool hanging) {
    const double line = painter.fontMetrics().lineSpacing();
    const double radius = line * (hanging ? 0.72 : 0.62);
    const double left = area.left() + kLeftOfWheels * line;
    const double scale = (area.width() - (kLeftOfWheels + 3) * line) / std::max(wheels.back().x, 1.0);
    const double beamHeight = line * (hanging ? 0.9 : 0.5);
    const double beamY = hanging ? area.top() + 1.5 * line : area.bottom() - kBelowBeam * line - beamHeight;
    painter.setPen(penOf(ink.line));
    painter.setBrush(ink.steel);
    painter.drawRect(QRectF(area.left(), beamY, area.width(), beamHeight));
    const double wheelY = hanging ? beamY + beamHeight + radius : beamY - radius;
    const double bodyY = hanging ? wheelY + radius + 0.2 * line : wheelY - radius - 0.9 * line;
    const double dimensionY = hanging ? bodyY + 2.2 * line : area.bottom() - kBelowDimension * line;
    // the bodies of the cranes
    for (std::size_t first = 0; first < wheels.size(); first += 4) {
        double end = wheels[first].x;
        for (std::size_t i = first; i < first + 4; ++i)
            if (wheels[i].present) end = wheels[i].x;
        painter.setBrush(ink.other);
        const QRectF body(left + wheels[first].x * scale - radius, bodyY, (end - wheels[first].x) * scale + 2 * radius,
                          0.7 * line);
        painter.drawRect(body);
        if (!hanging)
            drawTextAt(painter, {body.right() + 0.4 * line, body.center().y()},
                       QStringLiteral("Cr %1").arg(first == 0 ? 1 : 2), Qt::AlignLeft | Qt::AlignVCenter);
    }
    for (std::size_t i = 0; i < wheels.size(); ++i) {
        const Wheel& wheel = wheels[i];
        const double x = left + wheel.x * scale;
        painter.setPen(wheel.present ? penOf(ink.load, 1.6) : QPen(ink.faint, 1, Qt::DashLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(QPointF(x, wheelY), radius, radius);
        drawTextAt(painter, {x, wheelY}, QString::number(wheel.number));
        if (wheel.gapText.isEmpty()) continue;
        // a missing wheel leaves the distance to be measured from the last one that is there
        std::size_t before = i - 1;
        while (before > 0 && !wheels[before].present) --before;
        const double from = left + wheels[before].x * scale;
        painter.setPen(penOf(ink.dimension));
        for (const double mark : {from, x})
            painter.drawLine(QPointF(mark, dimensionY - 0.5 * line), QPointF(mark, dimensionY + 0.3 * line));
        drawDimension(painter, {from, dimensionY}, {x, dimensionY}, wheel.gapText);
    }
}

/// The place of a fixed crane: wheel 1 from the left end of the beam, not to scale.
void drawPosition(QPainter& painter, const QRectF& area, const Ink& ink, double position) {
    const double line = painter.fontMetrics().lineSpacing();
    const QPointF support(area.left() + 0.5 * line, area.bottom() - kBelowBeam * line);
    painter.setPen(penOf(ink.line));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolygon(
        QPolygonF{{support, support + QPointF(-0.4 * line, 0.7 * line), support + QPointF(0.4 * line, 0.7 * line)}});
    const double wheel = area.left() + kLeftOfWheels * line, y = area.bottom() - kBelowDimension * line;
    painter.setPen(penOf(ink.dimension));
    painter.drawLine(QPointF(support.x(), support.y() + 0.7 * line), QPointF(support.x(), y + 0.3 * line));
    painter.drawLine(QPointF(wheel, y - 0.5 * line), QPointF(wheel, y + 0.3 * line));
    drawDimension(painter, {support.x(), y}, {wheel, y}, QString::fromStdString(formatNumber(position, "0")));
}

}  // namespace

PicturePainter cranesPicture(const Project& project) {
    return [&project](QPainter& painter, const QRectF& area, const Ink& ink) {
        if (project.Fixerad) drawPosition(painter, area, ink, project.Position);
        drawWheels(painter, area, ink, placeWheels(project, project.NofCranes == 2), false);
    };
}

PicturePainter hoistPicture(const Project& project) {
    return [&project](QPainter& painter, const QRectF& area, const Ink& ink) {
        drawWheels(painter, area, ink, placeWheels(project, false), true);
    };
}

PicturePainter bottomFlangePicture(const Project& project) {
    return [&project](QPainter& painter, const QRectF& area, const Ink& ink) {
        const double line = painter.fontMetrics().lineSpacing();
        const double half = std::min(area.width() * 0.3, area.height() * 0.75);
        const double t = half * 0.14;
        const QPointF foot(area.center().x(), area.center().y() + 0.5 * line);  // middle of the flange's upper face
        painter.setPen(penOf(ink.line));
        painter.setBrush(ink.steel);
        painter.drawRect(QRectF(foot.x() - half, foot.y(), 2 * half, t));
        painter.drawRect(QRectF(foot.x() - t * 0.35, area.top(), t * 0.7, foot.y() - area.top()));
        // n to scale of a flange of 300 mm, within what can be seen
        const double n = std::clamp(double(project.Inn) / 150 * half, half * 0.08, half * 0.6);
        for (const double side : {-1.0, 1.0}) {
            const double contact = foot.x() + side * (half - n);
            const double width = half * 0.14, radius = half * 0.26;
            painter.setPen(penOf(ink.load, 1.5));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRectF(contact - width / 2, foot.y() - 2 * radius, width, 2 * radius));
            const double outside = foot.x() + side * (half + 1.2 * line);
            painter.drawLine(QPointF(contact, foot.y() - radius), QPointF(outside, foot.y() - radius));
            painter.drawLine(QPointF(outside, foot.y() - radius), QPointF(outside, foot.y() + t + 2.2 * line));
            painter.setPen(QPen(ink.faint, 1, Qt::DashLine));
            painter.drawLine(QPointF(contact, foot.y()), QPointF(contact, foot.y() + t + 1.4 * line));
        }
        painter.setPen(penOf(ink.load, 1.5));
        const double yoke = foot.y() + t + 2.2 * line;
        painter.drawLine(QPointF(foot.x() - half - 1.2 * line, yoke), QPointF(foot.x() + half + 1.2 * line, yoke));
        drawArrow(painter, {foot.x(), yoke}, {foot.x(), std::min(yoke + 1.6 * line, area.bottom())});
        painter.setPen(penOf(ink.dimension));
        const double at = foot.y() + t + 0.7 * line;
        const double tip = foot.x() + half, contact = tip - n;
        painter.drawLine(QPointF(tip, foot.y() + t), QPointF(tip, at + 0.4 * line));
        drawArrow(painter, {contact - line, at}, {contact, at});
        drawArrow(painter, {tip + line, at}, {tip, at});
        drawTextAt(painter, {contact - 1.2 * line, at},
                   QStringLiteral("n = %1").arg(QString::fromStdString(formatNumber(double(project.Inn), "#0"))),
                   Qt::AlignRight | Qt::AlignVCenter);
    };
}

}  // namespace borvik
