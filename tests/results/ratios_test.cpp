#include "results/ratios.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "base/number_text.h"
#include "calculation/calculation.h"
#include "project/project_file.h"

namespace borvik {
namespace {

TEST(RatioVerdict, looksBehindTheShownRows) {
    Results results;
    EXPECT_EQ(verdictOf(results).largest, 0.0);
    // "10.000" ranks below "9.000" where the governing row is chosen; the largest is 10 all the same.
    results.Checks.LtbGov.Ratio = 9;
    results.Checks.LtbNeg = Array<RowSet<8>>(1, 2);
    results.Checks.LtbNeg(2).Ratio = 10;
    EXPECT_EQ(verdictOf(results).largest, 10.0);
    results.Fatigue.FatRows(6) = Array<RowSet<4>>(1, 3);
    (*results.Fatigue.FatRows(6))(3).Ratio = 11;
    EXPECT_EQ(verdictOf(results).largest, 11.0);
    (*results.Fatigue.FatRows(6))(3).LargestOfPoints = 12;
    EXPECT_EQ(verdictOf(results).largest, 12.0);
    EXPECT_FALSE(verdictOf(results).exceeds(12.0));
    for (const double senseless : {-0.1, std::nan("")}) {
        results.Checks.DefZGov.Ratio = senseless;
        EXPECT_TRUE(verdictOf(results).exceeds(12.0)) << "a check without a sound ratio is not satisfied";
        EXPECT_EQ(verdictOf(results).largest, 12.0);
        EXPECT_NE(verdictOf(results).remark(), "");
    }
}

template <int Rows>
void expectNumberBehind(const RowSet<Rows>& rows, const std::string& where) {
    if (rows(3).empty()) return;
    EXPECT_EQ(rows(3), formatNumber(rows.Ratio, "0.000")) << where << ": " << rows(1) << rows(2);
}

template <int Rows>
void expectNumberBehind(const Array<RowSet<Rows>>& items, const std::string& where) {
    for (const auto& item : items) expectNumberBehind(item, where);
}

/// Marks in tables and the exit code of the command line rest on the numbers, so each must stand behind its text.
TEST(Ratios, everyShownRatioHasItsNumber) {
    for (const char* folder : {"/examples", "/tests/data/vectors"})
        for (const auto& entry : std::filesystem::directory_iterator(std::string(BORVIK_SOURCE_DIR) + folder)) {
            if (entry.path().extension() != ".brvk") continue;
            const std::string where = entry.path().stem().string();
            Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
            LoadProject(entry.path().string(), session.project);
            FollowProject(session.tables, session.project, session.context);
            MessageList messages;
            Progress progress;
            if (!Calculate(session, messages, progress)) continue;
            const CheckResults& c = session.results->Checks;
            for (const auto* rows : {&c.ShearMax, &c.ShearMin, &c.ShearSpan, &c.BendMax, &c.BendMin, &c.BendSpan,
                                     &c.LtbPos, &c.LtbNeg, &c.LtbSpan})
                expectNumberBehind(*rows, where);
            for (const auto* rows : {&c.ShearGov, &c.BendGov, &c.LtbGov}) expectNumberBehind(*rows, where);
            for (const auto* rows : {&c.LocalSpan, &c.VonMisesSpan}) expectNumberBehind(*rows, where);
            for (const auto* rows : {&c.LocalGov, &c.VonMisesGov}) expectNumberBehind(*rows, where);
            for (const auto* rows : {&c.DefZSpan, &c.DefYSpan}) expectNumberBehind(*rows, where);
            for (const auto* rows : {&c.DefZGov, &c.DefYGov}) expectNumberBehind(*rows, where);
            for (int detail = 1; detail <= 6; ++detail) {
                if (const auto& rows = session.results->Fatigue.FatRows(detail)) expectNumberBehind(*rows, where);
                if (const auto& row = session.results->Fatigue.FatResult(detail)) expectNumberBehind(*row, where);
            }
        }
}

}  // namespace
}  // namespace borvik
