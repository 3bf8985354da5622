#include "console.h"

#include <unistd.h>

#include <cmath>
#include <iostream>

#include "base/shown_text.h"

namespace borvik {

namespace {

constexpr auto kFirstProgress = std::chrono::seconds(1);
constexpr auto kBetweenProgress = std::chrono::milliseconds(100);

const char* nameOf(Walk walk) {
    switch (walk) {
        case Walk::Uls:
            return "ULS";
        case Walk::Sls:
            return "SLS";
        case Walk::Fls:
            return "FLS";
    }
    return "";
}

}  // namespace

Console::Console(std::string name, bool withProgress)
    : name_(withoutControls(std::move(name))),
      withProgress_(withProgress && isatty(STDERR_FILENO) != 0),
      nextProgress_(Clock::now() + kFirstProgress) {}

Console::~Console() {
    wipeProgress();
}

void Console::show(const std::string& text) {
    wipeProgress();
    texts_.push_back(text);
    std::cerr << name_ << ": " << withoutControls(text, "\n") << std::endl;
}

void Console::position(Walk walk, double percent) {
    if (!withProgress_) return;
    const Clock::time_point now = Clock::now();
    if (now < nextProgress_) return;
    nextProgress_ = now + kBetweenProgress;
    progressShown_ = true;
    std::cerr << '\r' << name_ << ": " << nameOf(walk) << ' ' << std::lround(percent) << " %  " << std::flush;
}

void Console::wipeProgress() {
    constexpr const char* kClearLine = "\r\033[K";
    if (progressShown_) std::cerr << kClearLine << std::flush;
    progressShown_ = false;
}

}  // namespace borvik
