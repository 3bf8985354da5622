#pragma once

#include <string>

namespace borvik {

/// The three walks of the cranes along the beam.
enum class Walk { Uls, Sls, Fls };

/// Progress of a calculation. The engine reports every position of crane 1; how often that reaches the screen, and when
/// the window gets a chance to repaint, is the receiver's business (some 30 times a second is enough).
class Progress {
public:
    virtual ~Progress() = default;
    virtual void walkStarts(Walk) {}
    /// @param percent  position of crane 1 in the walk, 0 to 100
    virtual void position(Walk, double percent) { (void)percent; }
    virtual void walkEnds(Walk) {}
    /// The end of a run with two cranes. @param secondsStatic  time of its ULS and SLS part
    virtual void runEnds(double secondsStatic) { (void)secondsStatic; }
};

/// Turns the reports of the engine into the text of the progress window: "Calculating ULS ..." with a percentage while
/// a walk runs, a line more when it has ended. While the SLS walk runs, the text goes back to the line of ULS and puts
/// its own below. The lines are fixed, spellings included.
class ProgressText {
public:
    void walkStarts(Walk walk);
    void position(Walk walk, double percent);
    void walkEnds(Walk walk);
    [[nodiscard]] const std::string& text() const noexcept { return text_; }
    /// The closing line. It names FLS and gives the time of the ULS and SLS part, as a clock time.
    void runEnds(double secondsStatic);

private:
    std::string text_;
    std::string atStart_;  ///< the text as it stood when the walk began
};

}  // namespace borvik
