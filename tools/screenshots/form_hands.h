#pragma once

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>
#include <stdexcept>
#include <string>

namespace borvik {

/// Works in a window as its user does, by the names of its controls. What can't be done is thrown as a
/// std::runtime_error.
class FormHands {
public:
    explicit FormHands(QWidget& form) : form_(form) {}

    template <class Control>
    Control& control(const char* name) const {
        auto* found = form_.findChild<Control*>(QString::fromUtf8(name));
        if (found == nullptr) throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    void click(const char* button) const { control<QAbstractButton>(button).click(); }
    void tick(const char* box, bool on) const {
        if (control<QAbstractButton>(box).isChecked() != on) click(box);
    }
    /// Types over what stands in a box and leaves it by that key.
    void enter(const char* box, const char* text, Qt::Key leave = Qt::Key_Return) const {
        auto& edit = control<QLineEdit>(box);
        // a page that has just come to the front takes the focus a moment later
        const bool focused = QTest::qWaitFor([&edit] {
            edit.setFocus(Qt::TabFocusReason);
            return edit.hasFocus();
        });
        if (!focused) throw std::runtime_error(std::string("no focus on ") + box);
        edit.selectAll();
        QTest::keyClicks(&edit, text);
        QTest::keyClick(&edit, leave);
        QCoreApplication::processEvents();
    }
    void choose(const char* list, const char* text) const {
        auto& box = control<QComboBox>(list);
        const int row = box.findText(text);
        if (row < 0) throw std::runtime_error(std::string("no choice ") + text + " in " + list);
        box.setCurrentIndex(row);
        Q_EMIT box.activated(row);
    }

private:
    QWidget& form_;
};

}  // namespace borvik
