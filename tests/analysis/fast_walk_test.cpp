#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

#include "analysis/random_beam.h"
#include "analysis/walk.h"

namespace borvik {
namespace {

using testing::BeamCase;
using testing::RandomBeams;

template <class T>
std::size_t differingBits(const T& a, const T& b, std::size_t items) {
    std::size_t differing = 0;
    for (std::size_t i = 0; i < items; ++i) differing += std::memcmp(a.data() + i, b.data() + i, sizeof *a.data()) != 0;
    return differing;
}
std::size_t differing(const Array<Single>& a, const Array<Single>& b) {
    return a.size() != b.size() ? 1 : differingBits(a, b, static_cast<std::size_t>(a.size()));
}
std::size_t differing(const Table<Single>& a, const Table<Single>& b) {
    return differingBits(a, b, static_cast<std::size_t>(a.rows() * a.columns()));
}
std::size_t differing(const Cube<Single>& a, const Cube<Single>& b) {
    return differingBits(a, b, static_cast<std::size_t>(a.rows() * a.columns() * a.slots()));
}

/// Number of stored values that differ in some bit.
std::size_t differing(const UlsResults& a, const UlsResults& b) {
    std::size_t count = 0;
    for (auto field : {&UlsResults::RzMax, &UlsResults::RzMin, &UlsResults::RyMax, &UlsResults::RyMin})
        count += differing(a.*field, b.*field);
    for (auto field :
         {&UlsResults::MyMaxPoint, &UlsResults::MyMinPoint, &UlsResults::VzMaxPoint, &UlsResults::VzMinPoint,
          &UlsResults::MzMaxPoint, &UlsResults::MzMinPoint, &UlsResults::VyMaxPoint, &UlsResults::VyMinPoint})
        count += differing(a.*field, b.*field);
    for (auto field : {&UlsResults::MyMaxSpan, &UlsResults::MyMinSpan, &UlsResults::VzMaxSpan, &UlsResults::VzMinSpan,
                       &UlsResults::MzMaxSpan, &UlsResults::MzMinSpan, &UlsResults::VyMaxSpan, &UlsResults::VyMinSpan,
                       &UlsResults::MySupportSpan})
        count += differing(a.*field, b.*field);
    return count;
}
std::size_t differing(const SlsResults& a, const SlsResults& b) {
    return differing(a.UzMaxPoint, b.UzMaxPoint) + differing(a.UyMaxPoint, b.UyMaxPoint) +
           differing(a.UzMaxSpan, b.UzMaxSpan) + differing(a.UyMaxSpan, b.UyMaxSpan);
}
std::size_t differing(const FlsResults& a, const FlsResults& b) {
    std::size_t count = differing(a.FlsRzMax, b.FlsRzMax) + differing(a.FlsRzMin, b.FlsRzMin);
    for (auto field : {&FlsResults::FlsMyMaxPoint, &FlsResults::FlsMyMinPoint, &FlsResults::FlsVzMaxPoint,
                       &FlsResults::FlsVzMinPoint})
        count += differing(a.*field, b.*field);
    for (auto field :
         {&FlsResults::FlsMyMaxSpan, &FlsResults::FlsMyMinSpan, &FlsResults::FlsVzMaxSpan, &FlsResults::FlsVzMinSpan})
        count += differing(a.*field, b.*field);
    return count;
}

template <class Run>
std::size_t plainAgainstFast(Run run, const BeamCase& c) {
    MessageList messages;
    Progress progress;
    const auto plain = run(c.project, c.loads, WalkMethod::Plain, messages, progress);
    const auto fast = run(c.project, c.loads, WalkMethod::Fast, messages, progress);
    return differing(plain, fast);
}

/// The number of random beams; BORVIK_WALK_CASES=30000 makes a long run of it.
int numberOfCases() {
    const char* wanted = std::getenv("BORVIK_WALK_CASES");
    return wanted != nullptr ? std::atoi(wanted) : 400;
}

TEST(FastWalk, hasTheSameBitsAsThePlainWalk) {
    RandomBeams beams(20261122);
    double positions = 0;
    for (int number = 1; number <= numberOfCases(); ++number) {
        const BeamCase c = beams.next();
        positions += CountPositions(c.project, c.loads.NCranes);
        SCOPED_TRACE("case " + std::to_string(number));
        ASSERT_EQ(plainAgainstFast(RunUls, c), 0U);
        ASSERT_EQ(plainAgainstFast(RunSls, c), 0U);
        ASSERT_EQ(plainAgainstFast(RunFls, c), 0U);
    }
    RecordProperty("positions", std::to_string(positions));
}

}  // namespace
}  // namespace borvik
