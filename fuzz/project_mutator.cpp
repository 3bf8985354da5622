// Changes one field of a project now and then, beside the changes of single bytes that the fuzzer makes by itself: a
// record is mostly fields of four bytes, and what is worth trying is a zero, a limit, a number that is none.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "project/project_fields.h"
#include "project/project_file.h"

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t largest);

namespace borvik::fuzzing {

namespace {

/// Changes one field, picked by its number in the order of the file. A first visit with no field picked counts them.
class FieldChanger {
public:
    FieldChanger(int picked, std::mt19937& random) : picked_(picked), random_(random) {}

    template <class... Fields>
    void operator()(Fields&... fields) {
        (visit(fields), ...);
    }
    void fixedText(std::string& text) { visit(text); }
    [[nodiscard]] int count() const { return count_; }

private:
    template <class Field>
    void visit(Field& field) {
        if (count_++ == picked_) change(field);
    }
    template <class T, int First, int Last>
    void visit(FixedArray<T, First, Last>& items) {
        for (T& item : items) visit(item);
    }
    void visit(Array<SectionRecord>& sections) {
        for (SectionRecord& section : sections) visitSection(*this, section);
        if (count_++ != picked_) return;
        if (sections.size() > 0 && random_() % 2 == 0)
            sections.erase(sections.last());
        else
            sections.append(sections.size() > 0 ? sections(sections.first()) : SectionRecord{});
    }

    template <class Whole>
    void change(Whole& number) {
        constexpr std::array<int, 12> kWhole = {0, 1, 2, 3, 4, 9, 10, -1, 200, 1000, 6000, 32767};
        number = static_cast<Whole>(random_() % 2 == 0 ? kWhole[random_() % kWhole.size()]
                                                       : int(number) + int(random_() % 3) - 1);
    }
    void change(bool& flag) { flag = !flag; }
    void change(Single& number) {
        constexpr float kInfinity = std::numeric_limits<float>::infinity();
        constexpr std::array<float, 18> kNumbers = {
            0.0F,   -0.0F,  1.0F,    -1.0F,   0.5F,   2.0F,  4.0F,  15.0F,     100.0F,
            200.0F, 355.0F, 3000.0F, 6000.0F, 1e-30F, 1e20F, 3e38F, kInfinity, std::numeric_limits<float>::quiet_NaN()};
        constexpr std::array<double, 6> kFactors = {-1.0, 0.1, 0.5, 0.999, 2.0, 10.0};
        if (random_() % 2 == 0)
            number = Single::fromStored(kNumbers[random_() % kNumbers.size()]);
        else
            number *= kFactors[random_() % kFactors.size()];
    }
    void change(std::string& text) {
        static const std::array<std::string, 14> kTexts = {
            "", "HEA 300", "IPE 300", "Is", "Iu", "R", "W", "Pl 50x30", "A75", "S235", "General", "FP", "FW", "1e9"};
        text = kTexts[random_() % kTexts.size()];
    }

    int picked_;
    std::mt19937& random_;
    int count_ = 0;
};

}  // namespace

}  // namespace borvik::fuzzing

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t largest,
                                               unsigned int start) {
    using namespace borvik;
    std::mt19937 random(start);
    if (random() % 8 == 0) return LLVMFuzzerMutate(data, size, largest);
    Project project;
    std::string bytes;
    try {
        readProjectBytes(std::string(data, data + size), project);
        fuzzing::FieldChanger counter(-1, random);
        visitProject(counter, project);
        for (std::uint32_t changes = 1 + random() % 4; changes > 0; --changes) {
            fuzzing::FieldChanger changer(static_cast<int>(random() % static_cast<unsigned>(counter.count())), random);
            visitProject(changer, project);
        }
        bool lost = false;
        bytes = projectBytes(project, lost);
    } catch (const ProjectFileError&) {
        return LLVMFuzzerMutate(data, size, largest);
    }
    if (bytes.size() > largest) return LLVMFuzzerMutate(data, size, largest);
    std::memcpy(data, bytes.data(), bytes.size());
    return bytes.size();
}
