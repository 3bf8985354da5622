// Calculates the example projects and writes them, as a user would save them, into the folder given.

#include <filesystem>
#include <iostream>

#include "calculation/calculation.h"
#include "examples.h"
#include "project/project_file.h"
#include "section/section.h"

int main(int argc, char** argv) {
    using namespace borvik;
    if (argc != 2) {
        std::cerr << "usage: make-examples FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder = argv[1];
    try {
        Session session(LoadTables(BORVIK_SOURCE_DIR "/data"));
        for (const Example& example : Examples(session.tables)) {
            session.project = example.project;
            MessageList messages;
            Progress progress;
            if (!Calculate(session, messages, progress)) {
                for (const std::string& text : messages.texts) std::cerr << example.file << ": " << text << '\n';
                return 1;
            }
            MarkSectionsInUse(session.project);
            std::filesystem::remove(folder / example.file);  // saving over a longer file would keep its tail
            SaveProject((folder / example.file).string(), session.project);
        }
    } catch (const std::exception& error) {
        std::cerr << "make-examples: " << error.what() << '\n';
        return 1;
    }
}
