#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QTest>

#include "boxes/number_box.h"
#include "dialogs/dialogs.h"
#include "tables/reference_tables.h"

namespace borvik {

inline const ReferenceTables& referenceTables() {
    static const ReferenceTables tables = LoadTables(BORVIK_SOURCE_DIR "/data");
    return tables;
}

/// An input form, shown without a display and driven by the names of its controls.
class FormTest : public testing::Test {
protected:
    void open(DialogKind kind) {
        form = makeDialog(
            kind, session, messages, [this] { ++changes; }, nullptr);
        form->show();
        form->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    }

    template <class Control = NumberBox>
    Control& control(const std::string& name) {
        auto* found = form->findChild<Control*>(QString::fromStdString(name));
        if (found == nullptr) throw std::runtime_error("no control " + name);
        return *found;
    }
    void settle() {
        QCoreApplication::processEvents();
        QTest::qWait(0);
    }
    /// Goes to a box and types over what stands there; what no key has is pasted.
    void type(const std::string& box, const std::string& text) {
        control(box).setFocus(Qt::TabFocusReason);
        const bool keys = std::all_of(text.begin(), text.end(), [](char each) { return each >= ' '; });
        if (keys) QTest::keyClicks(&control(box), QString::fromStdString(text));
        if (!keys) control(box).insert(QString::fromStdString(text));
    }
    void leave() {
        form->setFocus();
        settle();
    }
    void enter(const std::string& box, const std::string& text) {
        type(box, text);
        leave();
    }
    void click(const std::string& button) {
        auto& each = control<QAbstractButton>(button);
        each.click();
        settle();
    }
    [[nodiscard]] std::string shown(const std::string& box) { return control(box).text().toStdString(); }
    [[nodiscard]] std::string lastMessage() const { return messages.texts.empty() ? "" : messages.texts.back(); }
    [[nodiscard]] std::string focused() const {
        return QApplication::focusWidget() == nullptr ? "" : QApplication::focusWidget()->objectName().toStdString();
    }

    MessageList messages;
    Session session{referenceTables()};
    Project& project = session.project;
    int changes = 0;
    std::unique_ptr<QDialog> form;
};

}  // namespace borvik
