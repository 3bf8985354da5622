#pragma once

#include <string>
#include <vector>

namespace borvik {

/// Where messages to the user go: a modal box with the exclamation icon in the window, a line on standard error on the
/// command line, a list in tests.
class Messages {
public:
    virtual ~Messages() = default;
    /// @param text  UTF-8, shown word for word, blanks included
    virtual void show(const std::string& text) = 0;
};

/// Keeps the messages in a list.
class MessageList : public Messages {
public:
    void show(const std::string& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};

}  // namespace borvik
