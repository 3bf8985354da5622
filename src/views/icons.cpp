#include "views/icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace borvik {

namespace {

const QColor kInk(0x3b, 0x7d, 0xc4);      // blue that stands out on white and on dark grey
const QColor kWarning(0xe0, 0x8a, 0x00);  // amber
const QColor kFail(0xd8, 0x2c, 0x2c);     // red
const QColor kGood(0x2e, 0x9e, 0x4f);     // green

void drawSign(QPainter& painter, const QColor& colour) {
    QPainterPath triangle;
    triangle.moveTo(8, 1.5);
    triangle.lineTo(15, 14.5);
    triangle.lineTo(1, 14.5);
    triangle.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.fillPath(triangle, colour);
    painter.setPen(QPen(Qt::white, 1.8, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(8, 6), QPointF(8, 10));
    painter.drawPoint(QPointF(8, 12.6));
}

/// Draws on a field of 16 by 16.
void draw(QPainter& painter, Picture picture, const QColor& ink) {
    painter.setPen(QPen(ink, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (picture) {
        case Picture::Form:
            painter.drawRoundedRect(QRectF(2, 2, 12, 12), 1.5, 1.5);
            for (const double y : {5.0, 8.0, 11.0}) {
                painter.drawLine(QPointF(4.5, y), QPointF(6, y));
                painter.drawLine(QPointF(8, y), QPointF(11.5, y));
            }
            break;
        case Picture::Table:
            painter.drawRect(QRectF(2, 3, 12, 10));
            painter.drawLine(QPointF(2, 6.3), QPointF(14, 6.3));
            painter.drawLine(QPointF(2, 9.6), QPointF(14, 9.6));
            painter.drawLine(QPointF(7, 3), QPointF(7, 13));
            break;
        case Picture::Diagram: {
            painter.drawLine(QPointF(1.5, 6), QPointF(14.5, 6));
            QPainterPath curve(QPointF(2, 6));
            curve.cubicTo(5, 17, 11, 17, 14, 6);
            painter.drawPath(curve);
            break;
        }
        case Picture::Printer:
            painter.drawRect(QRectF(4.5, 2, 7, 4));
            painter.drawRoundedRect(QRectF(1.5, 6, 13, 5.5), 1, 1);
            painter.drawRect(QRectF(4.5, 9.5, 7, 4.5));
            break;
        case Picture::OverLimit:
            drawSign(painter, kFail);
            break;
        case Picture::OutOfDate:
            drawSign(painter, kWarning);
            break;
        case Picture::Good:
            painter.setPen(QPen(kGood, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
            painter.drawPolyline(QPolygonF{{2.5, 8.5}, {6.5, 12.5}, {13.5, 3.5}});
            break;
    }
}

class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(Picture picture) : picture_(picture) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (mode == QIcon::Disabled) painter->setOpacity(0.4);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / 16.0, rect.height() / 16.0);
        // On the bar of a chosen row or menu entry, blue like the ink, the picture takes the colour of the words.
        const bool chosen = mode == QIcon::Selected || mode == QIcon::Active;
        draw(*painter, picture_, chosen ? QApplication::palette().color(QPalette::HighlightedText) : kInk);
        painter->restore();
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }
    [[nodiscard]] QIconEngine* clone() const override { return new PictureEngine(picture_); }

private:
    Picture picture_;
};

}  // namespace

QIcon pictureIcon(Picture picture) {
    return QIcon(new PictureEngine(picture));
}

QIcon themeIcon(const char* name, QStyle::StandardPixmap otherwise) {
    return QIcon::fromTheme(QString::fromLatin1(name), QApplication::style()->standardIcon(otherwise));
}

QColor overLimitColour(const QPalette& palette) {
    return palette.color(QPalette::Base).lightness() < 128 ? QColor(0xff, 0x7a, 0x70) : QColor(0xff, 0, 0);
}

}  // namespace borvik
