#include "base/whole_file.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

#if __has_include(<unistd.h>)
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <fstream>
#endif

namespace borvik {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kLongestRead = std::size_t{16} << 20;

constexpr int kNoFile = ENOTSUP;  // what is refused here, and no answer of the system to opening or writing

[[noreturn]] void fail(int error) {
    throw std::system_error(error, std::generic_category());
}

/// The file behind a chain of symbolic links, also where that file doesn't exist yet.
fs::path behindLinks(fs::path path) {
    constexpr int longestChain = 40;
    for (int i = 0; fs::is_symlink(path); ++i) {
        if (i == longestChain) fail(ELOOP);
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

}  // namespace

std::string reasonOf(const std::system_error& error) {
    return error.code().value() == kNoFile ? "it is no file but a pipe or a device" : error.code().message();
}

std::string readFile(const std::string& path) {
    std::error_code unknown;
    const fs::file_status status = fs::status(path, unknown);
    if (fs::exists(status) && !fs::is_regular_file(status)) fail(fs::is_directory(status) ? EISDIR : kNoFile);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file) fail(errno);
    std::string bytes;
    std::array<char, 65536> block{};
    while (bytes.size() < kLongestRead) {
        const std::size_t count = std::fread(block.data(), 1, block.size(), file.get());
        if (count == 0) break;
        bytes.append(block.data(), count);
    }
    if (std::ferror(file.get()) != 0) fail(errno);
    return bytes;
}

#if __has_include(<unistd.h>)

namespace {

// Of the file that is written beside its target; the process and a number stand between them.
constexpr const char* kTemporaryPrefix = ".borvik-";
constexpr const char* kTemporarySuffix = ".tmp";

/// An open file of the system, closed at the end.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() {
        if (number_ >= 0) ::close(number_);
    }
    [[nodiscard]] int number() const { return number_; }
    /// Some file systems report a full disk only here.
    void close() {
        if (::close(std::exchange(number_, -1)) != 0) fail(errno);
    }

private:
    int number_;
};

void writeAll(const Descriptor& file, const char* bytes, std::size_t count) {
    while (count > 0) {
        const ssize_t written = ::write(file.number(), bytes, count);
        if (written < 0 && errno == EINTR) continue;
        if (written < 0) fail(errno);
        bytes += written;
        count -= static_cast<std::size_t>(written);
    }
}

constexpr mode_t kUsual = 0666;    // less what the user's mask takes away
constexpr mode_t kPrivate = 0600;  // until the file has the permissions of the one that it replaces

/// A new file in a folder, removed at the end unless it has been renamed.
class TemporaryFile {
public:
    TemporaryFile(const fs::path& folder, mode_t mode) : descriptor_(create(folder, mode)) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() {
        if (!path_.empty()) ::unlink(path_.c_str());
    }

    void write(const char* bytes, std::size_t count) { writeAll(descriptor_, bytes, count); }
    /// Copies what an old file has behind `offset`.
    void writeTail(const fs::path& old, std::size_t offset) {
        const Descriptor source(::open(old.c_str(), O_RDONLY | O_CLOEXEC));
        if (source.number() < 0) fail(errno);
        std::array<char, 65536> block{};
        for (auto at = static_cast<off_t>(offset);;) {
            const ssize_t count = ::pread(source.number(), block.data(), block.size(), at);
            if (count < 0 && errno == EINTR) continue;
            if (count < 0) fail(errno);
            if (count == 0) return;
            write(block.data(), static_cast<std::size_t>(count));
            at += count;
        }
    }
    /// Only the superuser may give a file away, and some network drives have no permissions: neither is a reason to
    /// refuse to save. What can't be set leaves the file to its writer alone.
    void takeOwnerAndPermissions(const struct stat& old) {
        const bool given = ::fchown(descriptor_.number(), old.st_uid, old.st_gid) == 0;
        [[maybe_unused]] const int ignored = ::fchmod(descriptor_.number(), old.st_mode & (given ? 07777U : 0777U));
    }
    void renameTo(const fs::path& path) {
        if (::fsync(descriptor_.number()) != 0) fail(errno);
        descriptor_.close();
        if (::rename(path_.c_str(), path.c_str()) != 0) fail(errno);
        path_.clear();
    }

private:
    Descriptor create(const fs::path& folder, mode_t mode) {
        for (int i = 0;; ++i) {
            path_ =
                folder / (kTemporaryPrefix + std::to_string(::getpid()) + "-" + std::to_string(i) + kTemporarySuffix);
            const int number = ::open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
            if (number >= 0) return Descriptor(number);
            if (errno != EEXIST) fail(errno);
        }
    }
    fs::path path_;
    Descriptor descriptor_;
};

/// Removes what killed saves have left in a folder: what is older than a day, so that a file that is being written just
/// now, here or on another machine, is never touched.
void removeLeftovers(const fs::path& folder) {
    std::error_code failed;
    const auto yesterday = fs::file_time_type::clock::now() - std::chrono::hours(24);
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end; entry.increment(failed)) {
        const std::string name = entry->path().filename().string();
        if (!name.starts_with(kTemporaryPrefix) || !name.ends_with(kTemporarySuffix)) continue;
        std::error_code ignored;
        const auto written = entry->last_write_time(ignored);
        if (!ignored && written < yesterday) fs::remove(entry->path(), ignored);
    }
}

enum class Tail { Keep, Drop };

void writeWhole(const std::string& path, const std::string& bytes, Tail tail, Readers readers = Readers::Usual) {
    const fs::path target = behindLinks(path);
    const fs::path folder = target.has_parent_path() ? target.parent_path() : fs::path(".");
    struct stat old {};
    const bool exists = ::stat(target.c_str(), &old) == 0;
    if (exists && S_ISDIR(old.st_mode)) fail(EISDIR);
    if (exists && !S_ISREG(old.st_mode)) fail(kNoFile);  // a device must not be replaced by a file
    if (exists && ::faccessat(AT_FDCWD, target.c_str(), W_OK, AT_EACCESS) != 0) fail(errno);

    TemporaryFile file(folder, exists || readers == Readers::UserOnly ? kPrivate : kUsual);
    file.write(bytes.data(), bytes.size());
    if (exists) {
        if (tail == Tail::Keep) file.writeTail(target, bytes.size());
        file.takeOwnerAndPermissions(old);
    }
    file.renameTo(target);
    // the rename itself reaches the disk with its folder; the file is whole in any case, so a refusal here is no fault
    const Descriptor opened(::open(folder.c_str(), O_RDONLY | O_CLOEXEC));
    if (opened.number() >= 0) ::fsync(opened.number());
    removeLeftovers(folder);
}

}  // namespace

void overwriteFile(const std::string& path, const std::string& bytes) {
    writeWhole(path, bytes, Tail::Keep);
}

void replaceFile(const std::string& path, const std::string& bytes, Readers readers) {
    struct stat present {};
    if (::stat(path.c_str(), &present) != 0 || S_ISREG(present.st_mode) || S_ISDIR(present.st_mode)) {
        writeWhole(path, bytes, Tail::Drop, readers);
        return;
    }
    Descriptor open(::open(path.c_str(), O_WRONLY | O_CLOEXEC));
    if (open.number() < 0) fail(errno);
    writeAll(open, bytes.data(), bytes.size());
    open.close();
}

#else

namespace {

enum class Tail { Keep, Drop };

void writeWhole(const std::string& path, const std::string& bytes, Tail tail) {
    const fs::path target = behindLinks(path);
    const fs::path beside = fs::path(target) += ".tmp";
    std::string content = bytes;
    if (tail == Tail::Keep && fs::exists(target))
        if (const std::string old = readFile(target.string()); old.size() > bytes.size())
            content += old.substr(bytes.size());
    std::ofstream file(beside, std::ios::binary | std::ios::trunc);
    file.write(content.data(), static_cast<std::streamsize>(content.size()));
    file.close();
    std::error_code error;
    if (file) fs::rename(beside, target, error);
    if (file && !error) return;
    fs::remove(beside, error);
    fail(EIO);
}

}  // namespace

void overwriteFile(const std::string& path, const std::string& bytes) {
    writeWhole(path, bytes, Tail::Keep);
}

void replaceFile(const std::string& path, const std::string& bytes, Readers) {
    writeWhole(path, bytes, Tail::Drop);
}

#endif

}  // namespace borvik
