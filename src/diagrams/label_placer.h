#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/drawing_surface.h"

namespace borvik {

/// A rectangle in logical units, y downwards.
struct Box {
    double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;

    [[nodiscard]] bool overlaps(const Box& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    [[nodiscard]] bool crossedBy(Place from, Place to) const;
};

/// A text that belongs to a place of a drawing.
struct Label {
    std::vector<std::string> lines;
    Place anchor;                           ///< what it belongs to
    bool below = false;                     ///< the side of the anchor on which it is wanted
    std::optional<Place> firstChoice = {};  ///< upper left corner, where that place is free
    Colour colour = colours::black;
    bool keepSide = false;     ///< never on the other side of the anchor
    bool toTheRight = false;   ///< aside of the anchor rather to the right of it than to the left
    bool optional = false;     ///< may be left out silently where there is no room
    std::string circled = {};  ///< a number in a circle in front of the first line
};

/// Finds a place for each label of a drawing, so that labels neither cover one another nor leave the frame as long as
/// there is room. A label stands close to its anchor; lines of the drawing are avoided where that costs little.
class LabelPlacer {
public:
    explicit LabelPlacer(const Box& frame) : frame_(frame) {}

    /// No label may cover this.
    void keepClear(const Box& box) { taken_.push_back(box); }
    /// A line of the drawing, better not covered.
    void avoid(Place from, Place to) { lines_.push_back({from, to}); }
    void add(Label label) { labels_.push_back(std::move(label)); }

    /// Places and draws all labels, those added first with the first choice, in the largest size in which all of them
    /// find room: level first, down to a size that still reads well, then upright where a line has no room. What finds
    /// no room in the smallest size is left out, and a remark says so; nothing is ever covered. A label over a line
    /// gets a white ground, one that stands away from its anchor a thin line to it, in the pen at hand.
    /// @param font  its size is the largest to try
    void draw(DrawingSurface& surface, Font font);

private:
    struct Line {
        Place from, to;
    };
    struct Placed {
        Box box;
        TextDirection direction = TextDirection::Across;
        bool onLines = false;  ///< covers a line of the drawing
        double cost = 0.0;     ///< distance and what else is unwelcome, in text heights
    };
    /// A place that a label could take, and what is unwelcome about it.
    struct Candidate {
        Box box;
        double cost;
    };
    /// All labels placed in one size. A label without room has no place.
    struct Attempt {
        std::vector<std::optional<Placed>> places;
        bool complete = true;  ///< no label is without a place but optional ones
    };
    struct Effort {
        bool upright;        ///< labels may stand upright
        bool allOrNothing;   ///< stop at the first label without room
        double highestCost;  ///< that a place may have
    };
    [[nodiscard]] Attempt placeAll(const DrawingSurface& surface, const Effort& effort) const;
    [[nodiscard]] Attempt placeInLargest(DrawingSurface& surface, Font& font) const;
    [[nodiscard]] std::optional<Placed> place(const DrawingSurface& surface, const Label& label,
                                              const std::vector<Box>& taken, const Effort& effort) const;
    /// In rising order of cost; others' labels and lines not regarded yet.
    [[nodiscard]] std::vector<Candidate> candidates(const DrawingSurface& surface, const Label& label,
                                                    TextDirection direction) const;
    [[nodiscard]] std::optional<Placed> search(const DrawingSurface& surface, const Label& label,
                                               TextDirection direction, const std::vector<Box>& taken,
                                               double highestCost) const;
    [[nodiscard]] Box inside(Box box) const;
    [[nodiscard]] int linesUnder(const Box& box) const;
    void drawLeaders(DrawingSurface& surface, Attempt& attempt) const;
    static void drawLabel(DrawingSurface& surface, const Label& label, const Placed& placed);

    Box frame_;
    std::vector<Box> taken_;
    std::vector<Line> lines_;
    std::vector<Label> labels_;
};

/// The box that the lines of a label cover, at the origin.
[[nodiscard]] Extent labelExtent(const DrawingSurface& surface, const Label& label, TextDirection direction);

/// Text heights in the units of both directions: a measure that looks the same across and down.
struct Em {
    double x = 1.0, y = 1.0;
};
[[nodiscard]] Em emOf(const DrawingSurface& surface);

/// A number in a circle of 1.5 text heights. @param box  where the circle stands, 1.5 em wide and high
void drawCircled(DrawingSurface& surface, std::string_view number, Place centre);

}  // namespace borvik
