#pragma once

#include <QAction>
#include <QPushButton>
#include <QTest>
#include <deque>

#include "support/temp_folder.h"
#include "tables/reference_tables.h"
#include "window/main_window.h"

namespace borvik {

/// Prepared answers instead of boxes and choosers; keeps what was asked. A question without an answer left is
/// cancelled.
class PreparedAnswers : public Questions {
public:
    Answer yesNoCancel(const std::string& text) override {
        asked.push_back(text);
        return take(answers, Answer::Cancel);
    }
    std::optional<std::size_t> choose(const std::string& text, const std::vector<std::string>&) override {
        asked.push_back(text);
        return take(choices, std::optional<std::size_t>());
    }
    std::optional<std::string> fileToOpen(const std::string& pattern, const std::string& folder) override {
        asked.push_back(pattern);
        openedIn = folder;
        return take(toOpen, std::optional<std::string>());
    }
    std::optional<std::string> fileToSave(const std::string& proposal, const std::string&,
                                          const std::string&) override {
        asked.push_back(proposal);
        return take(toSave, std::optional<std::string>());
    }

    std::vector<std::string> asked;
    std::string openedIn;  ///< folder of the last chooser
    std::deque<Answer> answers;
    std::deque<std::optional<std::size_t>> choices;
    std::deque<std::optional<std::string>> toOpen, toSave;

private:
    template <class T>
    static T take(std::deque<T>& prepared, T otherwise) {
        if (prepared.empty()) return otherwise;
        T first = prepared.front();
        prepared.pop_front();
        return first;
    }
};

/// The real main window, shown without a display, driven by the names of its controls.
struct WindowFixture {
    MessageList messages;
    PreparedAnswers questions;
    SettingsInMemory settings;
    Session session{LoadTables(BORVIK_SOURCE_DIR "/data")};
    MainWindow window;

    /// @param recoveryFolder  of copies of unsaved projects; none are kept without
    explicit WindowFixture(const std::string& recoveryFolder = {})
        : window(session, {messages, questions, settings, recoveryFolder}) {
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
    }

    template <class Control>
    Control& control(const char* name) {
        auto* found = window.findChild<Control*>(QString::fromUtf8(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    void click(const char* button) { QTest::mouseClick(&control<QAbstractButton>(button), Qt::LeftButton); }
    void trigger(const char* action) { control<QAction>(action).trigger(); }
    /// Types over what stands in a box and leaves it.
    void enter(const char* box, const char* text) {
        auto& edit = control<QLineEdit>(box);
        edit.setFocus();
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        control<QTreeWidget>("TreeView1").setFocus();
        QCoreApplication::processEvents();
    }
    /// A click of the mouse on a node of the tree.
    void clickNode(const char* text) {
        auto& tree = control<ResultTreeView>("TreeView1");
        QTreeWidgetItem* item = tree.itemOf(text);
        if (item == nullptr) throw std::runtime_error(std::string("no node ") + text);
        tree.scrollToItem(item);
        QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, tree.visualItemRect(item).center());
    }
    bool hasNode(const char* text) { return control<ResultTreeView>("TreeView1").itemOf(text) != nullptr; }
    [[nodiscard]] std::string lastMessage() const { return messages.texts.empty() ? "" : messages.texts.back(); }
    [[nodiscard]] Project& project() { return session.project; }
};

}  // namespace borvik
