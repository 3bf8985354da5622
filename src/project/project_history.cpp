#include "project/project_history.h"

#include <utility>

#include "project/project_file.h"

namespace borvik {

ProjectHistory::ProjectHistory(const Project& project, const std::string& fileName) {
    replaced("", project, fileName);
}

bool ProjectHistory::unsaved(const Project& project) const {
    return !sameRecord(project, present().document->saved);
}

bool ProjectHistory::changed(const std::string& what, const Project& project) {
    if (sameRecord(project, present().project)) return false;
    steps_.add({what, project, present().document});
    return true;
}

void ProjectHistory::replaced(const std::string& what, const Project& project, const std::string& fileName) {
    replaced(what, project, ProjectDocument{fileName, fileName, project});
}

void ProjectHistory::replaced(const std::string& what, const Project& project, ProjectDocument document) {
    steps_.add({what, project, std::make_shared<ProjectDocument>(std::move(document))});
}

void ProjectHistory::settled(const Project& project) {
    if (!unsaved(present().project)) present().document->saved = project;
    steps_.present().project = project;
}

void ProjectHistory::saved(const Project& project, const std::string& path) {
    *present().document = {path, path, project, {}};
    steps_.present().project = project;
}

const std::string* ProjectHistory::undoName() const {
    return steps_.canGoBack() ? &present().what : nullptr;
}

const std::string* ProjectHistory::redoName() const {
    const ProjectStep* next = steps_.next();
    return next == nullptr ? nullptr : &next->what;
}

const ProjectStep& ProjectHistory::undo() {
    return steps_.back();
}

const ProjectStep& ProjectHistory::redo() {
    return steps_.forward();
}

}  // namespace borvik
