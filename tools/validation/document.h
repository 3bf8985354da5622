#pragma once

#include <string>
#include <vector>

namespace borvik::validation {

/// A number worked out by hand beside the program's.
struct Comparison {
    std::string quantity;  ///< with its unit: "M_B, kNm"
    std::string formula;   ///< the closed form or the last step by hand
    double hand = 0;
    double program = 0;
};

/// A Markdown document that knows which of its comparisons fail.
class Document {
public:
    void section(const std::string& title);
    void example(const std::string& title);
    /// A paragraph or a list, as it stands.
    void text(const std::string& markdown);
    /// A table of comparisons. @param tolerance  largest difference, of the hand calculation
    void compare(const std::vector<Comparison>& comparisons, double tolerance = 1e-6);
    /// A line of a table; the first one after a text is its head.
    void row(const std::vector<std::string>& cells);
    void fail(const std::string& what) { failures_.push_back(what); }

    [[nodiscard]] const std::string& markdown() const { return markdown_; }
    [[nodiscard]] const std::vector<std::string>& failures() const { return failures_; }
    [[nodiscard]] int comparisons() const { return comparisons_; }

private:
    std::string markdown_, title_;
    bool inTable_ = false;
    int comparisons_ = 0;
    std::vector<std::string> failures_;
};

/// Six significant digits.
[[nodiscard]] std::string digits(double number);
/// The round bound that a relative difference stays under: "1e-6", "0.1 %", "1 %".
[[nodiscard]] std::string bound(double difference);

}  // namespace borvik::validation
