#include "pictures/picture.h"

#include <QtMath>
#include <cmath>

namespace borvik {

Ink inkOf(const QPalette& palette) {
    const QColor paper = palette.color(QPalette::Window);
    const bool dark = paper.lightness() < 128;
    return {.line = palette.color(QPalette::WindowText),
            .steel = dark ? QColor(88, 112, 138) : QColor(176, 196, 216),
            .other = dark ? QColor(150, 118, 70) : QColor(232, 208, 160),
            .dimension = dark ? QColor(150, 190, 240) : QColor(0, 85, 152),
            .load = dark ? QColor(255, 140, 120) : QColor(190, 40, 30),
            .weld = dark ? QColor(255, 120, 120) : QColor(200, 30, 30),
            .faint = dark ? QColor(130, 130, 130) : QColor(150, 150, 150)};
}

Picture::Picture(PicturePainter draw, int columns, int lines, QWidget* parent)
    : QWidget(parent), draw_(std::move(draw)), columns_(columns), lines_(lines) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

QSize Picture::sizeHint() const {
    return {fontMetrics().averageCharWidth() * columns_, fontMetrics().lineSpacing() * lines_};
}

void Picture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    draw_(painter, QRectF(rect()).adjusted(2, 2, -2, -2), inkOf(palette()));
}

QPixmap pictureImage(const PicturePainter& draw, const QSize& size, const QPalette& palette, qreal ratio) {
    QPixmap image(size * ratio);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    // Drawn larger and reduced, so that pens and arrow heads suit the small size.
    constexpr double kReduction = 2.2;
    painter.scale(1 / kReduction, 1 / kReduction);
    draw(painter, QRectF(QPointF(0, 0), QSizeF(size) * kReduction), inkOf(palette));
    return image;
}

QPen penOf(const QColor& colour, double weight) {
    QPen pen(colour, 1.1 * weight);
    pen.setJoinStyle(Qt::MiterJoin);
    return pen;
}

void drawArrow(QPainter& painter, const QPointF& tail, const QPointF& tip) {
    painter.drawLine(tail, tip);
    const QPointF along = tail - tip;
    const double length = std::hypot(along.x(), along.y());
    if (length < 1.0) return;
    const double head = std::min(length, painter.fontMetrics().height() * 0.55);
    const QPointF unit = along / length;
    const QPointF across(-unit.y(), unit.x());
    painter.save();
    painter.setBrush(painter.pen().color());
    const QPolygonF triangle{{tip, tip + unit * head + across * head * 0.3, tip + unit * head - across * head * 0.3}};
    painter.drawPolygon(triangle);
    painter.restore();
}

void drawDimension(QPainter& painter, const QPointF& from, const QPointF& to, const QString& text) {
    const QPointF middle = (from + to) / 2;
    drawArrow(painter, middle, from);
    drawArrow(painter, middle, to);
    const bool upright = std::abs(to.y() - from.y()) > std::abs(to.x() - from.x());
    const double gap = painter.fontMetrics().height() * 0.2;
    if (upright)
        drawTextAt(painter, middle + QPointF(gap * 1.5, 0), text, Qt::AlignLeft | Qt::AlignVCenter);
    else
        drawTextAt(painter, middle - QPointF(0, gap), text, Qt::AlignHCenter | Qt::AlignBottom);
}

void drawTextAt(QPainter& painter, const QPointF& at, const QString& text, Qt::Alignment alignment) {
    const QSizeF size = painter.fontMetrics().size(0, text);
    QRectF box(at, size);
    if (alignment.testFlag(Qt::AlignHCenter)) box.translate(-size.width() / 2, 0);
    if (alignment.testFlag(Qt::AlignRight)) box.translate(-size.width(), 0);
    if (alignment.testFlag(Qt::AlignVCenter)) box.translate(0, -size.height() / 2);
    if (alignment.testFlag(Qt::AlignBottom)) box.translate(0, -size.height());
    painter.drawText(box.adjusted(-1, -1, 1, 1), Qt::AlignCenter, text);
}

void drawFillet(QPainter& painter, const QPointF& corner, double legX, double legY) {
    painter.drawPolygon(QPolygonF{{corner, corner + QPointF(legX, 0), corner + QPointF(0, legY)}});
}

}  // namespace borvik
