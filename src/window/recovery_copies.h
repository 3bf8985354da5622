#pragma once

#include <QDateTime>
#include <QLockFile>
#include <QString>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "project/project_history.h"

namespace borvik {

/// A copy that a former run has left.
struct LeftCopy {
    QString path;                    ///< of the copy
    QDateTime written;               ///< local time
    std::string FileName;            ///< without a folder: a project that had no file yet
    std::string stamp;               ///< of the file that the changes were made to
    std::optional<Project> project;  ///< nothing where the copy is spoilt
};

/// Copies of projects with unsaved changes, in a folder of the user's own, for the day when
/// the program ends before they are saved. A copy is replaced as a whole or not at all, and
/// only the user can read it. Each running program keeps its copies under a name of its own
/// and holds a lock while it runs, so that none is offered by another one meanwhile.
class RecoveryCopies {
public:
    /// @param folder  made when it is needed; empty: nothing is kept
    explicit RecoveryCopies(QString folder);

    /// Keeps what the project of that document is now. @return why it could not be kept; empty when it was
    QString keep(const std::shared_ptr<ProjectDocument>& document, const Project& project);
    /// The document's project is safe elsewhere, or not wanted any more.
    void drop(const std::shared_ptr<ProjectDocument>& document);

    /// What former runs have left, the latest first.
    [[nodiscard]] std::vector<LeftCopy> leftCopies() const;
    static void remove(const LeftCopy& copy);
    /// Takes a spoilt copy out of what is offered. @return where it lies now
    static QString setAside(const LeftCopy& copy);

private:
    [[nodiscard]] QString pathOf(const QString& name) const { return folder_ + "/" + name; }

    QString folder_, name_;
    std::unique_ptr<QLockFile> lock_;
    std::map<std::shared_ptr<ProjectDocument>, QString> copies_;
};

}  // namespace borvik
