#pragma once

#include <iosfwd>
#include <map>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace borvik {

/// One place where two result documents differ.
struct Difference {
    std::string path;      ///< such as "Uls.MyMaxPoint[2][11][1]", counted from 1
    std::string quantity;  ///< the same without the places: "Uls.MyMaxPoint[][][1]"
    std::string ours, theirs;
};

/// Differences between two result documents of the same project, computed by two programs. Numbers agree to 2e-6
/// relative, or to 3e-7 of the largest value of their quantity; texts but for one unit in the last digit of their
/// decimal numbers. The name of the program, the file and the wording of a fault are free.
class ResultComparison {
public:
    ResultComparison(const nlohmann::json& ours, const nlohmann::json& theirs);

    std::vector<Difference> differences;

private:
    struct Place {
        std::string path, quantity;
    };
    void compare(const Place& place, const nlohmann::json& ours, const nlohmann::json& theirs);
    void compareObjects(const Place& place, const nlohmann::json& ours, const nlohmann::json& theirs);
    void compareArrays(const Place& place, const nlohmann::json& ours, const nlohmann::json& theirs);
    void noteScales(const Place& place, const nlohmann::json& theirs);
    void differ(const Place& place, const nlohmann::json& ours, const nlohmann::json& theirs);

    std::map<std::string, double> scales_;  ///< largest magnitude of each quantity
};

/// The first differences and how many there are of each quantity.
std::ostream& operator<<(std::ostream& out, const ResultComparison& comparison);

/// True when two texts differ at most by one unit in the last digit of the decimal numbers in them.
bool agreeToTheLastDigit(const std::string& ours, const std::string& theirs);

}  // namespace borvik
