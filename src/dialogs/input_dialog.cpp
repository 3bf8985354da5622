#include "dialogs/input_dialog.h"

#include <QAction>
#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <algorithm>
#include <map>

namespace borvik {

namespace {

/// A scroll area that asks for the whole of its content, so that bars appear only on a screen too small for the form.
class WholeContentArea : public QScrollArea {
public:
    [[nodiscard]] QSize sizeHint() const override { return widget()->sizeHint(); }
};

/// What a desktop puts around a window: borders and the title.
constexpr QSize kWindowFrame(8, 36);

/// Where the user begins: the first box that can be filled in, else the first control that Tab reaches.
QWidget* firstStop(QWidget* form) {
    QWidget* control = nullptr;
    for (QWidget* each = form->nextInFocusChain(); each != form; each = each->nextInFocusChain()) {
        if (!each->isVisibleTo(form) || !each->isEnabled() || (each->focusPolicy() & Qt::TabFocus) == 0) continue;
        const auto* box = qobject_cast<NumberBox*>(each);
        if (box != nullptr && !box->isReadOnly()) return each;
        if (control == nullptr) control = each;
    }
    return control;
}

}  // namespace

InputDialog::InputDialog(const std::string& name, const QString& title, Session& session, Messages& messages,
                         std::function<void()> changed, QWidget* parent, std::string mismatch)
    : QDialog(parent),
      session_(session),
      project_(session.project),
      messages_(messages),
      binder_(session.project, messages, std::move(mismatch), this),
      changed_(std::move(changed)),
      atFirst_(project_) {
    setObjectName(QString::fromStdString(name));
    setWindowTitle(title);
    setModal(true);
    binder_.accepted = [this] { inputChanged(); };
    const auto addKeys = [this](const char* command, const QList<QKeySequence>& keys,
                                const State& (Steps<State>::*step)()) {
        auto* action = new QAction(this);
        action->setObjectName(QString::fromUtf8(command));
        action->setShortcuts(keys);
        connect(action, &QAction::triggered, this, [this, step] { standAt(step); });
        addAction(action);
    };
    addKeys("undo", undoKeys(), &Steps<State>::back);
    addKeys("redo", redoKeys(), &Steps<State>::forward);
}

std::unique_ptr<InputDialog> InputDialog::openOver(DialogKind kind, std::function<void()> edited) {
    auto form = opener_(kind, std::move(edited));
    form->open();
    return form;
}

void InputDialog::done(int result) {
    if (binder_.refusalPending()) return;
    const auto* box = qobject_cast<const NumberBox*>(QApplication::focusWidget());
    const bool insisted = box != nullptr && box == refusedAtClosing_ && box->standsRefused();
    if (!insisted && !binder_.commitFocused()) {
        refusedAtClosing_ = box;
        return;
    }
    // What the closing settles is not among the user's changes.
    changes_ =
        spanChanges(atFirst_, project_) + sectionChanges(atFirst_, project_) + shownAtFirst_.changesTo(controls());
    settling_ = true;
    const bool closes = mayClose();
    settling_ = false;
    if (!steps_.empty()) steps_.present() = state();
    if (!closes) return;
    inputChanged();
    QDialog::done(result);
    if (auto* openedFrom = qobject_cast<InputDialog*>(parentWidget())) openedFrom->takeStep();
}

bool InputDialog::edited() const {
    Project before = atFirst_, now = project_;
    settle(before);
    settle(now);
    return !(before == now);
}

QString InputDialog::whatChanged() const {
    if (changes_.size() < 2) return changes_.join(QString());
    return tr("%1 and %2 more").arg(changes_.constFirst()).arg(changes_.size() - 1);
}

InputDialog::State InputDialog::state() const {
    return {project_, editsSection() ? session_.CurrentSection : SectionRecord()};
}

void InputDialog::inputChanged() {
    session_.inputChanged();
    binder_.refresh();
    if (steps_.empty()) return;  // still being filled
    takeStep();
    if (changed_) changed_();
    if (takesSteps()) steps_.present() = state();  // what the window derives from an edit belongs to it
}

/// Not while a form opened from this one is still being edited.
bool InputDialog::takesSteps() const {
    const auto forms = findChildren<InputDialog*>();
    return !steps_.empty() &&
           std::none_of(forms.begin(), forms.end(), [](const InputDialog* form) { return form->isVisible(); });
}

void InputDialog::takeStep() {
    if (settling_ || !takesSteps()) return;
    if (State now = state(); !(now == steps_.present())) steps_.add(std::move(now));
}

/// Undo and redo, once the box being edited has nothing more of its own to take back.
void InputDialog::standAt(const State& (Steps<State>::*step)()) {
    if (steps_.empty() || binder_.refusalPending()) return;
    takeStep();  // a refused value is stored, but was no step until now
    const State& stand = (steps_.*step)();
    QWidget* focus = focusWidget();
    if (auto* box = qobject_cast<NumberBox*>(focus)) {
        const QSignalBlocker untested(box);  // what it holds is about to be another value
        box->clearFocus();
    }
    settling_ = true;
    project_ = stand.project;
    if (editsSection()) session_.CurrentSection = stand.section;
    showInput();
    inputChanged();
    settling_ = false;
    if (focus != nullptr && focus->isEnabled()) focus->setFocus(Qt::OtherFocusReason);
}

QPushButton* InputDialog::closeButton(const std::string& name, const QString& text, const QString& tip,
                                      std::function<void()> clicked) {
    if (!clicked) clicked = [this] { accept(); };
    QPushButton* button = makeButton(name, text, tip, std::move(clicked));
    button->setShortcut(Qt::ALT | Qt::Key_C);
    binder_.afterLast = button;
    return button;
}

void InputDialog::setContent(QLayout* content) {
    auto* area = new WholeContentArea;
    area->setFocusPolicy(Qt::NoFocus);  // it shows no focus, and would take that of the first box
    auto* inside = new QWidget;
    inside->setLayout(content);
    area->setWidget(inside);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    auto* outer = new QVBoxLayout(this);
    outer->setContentsMargins(0, 0, 0, 0);
    outer->addWidget(area);
    // Enter moves on from box to box and must never press a button that doesn't have the focus.
    for (QPushButton* button : findChildren<QPushButton*>()) button->setAutoDefault(false);
    joinOptions(this);
    for (QLineEdit* box : findChildren<QLineEdit*>()) undoKeys_.watch(box);
}

void InputDialog::showEvent(QShowEvent* event) {
    if (!event->spontaneous()) {
        resize(sizeHint().boundedTo(screen()->availableSize() - kWindowFrame));
        if (steps_.empty()) {
            steps_.add(state());
            shownAtFirst_ = controls();
        }
    }
    QDialog::showEvent(event);
    if (event->spontaneous()) return;
    setAttribute(Qt::WA_KeyboardFocusChange);  // what has the focus shows it from the beginning
    if (QWidget* first = firstStop(this)) first->setFocus(Qt::TabFocusReason);
}

void InputDialog::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enter && event->modifiers().testFlag(Qt::ControlModifier)) {
        accept();
    } else if (enter && qobject_cast<QAbstractButton*>(QApplication::focusWidget()) != nullptr) {
        qobject_cast<QAbstractButton*>(QApplication::focusWidget())->click();
    } else {
        QDialog::keyPressEvent(event);
    }
}

void joinOptions(QWidget* form) {
    std::map<QWidget*, QButtonGroup*> choices;
    for (auto* option : form->findChildren<QRadioButton*>()) {
        QButtonGroup*& choice = choices[option->parentWidget()];
        if (choice == nullptr) choice = new QButtonGroup(option->parentWidget());
        choice->addButton(option);
    }
    for (const auto& each : choices) {
        const QButtonGroup* choice = each.second;
        // Tab goes to the option that is chosen, also before any of them has had the focus.
        const auto letTabReachTheChosen = [choice] {
            const QAbstractButton* chosen = choice->checkedButton();
            for (QAbstractButton* option : choice->buttons())
                option->setFocusPolicy(chosen == nullptr || option == chosen ? Qt::StrongFocus : Qt::ClickFocus);
        };
        letTabReachTheChosen();
        QObject::connect(choice, &QButtonGroup::buttonToggled, choice, letTabReachTheChosen);
    }
}

Group makeGroup(const std::string& name, const QString& title) {
    auto* box = new QGroupBox(title);
    box->setObjectName(QString::fromStdString(name));
    return {box, new QGridLayout(box)};
}

int nextRow(const QGridLayout* grid) {
    return grid->count() == 0 ? 0 : grid->rowCount();
}

void addRow(QGridLayout* grid, const QString& label, QWidget* field, const QString& unit) {
    const int row = nextRow(grid);
    auto* text = new QLabel(label);
    text->setBuddy(field);
    grid->addWidget(text, row, 0);
    grid->addWidget(field, row, 1);
    grid->addWidget(new QLabel(unit), row, 2);
}

void addWide(QGridLayout* grid, QWidget* widget) {
    grid->addWidget(widget, nextRow(grid), 0, 1, -1);
}

QPushButton* makeButton(const std::string& name, const QString& text, const QString& tip,
                        std::function<void()> clicked) {
    return makeChoice<QPushButton>(name, text, tip, std::move(clicked));
}

QComboBox* makeList(const std::string& name, const QString& tip, std::function<void(int)> chosen) {
    auto* list = new QComboBox;
    list->setObjectName(QString::fromStdString(name));
    list->setToolTip(tip);
    QObject::connect(list, &QComboBox::activated, list, [chosen = std::move(chosen)](int index) { chosen(index); });
    return list;
}

QTreeWidget* makePropertyList(const std::string& name) {
    auto* list = new QTreeWidget;
    list->setObjectName(QString::fromStdString(name));
    list->setColumnCount(3);
    list->setHeaderHidden(true);
    list->setRootIsDecorated(false);
    list->setAlternatingRowColors(true);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setFocusPolicy(Qt::NoFocus);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    list->header()->setStretchLastSection(true);
    return list;
}

void fillPropertyList(QTreeWidget* list, const std::vector<PropertyRow>& rows) {
    list->clear();
    for (const PropertyRow& row : rows) {
        auto* item = new QTreeWidgetItem(
            list, {QString::fromUtf8(row.label), QString::fromStdString(row.value), QString::fromUtf8(row.unit)});
        item->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
        if (row.value.empty()) {
            QFont bold = list->font();
            bold.setBold(true);
            item->setFont(0, bold);
        }
    }
    const QAbstractItemView& cells = *list;
    int width = 2 * list->frameWidth();
    for (int column = 0; column < list->columnCount(); ++column) width += cells.sizeHintForColumn(column);
    list->setMinimumWidth(std::max(list->minimumWidth(), width));  // units are not cut off
}

}  // namespace borvik
