// Writes docs/validation.md: build/release/tools/validation/validation docs/validation.md

#include <fstream>
#include <iostream>

#include "validation.h"

int main(int argc, char** argv) {
    using namespace borvik;
    try {
        const validation::Document document = validation::validate(LoadTables(BORVIK_SOURCE_DIR "/data"));
        for (const std::string& failure : document.failures()) std::cerr << failure << '\n';
        if (argc > 1) {
            std::ofstream(argv[1], std::ios::binary) << document.markdown();
            std::cout << document.comparisons() << " comparisons, " << document.failures().size() << " differ\n";
        } else {
            std::cout << document.markdown();
        }
        return document.failures().empty() ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 2;
    }
}
