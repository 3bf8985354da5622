#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/printer.h"
#include "support/recording_surface.h"

namespace borvik::testing_support {

/// A page that keeps where its texts stand, in pixels of the page.
class RecordingPage : public RecordingSurface {
public:
    struct Covered {
        std::string text;
        double left, top, right, bottom;
        bool bold;
        Colour colour;
    };

    RecordingPage(double width, double height) : RecordingSurface(width, height), width_(width), height_(height) {}
    std::vector<Covered> covered;
    std::vector<std::pair<Place, Place>> boxes;  ///< frames of diagrams

    void text(Place corner, std::string_view text, TextDirection direction) override {
        RecordingSurface::text(corner, text, direction);
        const Text& placed = texts.back();
        const Place from = onPage({placed.left, placed.top});
        const Place to = onPage({placed.right, placed.bottom});
        covered.push_back({placed.text, from.x, from.y, to.x, to.y, placed.font.bold, placed.colour});
    }
    void rectangle(Place corner, Place opposite) override {
        RecordingSurface::rectangle(corner, opposite);
        const Place from = onPage(corner);
        const Place to = onPage(opposite);
        if (to.x - from.x > 0.5 * width_) boxes.emplace_back(from, to);
    }

private:
    [[nodiscard]] Place onPage(Place place) const {
        return {(place.x - left) / (right - left) * width_, (place.y - top) / (bottom - top) * height_};
    }
    double width_, height_;
};

/// Keeps all pages of a document.
class RecordingPrinter : public Printer {
public:
    static constexpr double kPixelsPerMm = 96.0 / 25.4;
    /// @param width, height  of the printable area, mm
    RecordingPrinter(double width, double height) : size_{width, height} { addPage(); }

    [[nodiscard]] DrawingSurface& page() override { return *pages.back(); }
    void newPage() override {
        const RecordingPage& before = *pages.back();
        addPage();
        pages.back()->scale(before.left, before.top, before.right, before.bottom);
    }
    [[nodiscard]] Extent printableArea() const override { return size_; }

    [[nodiscard]] double pixelsAcross() const { return size_.width * kPixelsPerMm; }
    [[nodiscard]] double pixelsDown() const { return size_.height * kPixelsPerMm; }

    /// All texts of the document in reading order of their drawing, one a line.
    [[nodiscard]] std::string text() const {
        std::string all;
        for (const auto& page : pages)
            for (const RecordingPage::Covered& covered : page->covered) all += covered.text + "\n";
        return all;
    }

    std::vector<std::unique_ptr<RecordingPage>> pages;

private:
    void addPage() { pages.push_back(std::make_unique<RecordingPage>(pixelsAcross(), pixelsDown())); }
    Extent size_;
};

}  // namespace borvik::testing_support
