#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <functional>
#include <vector>

#include "calculation/session.h"
#include "forms/form_binder.h"

class QComboBox;
class QPushButton;
class QTreeWidget;

namespace borvik {

/// What all input forms have in common: they write straight into the project, so there is no cancel; every way of
/// closing (button, Esc, Ctrl+Enter, the window's cross) first stores the box being edited and then asks the form's
/// closing rule; a closed form leaves the results out of reach until the next calculation.
class InputDialog : public QDialog {
    Q_OBJECT

public:
    /// A second attempt to close while the same refused value stands in its box closes the form with that value stored,
    /// so that nobody is ever locked in. The form's closing rule is asked all the same.
    void done(int result) override;

protected:
    InputDialog(const std::string& name, const QString& title, Session& session, Messages& messages,
                std::function<void()> changed, QWidget* parent, std::string mismatch = "Input string mismatch ");

    /// The last guard. @return false to stay open
    virtual bool mayClose() { return true; }

    /// The input has changed: results are out of reach and the main window's sketch follows.
    void inputChanged();
    /// The button that closes the form: Alt+C presses it, Enter in the last box goes to it.
    /// @param clicked  what it does; left out: accept()
    [[nodiscard]] QPushButton* closeButton(const std::string& name, const QString& text, const QString& tip,
                                           std::function<void()> clicked = {});
    /// Puts the form together; what doesn't fit a small screen can be scrolled. Options in one frame are one choice.
    void setContent(QLayout* content);

    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    Session& session_;
    Project& project_;
    Messages& messages_;
    FormBinder binder_;

private:
    std::function<void()> changed_;
    const NumberBox* refusedAtClosing_ = nullptr;
};

/// Makes one choice of the options of each frame of a form, so that an inner frame of options and an outer one leave
/// each other alone, and Tab goes to the chosen one.
void joinOptions(QWidget* form);

/// A group of a form, with an empty grid to be filled.
struct Group {
    QGroupBox* box;
    QGridLayout* grid;
};

[[nodiscard]] Group makeGroup(const std::string& name, const QString& title);
/// The first empty row at the foot of a grid.
[[nodiscard]] int nextRow(const QGridLayout* grid);
/// Adds a row "label, field, unit" at the foot of a grid, the label as the field's buddy.
void addRow(QGridLayout* grid, const QString& label, QWidget* field, const QString& unit = {});
/// Adds a control over the whole width at the foot of a grid.
void addWide(QGridLayout* grid, QWidget* widget);

[[nodiscard]] QPushButton* makeButton(const std::string& name, const QString& text, const QString& tip,
                                      std::function<void()> clicked);
/// An option, a check box, named; `clicked` is called when the user chooses it, not when the form is filled.
template <class Button>
[[nodiscard]] Button* makeChoice(const std::string& name, const QString& text, const QString& tip,
                                 std::function<void()> clicked) {
    auto* button = new Button(text);
    button->setObjectName(QString::fromStdString(name));
    button->setToolTip(tip);
    QObject::connect(button, &QAbstractButton::clicked, button, [clicked = std::move(clicked)] { clicked(); });
    return button;
}
/// A list to choose from; `chosen` gets the index when the user chooses, not when the form is filled.
[[nodiscard]] QComboBox* makeList(const std::string& name, const QString& tip, std::function<void(int)> chosen);

/// A row of a list of properties; a row without a value is a heading.
struct PropertyRow {
    const char* label;
    std::string value;
    const char* unit;
};

/// A list of properties in three columns: label, value, unit.
[[nodiscard]] QTreeWidget* makePropertyList(const std::string& name);
void fillPropertyList(QTreeWidget* list, const std::vector<PropertyRow>& rows);

}  // namespace borvik
