#include "base/number_text.h"
#include "calculation/check_working.h"
#include "project/project_file.h"
#include "report/report_chapters.h"
#include "results/group_tables.h"
#include "results/ratios.h"

namespace borvik {
namespace {

constexpr TextStyle kBold{true};
constexpr TextStyle kQuiet{false, colours::grey};
constexpr TextStyle kFailed{true, colours::red};
constexpr TextStyle kTitle{true, colours::black, 16.0};
constexpr int kPagesWithoutContents = 4;
constexpr const char* kStandards[] = {
    "EN 1990:2002, basis of structural design",
    "EN 1991-3:2006, actions induced by cranes",
    "EN 1993-1-1:2005, steel structures: general rules",
    "EN 1993-1-5:2006, plated structural elements",
    "EN 1993-1-9:2005, fatigue",
    "EN 1993-6:2007, crane supporting structures",
};

/// The parts of the page, one below the other.
class FirstPage {
public:
    explicit FirstPage(ReportPage& page) : page_(page), value_(page.ColLeft + 0.26 * page.width()) {}

    void heading(const char* text) {
        page_.advance(1.0);
        page_.put(page_.ColLeft, text, kBold);
        page_.advance(1.1);
        page_.ruleAcross(colours::grey);
        page_.advance(0.4);
    }

    /// A label and what belongs to it, in as many lines as it takes.
    void line(const std::string& label, const std::string& text, TextStyle style = {}) {
        page_.put(page_.ColLeft, label, kQuiet);
        page_.advance(page_.putBlock(value_, page_.ColRight - value_, text, style) + 0.25);
    }

    void contentsLine(const std::string& title, int number) {
        page_.put(page_.ColLeft, title);
        page_.putRight(page_.ColRight, std::to_string(number));
        page_.advance(1.1);
    }

private:
    ReportPage& page_;
    double value_;
};

/// How the cranes come to where they act worst, in one sentence.
std::string walkText(const Project& project) {
    const std::string what = project.CraneType == CraneKind::Monorail ? "hoist" : "crane";
    const std::string all = project.NofCranes == 2 ? "Both " + what + "s" : "The " + what;
    if (project.Fixerad)
        return all + (project.NofCranes == 2 ? " stand" : " stands") + " at the position of the input.";
    return all + (project.NofCranes == 2 ? " are" : " is") +
           " moved along the beam in steps of 200 mm; internal forces, deflections and stresses are taken at 21 points "
           "of "
           "every span and kept where they are extreme.";
}

void printVerdicts(FirstPage& lines, const Results& results) {
    for (const auto& [name, verdict] : verdictsByState(results)) {
        const bool holds = !verdict.exceeds(1.0);
        const std::string check = verdict.origin.isKnown() ? ", " + rowTitle(verdict.origin) : "";
        lines.line(name,
                   formatNumber(verdict.largest, "0.000") + check + verdict.remark() + ": " +
                       (holds ? "satisfied" : "not satisfied !!"),
                   holds ? TextStyle{} : kFailed);
    }
}

}  // namespace

void printFirstPage(Report& report, const OfficeTexts& office, const PageHeadTexts& head,
                    const std::vector<PageRange::Chapter>& contents, const GroupMatrix* groups) {
    ReportPage& page = report.page;
    page.advance(3.0);
    page.put(page.ColLeft, "Static calculation of a crane runway beam", kTitle);
    page.advance(3.0);
    FirstPage lines(page);
    lines.line("Project", head.project);
    lines.line("Girder", head.identification);
    for (const OfficeField& field : officeFields()) {
        const std::string& text = office.*field.text;
        lines.line(field.title, field.text == &OfficeTexts::date && text.empty() ? head.date : text);
    }
    lines.heading("Largest ratios");
    printVerdicts(lines, report.results);
    if (groups != nullptr) {
        const bool holds = !groups->exceeds(1.0);
        lines.line("All groups of loads", governingText(*groups) + ": " + (holds ? "satisfied" : "not satisfied !!"),
                   holds ? TextStyle{} : kFailed);
    }
    lines.heading("Basis");
    for (const char* standard : kStandards) lines.line(standard == kStandards[0] ? "Standards" : "", standard);
    lines.line("Positions of the cranes", walkText(report.project));
    lines.line("Program", head.version);
    lines.line("Fingerprint of the input", fingerprintOf(report.project));
    if (head.pages <= kPagesWithoutContents) return;
    lines.heading("Contents");
    for (const auto& [title, number] : contents) lines.contentsLine(title, number);
}

}  // namespace borvik
