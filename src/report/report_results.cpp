#include <algorithm>
#include <deque>
#include <functional>
#include <string>

#include "base/number_text.h"
#include "fatigue/details.h"
#include "report/report_chapters.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
constexpr TextStyle kPlain{};
constexpr TextStyle kFailed{true, colours::red};
constexpr TextStyle kQuiet{false, colours::grey};

/// A row of a check as it is printed.
struct CheckRow {
    std::string place;  ///< span, support or splice; span and point
    std::string formula, numbers, ratio, reference;
    std::string cranes;  ///< where they stood
    bool overLimit = false;
};

CheckRow checkRow(std::string place, const RowSet& set) {
    return {std::move(place), set(1), set(2), set(3), set(4), "", !isSatisfied(set.Ratio)};
}

/// Rows 5 to 8: span and distance of wheel 1, with two cranes those of wheel 5.
CheckRow withCranes(CheckRow row, const RowSet& set, bool two) {
    if (set(5).empty()) return row;
    row.cranes = (two ? "Crane 1: " : "Crane: ") + set(5) + "/" + set(6);
    if (two) row.cranes += "  Crane 2: " + set(7) + "/" + set(8);
    return row;
}

/// The columns of all check rows, and their head, which stands again on every new page.
class CheckList {
public:
    explicit CheckList(ReportPage& page) : page_(page) {
        const double w = page.width();
        place_ = page.ColLeft;
        equation_ = place_ + 0.12 * w;
        ratio_ = place_ + 0.60 * w;
        reference_ = place_ + 0.645 * w;
        page_.afterBreak = [this] { head(); };
    }
    CheckList(const CheckList&) = delete;
    CheckList& operator=(const CheckList&) = delete;
    ~CheckList() {
        keepLastRows();
        page_.afterBreak = nullptr;
    }

    /// A heading in bold, the head of the columns below it.
    void chapter(const char* heading) {
        keepLastRows();
        if (page_.room() < 8.0) breakWithoutHead();
        page_.advance(0.5);
        page_.chapter(std::string("Results: ") + heading);
        page_.put(place_, heading, kBold);
        page_.advance(1.2);
        head();
    }

    /// A line over a group of rows: a span, a detail.
    void group(const std::string& title) {
        write(1.1, [this, title] {
            page_.need(4.5);
            page_.put(place_, title, kBold);
            page_.advance(1.1);
        });
    }

    /// Formula over numbers, with ratio, limit and reference beside them; kept together on one page.
    void row(const CheckRow& row) {
        const Layout layout = layoutOf(row);
        write(layout.lines + kRowGap, [this, row, layout] { print(row, layout); });
    }

    /// A remark below the rows.
    void note(const std::string& text) {
        write(1.2, [this, text] {
            page_.need(1.5);
            page_.put(place_, text, kQuiet);
            page_.advance(1.2);
        });
    }

private:
    static constexpr double kRowGap = 0.3;

    /// Widths of the parts of a row, and the lines that they take.
    struct Layout {
        double equationWidth, numbersWidth, numbersDown, referenceLines, lines;
    };
    [[nodiscard]] Layout layoutOf(const CheckRow& row) const {
        constexpr double kUsual = 5.0;  // a ratio of a few digits; a longer one takes its room from the formula
        const double ratioWidth = page_.textWidth(row.ratio, row.overLimit ? kFailed : kPlain) + 1.0;
        const double equationWidth = ratio_ - std::max(kUsual, ratioWidth) - equation_;
        const double referenceWidth = page_.ColRight - reference_;
        const auto count = [this](const std::string& text, double width) {
            return text.empty() ? 0.0 : static_cast<double>(page_.wrapped(text, width).size());
        };
        const double formulaLines = count(row.formula, equationWidth);
        const double referenceLines = count(row.reference, referenceWidth);
        // Long numbers may take the whole width, below the reference.
        const bool wide = row.cranes.empty() && count(row.numbers, equationWidth) > 1.0;
        const double numbersWidth = wide ? page_.ColRight - equation_ : equationWidth;
        const double numbersDown = wide ? std::max(formulaLines, referenceLines) : formulaLines;
        const double lines = std::max(numbersDown + count(row.numbers, numbersWidth),
                                      referenceLines + count(row.cranes, referenceWidth));
        return {equationWidth, numbersWidth, numbersDown, referenceLines, lines};
    }

    void print(const CheckRow& row, const Layout& layout) {
        page_.need(layout.lines + kRowGap);
        const double top = page_.PrintY;
        const double referenceWidth = page_.ColRight - reference_;
        page_.putBlock(place_, equation_ - place_ - 1.0, row.place);
        page_.putBlock(equation_, layout.equationWidth, row.formula);
        page_.putRight(ratio_, row.ratio, row.overLimit ? kFailed : kPlain);
        // A mark beside the colour, for paper without any.
        if (row.overLimit) page_.putBlock(ratio_ + 0.6, 3.0, "!!", kFailed);
        page_.putBlock(reference_, referenceWidth, withoutIndent(row.reference));
        page_.PrintY = top + layout.numbersDown;
        if (!row.numbers.empty()) page_.putBlock(equation_, layout.numbersWidth, row.numbers);
        page_.PrintY = top + layout.referenceLines;
        if (!row.cranes.empty()) page_.putBlock(reference_, referenceWidth, row.cranes, kQuiet);
        page_.PrintY = top;
        page_.advance(layout.lines + kRowGap);
    }

    /// What is to be written next. The last few are held back, so that a page never begins with one or two of them
    /// alone.
    void write(double lines, std::function<void()> print) {
        constexpr std::size_t kHeldBack = 6;
        last_.push_back({lines, std::move(print)});
        if (last_.size() <= kHeldBack) return;
        last_.front().print();
        last_.pop_front();
    }
    void keepLastRows() {
        double lines = 0.0;
        for (const Pending& each : last_) lines += each.lines;
        page_.need(lines);
        for (const Pending& each : last_) each.print();
        last_.clear();
    }

    static std::string withoutIndent(const std::string& text) {
        const auto first = text.find_first_not_of(' ');
        return first == std::string::npos ? "" : text.substr(first);
    }

    void head() {
        page_.put(place_, "Bar/Point", kQuiet);
        page_.putBlock(equation_, ratio_ - equation_, "Interaction Ratio / Equation", kQuiet);
        page_.putRight(ratio_ + 1.0, "Ratio ", kQuiet);
        page_.putBlock(reference_, page_.ColRight - reference_, "Reference ", kQuiet);
        page_.advance(1.1);
        page_.ruleAcross(colours::grey);
        page_.advance(0.3);
    }

    void breakWithoutHead() {
        page_.afterBreak = nullptr;
        page_.newPage();
        page_.afterBreak = [this] { head(); };
    }

    struct Pending {
        double lines;
        std::function<void()> print;
    };

    ReportPage& page_;
    std::deque<Pending> last_;
    double place_, equation_, ratio_, reference_;
};

/// The row of a span, with where the cranes stood if its check says so.
CheckRow staticRow(std::string place, const StaticCheck& check, const RowSet& set, bool twoCranes) {
    CheckRow row = checkRow(std::move(place), set);
    if (check.rows == 8) return withCranes(std::move(row), set, twoCranes);
    if (check.rows == 5 && !set(5).empty()) row.cranes = "Crane: " + set(5);
    return row;
}

std::string placeOf(int span, const CheckExtreme& extreme, const UlsResults& uls) {
    if (!extreme.place) return std::to_string(span);
    return std::to_string(span) + "/" + formatNumber((uls.*extreme.place)(span, UlsResults::kPlaceSlot), "0");
}

/// The checks of a limit state that are printed.
std::vector<const CheckResult*> printed(LimitState state, const Project& project, const CheckResults& checks) {
    std::vector<const CheckResult*> list;
    for (const CheckResult& result : checks.all)
        if (result.check->state == state && isShown(*result.check, project)) list.push_back(&result);
    return list;
}

void ultimateRows(CheckList& list, const Project& project, const Results& results) {
    const bool two = project.NofCranes == 2;
    const auto checks = printed(LimitState::Ultimate, project, results.Checks);
    list.group("Governing");
    for (const CheckResult* result : checks) {
        const RowSet& set = result->governing;
        list.row(staticRow("", *result->check, set, two));
    }
    for (int span = 1; span <= project.NofSpans; ++span) {
        list.group("Span: " + std::to_string(span));
        for (const CheckResult* result : checks) {
            const StaticCheck& check = *result->check;
            for (std::size_t i = 0; i < check.extremes.size(); ++i)
                list.row(
                    staticRow(placeOf(span, check.extremes[i], results.Uls), check, result->extremes[i](span), two));
            if (check.extremes.empty()) list.row(staticRow(std::to_string(span), check, result->spans(span), two));
        }
    }
    list.note("Crane Position: Span/Distance from left wheel to left support");
}

void deflectionRows(CheckList& list, const Project& project, const CheckResults& results) {
    const auto checks = printed(LimitState::Serviceability, project, results);
    list.group("Governing");
    // Without the crane's position: that of the governing row set is always the first span's.
    for (const CheckResult* result : checks) list.row(checkRow("", result->governing));
    list.group("Every span");
    for (int span = 1; span <= project.NofSpans; ++span)
        for (const CheckResult* result : checks)
            list.row(staticRow("Span: " + std::to_string(span), *result->check, result->spans(span), false));
}

void governingFatigueRows(CheckList& list, const Project& project, const FatigueResults& fatigue) {
    for (const Detail& detail : detailsOf(project)) {
        const auto& governing = fatigue.FatResult(detail.result);
        if (!(project.*detail.checked) || !governing) continue;
        list.group(detail.title);
        list.row(checkRow("", *governing));
    }
}

void allFatigueRows(CheckList& list, const Project& project, const FatigueResults& fatigue) {
    for (const Detail& detail : detailsOf(project)) {
        const auto& governing = fatigue.FatResult(detail.result);
        if (!(project.*detail.checked) || !governing) continue;
        list.group(detail.title);
        const auto& rows = fatigue.FatRows(detail.rows);
        if (!rows || rowsAreReplaced(detail, project)) {
            list.row(checkRow("", *governing));
            continue;
        }
        for (int i = rows->first(); i <= rows->last(); ++i)
            if (!(*rows)(i)(3).empty())
                list.row(checkRow(nameOf(kindOf(detail.places)) + (": " + std::to_string(i)), (*rows)(i)));
    }
}

void resultsHeading(ReportPage& page) {
    page.need(10.0);
    page.advance(0.5);
    page.put(page.Col1.stop1, "Results: ", kBold);
    page.advance(1.0);
}

bool anyFatigue(const Report& report) {
    return std::any_of(detailsOf(report.project).begin(), detailsOf(report.project).end(), [&](const Detail& detail) {
        return report.project.*detail.checked && report.results.Fatigue.FatResult(detail.result);
    });
}

}  // namespace

void PrintResults(Report& report) {
    resultsHeading(report.page);
    CheckList list(report.page);
    list.chapter("ULS");
    ultimateRows(list, report.project, report.results);
    list.chapter("SLS - Deflection Control");
    deflectionRows(list, report.project, report.results.Checks);
}

void PrintResultsCompressed(Report& report) {
    PrintResults(report);
    if (!anyFatigue(report)) return;
    CheckList list(report.page);
    list.chapter("FLS - Fatigue Control");
    governingFatigueRows(list, report.project, report.results.Fatigue);
}

void PrintFlsCrane1(Report& report) {
    if (!anyFatigue(report)) return;
    CheckList list(report.page);
    list.chapter("FLS - Fatigue Control");
    allFatigueRows(list, report.project, report.results.Fatigue);
    if (report.project.NofCranes == 2) list.note("Each row sums up the damage of crane 1 and crane 2.");
}

void PrintFlsCrane2(Report& report) {
    constexpr double kPageUnits = 2000.0;
    constexpr double kStep = 0.052;
    if (report.project.NofCranes != 2 || !report.results.Fatigue.Cr2) return;
    ReportPage& page = report.page;
    page.need(page.LinesPerPage * kStep + 4.0);
    page.advance(0.5);
    page.put(page.Col1.stop1, "FLS - Fatigue Control", kBold);
    page.put(page.Col2.stop1, "Stress ranges of crane 2");
    page.advance(2.0);
    const DiagramData data{report.project, &report.results};
    for (const Diagram diagram : {Diagram::Cr2TopRange, Diagram::Cr2BottomRange, Diagram::Cr2ShearRange})
        page.diagram(diagram, data, kPageUnits, kStep);
}

}  // namespace borvik
