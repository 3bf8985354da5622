#pragma once

#include "platform/messages.h"
#include "platform/questions.h"

namespace borvik {

/// Messages as modal boxes with the exclamation icon, owned by the active window.
class QtMessages : public Messages {
public:
    void show(const std::string& text) override;
};

/// Questions as modal boxes and the platform's file choosers, owned by the active window. The choosers remember the
/// folder in which the user was last, as long as the program runs.
class QtQuestions : public Questions {
public:
    [[nodiscard]] Answer yesNoCancel(const std::string& text) override;
    [[nodiscard]] std::optional<std::size_t> choose(const std::string& text,
                                                    const std::vector<std::string>& choices) override;
    [[nodiscard]] std::optional<std::string> fileToOpen(const std::string& pattern, const std::string& folder) override;
    [[nodiscard]] std::optional<std::string> fileToSave(const std::string& proposal, const std::string& pattern,
                                                        const std::string& extension) override;

private:
    std::string folder_;
};

}  // namespace borvik
