#pragma once

#include <string>

namespace borvik {

/// Folder of the running program.
/// @param argv0  first argument of main, for systems that don't tell
[[nodiscard]] std::string programFolder(const char* argv0);

/// Folder of the reference tables: that of the program, else the installed data folder (found from the program's place,
/// so that an installation can be moved; else where it was configured to be). Where none holds the tables: the
/// program's folder, so that the message about a missing table names the place where it is expected.
/// @param ownFolder  as programFolder gives it
[[nodiscard]] std::string findDataFolder(const std::string& ownFolder);

}  // namespace borvik
