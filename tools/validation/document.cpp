#include "document.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <utility>

namespace borvik::validation {

std::string digits(double number) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%.6g", number);
    return text.data();
}

std::string bound(double difference) {
    constexpr std::pair<double, const char*> kBounds[] = {{1e-6, "1e-6"},  {1e-5, "1e-5"},  {1e-4, "1e-4"},
                                                          {1e-3, "0.1 %"}, {5e-3, "0.5 %"}, {1e-2, "1 %"},
                                                          {2e-2, "2 %"},   {5e-2, "5 %"},   {0.1, "10 %"}};
    for (const auto& [limit, name] : kBounds)
        if (difference < limit) return name;
    return "more";
}

void Document::section(const std::string& title) {
    text("## " + title);
    title_ = title;
}

void Document::example(const std::string& title) {
    text("### " + title);
    title_ = title;
}

void Document::text(const std::string& markdown) {
    if (!markdown_.empty()) markdown_ += '\n';
    markdown_ += markdown + '\n';
    inTable_ = false;
}

void Document::row(const std::vector<std::string>& cells) {
    if (!inTable_) markdown_ += '\n';
    std::string rule = "|";
    markdown_ += '|';
    for (const std::string& cell : cells) {
        markdown_ += ' ' + cell + " |";
        rule += "---|";
    }
    markdown_ += '\n';
    if (!std::exchange(inTable_, true)) markdown_ += rule + '\n';
}

void Document::compare(const std::vector<Comparison>& comparisons, double tolerance) {
    row({"quantity", "by hand", "value", "program", "agree to"});
    for (const Comparison& c : comparisons) {
        const double difference = std::abs(c.program - c.hand) / std::abs(c.hand);
        row({c.quantity, c.formula, digits(c.hand), digits(c.program), bound(difference)});
        ++comparisons_;
        if (!(difference <= tolerance))
            fail(title_ + ": " + c.quantity + " is " + digits(c.program) + ", by hand " + digits(c.hand));
    }
}

}  // namespace borvik::validation
