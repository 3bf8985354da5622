#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "actions/crane_data.h"

namespace borvik::actions {

/// A number of the crane data: its name in files, what it is, its unit and its range. The only place that knows them.
struct NumberField {
    const char* name;
    const char* what;
    const char* unit;
    double least, most;
    bool aboveLeast;  ///< the least value itself is refused
    std::variant<double CraneData::*, int CraneData::*, std::optional<double> CraneData::*> member;

    /// A field that may be left out, as the maker need not give it.
    [[nodiscard]] bool isOptional() const { return std::holds_alternative<std::optional<double> CraneData::*>(member); }
    [[nodiscard]] bool isInteger() const { return std::holds_alternative<int CraneData::*>(member); }
    /// @return nothing where an optional field is left out
    [[nodiscard]] std::optional<double> of(const CraneData& crane) const;
    void set(CraneData& crane, double value) const;
    /// @return what is wrong with a value, in words, without the field's name; empty: nothing
    [[nodiscard]] std::string faultOf(double value) const;
};
[[nodiscard]] const std::vector<NumberField>& numberFields();

/// A field that takes one of a list of words.
struct ChoiceField {
    const char* name;
    const char* what;
    std::vector<std::string_view> words;
    bool isOptional;
    int (*of)(const CraneData&);
    void (*set)(CraneData&, int);
    /// @return index of a word, or nothing
    [[nodiscard]] std::optional<int> find(std::string_view word) const;
    /// The words as a sentence has them: "HC1, HC2, HC3 or HC4".
    [[nodiscard]] std::string listed() const;
};
[[nodiscard]] const std::vector<ChoiceField>& choiceFields();

inline constexpr NumberField kWheelCount{
    "wheels", "wheels on a rail", "", 2, 4, false, static_cast<int CraneData::*>(nullptr)};
inline constexpr NumberField kSpacing{
    "spacing", "distance of two wheels", "m", 0, 50, true, static_cast<double CraneData::*>(nullptr)};
inline constexpr double kLargestAlpha = 0.015;  ///< 2.7.4(1)

struct FieldMessage {
    std::string field;
    std::string text;
    [[nodiscard]] std::string line() const { return field + ": " + text; }
};

struct CraneCheck {
    std::vector<FieldMessage> faults;   ///< nothing may be computed
    std::vector<FieldMessage> remarks;  ///< what was set right or deserves a look
    [[nodiscard]] bool isGood() const { return faults.empty(); }
};

/// Each field against its range, then what fields must be to each other. Where a field by itself is wrong the second
/// part is left out.
[[nodiscard]] CraneCheck checkCrane(const CraneData& crane);

}  // namespace borvik::actions
