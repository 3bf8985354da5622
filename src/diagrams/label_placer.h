#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/drawing_surface.h"

namespace borvik {

/// A rectangle in logical units, y downwards.
struct Box {
    double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;

    /// True where they share more than an edge. A box without area is a point or a line.
    [[nodiscard]] bool overlaps(const Box& other) const {
        return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
    }
    [[nodiscard]] bool crossedBy(Place from, Place to) const;
};

/// A place that a label may take beside its anchor.
struct Spot {
    enum class Across { Centred, FromAnchor, ToAnchor };
    Across across = Across::Centred;  ///< how it stands to the anchor; a centred one gives way to stay in its place
    bool below = false;               ///< under the anchor
    double gap = 0.0;                 ///< between anchor and label, text heights
    bool overLines = false;           ///< may cover lines of the drawing, where nothing better is free
};

/// A text that belongs to a point of a drawing. It stands within its place or not at all: elsewhere it would be taken
/// for the value of another point.
struct Label {
    std::vector<std::vector<std::string>> forms;  ///< lines of text: the fullest form first, then shorter ones
    Place anchor;                                 ///< what it belongs to
    double left = 0.0, right = 0.0;               ///< its place across
    std::vector<Spot> spots;                      ///< in the order in which they are tried
    double rank = 0.0;                            ///< where there is too little room the highest stay
    bool always = false;                          ///< may leave its place; the last form then says where it belongs
    std::string inList;                           ///< how it reads in a list of what was left out; empty: not missed
    Colour colour = colours::black;
    std::string circled = {};  ///< a number in a circle in front of the fullest form
    bool withLeader = true;    ///< a line to the anchor where it stands away from it
    int together = 0;          ///< labels of the same number other than 0 stand all or not at all
};

/// Above or below a point of a curve: close to it, else further out, with a line to the point.
[[nodiscard]] std::vector<Spot> spotsAtPoint(bool below);
/// In a row with others, so that all stand on one line.
[[nodiscard]] std::vector<Spot> spotsInRow(bool below, double gap = 0.0);

/// Gives each label of a drawing a spot in its own place, so that none covers another, a point that is kept clear, or
/// leaves the frame. Where it gets narrow the text becomes smaller, then labels take a shorter form, and then those of
/// the lowest rank are left out, which a remark counts.
class LabelPlacer {
public:
    explicit LabelPlacer(const Box& frame) : frame_(frame) {}

    /// No label may cover this; a point and a line count too.
    void keepClear(const Box& box) { taken_.push_back(box); }
    /// Notes a line of the drawing, which labels avoid where they can.
    void avoid(Place from, Place to) { lines_.push_back({from, to}); }
    void add(Label label) { labels_.push_back(std::move(label)); }
    /// A value that the drawing itself found no room for: counted and listed with the labels left out.
    void leaveOut(std::string inList) { elsewhere_.push_back(std::move(inList)); }
    [[nodiscard]] const Box& frame() const { return frame_; }

    /// Places and draws all labels. A label over a line gets a white ground, one that stands away from its anchor a
    /// thin line to it, in the pen at hand.
    /// @param font  its size is the largest to try
    /// @return what was left out, as it reads in a list, in the order of the calls of leaveOut and of the labels
    std::vector<std::string> draw(DrawingSurface& surface, Font font);

private:
    struct Line {
        Place from, to;
    };
    struct Placed {
        Box box;
        std::size_t form = 0;
        bool onLines = false;  ///< covers a line of the drawing
    };
    /// All labels placed in one size; nothing for those left out.
    struct Attempt {
        double points = 0.0;
        std::vector<std::optional<Placed>> places;
        int standing = 0, inFull = 0;
    };
    [[nodiscard]] Attempt placeAll(const DrawingSurface& surface) const;
    [[nodiscard]] Attempt placeBest(DrawingSurface& surface, Font& font) const;
    [[nodiscard]] std::optional<Placed> place(const DrawingSurface& surface, const Label& label,
                                              const std::vector<Box>& taken) const;
    [[nodiscard]] std::optional<Box> boxAt(const DrawingSurface& surface, const Label& label, std::size_t form,
                                           const Spot& spot) const;
    [[nodiscard]] bool coversLines(const Box& box) const;
    [[nodiscard]] int leftOut(const Attempt& attempt) const;
    /// Room for the remark that counts what was left out, in a corner.
    [[nodiscard]] std::optional<Box> cornerFor(Extent remark, const Attempt& attempt) const;
    void drawLeaders(DrawingSurface& surface, Attempt& attempt) const;
    static void drawLabel(DrawingSurface& surface, const Label& label, const Placed& placed);

    Box frame_;
    std::vector<Box> taken_;
    std::vector<Line> lines_;
    std::vector<Label> labels_;
    std::vector<std::string> elsewhere_;  ///< from leaveOut
};

/// Text heights in the units of both directions: a measure that looks the same across and down.
struct Em {
    double x = 1.0, y = 1.0;
};
[[nodiscard]] Em emOf(const DrawingSurface& surface);

}  // namespace borvik
