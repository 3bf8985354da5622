#include "formulas/formula_layout.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPathStroker>
#include <QPolygonF>
#include <QTransform>
#include <algorithm>
#include <cmath>

namespace borvik {

namespace {

using Kind = FormulaPart::Kind;

// Sizes as parts of that around.
constexpr double kScriptSize = 0.7;
constexpr double kSmallFractionSize = 0.85;
constexpr double kSumSize = 1.5;
constexpr double kSmallestSize = 0.5;  // times the font size

// Room, in em.
constexpr double kSignRoom = 0.22;
constexpr double kTightSignRoom = 0.05;
constexpr double kCommaRoom = 0.17;
constexpr double kBracketRoom = 0.06;  // of stretched ones
constexpr double kFractionSide = 0.08;
constexpr double kBarOverlap = 0.08;
constexpr double kBarGap = 0.14;
constexpr double kOverlineGap = 0.09;
constexpr double kRootGap = 0.12;
constexpr double kLimitGap = 0.1;
constexpr double kScriptGap = 0.22;

// Shifts of baselines, in em.
constexpr double kPowerRise = 0.42;
constexpr double kIndexDrop = 0.18;

/// Fonts of one size, and the lengths that follow from it.
struct Size {
    Size(const QFont& font, double scale, const QPaintDevice* device) : upright(font) {
        if (font.pointSizeF() > 0.0) {
            upright.setPointSizeF(font.pointSizeF() * scale);
        } else {
            upright.setPixelSize(std::max(1, int(std::lround(font.pixelSize() * scale))));
        }
        upright.setItalic(false);
        slanted = upright;
        slanted.setItalic(true);
        const QFontMetricsF metrics(upright, device);
        em = 0.86 * metrics.height();
        axis = -metrics.tightBoundingRect("−").center().y();
        rule = std::max(1.0, std::round(0.06 * em));
    }

    QFont upright, slanted;
    double em = 0.0;
    double axis = 0.0;  ///< middle of the minus above the baseline
    double rule = 0.0;  ///< thickness of bars
};

void addShape(FormulaBox& box, const QPainterPath& shape) {
    box.shapes.setFillRule(Qt::WindingFill);
    box.shapes.addPath(shape);
}

void addBar(FormulaBox& box, double x, double top, double width, double thickness) {
    QPainterPath bar;
    bar.addRect(x, top, width, thickness);
    addShape(box, bar);
    box.ascent = std::max(box.ascent, -top);
    box.descent = std::max(box.descent, top + thickness);
    box.width = std::max(box.width, x + width);
}

/// @param y  of the part's baseline below that of the box
void place(FormulaBox& box, const FormulaBox& part, double x, double y) {
    if (part.width <= 0.0) return;
    for (const FormulaBox::Symbols& each : part.symbols)
        box.symbols.push_back({each.at + QPointF(x, y), each.text, each.font});
    addShape(box, part.shapes.translated(x, y));
    box.ascent = std::max(box.ascent, part.ascent - y);
    box.descent = std::max(box.descent, part.descent + y);
    box.width = std::max(box.width, x + part.width);
}

void append(FormulaBox& box, const FormulaBox& part) {
    place(box, part, box.width, 0.0);
    box.overhang = part.overhang;
}

class Setter {
public:
    Setter(const QFont& font, const QPaintDevice* device, FormulaStyle style)
        : font_(font), device_(device), style_(style) {}

    /// @param scale  size of the font over that of the text
    /// @param tight  within an index or a power, where little room is left around signs
    [[nodiscard]] FormulaBox set(const FormulaPart& part, double scale, bool tight) const {
        const Size size(font_, scale, device_);
        switch (part.kind) {
            case Kind::Row:
                return row(part, scale, tight);
            case Kind::Letter:
                return symbols(part.text, size.slanted);
            case Kind::Text:
                return symbols(part.text, size.upright);
            case Kind::Sign: {
                const double room = (tight ? kTightSignRoom : kSignRoom) * size.em;
                return widened(symbols(part.text, size.upright), room, room);
            }
            case Kind::Gap:
                return widened({}, 0.0, part.width * size.em);
            case Kind::Sum:
                return sum(part.text, scale);
            case Kind::Fraction:
                return fraction(part, scale, tight);
            case Kind::Root:
                return root(part, scale, tight);
            case Kind::Bar:
                return overlined(part, scale, tight);
            case Kind::Fenced:
                return fenced(part, scale, tight);
            case Kind::Scripts:
                return part.parts[0].kind == Kind::Sum ? limits(part, scale) : scripts(part, scale, tight);
        }
        return {};
    }

private:
    [[nodiscard]] FormulaBox symbols(const QString& text, const QFont& font) const {
        if (text.isEmpty()) return {};
        const QFontMetricsF metrics(font, device_);
        const QRectF ink = metrics.tightBoundingRect(text);
        FormulaBox box;
        const double left = std::max(0.0, -ink.left());  // nothing reaches into what stands before it
        box.width = left + metrics.horizontalAdvance(text);
        box.ascent = std::max(0.0, -ink.top());
        box.descent = std::max(0.0, ink.bottom());
        box.overhang = std::max(0.0, left + ink.right() - box.width);
        box.symbols.push_back({QPointF(left, 0.0), text, font});
        return box;
    }

    [[nodiscard]] static FormulaBox widened(const FormulaBox& inside, double left, double right) {
        FormulaBox box;
        place(box, inside, left, 0.0);
        box.width += right;
        return box;
    }

    [[nodiscard]] FormulaBox row(const FormulaPart& part, double scale, bool tight) const {
        FormulaBox box;
        const double commaRoom = tight ? 0.0 : kCommaRoom * Size(font_, scale, device_).em;
        for (const FormulaPart& each : part.parts) {
            append(box, set(each, scale, tight));
            if (each.text == "," && &each != &part.parts.back()) box.width += commaRoom;
        }
        return box;
    }

    [[nodiscard]] static double smaller(double scale, double factor) { return std::max(scale * factor, kSmallestSize); }

    [[nodiscard]] FormulaBox fraction(const FormulaPart& part, double scale, bool tight) const {
        const bool small = style_ == FormulaStyle::Inline || tight;
        const double inner = small ? smaller(scale, kSmallFractionSize) : scale;
        const Size size(font_, scale, device_);
        const Size innerSize(font_, inner, device_);
        const FormulaBox upper = set(part.parts[0], inner, tight);
        const FormulaBox lower = set(part.parts[1], inner, tight);
        const double side = kFractionSide * size.em;
        const double width = std::max(upper.width, lower.width) + 2.0 * kBarOverlap * size.em;
        const double top = std::round(-size.axis - size.rule / 2.0);
        const double gap = kBarGap * innerSize.em;
        // Numbers without descent and letters without ascent keep the baselines of those beside them.
        const double up = gap + std::max(upper.descent, kIndexDrop * innerSize.em);
        const double down = gap + std::max(lower.ascent, 0.72 * innerSize.em);
        FormulaBox box;
        place(box, upper, side + (width - upper.width) / 2.0, top - up);
        place(box, lower, side + (width - lower.width) / 2.0, top + size.rule + down);
        addBar(box, side, top, width, size.rule);
        box.width = width + 2.0 * side;
        return box;
    }

    [[nodiscard]] FormulaBox root(const FormulaPart& part, double scale, bool tight) const {
        const Size size(font_, scale, device_);
        const FormulaBox inside = set(part.parts[0], scale, tight);
        const FormulaBox degree = set(part.parts[1], smaller(scale, 0.6), true);
        const double signWidth = 0.6 * size.em;
        const double left = std::max(0.0, degree.width - 0.3 * size.em);
        const double top = std::round(-std::max(inside.ascent, 0.72 * size.em) - kRootGap * size.em - size.rule);
        const double bottom = inside.descent + 0.04 * size.em;
        const double knee = bottom - std::min(0.55 * size.em, 0.55 * (bottom - top));
        const double right = left + signWidth + inside.width + inside.overhang + 0.1 * size.em;
        const double half = size.rule / 2.0;
        QPainterPath line;
        line.addPolygon(QPolygonF({{left + half, knee + 0.07 * size.em},
                                   {left + 0.15 * size.em, knee},
                                   {left + 0.3 * size.em, bottom - half},
                                   {left + signWidth - 0.05 * size.em, top + half},
                                   {right, top + half}}));
        QPainterPathStroker pen;
        pen.setWidth(size.rule);
        pen.setCapStyle(Qt::FlatCap);
        pen.setJoinStyle(Qt::MiterJoin);
        pen.setMiterLimit(1.5);
        FormulaBox box;
        addShape(box, pen.createStroke(line));
        place(box, inside, left + signWidth, 0.0);
        place(box, degree, 0.0, knee - 0.12 * size.em);
        box.ascent = std::max(box.ascent, -top);
        box.descent = std::max(box.descent, bottom);
        box.width = right + 0.05 * size.em;
        return box;
    }

    [[nodiscard]] FormulaBox overlined(const FormulaPart& part, double scale, bool tight) const {
        const Size size(font_, scale, device_);
        FormulaBox box = set(part.parts[0], scale, tight);
        const double inset = 0.06 * size.em;
        const double top = std::round(-box.ascent - kOverlineGap * size.em - size.rule);
        addBar(box, inset, top, box.width - 2.0 * inset, size.rule);
        return box;
    }

    [[nodiscard]] FormulaBox fenced(const FormulaPart& part, double scale, bool tight) const {
        const Size size(font_, scale, device_);
        const FormulaBox inside = set(part.parts[0], scale, tight);
        const double half = std::max(inside.ascent - size.axis, inside.descent + size.axis);
        FormulaBox box = bracket(part.text, size, half);
        append(box, inside);
        append(box, bracket(part.closing, size, half));
        return box;
    }

    /// A bracket about the axis, stretched if it isn't high enough.
    /// @param half  height to cover above the axis and below
    [[nodiscard]] FormulaBox bracket(const QString& text, const Size& size, double half) const {
        FormulaBox asItIs = symbols(text, size.upright);
        if (text.isEmpty() || half <= std::max(asItIs.ascent - size.axis, asItIs.descent + size.axis)) return asItIs;
        constexpr int kPixels = 100;
        QFont font = size.upright;
        font.setPixelSize(kPixels);
        QPainterPath outline;
        outline.addText(0.0, 0.0, font, text);
        const QRectF from = outline.boundingRect();
        const double thickness = asItIs.width / QFontMetricsF(font).horizontalAdvance(text);
        QTransform stretch;
        stretch.translate(0.0, -size.axis);
        stretch.scale(thickness, 2.0 * half / from.height());
        stretch.translate(0.0, -from.center().y());
        FormulaBox box;
        addShape(box, stretch.map(outline));
        box.width = asItIs.width;
        box.ascent = half + size.axis;
        box.descent = half - size.axis;
        return widened(box, kBracketRoom * size.em, kBracketRoom * size.em);
    }

    [[nodiscard]] FormulaBox scripts(const FormulaPart& part, double scale, bool tight) const {
        const Size size(font_, scale, device_);
        const FormulaBox base = set(part.parts[0], scale, tight);
        const FormulaBox index = set(part.parts[1], smaller(scale, kScriptSize), true);
        const FormulaBox power = set(part.parts[2], smaller(scale, kScriptSize), true);
        const Kind kind = part.parts[0].kind;
        const bool high = kind == Kind::Fenced || kind == Kind::Fraction || kind == Kind::Root || kind == Kind::Row;
        double rise = kPowerRise * size.em;
        double drop = kIndexDrop * size.em;
        if (high) {
            rise = std::max(rise, base.ascent - 0.6 * power.ascent);
            drop = std::max(drop, base.descent - 0.2 * size.em);
        }
        const double between = (rise - power.descent) - (index.ascent - drop);
        if (!part.parts[1].empty() && !part.parts[2].empty()) drop += std::max(0.0, kScriptGap * size.em - between);
        FormulaBox box;
        place(box, base, 0.0, 0.0);
        place(box, index, base.width, drop);
        const double powerAt = base.width + base.overhang + 0.03 * size.em;
        place(box, power, powerAt, -rise);
        box.width = std::max(base.width + index.width + index.overhang,
                             part.parts[2].empty() ? 0.0 : powerAt + power.width + power.overhang);
        return box;
    }

    /// The large sign of a sum or an integral.
    [[nodiscard]] FormulaBox sum(const QString& text, double scale) const {
        const Size size(font_, scale, device_);
        const FormulaBox sign = symbols(text == "Σ" ? "∑" : text, Size(font_, scale * kSumSize, device_).upright);
        FormulaBox box;
        place(box, sign, 0.0, (sign.ascent - sign.descent) / 2.0 - size.axis);
        box.width += 0.1 * size.em;
        return box;
    }

    [[nodiscard]] FormulaBox limits(const FormulaPart& part, double scale) const {
        const Size size(font_, scale, device_);
        const FormulaBox sign = sum(part.parts[0].text, scale);
        const FormulaBox below = set(part.parts[1], smaller(scale, kScriptSize), true);
        const FormulaBox above = set(part.parts[2], smaller(scale, kScriptSize), true);
        const double width = std::max({sign.width, below.width, above.width});
        const double gap = kLimitGap * size.em;
        FormulaBox box;
        place(box, sign, (width - sign.width) / 2.0, 0.0);
        place(box, below, (width - below.width) / 2.0, sign.descent + gap + below.ascent);
        place(box, above, (width - above.width) / 2.0, -sign.ascent - gap - above.descent);
        box.width = width + 0.1 * size.em;
        return box;
    }

    QFont font_;
    const QPaintDevice* device_;
    FormulaStyle style_;
};

}  // namespace

FormulaBox layFormula(const FormulaPart& formula, const QFont& font, const QPaintDevice* device, FormulaStyle style) {
    return Setter(font, device, style).set(formula, 1.0, false);
}

void drawFormula(QPainter& painter, const FormulaBox& formula, const QPointF& origin) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    // On whole pixels bars are sharp.
    const QPointF from(origin.x(), std::round(origin.y()));
    for (const FormulaBox::Symbols& each : formula.symbols) {
        painter.setFont(each.font);
        painter.drawText(from + each.at, each.text);
    }
    painter.fillPath(formula.shapes.translated(from), painter.pen().color());
    painter.restore();
}

}  // namespace borvik
