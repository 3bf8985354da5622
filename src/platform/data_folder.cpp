#include "platform/data_folder.h"

#include <filesystem>
#include <system_error>

namespace borvik {

namespace fs = std::filesystem;

std::string programFolder(const char* argv0) {
    std::error_code failed;
    fs::path program = fs::read_symlink("/proc/self/exe", failed);
    if (failed) program = fs::absolute(argv0, failed);
    return program.parent_path().string();
}

std::string findDataFolder(const std::string& ownFolder) {
    const fs::path beside = ownFolder;
    for (const fs::path& folder : {beside, beside / BORVIK_DATA_FROM_PROGRAM, fs::path(BORVIK_INSTALLED_DATA)}) {
        std::error_code failed;
        if (fs::exists(folder / "Euprof.csv", failed)) return folder.lexically_normal().string();
    }
    return ownFolder;
}

}  // namespace borvik
