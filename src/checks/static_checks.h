#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "analysis/results.h"
#include "base/working.h"
#include "checks/check_rows.h"
#include "checks/loaded_length.h"
#include "project/project.h"

namespace borvik {

/// What the static checks read: the input with every section up to date, and the walks' extremes.
struct CheckBasis {
    const Project& project;
    const RailRecord& rail;
    const UlsResults& uls;
    const SlsResults& sls;
    WornRail worn{};    ///< of patch load, which sets it
    Working working{};  ///< takes down how a row comes about; nothing in an ordinary run
};

enum class LimitState { Ultimate, Serviceability };

/// A position of the cranes that a span is checked at.
struct CheckExtreme {
    const char* name;  ///< "Max", behind the key of its check
    /// The record whose slot 9 is the place of the governing point; null where the span as a whole is checked.
    Table<Single> UlsResults::*place = nullptr;
};

/// One static check: everything that the run, tables, report, JSON and notes know of it.
struct StaticCheck {
    const char* key;      ///< "Shear": names of its rows begin with it
    const char* name;     ///< "shear"
    const char* faultAt;  ///< what a fault names; neighbours of one name are checked span by span together
    LimitState state;
    bool (*applies)(const Project& project);                        ///< null: to every project
    bool (*shown)(const Project& project);                          ///< in tables and report; null: wherever it applies
    std::vector<CheckExtreme> extremes;                             ///< empty where a span has one row only
    int rows, governingRows;                                        ///< texts of a row, see RowSet
    void (*prepare)(CheckBasis& basis);                             ///< once before all spans; null: nothing
    RowSet (*row)(const CheckBasis& basis, int span, int extreme);  ///< extreme from 0
    RowSet (*worse)(const RowSet& first, const RowSet& second);     ///< of the two extremes of a span
    RowSet (*governing)(const Array<RowSet>& spans);
};

/// All static checks in the order in which they run and are shown:
/// shear and bending (EN 1993-1-1 6.2), lateral torsional buckling (6.3.2), local wheel loads (EN 1993-6 5.7.1 of an
/// overhead crane, 6.7 and 5.8 of a monorail), deflections.
[[nodiscard]] std::span<const StaticCheck> staticChecks();

/// The rows of one check. Arrays run over the spans, 1..NofSpans.
struct CheckResult {
    const StaticCheck* check = nullptr;
    std::vector<Array<RowSet>> extremes;  ///< as the check's extremes; empty where it has none
    Array<RowSet> spans;                  ///< the worse of a span
    RowSet governing;

    bool operator==(const CheckResult&) const = default;
};

/// The checks of a run that apply to its project.
class CheckResults {
public:
    std::vector<CheckResult> all;

    /// @param key  of a static check
    /// @return     null where the check doesn't apply
    [[nodiscard]] const CheckResult* find(std::string_view key) const;
    /// The same of a check that is known to apply. @throws std::out_of_range
    [[nodiscard]] const CheckResult& operator[](std::string_view key) const;
    [[nodiscard]] CheckResult& operator[](std::string_view key);

    bool operator==(const CheckResults&) const = default;
};

/// The checks that apply to a project, their rows still empty.
[[nodiscard]] CheckResults emptyChecks(const Project& project);

/// Runs every static check that applies, once and in order.
/// @throws RuntimeFault  naming check and span, on an arithmetic fault
[[nodiscard]] CheckResults RunCodeChecks(CheckBasis basis);

/// Runs one of them alone. @param key  of a check that applies to the project
[[nodiscard]] CheckResult runCheck(std::string_view key, CheckBasis basis);

/// True where tables and report show the check for this project.
[[nodiscard]] bool isShown(const StaticCheck& check, const Project& project);

}  // namespace borvik
