#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace borvik {

enum class Answer { Yes, No, Cancel };

/// What the program asks the user: modal boxes and file choosers in the window, prepared answers in tests.
class Questions {
public:
    virtual ~Questions() = default;
    /// @param text  UTF-8, shown word for word
    [[nodiscard]] virtual Answer yesNoCancel(const std::string& text) = 0;
    /// @param choices  captions of the buttons beside Cancel
    /// @return the number of the chosen one, from 0, or nothing when cancelled
    [[nodiscard]] virtual std::optional<std::size_t> choose(const std::string& text,
                                                            const std::vector<std::string>& choices) = 0;
    /// Chooses an existing file. @param pattern  such as "*.brvk" @param folder  to start in; empty: the current one
    /// @return its path, or nothing when cancelled
    [[nodiscard]] virtual std::optional<std::string> fileToOpen(const std::string& pattern,
                                                                const std::string& folder) = 0;
    /// Chooses a file to write; asks before an existing one is replaced.
    /// @param proposal   file name to start with
    /// @param extension  added to a name that has none, such as "brvk"; another kind of file that the user chooses from
    ///                   the patterns brings its own
    [[nodiscard]] virtual std::optional<std::string> fileToSave(const std::string& proposal, const std::string& pattern,
                                                                const std::string& extension) = 0;
};

}  // namespace borvik
