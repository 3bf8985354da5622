#pragma once

#include <QPainter>
#include <QWidget>
#include <functional>

namespace borvik {

/// The colours of an explanatory picture, made of a palette so that it reads on light and on dark.
struct Ink {
    QColor line;       ///< outlines and text
    QColor steel;      ///< fill of a section or a beam
    QColor other;      ///< fill of what is fastened to it: rail, plates, stiffeners
    QColor dimension;  ///< dimension lines
    QColor load;       ///< wheels and forces
    QColor weld;
    QColor faint;  ///< axes, grid, what is in the background
};

[[nodiscard]] Ink inkOf(const QPalette& palette);

/// Draws a picture into an area. All sizes follow the area and the font, so that it is crisp at any scale.
using PicturePainter = std::function<void(QPainter& painter, const QRectF& area, const Ink& ink)>;

/// A picture on a form. It asks its painter anew at each repaint, so `update()` lets it follow entered values.
class Picture : public QWidget {
public:
    /// @param columns,lines  size wished for, in average characters and lines of text
    Picture(PicturePainter draw, int columns, int lines, QWidget* parent = nullptr);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint() * 0.7; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    PicturePainter draw_;
    int columns_;
    int lines_;
};

/// The picture as an image for a button, `size` in device independent pixels.
[[nodiscard]] QPixmap pictureImage(const PicturePainter& draw, const QSize& size, const QPalette& palette, qreal ratio);

// Strokes that the pictures share.

/// Pen of an outline; `weight` in multiples of a hair line.
[[nodiscard]] QPen penOf(const QColor& colour, double weight = 1.0);
/// An arrow from `tail` to `tip`.
void drawArrow(QPainter& painter, const QPointF& tail, const QPointF& tip);
/// A dimension line between two points with arrow heads and its text beside the middle.
void drawDimension(QPainter& painter, const QPointF& from, const QPointF& to, const QString& text);
/// Text centred on a point; `alignment` says which side of the text the point is.
void drawTextAt(QPainter& painter, const QPointF& at, const QString& text, Qt::Alignment alignment = Qt::AlignCenter);
/// A fillet weld: the triangle in the corner, `toX`, `toY` the signs of the legs.
void drawFillet(QPainter& painter, const QPointF& corner, double legX, double legY);

}  // namespace borvik
