#pragma once

#include <memory>
#include <string>

#include "project/project.h"
#include "project/steps.h"

namespace borvik {

/// A project file being worked on, or one that has no file yet: what all its steps have in common.
struct ProjectDocument {
    std::string FileName, FileTitle;
    Project saved;           ///< as last saved, opened or made new
    std::string stamp = {};  ///< of the file's bytes then; empty where there was no file
};

/// A project as it stood after a change.
struct ProjectStep {
    std::string what;  ///< the change in the user's words, such as "Material"
    Project project;
    std::shared_ptr<ProjectDocument> document;  ///< never null
};

/// Every state of the project since the program started. One step for one accepted entry of the window, for one visit
/// to an input form or for one command; opening another project is a step like any other.
class ProjectHistory {
public:
    /// @param fileName  of a project that has no file yet: the name that the first save proposes
    ProjectHistory(const Project& project, const std::string& fileName);

    /// Records a change of the present project; what was undone before it is forgotten.
    /// @return false where the project is as it was: no step
    bool changed(const std::string& what, const Project& project);
    /// Another project takes the place of this one, just as its file holds it.
    void replaced(const std::string& what, const Project& project, const std::string& fileName);
    /// Another project takes the place of this one, with changes that its file does not hold.
    void replaced(const std::string& what, const Project& project, ProjectDocument document);
    /// What the program derives from the input belongs to the step that stands, and is no change of the user's: a saved
    /// project stays a saved one.
    void settled(const Project& project);
    /// The project has been written to that file.
    void saved(const Project& project, const std::string& path);

    [[nodiscard]] bool unsaved(const Project& project) const;
    [[nodiscard]] const ProjectStep& present() const { return steps_.present(); }

    /// The change that undo would take back and that redo would make again; null where there is none.
    [[nodiscard]] const std::string* undoName() const;
    [[nodiscard]] const std::string* redoName() const;
    /// One step back or forward, where there is one. @return the step that stands then
    const ProjectStep& undo();
    const ProjectStep& redo();

private:
    Steps<ProjectStep> steps_;
};

}  // namespace borvik
