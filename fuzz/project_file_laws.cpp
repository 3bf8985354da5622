#include "laws.h"
#include "project/project_file.h"

namespace borvik::fuzzing {

namespace {

std::string written(const Project& project) {
    bool lost = false;
    std::string bytes = projectBytes(project, lost);
    if (lost) throw BrokenLaw("a text read from a file can't be written again");
    return bytes;
}

}  // namespace

void checkProjectFile(const std::string& bytes) {
    Project project;
    try {
        readProjectBytes(bytes, project);
    } catch (const ProjectFileError& error) {
        if (error.kind() != ProjectFileError::Kind::EndOfFile && error.kind() != ProjectFileError::Kind::Other)
            throw BrokenLaw(std::string("bytes refused as if they were a path: ") + error.what());
        return;
    }
    const std::string first = written(project);
    // A mended name makes the record longer, never shorter, by at most as many bytes as stand in the file already.
    if (first.size() > 2 * bytes.size()) throw BrokenLaw("a project grows by being read");
    Project again;
    readProjectBytes(first, again);
    if (written(again) != first) throw BrokenLaw("a project changes by being saved and loaded");
}

}  // namespace borvik::fuzzing
