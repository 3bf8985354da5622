#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "diagrams/diagrams.h"
#include "platform/printer.h"

namespace borvik {

/// What the head of every page tells.
struct PageHeadTexts {
    std::string version;         ///< of the program
    std::string date, time;      ///< of the print
    std::string project;         ///< title of the project
    std::string file;            ///< where it is kept
    std::string identification;  ///< of the girder
    int pages = 0;               ///< of the whole report; 0: not known yet
    std::string logo = {};       ///< picture file of the office; empty: none
};

inline constexpr double kReportFontSize = 8.0;  ///< points

/// How a text stands on the page.
struct TextStyle {
    bool bold = false;
    Colour colour = colours::black;
    double points = kReportFontSize;
};

/// Three stops of a tab column, columns of the character grid: a label, a sign behind it, a value.
struct TabColumn {
    double stop1 = 0.0, stop2 = 0.0, stop3 = 0.0;
};

/// The page being written, on a grid of character cells and lines that is measured from the printer, so that the report
/// adapts to any paper and font. Texts are measured before they are placed: one that would cover its neighbour moves
/// on, one that would leave the page goes on below, and where the paper ends a new page with its head begins.
class ReportPage {
public:
    /// Measures the page; nothing is drawn.
    ReportPage(Printer& printer, PageHeadTexts head);

    double LinesPerPage = 0.0;             ///< printable height in lines
    double CharsPerLine = 0.0;             ///< printable width in characters
    double ColLeft = 0.0, ColRight = 0.0;  ///< edges of the text, columns
    TabColumn Col1, Col2, Col3, Col4;      ///< four equal parts of the text's width
    double PrintY = 2.0;                   ///< current line; a fraction is a part of a line

    [[nodiscard]] double width() const { return ColRight - ColLeft; }

    /// The head of the next page. On the first page of the document it is all that has to be done to begin it.
    void PageHead();
    /// A new page with its head, and PrintY below it.
    void newPage();
    /// A chapter begins here: contents and the outline of a PDF name it.
    void chapter(std::string_view title);
    /// A chapter begins with the next diagram, wherever that finds its room.
    void chapterOfDiagrams(const char* title) { chapterOfDiagrams_ = title; }
    /// A new page when fewer than that many lines are left. @return true when there is one
    bool need(double lines);
    /// Lines left on the page.
    [[nodiscard]] double room() const { return LinesPerPage - 1.0 - PrintY; }

    /// Writes on the current line from a column on; behind what stands there already, and below where the line is full.
    void put(double column, std::string_view text, TextStyle style = {});
    /// Goes down. A text begins a new page where its line no longer fits.
    void advance(double lines);
    /// The next line, on a new page where this one is full.
    void nextLine();
    /// A line across from ColLeft to ColRight.
    void ruleAcross(Colour colour = colours::black);

    /// Writes wrapped text in a column, without moving PrintY. @return lines that it took
    int putBlock(double column, double blockWidth, std::string_view text, TextStyle style = {});
    /// Writes a text that ends at a column.
    void putRight(double column, std::string_view text, TextStyle style = {});
    /// Width of a line, in columns.
    [[nodiscard]] double textWidth(std::string_view text, TextStyle style = {}) const;
    /// A text broken into lines no wider than `blockWidth`, at blanks where there are some.
    [[nodiscard]] std::vector<std::string> wrapped(std::string_view text, double blockWidth,
                                                   TextStyle style = {}) const;

    /// A diagram as wide as the text, with its origin at PrintY, in a page scale of that many units from top to bottom;
    /// on a new page where it doesn't fit. A long beam takes several strips below each other, and values that found no
    /// room stand in a list under the diagram.
    /// With driven cranes only the strip of the place that is looked at is drawn.
    /// @param step  part of the page that PrintY goes down
    void diagram(Diagram diagram, const DiagramData& data, double pageUnits, double step);

    /// Called after every page break, so that a table can repeat its head.
    std::function<void()> afterBreak;

    [[nodiscard]] DrawingSurface& surface() const { return printer_.page(); }
    /// Font and colour of what is drawn on the surface next.
    void setStyle(TextStyle style) const;
    /// Millimetres of a character cell and of a line.
    [[nodiscard]] Extent cell() const;

private:
    void gridScale() const;
    void listBelowDiagram(const std::vector<std::string>& values, double linesAbove);
    void headLine(std::string_view left, std::string_view right);
    /// Bytes of the characters that fit into a width, at least one character.
    [[nodiscard]] std::size_t fitting(std::string_view text, double blockWidth) const;

    Printer& printer_;
    PageHeadTexts head_;
    const char* chapterOfDiagrams_ = nullptr;
    int number_ = 0;        ///< of the page
    double lineEnd_ = 0.0;  ///< right end of what stands on the current line
};

}  // namespace borvik
