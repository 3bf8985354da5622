// Writes the chapter of notes into the manual: build/release/tools/notes-chapter/notes-chapter docs/theory.md

#include <fstream>
#include <iostream>
#include <sstream>

#include "notes_chapter.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: notes-chapter docs/theory.md\n";
        return 2;
    }
    try {
        std::ostringstream manual;
        manual << std::ifstream(argv[1], std::ios::binary).rdbuf();
        const std::string text = borvik::withNotesChapter(manual.str());
        std::ofstream file(argv[1], std::ios::binary);
        file << text;
        file.close();
        return file ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return 1;
    }
}
