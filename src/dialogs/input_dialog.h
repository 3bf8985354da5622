#pragma once

#include <QAbstractButton>
#include <QDialog>
#include <QGridLayout>
#include <QGroupBox>
#include <functional>
#include <memory>
#include <vector>

#include "boxes/change_names.h"
#include "boxes/form_binder.h"
#include "boxes/undo_keys.h"
#include "calculation/session.h"
#include "dialogs/dialog_kind.h"
#include "project/steps.h"

class QComboBox;
class QPushButton;
class QTreeWidget;

namespace borvik {

/// What all input forms have in common: they write straight into the project, so there is no cancel; every way of
/// closing (button, Esc, Ctrl+Enter, the window's cross) first stores the box being edited and then asks the form's
/// closing rule; a closed form leaves the results out of reach until the next calculation. While it is open, undo and
/// redo take its own edits back and make them again, one by one.
class InputDialog : public QDialog {
    Q_OBJECT

public:
    /// A second attempt to close while the same refused value stands in its box closes the form with that value stored,
    /// so that nobody is ever locked in. The form's closing rule is asked all the same.
    void done(int result) override;

    /// Whether the record differs by an edit of the user from what it was when the form was made. What the form itself
    /// settles, such as computed values, is no edit.
    [[nodiscard]] bool edited() const;
    /// What the user has changed, when the form was last asked to
    /// close: "V3 175 → 0 and 2 more"; empty where no control tells.
    [[nodiscard]] QString whatChanged() const;

    /// Makes another form over this one. @param edited  called after each of its edits
    using Opener = std::function<std::unique_ptr<InputDialog>(DialogKind kind, std::function<void()> edited)>;
    /// How this form gets at the others, which it doesn't know itself.
    void setOpener(Opener opener) { opener_ = std::move(opener); }

protected:
    InputDialog(const std::string& name, const QString& title, Session& session, Messages& messages,
                std::function<void()> changed, QWidget* parent, std::string mismatch = "Input string mismatch ");

    /// The last guard. @return false to stay open
    virtual bool mayClose() { return true; }
    /// Fills all controls from the record and from the section being worked on.
    virtual void showInput() = 0;
    /// Brings a record to what opening and closing this form, without an edit, makes of it. Harmless a second time.
    virtual void settle(Project&) const {}
    /// Whether number boxes and lists show the record itself, rather than something to be given to it by a button.
    [[nodiscard]] virtual bool boxesShowRecord() const { return true; }
    /// Whether the form edits the section being worked on, beside the record.
    [[nodiscard]] virtual bool editsSection() const { return false; }

    /// Opens another form over this one, to be kept for as long as it may be open.
    /// @param edited  called after each of its edits
    [[nodiscard]] std::unique_ptr<InputDialog> openOver(DialogKind kind, std::function<void()> edited);
    /// The input has changed: results are out of reach, undo has one more step, the main window's sketch follows.
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
    /// What undo takes back: the record, and the section being worked on where the form edits it.
    struct State {
        Project project;
        SectionRecord section;
        bool operator==(const State&) const = default;
    };

    [[nodiscard]] State state() const;
    [[nodiscard]] bool takesSteps() const;
    [[nodiscard]] ControlTexts controls() const { return {*this, binder_, boxesShowRecord()}; }
    void takeStep();
    void standAt(const State& (Steps<State>::*step)());

    std::function<void()> changed_;
    Opener opener_;
    Project atFirst_;
    Steps<State> steps_;  ///< from when the form is shown; a visit to a form opened from this one is one step
    ControlTexts shownAtFirst_;
    QStringList changes_;
    UndoKeys undoKeys_;
    bool settling_ = false;  ///< what changes now is no edit: a step put back, or what closing derives
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
