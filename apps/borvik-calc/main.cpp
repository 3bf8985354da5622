#include <iostream>

#include "batch.h"
#include "crane_loads_file.h"
#include "exit_codes.h"
#include "options.h"
#include "platform/data_folder.h"

int main(int argc, char** argv) {
    using namespace borvik;
    try {
        const auto parsed = parseOptions(argc, argv);
        if (const int* exitCode = std::get_if<int>(&parsed)) return *exitCode;
        const Options& options = std::get<Options>(parsed);
        if (!options.craneLoads.empty()) return writeCraneLoads(options.craneLoads, std::cout, std::cerr);
        return runBatch(options,
                        LoadTables(options.tables.empty() ? findDataFolder(programFolder(argv[0])) : options.tables));
    } catch (const TableError& error) {
        std::cerr << "borvik-calc: " << error.what() << '\n';
        return kFileFault;
    } catch (const std::exception& error) {
        std::cerr << "borvik-calc: " << error.what() << '\n';
        return kFault;
    }
}
