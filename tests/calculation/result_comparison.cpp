#include "result_comparison.h"

#include <cctype>
#include <cmath>
#include <ostream>

namespace borvik {

namespace {

using nlohmann::json;

constexpr double kRelative = 2e-6;
constexpr double kOfLargest = 3e-7;

/// A record of an extreme: the extreme first, then what goes with it at the same position of the cranes.
bool isRecord(const std::string& quantity, const json& array) {
    const bool ofPoint = quantity.find("Point[][]") != std::string::npos;
    const bool ofSpan = quantity.find("Span[]") != std::string::npos || quantity.find("Peak[]") != std::string::npos;
    return (ofPoint || ofSpan) && !array.empty() && array.front().is_number();
}

bool isFreeText(const std::string& path) {
    return path == "Program" || path == "File";
}

/// A decimal number at the start of `text`: its end, its value, and the unit of its last digit (0 for a whole number).
struct PrintedNumber {
    std::size_t end = 0;
    double value = 0, unit = 0;
};

PrintedNumber readNumber(const std::string& text, std::size_t begin) {
    const auto digits = [&](std::size_t at) {
        while (at < text.size() && std::isdigit(static_cast<unsigned char>(text[at]))) ++at;
        return at;
    };
    PrintedNumber number;
    number.end = digits(begin);
    if (number.end + 1 < text.size() && text[number.end] == '.' && digits(number.end + 1) > number.end + 1) {
        const std::size_t point = number.end;
        number.end = digits(point + 1);
        number.unit = std::pow(10.0, -static_cast<double>(number.end - point - 1));
    }
    number.value = std::stod(text.substr(begin, number.end - begin));
    return number;
}

}  // namespace

bool agreeToTheLastDigit(const std::string& ours, const std::string& theirs) {
    std::size_t i = 0, j = 0;
    while (i < ours.size() && j < theirs.size()) {
        const bool number =
            std::isdigit(static_cast<unsigned char>(ours[i])) && std::isdigit(static_cast<unsigned char>(theirs[j]));
        if (!number) {
            if (ours[i++] != theirs[j++]) return false;
            continue;
        }
        const PrintedNumber a = readNumber(ours, i), b = readNumber(theirs, j);
        if (a.unit != b.unit || std::abs(a.value - b.value) > 1.001 * a.unit) return false;
        i = a.end;
        j = b.end;
    }
    return i == ours.size() && j == theirs.size();
}

ResultComparison::ResultComparison(const json& ours, const json& theirs) {
    noteScales({}, theirs);
    compare({}, ours, theirs);
}

void ResultComparison::noteScales(const Place& place, const json& theirs) {
    if (theirs.is_number()) {
        double& scale = scales_[place.quantity];
        scale = std::max(scale, std::abs(theirs.get<double>()));
    } else if (theirs.is_object()) {
        for (const auto& [name, item] : theirs.items())
            noteScales({"", place.quantity.empty() ? name : place.quantity + "." + name}, item);
    } else if (theirs.is_array()) {
        const bool record = isRecord(place.quantity, theirs);
        for (std::size_t i = 0; i < theirs.size(); ++i)
            noteScales({"", place.quantity + (record ? "[" + std::to_string(i + 1) + "]" : "[]")}, theirs[i]);
    }
}

void ResultComparison::compare(const Place& place, const json& ours, const json& theirs) {
    if (isFreeText(place.path)) return;
    if (ours.is_number() && theirs.is_number()) {
        const double a = ours.get<double>(), b = theirs.get<double>();
        const double tolerance = std::max(kRelative * std::abs(b), kOfLargest * scales_[place.quantity]);
        if (!(std::abs(a - b) <= tolerance)) differ(place, ours, theirs);
    } else if (ours.type() != theirs.type()) {
        differ(place, ours, theirs);
    } else if (ours.is_object()) {
        compareObjects(place, ours, theirs);
    } else if (ours.is_array()) {
        compareArrays(place, ours, theirs);
    } else if (ours.is_string()) {
        const bool same =
            place.path == "Fault" || agreeToTheLastDigit(ours.get<std::string>(), theirs.get<std::string>());
        if (!same) differ(place, ours, theirs);
    } else if (ours != theirs) {
        differ(place, ours, theirs);
    }
}

void ResultComparison::compareObjects(const Place& place, const json& ours, const json& theirs) {
    const std::string prefix = place.path.empty() ? "" : place.path + ".";
    const std::string quantityPrefix = place.quantity.empty() ? "" : place.quantity + ".";
    for (const auto& [name, item] : theirs.items()) {
        const Place inside{prefix + name, quantityPrefix + name};
        if (ours.contains(name))
            compare(inside, ours[name], item);
        else
            differences.push_back({inside.path, inside.quantity, "absent", item.dump().substr(0, 60)});
    }
    for (const auto& [name, item] : ours.items())
        if (!theirs.contains(name) && !isFreeText(prefix + name))
            differences.push_back({prefix + name, quantityPrefix + name, item.dump().substr(0, 60), "absent"});
}

void ResultComparison::compareArrays(const Place& place, const json& ours, const json& theirs) {
    if (ours.size() != theirs.size()) {
        differences.push_back({place.path, place.quantity, std::to_string(ours.size()) + " entries",
                               std::to_string(theirs.size()) + " entries"});
        return;
    }
    const bool record = isRecord(place.quantity, theirs);
    for (std::size_t i = 0; i < theirs.size(); ++i) {
        const std::string index = "[" + std::to_string(i + 1) + "]";
        compare({place.path + index, place.quantity + (record ? index : "[]")}, ours[i], theirs[i]);
    }
}

void ResultComparison::differ(const Place& place, const json& ours, const json& theirs) {
    differences.push_back({place.path, place.quantity, ours.dump().substr(0, 120), theirs.dump().substr(0, 120)});
}

std::ostream& operator<<(std::ostream& out, const ResultComparison& comparison) {
    constexpr std::size_t kShown = 12;
    out << comparison.differences.size() << " differences\n";
    for (std::size_t i = 0; i < std::min(comparison.differences.size(), kShown); ++i) {
        const Difference& difference = comparison.differences[i];
        out << "  " << difference.path << ": ours " << difference.ours << ", theirs " << difference.theirs << '\n';
    }
    std::map<std::string, int> counts;
    for (const Difference& difference : comparison.differences) ++counts[difference.quantity];
    for (const auto& [quantity, count] : counts) out << "    " << count << " x " << quantity << '\n';
    return out;
}

}  // namespace borvik
