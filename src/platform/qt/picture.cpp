#include "platform/qt/picture.h"

#include <QBuffer>
#include <QPainter>
#include <QSvgGenerator>
#include <algorithm>

#include "platform/qt/qt_surface.h"
#include "platform/qt/saved_bytes.h"

namespace borvik {
namespace {

constexpr int kDotsPerInch = 96;

/// Text of a large picture grows with it, so that it stays readable when the picture is shown smaller.
double textScale(QSize pixels) {
    return std::max(1.0, pixels.width() / 1000.0);
}

QByteArray asSvg(const PictureDrawing& drawing, QSize pixels, const QString& title) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(kDotsPerInch);
    generator.setSize(pixels);
    generator.setViewBox(QRect(QPoint(), pixels));
    generator.setTitle(title);
    QPainter painter(&generator);
    QtSurface surface(painter, QRectF(QPointF(), QSizeF(pixels)), textScale(pixels));
    drawing(surface);
    painter.end();
    return bytes;
}

QByteArray asPng(const PictureDrawing& drawing, QSize pixels) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    renderPicture(drawing, pixels).save(&buffer, "PNG");
    return bytes;
}

}  // namespace

QImage renderPicture(const PictureDrawing& drawing, QSize pixels) {
    QImage image(pixels, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(kDotsPerInch / 0.0254));
    image.setDotsPerMeterY(qRound(kDotsPerInch / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    QtSurface surface(painter, QRectF(QPointF(), QSizeF(pixels)), textScale(pixels));
    drawing(surface);
    return image;
}

void savePicture(const std::string& fileName, const PictureDrawing& drawing, QSize pixels, const QString& title) {
    const bool svg = QByteArray::fromStdString(fileName).toLower().endsWith(".svg");
    saveBytes(fileName, svg ? asSvg(drawing, pixels, title) : asPng(drawing, pixels));
}

}  // namespace borvik
