#include "report/report_page.h"

#include <algorithm>
#include <utility>

#include "base/number_text.h"
#include "base/text.h"

namespace borvik {
namespace {

constexpr const char* kFontName = "Arial";
constexpr const char* kAverageLetters = "SmGasdfghjklpoiuytre";  // 20 of them
constexpr double kHeadTop = 2.0;                                 // line of the head's first text
constexpr double kLogoLeft = 0.55, kLogoRight = 0.82;            // of the width, between the texts of the head
constexpr double kGap = 1.0;                                     // least distance of two texts on a line, characters
constexpr std::size_t kLongestLine = 1000;                       // characters; no paper takes as many side by side
constexpr std::size_t kLongestHead = 1000;                       // bytes of a title, which stands on every page

/// A title that would leave no room on the page for anything else is cut between two characters.
std::string headText(const std::string& text) {
    if (text.size() <= kLongestHead) return text;
    std::size_t end = kLongestHead;
    while (continuesCharacter(text[end])) --end;
    return text.substr(0, end) + " ...";
}

}  // namespace

ReportPage::ReportPage(Printer& printer, PageHeadTexts head) : printer_(printer), head_(std::move(head)) {
    for (std::string* text : {&head_.project, &head_.file, &head_.identification}) *text = headText(*text);
    DrawingSurface& paper = surface();
    paper.scale(0.0, 0.0, 1.0, 1.0);
    setStyle({});
    LinesPerPage = roundHalfEven(1.0 / paper.extent("h").height);
    CharsPerLine = roundHalfEven(1.0 / paper.textWidth(kAverageLetters) * 20.0);
    gridScale();
    ColLeft = roundHalfEven(CharsPerLine * 0.1);
    ColRight = roundHalfEven(CharsPerLine * 0.95);
    TabColumn* const columns[] = {&Col1, &Col2, &Col3, &Col4};
    for (int i = 0; i < 4; ++i) {
        const double stop1 = roundHalfEven(ColLeft + i * width() / 4.0);
        *columns[i] = {stop1, stop1 + 6.0, stop1 + 9.0};
    }
}

void ReportPage::gridScale() const {
    surface().scale(0.0, 0.0, CharsPerLine, LinesPerPage);
}

Extent ReportPage::cell() const {
    const Extent area = printer_.printableArea();
    return {area.width / CharsPerLine, area.height / LinesPerPage};
}

void ReportPage::setStyle(TextStyle style) const {
    surface().setFont({kFontName, style.points, style.bold});
    surface().setColour(style.colour);
}

void ReportPage::chapter(std::string_view title) {
    printer_.chapter(title, std::max(0.0, PrintY - 1.0) / LinesPerPage);
}

void ReportPage::PageHead() {
    constexpr double kNamePoints = 13.0;
    ++number_;
    DrawingSurface& paper = surface();
    gridScale();
    paper.setFont({kFontName, kNamePoints, true});
    paper.setColour(colours::blue);
    paper.text({ColLeft, PrintY - 0.3}, "Borvik ");
    const std::string of = head_.pages > 0 ? " / " + std::to_string(head_.pages) : "";
    putRight(ColRight, "Page: " + std::to_string(number_) + of);
    if (!head_.logo.empty())
        paper.picture({ColLeft + kLogoLeft * width(), PrintY - 0.3}, {ColLeft + kLogoRight * width(), PrintY + 3.9},
                      head_.logo);
    advance(2.0);
    paper.setFont({kFontName, kReportFontSize + 1.0});
    paper.setColour(colours::black);
    paper.text({ColLeft, PrintY}, "Crane supporting Structures according to Eurocode 1993-6");
    putRight(ColRight, "Date: " + head_.date);
    advance(1.0);
    headLine(head_.version, "Time: " + head_.time);
    advance(1.2);
    ruleAcross();
    advance(0.5);
    headLine("Project: " + head_.project, "File: " + head_.file);
    advance(1.0);
    headLine("Identification: " + head_.identification, "");
    advance(1.2);
    ruleAcross();
}

/// A text on the left and one on the right; the right one on a line of its own where both have no room on one.
void ReportPage::headLine(std::string_view left, std::string_view right) {
    setStyle({});
    const double leftWidth = surface().textWidth(left);
    const double rightWidth = surface().textWidth(right);
    if (leftWidth + 2.0 + rightWidth <= width()) {
        putRight(ColRight, right);
        putBlock(ColLeft, width(), left);
        return;
    }
    advance(putBlock(ColLeft, width(), left) - 1.0);
    if (right.empty()) return;
    advance(1.0);
    advance(putBlock(ColLeft, width(), right) - 1.0);
}

void ReportPage::newPage() {
    printer_.newPage();
    PrintY = kHeadTop;
    PageHead();
    advance(0.5);
    if (afterBreak) afterBreak();
}

bool ReportPage::need(double lines) {
    if (lines <= room()) return false;
    newPage();
    return true;
}

void ReportPage::advance(double lines) {
    PrintY += lines;
    lineEnd_ = 0.0;
}

void ReportPage::nextLine() {
    advance(1.0);
    need(1.0);
}

void ReportPage::put(double column, std::string_view text, TextStyle style) {
    if (text.empty()) return;
    setStyle(style);
    const double textWidth = surface().textWidth(text);
    double at = lineEnd_ > 0.0 ? std::max(column, lineEnd_ + kGap) : column;
    if (at + textWidth > ColRight && at > column) {
        nextLine();
        at = column;
    }
    if (at + textWidth > ColRight) at = std::max(ColLeft, std::min(at, ColRight - textWidth));
    const std::vector<std::string> lines = wrapped(text, ColRight - at, style);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (i > 0) nextLine();
        setStyle(style);
        surface().text({at, PrintY}, lines[i]);
        lineEnd_ = at + surface().textWidth(lines[i]);
    }
}

void ReportPage::putRight(double column, std::string_view text, TextStyle style) {
    setStyle(style);
    surface().text({column - surface().textWidth(text), PrintY}, text);
}

int ReportPage::putBlock(double column, double blockWidth, std::string_view text, TextStyle style) {
    const std::vector<std::string> lines = wrapped(text, blockWidth, style);
    setStyle(style);
    double y = PrintY;
    for (const std::string& line : lines) {
        surface().text({column, y}, line);
        y += 1.0;
    }
    return static_cast<int>(lines.size());
}

double ReportPage::textWidth(std::string_view text, TextStyle style) const {
    setStyle(style);
    return surface().textWidth(text);
}

std::vector<std::string> ReportPage::wrapped(std::string_view text, double blockWidth, TextStyle style) const {
    setStyle(style);
    std::vector<std::string> lines;
    // A text of that length is not measured as a whole: it needs more than one line anyway.
    while (text.size() > 4 * kLongestLine || surface().textWidth(text) > blockWidth) {
        // As many characters as fit; back to the last blank where that leaves something on the line.
        const std::size_t fits = fitting(text, blockWidth);
        const std::size_t blank = text.substr(0, fits + 1).rfind(' ');
        const std::size_t end = blank != std::string_view::npos && text.find_first_not_of(' ') < blank ? blank : fits;
        lines.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
        while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
        if (text.empty()) return lines;
    }
    lines.emplace_back(text);
    return lines;
}

std::size_t ReportPage::fitting(std::string_view text, double blockWidth) const {
    std::vector<std::size_t> ends{std::min(text.size(), bytesOfCharacter(text[0]))};
    while (ends.size() < kLongestLine && ends.back() < text.size())
        ends.push_back(std::min(text.size(), ends.back() + bytesOfCharacter(text[ends.back()])));
    const auto tooWide = std::partition_point(ends.begin() + 1, ends.end(), [&](std::size_t end) {
        return surface().textWidth(text.substr(0, end)) <= blockWidth;
    });
    return *(tooWide - 1);
}

void ReportPage::ruleAcross(Colour colour) {
    constexpr double kRuleMm = 0.2;
    surface().setPenWidth(kRuleMm * surface().unitsPerMillimetre());
    surface().setColour(colour);
    surface().line({ColLeft, PrintY}, {ColRight, PrintY});
}

namespace {

/// Of a long beam with driven cranes only the strip with the place that they are put there for.
bool shows(const BeamPart& part, const DiagramData& data) {
    if (data.drive == nullptr || part.isWhole() || !data.drive->stand().isKnown()) return true;
    const CraneStand& stand = data.drive->stand();
    double x = 0.0;
    for (int span = 1; span < stand.place; ++span) x += data.project.Span(span);
    if (stand.point > 0) x += data.project.Span(stand.place) * (stand.point - 1) / 20.0;
    return x >= part.from && (x < part.to || (x <= part.to && part.to >= data.project.BeamLength));
}

}  // namespace

void ReportPage::diagram(Diagram diagram, const DiagramData& data, double pageUnits, double step) {
    const DiagramArea area = diagramArea(diagram, DiagramMode::Paper);
    const double linesPerUnit = LinesPerPage / pageUnits;
    const double unitsPerColumn = (kFrameRight - kFrameLeft) / width();
    std::vector<std::string> missed;
    for (const BeamPart& part : beamParts(data.project)) {
        if (!shows(part, data)) continue;
        if (need(area.bottom * linesPerUnit)) advance(std::max(0.0, -area.top * linesPerUnit));
        if (const char* title = std::exchange(chapterOfDiagrams_, nullptr)) chapter(title);
        surface().scale(kFrameLeft - ColLeft * unitsPerColumn, 0.0,
                        kFrameRight + (CharsPerLine - ColRight) * unitsPerColumn, pageUnits);
        for (std::string& value :
             drawDiagram(surface(), diagram, data, 0.0, PrintY / linesPerUnit, DiagramMode::Paper, part))
            if (std::find(missed.begin(), missed.end(), value) == missed.end()) missed.push_back(std::move(value));
        gridScale();
        advance(LinesPerPage * step);
    }
    if (!missed.empty()) listBelowDiagram(missed, -area.top * linesPerUnit);
}

void ReportPage::listBelowDiagram(const std::vector<std::string>& values, double linesAbove) {
    std::string text = "More values:";
    for (const std::string& value : values) text += (&value == &values.front() ? " " : "; ") + value;
    PrintY -= linesAbove;  // up to where the frame of the next diagram would begin
    for (const std::string& line : wrapped(text, width())) {
        need(1.0);
        put(ColLeft, line);
        advance(1.0);
    }
    advance(linesAbove + 0.5);
}

}  // namespace borvik
