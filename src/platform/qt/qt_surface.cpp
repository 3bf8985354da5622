#include "platform/qt/qt_surface.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QHash>
#include <QImage>
#include <QPolygonF>
#include <QSvgRenderer>
#include <algorithm>
#include <cmath>
#include <utility>

namespace borvik {
namespace {

QColor toQt(Colour colour) {
    return {colour.red, colour.green, colour.blue};
}

/// Asked once for each name: a report sets its font thousands of times, and the database takes long to answer.
bool isInstalled(const QString& family) {
    static QHash<QString, bool> answers;
    auto answer = answers.find(family);
    if (answer == answers.end()) answer = answers.insert(family, QFontDatabase::hasFamily(family));
    return *answer;
}

/// The font asked for, or an installed sans serif one of the same width.
QFont toQt(const Font& font, double scale) {
    const QString name = QString::fromUtf8(font.name.data(), static_cast<qsizetype>(font.name.size()));
    const bool narrow = name.endsWith(QLatin1String(" Narrow"));
    const QStringList candidates =
        narrow ? QStringList{name, QStringLiteral("Liberation Sans Narrow"), QStringLiteral("DejaVu Sans Condensed"),
                             QStringLiteral("Noto Sans Condensed")}
               : QStringList{name, QStringLiteral("Liberation Sans"), QStringLiteral("Helvetica"),
                             QStringLiteral("DejaVu Sans"), QStringLiteral("Noto Sans")};
    QFont made;
    made.setStyleHint(QFont::SansSerif);
    bool found = false;
    for (const QString& candidate : candidates)
        if (isInstalled(candidate)) {
            made.setFamily(candidate);
            found = true;
            break;
        }
    if (narrow && !found) made.setStretch(QFont::SemiCondensed);
    made.setPointSizeF(font.points * scale);
    made.setBold(font.bold);
    made.setUnderline(font.underline);
    // No ligatures: a reader of a PDF who searches "profile" must find it. Any spacing of letters turns them off.
    constexpr double kLeastSpacing = 1.0 / 64.0;
    made.setLetterSpacing(QFont::AbsoluteSpacing, kLeastSpacing);
    made.setHintingPreference(QFont::PreferNoHinting);  // extents must not jump with the size
    return made;
}

QString toQt(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// Relative luminance of a screen colour, 0 to 1 (IEC 61966-2-1).
double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

double contrast(const QColor& light, const QColor& dark) {
    return (luminance(light) + 0.05) / (luminance(dark) + 0.05);
}

}  // namespace

Ground Ground::of(const QPalette& palette) {
    const Ground screen{palette.color(QPalette::Base), palette.color(QPalette::Text)};
    return screen.isDark() ? screen : Ground{};
}

QColor Ground::area(Colour onPaper) const {
    const QColor colour = toQt(onPaper);
    if (!isDark()) return colour;
    if (onPaper == colours::white) return paper;
    const double light = ink.lightnessF() + (paper.lightnessF() - ink.lightnessF()) * colour.lightnessF();
    return QColor::fromHslF(std::max(0.0F, colour.hslHueF()), colour.hslSaturationF(), static_cast<float>(light));
}

QColor Ground::line(Colour onPaper) const {
    QColor colour = area(onPaper);
    if (!isDark() || onPaper == colours::white) return colour;
    constexpr double kLeastContrast = 4.5;
    constexpr float kStep = 0.02F;
    while (contrast(colour, paper) < kLeastContrast && colour.lightnessF() < 1.0F - kStep)
        colour =
            QColor::fromHslF(std::max(0.0F, colour.hslHueF()), colour.hslSaturationF(), colour.lightnessF() + kStep);
    return colour;
}

QtSurface::QtSurface(QPainter& painter, const QRectF& area, double textScale, Ground ground)
    : painter_(painter),
      area_(area),
      textScale_(textScale),
      ground_(std::move(ground)),
      pen_(ground_.ink),
      metrics_(painter.font(), painter.device()) {
    painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter_.setBrush(Qt::NoBrush);
    applyPen();
    QtSurface::setFont({});
}

QPointF QtSurface::toArea(Place place) const {
    return {area_.left() + (place.x - frame_.left()) / frame_.width() * area_.width(),
            area_.top() + (place.y - frame_.top()) / frame_.height() * area_.height()};
}

Place QtSurface::toLogical(QPointF place) const {
    return {frame_.left() + (place.x() - area_.left()) / area_.width() * frame_.width(),
            frame_.top() + (place.y() - area_.top()) / area_.height() * frame_.height()};
}

void QtSurface::applyPen() {
    pen_.setCapStyle(Qt::FlatCap);
    pen_.setJoinStyle(Qt::RoundJoin);
    painter_.setPen(pen_);
}

void QtSurface::scale(double left, double top, double right, double bottom) {
    frame_ = QRectF(QPointF(left, top), QPointF(right, bottom));
}

void QtSurface::line(Place from, Place to) {
    painter_.drawLine(toArea(from), toArea(to));
}

void QtSurface::polyline(std::span<const Place> places) {
    QPolygonF polygon;
    for (const Place place : places) polygon << toArea(place);
    painter_.drawPolyline(polygon);
}

void QtSurface::polygon(std::span<const Place> places, Colour fill) {
    QPolygonF polygon;
    for (const Place place : places) polygon << toArea(place);
    painter_.save();
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(ground_.area(fill));
    painter_.drawPolygon(polygon, Qt::WindingFill);
    painter_.restore();
}

void QtSurface::rectangle(Place corner, Place opposite) {
    painter_.drawRect(QRectF(toArea(corner), toArea(opposite)).normalized());
}

void QtSurface::picture(Place corner, Place opposite, const std::string& file) {
    const QRectF box = QRectF(toArea(corner), toArea(opposite)).normalized();
    const auto fitted = [&box](QSizeF size) {
        QRectF room(QPointF(), size.scaled(box.size(), Qt::KeepAspectRatio));
        room.moveCenter(box.center());
        return room;
    };
    const QString name = QString::fromStdString(file);
    if (name.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)) {
        QSvgRenderer drawing(name);
        if (drawing.isValid()) drawing.render(&painter_, fitted(drawing.defaultSize()));
        return;
    }
    const QImage image(name);
    if (!image.isNull()) painter_.drawImage(fitted(image.size()), image);
}

void QtSurface::circle(Place centre, double radius) {
    const double onArea = radius / frame_.height() * area_.height();
    painter_.drawEllipse(toArea(centre), onArea, onArea);
}

void QtSurface::text(Place corner, std::string_view text, TextDirection direction) {
    const QPointF at = toArea(corner);
    if (direction == TextDirection::Across) {
        painter_.drawText(QPointF(at.x(), at.y() + metrics_.ascent()), toQt(text));
        return;
    }
    painter_.save();
    painter_.translate(at.x(), at.y() + metrics_.horizontalAdvance(toQt(text)));
    painter_.rotate(-90.0);
    painter_.drawText(QPointF(0.0, metrics_.ascent()), toQt(text));
    painter_.restore();
}

Extent QtSurface::extent(std::string_view text, TextDirection direction) const {
    const QString whole = toQt(text);
    auto wide = advances_.find(whole);
    if (wide == advances_.end()) wide = advances_.insert(whole, metrics_.horizontalAdvance(whole));
    const double high = metrics_.height();
    const double unitsX = frame_.width() / area_.width();
    const double unitsY = frame_.height() / area_.height();
    if (direction == TextDirection::Across) return {*wide * unitsX, high * unitsY};
    return {high * unitsX, *wide * unitsY};
}

const FormulaBox& QtSurface::laid(std::string_view tex) const {
    const QString whole = toQt(tex);
    auto found = formulas_.find(whole);
    if (found == formulas_.end())
        found = formulas_.insert(
            whole, layFormula(readFormula(whole), painter_.font(), painter_.device(), FormulaStyle::Display));
    return *found;
}

DrawingSurface::FormulaExtent QtSurface::formulaExtent(std::string_view tex) const {
    const FormulaBox& box = laid(tex);
    const double unitsX = frame_.width() / area_.width(), unitsY = frame_.height() / area_.height();
    return {(box.width + box.overhang) * unitsX, box.ascent * unitsY, box.descent * unitsY};
}

void QtSurface::formula(Place start, std::string_view tex) {
    drawFormula(painter_, laid(tex), toArea(start));
}

void QtSurface::setFont(const Font& font) {
    const QFont wanted = toQt(font, textScale_);
    if (wanted == painter_.font()) return;
    painter_.setFont(wanted);
    metrics_ = QFontMetricsF(painter_.font(), painter_.device());
    advances_.clear();
    formulas_.clear();
}

void QtSurface::setColour(Colour colour) {
    pen_.setColor(ground_.line(colour));
    applyPen();
}

void QtSurface::setFill(std::optional<Colour> fill) {
    if (fill)
        painter_.setBrush(ground_.area(*fill));
    else
        painter_.setBrush(Qt::NoBrush);
}

void QtSurface::setPenWidth(double width) {
    pen_.setWidthF(width);
    applyPen();
}

void QtSurface::setDashed(bool dashed) {
    pen_.setStyle(dashed ? Qt::DashLine : Qt::SolidLine);
    applyPen();
}

double QtSurface::unitsPerMillimetre() const {
    return painter_.device()->logicalDpiX() / 25.4;
}

}  // namespace borvik
