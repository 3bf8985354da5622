#include "project/project_file.h"

#include <algorithm>
#include <bit>
#include <filesystem>
#include <limits>
#include <string_view>
#include <system_error>

#include "base/sha256.h"
#include "base/whole_file.h"
#include "base/windows1252.h"
#include "project/attachment.h"
#include "project/project_fields.h"

namespace borvik {

namespace {

constexpr std::size_t kLongestText = std::numeric_limits<std::uint16_t>::max();
constexpr std::size_t kFixedText = 64;
/// First indices beyond this are no project; so an index never overflows.
constexpr int kFurthestIndex = 1'000'000;

[[noreturn]] void failNoProject() {
    throw ProjectFileError(ProjectFileError::Kind::Other, "The file is not a project file of this program.");
}

/// Appends fields to the bytes of a project file.
class Writer {
public:
    explicit Writer(bool& lost) : lost_(lost) {}

    template <class... Fields>
    void operator()(const Fields&... fields) {
        (put(fields), ...);
    }

    void fixedText(const std::string& text) {
        std::string bytes = encoded(text, kFixedText);
        bytes.resize(kFixedText, ' ');
        bytes_ += bytes;
    }

    [[nodiscard]] std::string take() { return std::move(bytes_); }

private:
    /// Little-endian, whatever the machine's own order is.
    template <std::unsigned_integral Word>
    void putWord(Word word) {
        for (std::size_t i = 0; i < sizeof word; ++i)
            bytes_ += static_cast<char>(static_cast<unsigned char>((word >> (8 * i)) & 0xFFU));
    }
    void put(std::uint8_t byte) { putWord(byte); }
    void put(std::int16_t number) { putWord(static_cast<std::uint16_t>(number)); }
    void put(std::int32_t number) { putWord(static_cast<std::uint32_t>(number)); }
    template <class Choice>
    requires std::is_enum_v<Choice>
    void put(Choice choice) { put(static_cast<std::underlying_type_t<Choice>>(choice)); }
    void put(bool flag) { put(static_cast<std::int16_t>(flag ? -1 : 0)); }
    void put(const Single& number) { putWord(std::bit_cast<std::uint32_t>(number.stored())); }
    void put(const std::string& text) {
        const std::string bytes = encoded(text, kLongestText);
        putWord(static_cast<std::uint16_t>(bytes.size()));
        bytes_ += bytes;
    }
    template <class T, int First, int Last>
    void put(const FixedArray<T, First, Last>& items) {
        for (const T& item : items) put(item);
    }
    void put(const Array<SectionRecord>& sections) {
        put(static_cast<std::int16_t>(sections.sized() ? 1 : 0));  // number of dimensions
        if (!sections.sized()) return;
        put(std::int32_t{sections.size()});
        put(std::int32_t{sections.first()});
        for (const SectionRecord& section : sections) visitSection(*this, section);
    }

    [[nodiscard]] std::string encoded(const std::string& text, std::size_t longest) const {
        std::string bytes = toWindows1252(text, lost_);
        if (bytes.size() > longest)
            throw ProjectFileError(ProjectFileError::Kind::Other, "The text \"" + fromWindows1252(bytes.substr(0, 30)) +
                                                                      "...\" has " + std::to_string(bytes.size()) +
                                                                      " characters; a project file holds at most " +
                                                                      std::to_string(longest) + ".");
        return bytes;
    }

    bool& lost_;
    std::string bytes_;
};

/// Takes fields off the bytes of a project file. Nothing that the bytes say about lengths is believed: memory grows
/// only with the bytes that are really there.
class Reader {
public:
    explicit Reader(std::string_view bytes) : rest_(bytes) {}

    template <class... Fields>
    void operator()(Fields&... fields) {
        (get(fields), ...);
    }

    void fixedText(std::string& text) {
        const std::string_view bytes = take(kFixedText);
        text = fromWindows1252(bytes.substr(0, bytes.find_last_not_of(' ') + 1));
    }

    /// What has not been read.
    [[nodiscard]] std::string_view rest() const { return rest_; }

private:
    std::string_view take(std::size_t count) {
        if (count > rest_.size()) throw ProjectFileError(ProjectFileError::Kind::EndOfFile, " End of file passed ");
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }
    template <std::unsigned_integral Word>
    Word word() {
        std::uint32_t word = 0;
        const std::string_view bytes = take(sizeof(Word));
        for (std::size_t i = 0; i < bytes.size(); ++i)
            word |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
        return static_cast<Word>(word);
    }
    void get(std::uint8_t& byte) { byte = word<std::uint8_t>(); }
    void get(std::int16_t& number) { number = static_cast<std::int16_t>(word<std::uint16_t>()); }
    void get(std::int32_t& number) { number = static_cast<std::int32_t>(word<std::uint32_t>()); }
    template <class Choice>
    requires std::is_enum_v<Choice>
    void get(Choice& choice) {
        choice = static_cast<Choice>(word<std::make_unsigned_t<std::underlying_type_t<Choice>>>());
    }
    void get(bool& flag) { flag = word<std::uint16_t>() != 0; }
    void get(Single& number) { number = Single::fromStored(std::bit_cast<float>(word<std::uint32_t>())); }
    void get(std::string& text) { text = fromWindows1252(take(word<std::uint16_t>())); }
    template <class T, int First, int Last>
    void get(FixedArray<T, First, Last>& items) {
        for (T& item : items) get(item);
    }
    void get(Array<SectionRecord>& sections) {
        const auto dimensions = word<std::uint16_t>();
        if (dimensions == 0) return;
        std::int32_t count = 0, first = 0;
        (*this)(count, first);
        if (dimensions != 1 || count < 0 || first < -kFurthestIndex || first > kFurthestIndex) failNoProject();
        sections = Array<SectionRecord>(first, first - 1);
        for (int i = 0; i < count; ++i) {
            sections.append({});
            visitSection(*this, sections(sections.last()));
        }
    }

    std::string_view rest_;
};

/// Empties what a record holds in texts and arrays; numbers stay, as a file that ends early leaves them.
class Eraser {
public:
    template <class... Fields>
    void operator()(Fields&... fields) {
        (erase(fields), ...);
    }

private:
    template <class Field>
    static void erase(Field&) {}
    static void erase(std::string& text) { text.clear(); }
    static void erase(Array<SectionRecord>& sections) { sections = {}; }
};

void mendDisplayNames(Array<SectionRecord>& sections, int from) {
    for (int i = std::max(from, sections.first()); i <= sections.last(); ++i)
        if (sections(i).DisplayName.empty()) sections(i).DisplayName = sections(i).TableName;
}

/// What the user reads when the system refuses a file.
std::string refusal(const char* what, const std::string& path, const std::system_error& error) {
    return std::string("The project file \"") + path + "\" can't be " + what + ": " + reasonOf(error) + ".";
}

}  // namespace

std::string projectBytes(const Project& project, bool& lost) {
    Writer writer(lost);
    visitProject(writer, project);
    return writer.take() + (project.Attached.empty() ? "" : attachmentBytes(project.Attached));
}

bool sameRecord(const Project& one, const Project& other) {
    if (one == other) return true;
    bool lost = false;
    return projectBytes(one, lost) == projectBytes(other, lost) && !lost;
}

std::string fingerprintOf(const Project& project) {
    constexpr std::size_t kDigits = 12;
    bool lost = false;
    return sha256(projectBytes(project, lost)).substr(0, kDigits);
}

std::string readProjectBytes(const std::string& bytes, Project& project) {
    Eraser eraser;
    visitProject(eraser, project);
    project.Attached.clear();
    Reader reader(bytes);
    visitProject(reader, project);
    mendDisplayNames(project.SpanSection, 1);
    mendDisplayNames(project.SectionList, 0);
    const std::optional<Attachment> attached = findAttachment(reader.rest());
    if (!attached) return {};
    project.Attached = attached->text;
    if (attached->fault.empty()) return {};
    return "What belongs to the project beside its record, such as crane data, " + attached->fault +
           " and was left out.";
}

namespace {

/// What a file has behind a record of that size, without an attachment. @param found  whether there was one
std::string tailBehind(const std::string& path, std::size_t record, bool& found) {
    std::error_code unknown;
    if (!std::filesystem::is_regular_file(path, unknown)) return {};
    std::string old = readFile(path);
    const std::optional<Attachment> attached = findAttachment(old);
    found = attached.has_value();
    if (found) old.resize(old.size() - attached->size);
    return old.size() > record ? old.substr(record) : std::string();
}

}  // namespace

bool SaveProject(const std::string& path, const Project& project) {
    bool lost = false;
    const std::string bytes = projectBytes(project, lost);
    const std::size_t attached = project.Attached.empty() ? 0 : attachmentBytes(project.Attached).size();
    const std::size_t record = bytes.size() - attached;
    try {
        bool hadAttachment = false;
        const std::string tail = tailBehind(path, record, hadAttachment);
        if (attached == 0 && !hadAttachment)
            overwriteFile(path, bytes);
        else
            replaceFile(path, bytes.substr(0, record) + tail + bytes.substr(record));
    } catch (const std::system_error& error) {
        throw ProjectFileError(ProjectFileError::Kind::Other, refusal("written", path, error));
    }
    return !lost;
}

std::string LoadProject(const std::string& path, Project& project) {
    project.StartStopOutside = 0;
    std::string bytes;
    try {
        bytes = readFile(path);
    } catch (const std::system_error& error) {
        const std::filesystem::path folder = std::filesystem::path(path).parent_path();
        std::error_code ignored;
        if (!folder.empty() && !std::filesystem::is_directory(folder, ignored) &&
            error.code() != std::errc::permission_denied)
            throw ProjectFileError(ProjectFileError::Kind::PathNotFound, " Path not found ");
        if (error.code() == std::errc::no_such_file_or_directory)
            throw ProjectFileError(ProjectFileError::Kind::NotFound, " Can't find file ");
        throw ProjectFileError(ProjectFileError::Kind::Other, refusal("read", path, error));
    }
    return readProjectBytes(bytes, project);
}

}  // namespace borvik
