#pragma once

#include <QColor>
#include <QFontMetricsF>
#include <QHash>
#include <QPainter>
#include <QPalette>
#include <QRectF>

#include "formulas/formula_layout.h"
#include "platform/drawing_surface.h"

namespace borvik {

/// What a drawing made for white paper is shown on: drawings name their colours for paper, a dark screen turns light
/// into dark and keeps the hue.
struct Ground {
    QColor paper = Qt::white;
    QColor ink = Qt::black;

    /// That of a palette; white paper unless the palette is dark.
    [[nodiscard]] static Ground of(const QPalette& palette);
    [[nodiscard]] bool isDark() const { return paper.lightness() < ink.lightness(); }
    /// The colour of an area.
    [[nodiscard]] QColor area(Colour onPaper) const;
    /// The colour of a line or a text: light enough to stand out.
    [[nodiscard]] QColor line(Colour onPaper) const;
};

/// Draws through a QPainter: on a widget, a picture, an SVG file or a printed page.
class QtSurface : public DrawingSurface {
public:
    /// @param painter    active as long as the surface lives; its state is left changed
    /// @param area       the area of the drawing in the painter's units
    /// @param textScale  factor on every font size, for large pictures
    /// @param ground     what the painter draws on
    QtSurface(QPainter& painter, const QRectF& area, double textScale = 1.0, Ground ground = {});

    void scale(double left, double top, double right, double bottom) override;
    void line(Place from, Place to) override;
    void polyline(std::span<const Place> places) override;
    void polygon(std::span<const Place> places, Colour fill) override;
    void rectangle(Place corner, Place opposite) override;
    void picture(Place corner, Place opposite, const std::string& file) override;
    void circle(Place centre, double radius) override;
    void text(Place corner, std::string_view text, TextDirection direction) override;
    [[nodiscard]] Extent extent(std::string_view text, TextDirection direction) const override;
    [[nodiscard]] FormulaExtent formulaExtent(std::string_view tex) const override;
    void formula(Place start, std::string_view tex) override;
    void setFont(const Font& font) override;
    void setColour(Colour colour) override;
    void setFill(std::optional<Colour> fill) override;
    void setPenWidth(double width) override;
    void setDashed(bool dashed) override;
    [[nodiscard]] double unitsPerMillimetre() const override;

    /// From the area to the logical frame, for the mouse.
    [[nodiscard]] Place toLogical(QPointF place) const;

private:
    [[nodiscard]] QPointF toArea(Place place) const;
    void applyPen();
    [[nodiscard]] const FormulaBox& laid(std::string_view tex) const;

    QPainter& painter_;
    QRectF area_;
    double textScale_;
    Ground ground_;
    QRectF frame_{0.0, 0.0, 1.0, 1.0};
    QPen pen_;
    QFontMetricsF metrics_;                        ///< of the present font
    mutable QHash<QString, double> advances_;      ///< of texts measured in it: placing labels asks many times
    mutable QHash<QString, FormulaBox> formulas_;  ///< set in it: measured first, then drawn
};

}  // namespace borvik
