// Whoever follows a calculation by hand does each printed formula with the printed numbers.
#include "calculation/check_working.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <regex>
#include <sstream>

#include "actions/crane_working.h"
#include "base/number_text.h"
#include "solved_projects.h"
#include "support/wanted_count.h"

namespace borvik {
namespace {

/// A pocket calculator: + - * / ^, brackets, a few functions, pi.
class PocketCalculator {
public:
    explicit PocketCalculator(std::string text) : text_(std::move(text)) {}
    double value() {
        const double all = sum();
        if (at_ != text_.size()) ADD_FAILURE() << "can't be read from " << text_.substr(at_) << " on: " << text_;
        return all;
    }

private:
    [[nodiscard]] char next() {
        while (at_ < text_.size() && text_[at_] == ' ') ++at_;
        return at_ < text_.size() ? text_[at_] : '\0';
    }
    bool take(char c) {
        if (next() != c) return false;
        ++at_;
        return true;
    }
    double sum() {
        double all = product();
        for (;;) {
            if (take('+'))
                all += product();
            else if (take('-'))
                all -= product();
            else
                return all;
        }
    }
    double product() {
        double all = power();
        for (;;) {
            if (take('*'))
                all *= power();
            else if (take('/'))
                all /= power();
            else
                return all;
        }
    }
    double power() {
        if (take('-')) return -power();
        const double base = item();
        return take('^') ? std::pow(base, power()) : base;
    }
    double item() {
        if (take('(')) {
            const double all = sum();
            EXPECT_TRUE(take(')')) << text_;
            return all;
        }
        if (std::isalpha(static_cast<unsigned char>(next())) != 0) return named();
        std::size_t used = 0;
        double number = 0;
        try {
            number = std::stod(text_.substr(at_), &used);
        } catch (const std::exception&) {
            ADD_FAILURE() << "no number at " << text_.substr(at_) << " of " << text_;
            at_ = text_.size();
        }
        at_ += used;
        return number;
    }
    double named() {
        std::size_t end = at_;
        while (end < text_.size() && std::isalnum(static_cast<unsigned char>(text_[end])) != 0) ++end;
        const std::string name = text_.substr(at_, end - at_);
        at_ = end;
        if (name == "pi") return M_PI;
        if (!take('(')) {
            ADD_FAILURE() << name << " has no value in " << text_;
            return NAN;
        }
        double all = sum();
        while (take(',')) {
            const double other = sum();
            all = name == "min" ? std::fmin(all, other) : std::fmax(all, other);
        }
        EXPECT_TRUE(take(')')) << text_;
        if (name == "sqrt") return std::sqrt(all);
        if (name == "abs") return std::abs(all);
        if (name == "exp") return std::exp(all);
        EXPECT_TRUE(name == "min" || name == "max") << name;
        return all;
    }

    std::string text_;
    std::size_t at_ = 0;
};

/// Half a unit of the last digit of a printed number; one of fewer than four digits is exact.
double halfDigit(const std::string& number) {
    const auto e = number.find('E');
    const std::string mantissa = number.substr(0, e);
    const auto point = mantissa.find('.');
    const double digits = point == std::string::npos ? 0 : static_cast<double>(mantissa.size() - point - 1);
    std::string significant = mantissa;
    std::erase(significant, '.');
    significant.erase(0, significant.find_first_not_of('0'));
    const bool isExact = e == std::string::npos && (point == std::string::npos || significant.size() < 4);
    return isExact ? 0 : 0.5 * std::pow(10, (e == std::string::npos ? 0 : std::stod(number.substr(e + 1))) - digits);
}

/// How far the digits that are not printed may move the result: the change for half a digit of each number.
double reach(const std::string& numbers, double value) {
    static const std::regex kNumber(R"((\d+\.?\d*)(E-?\d+)?)");
    double all = 0;
    for (std::sregex_iterator match(numbers.begin(), numbers.end(), kNumber), end; match != end; ++match) {
        const double half = halfDigit(match->str());
        if (half == 0) continue;
        const auto from = static_cast<std::size_t>(match->position());
        const std::string before = numbers.substr(0, from), after = numbers.substr(from + match->str().size());
        std::ostringstream more;
        more.precision(15);
        more << before << "(" << std::stod(match->str()) << "+" << half << ")" << after;
        const double change = std::abs(PocketCalculator(more.str()).value() - value);
        all += std::isfinite(change) ? change : 0;
    }
    return all;
}

void follow(const CheckWorking& working, int& lines) {
    for (std::size_t line = 0; line < working.steps.size(); ++line) {
        const WorkingStep& step = working.steps[line];
        if (step.formula.empty()) continue;
        const std::string numbers = withNumbers(working.steps, line);
        const std::string shown = workingNumber(step.value);
        const double value = PocketCalculator(numbers).value();
        const double close = 1.5 * reach(numbers, value) + halfDigit(shown) + 1e-4 * std::abs(step.value);
        EXPECT_NEAR(value, step.value, close)
            << working.title << ": " << step.symbol << " = " << step.formula << " = " << numbers << " = " << shown;
        ++lines;
    }
}

void followAll(testing_support::TestSession& session, int& lines) {
    if (!session.calculate()) return;
    for (const CheckWorking& working : checkWorkings(session.tables, session.project, *session.results)) {
        ASSERT_FALSE(working.steps.empty()) << working.title;
        follow(working, lines);
        if (working.key == "Section" || working.key == "DeadLoad") continue;
        const WorkingStep& last = working.steps.back();
        EXPECT_EQ(last.symbol, "IR") << working.title;
        const RowSet& governing = working.key.starts_with("Fatigue")
                                      ? *session.results->Fatigue.FatResult(working.key.back() - '0')
                                      : session.results->Checks[working.key].governing;
        EXPECT_EQ(formatNumber(last.value, "0.000"), governing(3)) << working.title;
    }
}

TEST(CheckWorking, isFollowedWithAPocketCalculator) {
    int lines = 0;
    for (const char* folder : {"/examples", "/tests/data/vectors"})
        for (const auto& entry : std::filesystem::directory_iterator(std::string(BORVIK_SOURCE_DIR) + folder)) {
            if (entry.path().extension() != ".brvk") continue;
            SCOPED_TRACE(entry.path().filename().string());
            testing_support::TestSession session(entry.path());
            followAll(session, lines);
        }
    std::mt19937 random(19);
    testing_support::TestSession session;
    const Project start = session.project;
    const int projects = testing_support::wantedCount("BORVIK_RANDOM_CASES", 150);
    for (int number = 0; number < projects; ++number) {
        SCOPED_TRACE(number);
        session.project = start;
        session.project = testing_support::randomProject(session, random);
        followAll(session, lines);
    }
    EXPECT_GT(lines, 50 * projects);
}

TEST(CheckWorking, ofCraneDataIsFollowedToo) {
    actions::CraneData crane;
    crane.bridge = 65, crane.crab = 12, crane.hoist = 100, crane.span = 18, crane.emin = 0.9;
    crane.spacing = {1.1, 2.6};
    crane.vh = 0.1333;
    crane.release = actions::Release::Grab;
    crane.released = 0.3;
    crane.v = 0.667, crane.SB = 500, crane.xib = 0.6;
    int lines = 0;
    for (int variant = 0; variant < 3; ++variant) {
        if (variant == 1) crane.drive = actions::Drive::Central, crane.alpha = 0.004, crane.phiOnK = true;
        if (variant == 2) crane.K = 5, crane.HT1 = 3, crane.HS = 10, crane.phi2 = 1.2;
        CheckWorking working{"CraneData", "Crane", 1, {}};
        explainCrane(crane, actions::craneLoads(crane), Working(working.steps));
        follow(working, lines);
    }
    EXPECT_GT(lines, 60);
}

}  // namespace
}  // namespace borvik
