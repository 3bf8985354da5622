#pragma once

#include <string>
#include <vector>

#include "platform/drawing_surface.h"

namespace borvik {

/// Paper that is filled page after page: a PDF file, a printer, a preview. The first page is there from the start.
class Printer {
public:
    virtual ~Printer() = default;
    /// The printable area of the page at hand. Its logical frame, pen and font stay from page to page.
    [[nodiscard]] virtual DrawingSurface& page() = 0;
    /// Ends the page at hand and begins the next.
    virtual void newPage() = 0;
    /// Size of the printable area, mm.
    [[nodiscard]] virtual Extent printableArea() const = 0;
    /// A chapter begins on the page at hand: what lists chapters names it. @param down  its place, 0 at the top of the
    /// printable area, 1 at the bottom
    virtual void chapter(std::string_view, double) {}
};

/// Measures as another surface does and draws nothing.
class BlankSurface : public DrawingSurface {
public:
    explicit BlankSurface(DrawingSurface& measure) : measure_(measure) {}
    void scale(double left, double top, double right, double bottom) override {
        measure_.scale(left, top, right, bottom);
    }
    void line(Place, Place) override {}
    void polyline(std::span<const Place>) override {}
    void polygon(std::span<const Place>, Colour) override {}
    void picture(Place, Place, const std::string&) override {}
    void rectangle(Place, Place) override {}
    void circle(Place, double) override {}
    void text(Place, std::string_view, TextDirection) override {}
    [[nodiscard]] Extent extent(std::string_view text, TextDirection direction) const override {
        return measure_.extent(text, direction);
    }
    [[nodiscard]] FormulaExtent formulaExtent(std::string_view tex) const override {
        return measure_.formulaExtent(tex);
    }
    void formula(Place, std::string_view) override {}
    void setFont(const Font& font) override { measure_.setFont(font); }
    void setColour(Colour colour) override { measure_.setColour(colour); }
    void setFill(std::optional<Colour> fill) override { measure_.setFill(fill); }
    void setPenWidth(double width) override { measure_.setPenWidth(width); }
    void setDashed(bool dashed) override { measure_.setDashed(dashed); }
    [[nodiscard]] double unitsPerMillimetre() const override { return measure_.unitsPerMillimetre(); }

private:
    DrawingSurface& measure_;
};

/// Lets only the pages of a range through to a printer. The whole document is laid out all the same, so that a page
/// carries the number and the content that it has in the whole.
class PageRange : public Printer {
public:
    /// @param first, last  pages from 1; a last of 0 means to the end
    PageRange(Printer& printer, int first, int last)
        : printer_(printer), blank_(printer.page()), first_(first), last_(last) {}

    [[nodiscard]] DrawingSurface& page() override;
    void newPage() override;
    [[nodiscard]] Extent printableArea() const override { return printer_.printableArea(); }
    void chapter(std::string_view title, double down) override;
    /// False as long as no page of the range has been reached.
    [[nodiscard]] bool hasPages() const { return printed_ > 0; }
    /// Pages of the whole document that have been begun so far, in the range or not.
    [[nodiscard]] int pages() const { return number_; }
    /// A chapter of the whole document and the page on which it begins.
    struct Chapter {
        std::string title;
        int page;
    };
    [[nodiscard]] const std::vector<Chapter>& chapters() const { return chapters_; }

private:
    [[nodiscard]] bool inRange() const { return number_ >= first_ && (last_ == 0 || number_ <= last_); }

    Printer& printer_;
    BlankSurface blank_;
    int first_, last_;
    int number_ = 1;
    int printed_ = inRange() ? 1 : 0;  ///< pages of the range begun so far
    std::vector<Chapter> chapters_;
};

}  // namespace borvik
