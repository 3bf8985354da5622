#include "window/recovery_copies.h"

#include <QDataStream>
#include <QDir>
#include <QUuid>
#include <filesystem>
#include <system_error>

#include "base/whole_file.h"
#include "project/project_file.h"

namespace borvik {

namespace {

constexpr const char* kHead = "Borvik recovery copy 1";
constexpr const char* kEnding = ".copy";
constexpr auto kStream = QDataStream::Qt_6_0;

/// Locked as long as the process lives that made it, however long that is.
std::unique_ptr<QLockFile> lockNamed(const QString& path) {
    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(0);
    return lock;
}

/// The lock of a run that has ended; null while it lives. A lock that names no process, as a full disk leaves it,
/// counts as one after a while, else it would hide its copies for ever.
std::unique_ptr<QLockFile> lockOfEnded(const QString& path) {
    constexpr qint64 kSecondsToWriteIt = 60;
    auto lock = lockNamed(path);
    if (lock->tryLock()) return lock;
    qint64 process = 0;
    QString host, program;
    const bool isSpoilt = lock->error() == QLockFile::LockFailedError && !lock->getLockInfo(&process, &host, &program);
    if (!isSpoilt || QFileInfo(path).lastModified().secsTo(QDateTime::currentDateTime()) < kSecondsToWriteIt)
        return nullptr;
    QFile::remove(path);
    return lock->tryLock() ? std::move(lock) : nullptr;
}

/// The name of the run that has written a copy: what stands before the number of the copy.
QString runOf(const QFileInfo& copy) {
    return copy.completeBaseName().section('.', 0, 0);
}

void read(QFile& file, LeftCopy& copy) {
    if (!file.open(QIODevice::ReadOnly)) return;
    QDataStream stream(&file);
    stream.setVersion(kStream);
    QByteArray head, fileName, bytes, stamp;
    stream >> head >> fileName;
    if (stream.status() != QDataStream::Ok || head != kHead) return;
    copy.FileName = fileName.toStdString();
    stream >> bytes;
    if (stream.status() != QDataStream::Ok) return;
    stream >> stamp;  // version 0.1.0 wrote none: the file then counts as changed
    copy.stamp = stamp.toStdString();
    try {
        Project project;
        readProjectBytes(bytes.toStdString(), project);
        copy.project = std::move(project);
    } catch (const ProjectFileError&) {
        copy.project.reset();
    }
}

}  // namespace

RecoveryCopies::RecoveryCopies(QString folder)
    : folder_(std::move(folder)), name_(QUuid::createUuid().toString(QUuid::Id128)) {}

QString RecoveryCopies::keep(const std::shared_ptr<ProjectDocument>& document, const Project& project) {
    if (folder_.isEmpty()) return {};
    if (lock_ == nullptr) {
        QDir().mkpath(folder_);
        std::error_code ignored;  // a drive without permissions
        std::filesystem::permissions(folder_.toStdString(), std::filesystem::perms::owner_all, ignored);
        lock_ = lockNamed(pathOf(name_ + ".lock"));
    }
    if (!lock_->isLocked() && !lock_->tryLock()) return QObject::tr("%1 can't be written").arg(folder_);
    auto [entry, isNew] = copies_.try_emplace(document);
    if (isNew) entry->second = pathOf(name_ + "." + QString::number(copies_.size()) + kEnding);
    QByteArray copy;
    QDataStream stream(&copy, QIODevice::WriteOnly);
    stream.setVersion(kStream);
    bool lost = false;
    stream << QByteArray(kHead) << QByteArray::fromStdString(document->FileName)
           << QByteArray::fromStdString(projectBytes(project, lost)) << QByteArray::fromStdString(document->stamp);
    try {
        replaceFile(entry->second.toStdString(), copy.toStdString(), Readers::UserOnly);
    } catch (const std::system_error& error) {
        return QString::fromStdString(reasonOf(error));
    }
    return {};
}

void RecoveryCopies::drop(const std::shared_ptr<ProjectDocument>& document) {
    const auto entry = copies_.find(document);
    if (entry != copies_.end()) QFile::remove(entry->second);
}

std::vector<LeftCopy> RecoveryCopies::leftCopies() const {
    std::vector<LeftCopy> left;
    if (folder_.isEmpty()) return left;
    const auto files = QDir(folder_).entryInfoList({QString("*") + kEnding}, QDir::Files, QDir::Time);
    for (const QFileInfo& info : files) {
        const auto lock = lockOfEnded(pathOf(runOf(info) + ".lock"));
        if (lock == nullptr) continue;
        LeftCopy copy{info.absoluteFilePath(), info.lastModified(), {}, {}, {}};
        QFile file(copy.path);
        read(file, copy);
        left.push_back(std::move(copy));
    }
    // Locks of killed runs, with or without copies: letting go of one removes its file.
    for (const QFileInfo& info : QDir(folder_).entryInfoList({"*.lock"}, QDir::Files))
        if (info.completeBaseName() != name_) lockOfEnded(info.absoluteFilePath());
    return left;
}

void RecoveryCopies::remove(const LeftCopy& copy) {
    QFile::remove(copy.path);
}

QString RecoveryCopies::setAside(const LeftCopy& copy) {
    const QString aside = copy.path + ".spoilt";
    return QFile::rename(copy.path, aside) ? aside : copy.path;
}

}  // namespace borvik
