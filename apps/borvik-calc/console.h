#pragma once

#include <chrono>
#include <string>
#include <vector>

#include "platform/messages.h"
#include "platform/progress.h"

namespace borvik {

/// What the user sees on standard error while one project is calculated: messages with the project's name in front and,
/// on a terminal, the progress of a run that takes longer than a second.
class Console : public Messages, public Progress {
public:
    /// @param name          of the project, as given on the command line
    /// @param withProgress  false: never show progress
    Console(std::string name, bool withProgress);
    ~Console() override;
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    void show(const std::string& text) override;
    void position(Walk walk, double percent) override;

    /// Texts of the messages so far, without the name.
    [[nodiscard]] const std::vector<std::string>& texts() const { return texts_; }

private:
    using Clock = std::chrono::steady_clock;
    void wipeProgress();

    std::string name_;
    bool withProgress_;
    bool progressShown_ = false;
    Clock::time_point nextProgress_;
    std::vector<std::string> texts_;
};

}  // namespace borvik
