#include "crane_loads_file.h"

#include <ostream>
#include <stdexcept>

#include "actions/json/crane_json.h"
#include "base/shown_text.h"
#include "base/whole_file.h"
#include "exit_codes.h"

namespace borvik {

int writeCraneLoads(const std::string& file, std::ostream& out, std::ostream& err) {
    using namespace actions;
    Json content;
    try {
        content = parseJson(readFile(file));
    } catch (const std::system_error& error) {
        err << file << ": " << reasonOf(error) << '\n';
        return kFileFault;
    } catch (const std::runtime_error& error) {
        err << withoutControls(file + ": " + error.what()) << '\n';
        return kRefused;
    }

    const bool isList = content.is_array();
    if (!isList) content = Json::array({content});
    Json answers = Json::array();
    bool allGood = true;
    for (std::size_t i = 0; i < content.size(); ++i) {
        const ReadCrane read = craneFromJson(content[i]);
        const std::string place = file + ": " + (isList ? "crane " + std::to_string(i + 1) + ": " : "");
        for (const auto& messages : {read.faults, read.remarks})
            for (const FieldMessage& message : messages) err << withoutControls(place + message.line()) << '\n';
        allGood = allGood && read.isGood();
        if (read.isGood()) answers.push_back(loadsToJson(craneLoads(read.crane)));
    }
    if (!allGood) return kRefused;
    out << (isList ? answers : answers.front()).dump(2) << std::endl;
    if (out) return kDone;
    err << file << ": the loads can't be written to standard output\n";
    return kFileFault;
}

}  // namespace borvik
