#include "support/golden.h"

#include <cstdlib>
#include <sstream>

#include "support/temp_folder.h"

namespace borvik::testing_support {

std::string goldenDifference(const std::string& file, const std::string& text) {
    const std::string path = BORVIK_SOURCE_DIR "/tests/data/golden/" + file;
    const std::string golden = bytesOf(path);
    if (golden == text) return {};
    if (std::getenv("BORVIK_RENEW") != nullptr) {
        writeBytes(path, text);
        return path + " is written anew; read the difference before it is committed";
    }
    std::istringstream shown(text), wanted(golden);
    std::ostringstream out;
    int count = 0;
    for (int number = 1; count < 12; ++number) {
        std::string ours, theirs;
        const bool more = bool(std::getline(shown, ours));
        if (!std::getline(wanted, theirs) && !more) break;
        if (ours != theirs && ++count > 0) out << number << ": " << theirs << "\n" << number << "> " << ours << "\n";
    }
    out << "differs from " << path << "; if it is meant to, run the test with BORVIK_RENEW=1";
    return out.str();
}

}  // namespace borvik::testing_support
