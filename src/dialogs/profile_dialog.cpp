#include "dialogs/profile_dialog.h"

#include <QLabel>
#include <QListWidget>
#include <QMainWindow>
#include <QPushButton>
#include <QRadioButton>
#include <QShowEvent>
#include <QSignalBlocker>
#include <QStatusBar>
#include <QTabWidget>
#include <QTreeWidget>

#include "boxes/section_combo.h"
#include "dialogs/prof_reinf_dialog.h"
#include "dialogs/section_rows.h"
#include "pictures/section_picture.h"

namespace borvik {

namespace {

/// The first section of a family in the project's list; otherwise one to begin with.
SectionRecord firstOf(const Project& project, const char* family, const SectionRecord& blank) {
    for (const SectionRecord& section : project.SectionList)
        if (section.Id == family) return section;
    SectionRecord section = blank;
    section.Id = family;
    section.Fab = "W";
    section.h = 700;
    section.b1 = section.b2 = 300;
    section.tw = 15;
    section.tf1 = section.tf2 = 25;
    section.Reinforced = section.InUse = false;
    section.ReinfText.clear();
    section.ReinfSuffix.clear();
    return section;
}

/// Why no such section can be made, though each dimension is within its limits; empty where it can.
QString impossible(const SectionRecord& s) {
    const auto says = [](const char* text) { return ProfileDialog::tr(text); };
    if (isWelded(s) && s.h - s.tf1 - s.tf2 <= 0) return says("Web height h - tf1 - tf2 <= 0");
    if (isWelded(s) && s.tw > std::min(s.b1, s.b2)) return says("Web thicker than a flange is wide");
    if (s.It < 0) return says("Torsion constant It < 0: the plates are too stout");
    if (const char* refusal = plateRefusal(s)) return says("Plates:") + QString::fromUtf8(refusal);
    return {};
}

}  // namespace

ProfileDialog::ProfileDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmProfile", tr("Profile"), session, messages, std::move(changed), parent, "Input string mismatch"),
      current_(session.CurrentSection),
      keptTable_(blankSection(session.tables)),
      keptIs_(firstOf(session.project, "Is", blankSection(session.tables))),
      keptIu_(firstOf(session.project, "Iu", blankSection(session.tables))) {
    auto* left = new QVBoxLayout;
    left->addWidget(tabs());
    lblName_ = new QLabel;
    lblName_->setObjectName(QStringLiteral("lblName"));
    lblName_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);  // a long name doesn't move the form
    left->addWidget(lblName_);
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(makeButton("addtoDBIu", tr("Add to Database"), tr("Add the section shown to the project's list"),
                                  [this] { addToList(); }));
    buttons->addWidget(makeButton("cmdReinfEu", tr("Reinforcement"), tr("Plates at the tips of the top flange"),
                                  [this] { openReinforcement(); }));
    left->addLayout(buttons);
    left->addWidget(makeButton("cmdReplace", tr("Replace in the list and in its spans"),
                               tr("The section shown takes the place of the entry shown last"),
                               [this] { replaceInList(); }));
    left->addWidget(sectionList().box);
    left->addStretch();

    picture_ = new Picture(sectionPicture(current_, project_), 56, 20);
    picture_->setToolTip(tr("The section to scale, with the point of load application"));
    auto* middle = new QVBoxLayout;
    middle->addWidget(picture_, 1);
    middle->addWidget(loadLevel().box);
    middle->addWidget(endPost().box);

    results_ = makePropertyList("lstResult");
    results_->setToolTip(tr("Properties and capacities of the section shown; partial factor γM0 included"));
    results_->setMinimumWidth(results_->fontMetrics().averageCharWidth() * 36);
    results_->setMinimumHeight(results_->fontMetrics().lineSpacing() * 25);
    lblWarning_ = new QLabel;
    lblWarning_->setObjectName(QStringLiteral("lblWarning"));
    lblWarning_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    lblWarning_->setStyleSheet(QStringLiteral("color: #c80000; font-weight: bold"));

    auto* content = new QGridLayout;
    content->addLayout(left, 0, 0);
    content->addLayout(middle, 0, 1);
    content->addWidget(results_, 0, 2);
    content->setColumnStretch(1, 1);
    content->addWidget(lblWarning_, 1, 0, 1, 2);
    content->addWidget(closeButton("Command1", tr("Close"), tr("Close the form")), 1, 2, Qt::AlignRight);
    setContent(content);
    binder_.accepted = [this] {
        UpdateResult();
        inputChanged();
    };
    writeList(0);
    if (project_.SectionList.has(0)) chooseEntry(0);
}

void ProfileDialog::WriteProfInput() {
    binder_.show();
    // An "Is" section of the list is shown beside the "Iu" fields; its bottom flange follows the top flange.
    for (const char* name : {"iustb2", "iusttf2"})
        findChild<NumberBox*>(QString::fromUtf8(name))->setEnabled(current_.Id != "Is");
}

void ProfileDialog::UpdateResult() {
    SectionRecord section = current_;
    try {
        updateSection(session_.tables, project_, section);
        current_ = section;
        WriteSectionResult();
    } catch (const RuntimeFault& fault) {
        fillPropertyList(results_, {{"No section of these dimensions:", "", ""}, {fault.what(), "", ""}});
    }
    picture_->update();
    showName();
}

int ProfileDialog::listedRow() const {
    int row = 0;
    for (const SectionRecord& section : project_.SectionList) {
        if (section.DisplayName == current_.DisplayName) return row;
        ++row;
    }
    return -1;
}

/// What the list shows as chosen is the section shown.
void ProfileDialog::showName() {
    const int row = listedRow();
    const QString name = QString::fromStdString(current_.DisplayName);
    const QString from = QString::fromStdString(from_);
    lblName_->setText(name + QLatin1Char('\n') +
                      (row >= 0        ? tr("in the list")
                       : from_.empty() ? tr("not in the list")
                                       : tr("not in the list; can replace %1").arg(from)));
    lblName_->setToolTip(lblName_->text());
    lblWarning_->setText(impossible(current_));
    const QSignalBlocker quiet(lstDatabase_);
    lstDatabase_->setCurrentRow(row);
    if (row >= 0) from_ = current_.DisplayName;
    for (const char* each : {"cmdX", "Cmd_pilupp", "Cmd_pilner"})
        findChild<QPushButton*>(QString::fromUtf8(each))->setEnabled(row >= 0);
    findChild<QPushButton*>(QStringLiteral("cmdReplace"))->setEnabled(row < 0 && !from_.empty());
}

void ProfileDialog::replaceInList() {
    if (const char* refusal = plateRefusal(current_)) {
        messages_.show(refusal);
        return;
    }
    const auto take = [this](Array<SectionRecord>& sections) {
        for (SectionRecord& section : sections) {
            if (section.DisplayName != from_) continue;
            const bool inUse = section.InUse;
            section = current_;
            section.InUse = inUse;
        }
    };
    take(project_.SpanSection);
    take(project_.SectionList);
    writeList(listedRow());
    showName();
    inputChanged();
}

void ProfileDialog::showEvent(QShowEvent* event) {
    InputDialog::showEvent(event);
    if (!event->spontaneous() && SSTab1_->currentIndex() == TableTab) cboEuprofile_->setFocus(Qt::TabFocusReason);
}

void ProfileDialog::done(int result) {
    InputDialog::done(result);
    if (isVisible() || listedRow() >= 0) return;
    for (QWidget* each = parentWidget(); each != nullptr; each = each->parentWidget())
        if (auto* window = qobject_cast<QMainWindow*>(each))
            window->statusBar()->showMessage(
                tr("%1 was not added to the list of sections").arg(QString::fromStdString(current_.DisplayName)),
                10000);
}

void ProfileDialog::WriteSectionResult() {
    fillPropertyList(results_, sectionRows(current_, project_));
}

QWidget* ProfileDialog::tabs() {
    SSTab1_ = new QTabWidget;
    SSTab1_->setObjectName(QStringLiteral("SSTab1"));
    SSTab1_->setUsesScrollButtons(false);  // all three tabs are seen
    SSTab1_->addTab(tableTab(), tr("Table section"));
    const QString h = tr("Height of the whole section"), tw = tr("Thickness of the web");
    SSTab1_->addTab(
        weldedTab({dimension("isth", current_.h, "##0", 50, "H >= 50", h),
                   dimension("isttw", current_.tw, "#.0", 0.1, "tw >= 0.1", tw),
                   dimension("istb1", current_.b1, "##0", 5, "b >= 5", tr("Width of both flanges")),
                   dimension("isttf1", current_.tf1, "#.0", 0.1, "tf1 >= 0.1", tr("Thickness of both flanges"))}),
        tr("Welded Is"));
    SSTab1_->addTab(
        weldedTab({dimension("iusth", current_.h, "##0", 50, "h >= 50", h),
                   dimension("iusttw", current_.tw, "#.0", 0.1, "tw >= 0.1", tw),
                   dimension("iustb1", current_.b1, "##0", 5, "b >= 5", tr("Width of the top flange")),
                   dimension("iusttf1", current_.tf1, "#.0", 0.1, "tf1 >= 0.1", tr("Thickness of the top flange")),
                   dimension("iustb2", current_.b2, "##0", 5, "b2 >= 5", tr("Width of the bottom flange")),
                   dimension("iusttf2", current_.tf2, "#.0", 0.1, "tf2 >= 0.1", tr("Thickness of the bottom flange"))}),
        tr("Welded Iu"));
    connect(SSTab1_, &QTabWidget::currentChanged, this, &ProfileDialog::showTab);
    return SSTab1_;
}

QWidget* ProfileDialog::tableTab() {
    cboEuprofile_ = makeSectionList("cboEuprofile", tr("Rolled section of the section table; type its name"),
                                    [this](int row) { chooseTableRow(row); });
    cboEuprofile_->setMinimumContentsLength(16);  // names of rolled sections are short
    for (const SectionRecord& section : session_.tables.SectionTable)
        cboEuprofile_->addItem(QString::fromStdString(section.TableName));
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    addRow(grid, tr("Section"), cboEuprofile_);
    grid->setRowStretch(1, 1);
    return page;
}

QWidget* ProfileDialog::weldedTab(const std::vector<NumberRow>& rows) {
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    // Equal flanges go by the names of the sketch.
    const QStringList labels =
        rows.size() == 4 ? QStringList{tr("H ="), tr("tw ="), tr("B ="), tr("tf =")}
                         : QStringList{tr("h ="), tr("tw ="), tr("b1 ="), tr("tf1 ="), tr("b2 ="), tr("tf2 =")};
    for (std::size_t i = 0; i < rows.size(); ++i)
        addRow(grid, labels[static_cast<int>(i)], binder_.add(rows[i]), tr("mm"));
    grid->setRowStretch(grid->rowCount(), 1);
    grid->setColumnStretch(2, 1);
    return page;
}

NumberRow ProfileDialog::dimension(const char* name, Single& field, const char* mask, double lowest,
                                   const char* message, const QString& meaning) {
    return {.name = name,
            .field = field,
            .mask = mask,
            .range = fixed(atLeast(lowest)),
            .message = message,
            .meaning = meaning};
}

Group ProfileDialog::sectionList() {
    const Group group = makeGroup("frDatabase", tr("Sections of the project"));
    lstDatabase_ = new QListWidget;
    lstDatabase_->setObjectName(QStringLiteral("lstDatabase"));
    lstDatabase_->setToolTip(tr("Sections that can be given to spans; choose one to see it"));
    // a width of its own, so that a new name never moves the form
    lstDatabase_->setMinimumHeight(lstDatabase_->fontMetrics().lineSpacing() * 8);
    lstDatabase_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    lstDatabase_->setWordWrap(true);  // a name longer than that takes two lines
    connect(lstDatabase_, &QListWidget::itemClicked, this, [this] { chooseEntry(lstDatabase_->currentRow()); });
    connect(lstDatabase_, &QListWidget::currentRowChanged, this, [this](int row) { chooseEntry(row); });
    // The list has the whole width, as far as the buttons below it reach.
    group.grid->addWidget(lstDatabase_, 0, 0, 1, 2);
    group.grid->addWidget(makeButton("Cmd_pilupp", tr(" Move Profile Up "), tr("One place up"), [this] { move(-1); }),
                          1, 0);
    group.grid->addWidget(
        makeButton("Cmd_pilner", tr(" Move Profile Down "), tr("One place down"), [this] { move(1); }), 1, 1);
    group.grid->addWidget(makeButton("cmdX", tr(" Remove Profile "), tr("Take the section out of the list"),
                                     [this] { removeFromList(); }),
                          2, 0, 1, 2);
    return group;
}

Group ProfileDialog::endPost() {
    const Group group = makeGroup("frEndPost", tr("End post"));
    const struct {
        const char* name;
        EndPost mode;
        QString text, tip;
    } options[] = {{"optStyv", EndPost::Rigid, tr("Rigid"), tr("Rigid end post, EN 1993-1-5, 9.3.1")},
                   {"optVek", EndPost::NonRigid, tr("Non-rigid"), tr("Non-rigid end post, EN 1993-1-5, 9.3.2")}};
    for (const auto& each : options) {
        auto* option = makeChoice<QRadioButton>(each.name, each.text, each.tip, [this, mode = each.mode] {
            project_.StiffenerMode = mode;
            UpdateResult();
            inputChanged();
        });
        option->setChecked(project_.StiffenerMode == each.mode);
        endPosts_.emplace_back(option, each.mode);
        const int column = static_cast<int>(endPosts_.size()) - 1;
        group.grid->addWidget(option, 0, column);
        group.grid->addWidget(new Picture(endPostPicture(each.mode), 12, 4), 1, column);
    }
    return group;
}

Group ProfileDialog::loadLevel() {
    const Group group = makeGroup("frLoadLevel", tr("Point of load application"));
    const QString texts[] = {tr("Top of rail"), tr("Top flange"), tr("Shear centre"), tr("Bottom flange")};
    for (std::int16_t level = 1; level <= 4; ++level) {
        auto* option = makeChoice<QRadioButton>(
            "OptLoadL" + std::to_string(level), texts[level - 1],
            tr("Height zg of the load above the shear centre in lateral torsional buckling"), [this, level] {
                project_.LoadLevel = LoadPoint{level};
                UpdateResult();
                inputChanged();
            });
        option->setChecked(project_.LoadLevel == LoadPoint{level});
        loadLevels_.emplace_back(option, LoadPoint{level});
        group.grid->addWidget(option, (level - 1) / 2, (level - 1) % 2);
    }
    return group;
}

void ProfileDialog::chooseTableRow(int row) {
    const SectionRecord& chosen = session_.tables.SectionTable(row);
    if (current_.TableName != chosen.TableName) {
        current_.Reinforced = false;
        current_.ReinfText.clear();
        current_.ReinfSuffix.clear();
    }
    current_.Id = chosen.Id;
    current_.TableName = chosen.TableName;
    UpdateResult();
    WriteProfInput();
    inputChanged();
}

void ProfileDialog::chooseEntry(int row) {
    if (!project_.SectionList.has(row)) return;
    keepCurrent();
    current_ = project_.SectionList(row);
    showSection(isWelded(current_) ? IuTab : TableTab);
    inputChanged();
}

/// Shows the section being worked on under that tab.
void ProfileDialog::showSection(int tab) {
    {
        const QSignalBlocker quiet(SSTab1_);
        SSTab1_->setCurrentIndex(tab);
    }
    cboEuprofile_->setCurrentIndex(findSection(session_.tables, current_.TableName));
    UpdateResult();
    WriteProfInput();
}

void ProfileDialog::showInput() {
    int listed = lstDatabase_->currentRow();
    for (int row = 0; row <= project_.SectionList.last(); ++row)
        if (project_.SectionList(row).DisplayName == current_.DisplayName) listed = row;
    writeList(std::min(listed, project_.SectionList.last()));
    for (const auto& [option, mode] : endPosts_) option->setChecked(project_.StiffenerMode == mode);
    for (const auto& [option, level] : loadLevels_) option->setChecked(project_.LoadLevel == level);
    const bool asIs = SSTab1_->currentIndex() == IsTab && current_.Id == "Is";
    showSection(asIs ? IsTab : isWelded(current_) ? IuTab : TableTab);
}

void ProfileDialog::showTab(int tab) {
    keepCurrent();
    if (tab == TableTab) {
        current_ = keptTable_;
        chooseTableRow(std::max(cboEuprofile_->currentIndex(), 0));
        return;
    }
    current_ = tab == IsTab ? keptIs_ : keptIu_;
    UpdateResult();
    WriteProfInput();
    inputChanged();
}

void ProfileDialog::keepCurrent() {
    if (!isWelded(current_)) keptTable_ = current_;
    if (current_.Id == "Is") keptIs_ = current_;
    if (current_.Id == "Iu") keptIu_ = current_;
}

void ProfileDialog::writeList(int current) {
    const QSignalBlocker quiet(lstDatabase_);
    lstDatabase_->clear();
    for (const SectionRecord& section : project_.SectionList)
        lstDatabase_->addItem(QString::fromStdString(section.DisplayName));
    lstDatabase_->setCurrentRow(current);
}

void ProfileDialog::addToList() {
    if (const char* refusal = plateRefusal(current_)) {
        messages_.show(refusal);
        return;
    }
    for (const SectionRecord& section : project_.SectionList) {
        if (section.DisplayName != current_.DisplayName) continue;
        messages_.show("The Section exists already");
        return;
    }
    SectionRecord added = current_;
    added.InUse = false;
    project_.SectionList.append(added);
    writeList(project_.SectionList.last());
    showName();
    inputChanged();
}

void ProfileDialog::removeFromList() {
    const int row = lstDatabase_->currentRow();
    if (!project_.SectionList.has(row)) return;
    MarkSectionsInUse(project_);
    if (project_.SectionList(row).InUse) {
        messages_.show("Profile used in the Project, not able to remove");
        return;
    }
    project_.SectionList.erase(row);
    from_.clear();
    const int next = std::min(row, project_.SectionList.last());
    writeList(next);
    chooseEntry(next);
    inputChanged();
}

void ProfileDialog::move(int by) {
    const int row = lstDatabase_->currentRow();
    if (!project_.SectionList.has(row) || !project_.SectionList.has(row + by)) return;
    std::swap(project_.SectionList(row), project_.SectionList(row + by));
    writeList(row + by);
    inputChanged();
}

void ProfileDialog::openReinforcement() {
    reinforcement_ = openOver(DialogKind::ProfReinf, [this] {
        UpdateResult();
        WriteProfInput();
        inputChanged();
    });
}

}  // namespace borvik
