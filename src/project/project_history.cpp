#include "project/project_history.h"

#include <utility>

namespace borvik {

ProjectHistory::ProjectHistory(const Project& project, const ProjectContext& context) {
    replaced("", project, context);
}

void ProjectHistory::add(ProjectStep step) {
    if (!steps_.empty()) steps_.resize(present_ + 1);
    if (steps_.size() == kSteps + 1) steps_.erase(steps_.begin());
    steps_.push_back(std::move(step));
    present_ = steps_.size() - 1;
}

bool ProjectHistory::changed(const std::string& what, const Project& project) {
    if (project == present().project) return false;
    add({what, project, present().document});
    return true;
}

void ProjectHistory::replaced(const std::string& what, const Project& project, const ProjectContext& context) {
    replaced(what, project, ProjectDocument{context.FileName, context.FileTitle, project});
}

void ProjectHistory::replaced(const std::string& what, const Project& project, ProjectDocument document) {
    add({what, project, std::make_shared<ProjectDocument>(std::move(document))});
}

void ProjectHistory::settled(const Project& project) {
    if (!unsaved(present().project)) present().document->saved = project;
    steps_[present_].project = project;
}

void ProjectHistory::saved(const Project& project, const std::string& path) {
    *present().document = {path, path, project};
    steps_[present_].project = project;
}

const std::string* ProjectHistory::undoName() const {
    return present_ == 0 ? nullptr : &present().what;
}

const std::string* ProjectHistory::redoName() const {
    return present_ + 1 == steps_.size() ? nullptr : &steps_[present_ + 1].what;
}

const ProjectStep& ProjectHistory::undo() {
    if (present_ > 0) --present_;
    return present();
}

const ProjectStep& ProjectHistory::redo() {
    if (present_ + 1 < steps_.size()) ++present_;
    return present();
}

}  // namespace borvik
