#include "dialogs/crane_data_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabWidget>
#include <QTableWidget>
#include <algorithm>
#include <cmath>
#include <string_view>

#include "actions/code_tables.h"
#include "base/number_text.h"
#include "groups/group_runs.h"

namespace borvik {
namespace {

using actions::CraneData;
using actions::GroupLoads;

constexpr double kTonne = 9.81;  // kN
const actions::NumberField kFirstWheel{
    "e1", "distance of the first wheel behind the front roller", "m", 0, 50, false, &CraneData::e1};

/// The fields in their groups; a name of a choice stands for that.
struct FieldGroup {
    const char* title;
    std::vector<std::string_view> names;
};
const std::vector<FieldGroup>& fieldGroups() {
    static const std::vector<FieldGroup> groups{
        {"Weights and dimensions", {"bridge", "crab", "hoist", "span", "emin", "spacing"}},
        {"Hoisting", {"type", "hc", "vh", "release", "released", "phi1", "phi2", "phi4", "eta", "S"}},
        {"Drive", {"drive", "mw", "mu", "phi5", "K", "HT1", "HT2"}},
        {"Skewing", {"system", "m", "guide", "e1", "aExt", "slip", "railhead", "alpha", "HS"}},
        {"End stops", {"v", "SB", "xib"}},
    };
    return groups;
}

/// The standard's symbols of the fields that have one.
QString symbolOf(std::string_view name) {
    static const std::pair<std::string_view, const char*> symbols[] = {{"bridge", "Qc1"},   {"crab", "Qc2"},
                                                                       {"hoist", "Qh"},     {"span", "l"},
                                                                       {"emin", "e,min"},   {"spacing", "a,j"},
                                                                       {"vh", "v,h"},       {"mu", "\u03bc"},
                                                                       {"mw", "m,w"},       {"slip", "x"},
                                                                       {"railhead", "b"},   {"alpha", "\u03b1"},
                                                                       {"xib", "\u03be,b"}, {"released", "\u0394m/m"},
                                                                       {"eta", "\u03b7"},   {"phi1", "\u03c61"},
                                                                       {"phi2", "\u03c62"}, {"phi4", "\u03c64"},
                                                                       {"phi5", "\u03c65"}, {"e1", "e1"},
                                                                       {"aExt", "a,ext"}};
    for (const auto& [field, symbol] : symbols)
        if (field == name) return QString::fromUtf8(symbol);
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

/// Fields that are calculated unless the maker gives them; other optional ones are left out.
bool isOfMaker(std::string_view name) {
    constexpr std::string_view kOfMaker[] = {"phi2", "K", "HT1", "HT2", "aExt", "alpha", "HS"};
    return std::find(std::begin(kOfMaker), std::end(kOfMaker), name) != std::end(kOfMaker);
}

QString capital(const char* text) {
    QString shown = QString::fromUtf8(text);
    return shown.replace(0, 1, shown[0].toUpper());
}

/// A typed number with all that was typed.
std::optional<double> typedNumber(const QString& text) {
    const auto plain = plainNumber(text);
    if (!plain) return std::nullopt;
    QString digits = QString::fromStdString(*plain);
    bool known = false;
    const double number = digits.replace(',', '.').trimmed().toDouble(&known);
    return known ? std::optional(number) : std::nullopt;
}

QTableWidget* makeTable(const char* name, const QString& tip) {
    auto* table = new QTableWidget;
    table->setObjectName(name);
    table->setAccessibleName(tip);
    table->setToolTip(tip);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->verticalHeader()->hide();
    table->setTabKeyNavigation(false);
    return table;
}

void fill(QTableWidget* table, const QStringList& heads, const std::vector<QStringList>& rows) {
    table->setColumnCount(static_cast<int>(heads.size()));
    table->setHorizontalHeaderLabels(heads);
    table->setRowCount(static_cast<int>(rows.size()));
    for (int row = 0; row < table->rowCount(); ++row)
        for (int column = 0; column < table->columnCount(); ++column)
            table->setItem(row, column, new QTableWidgetItem(rows[static_cast<std::size_t>(row)].value(column)));
    table->resizeColumnsToContents();
}

QString number(double value, const char* mask) {
    return QString::fromStdString(formatNumber(value, mask));
}

QString across(const std::vector<double>& forces, double factor) {
    QStringList texts;
    for (const double force : forces) texts << number(force * factor, "0.00");
    return texts.join(" / ");
}

}  // namespace

CraneDataDialog::CraneDataDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent)
    : InputDialog("frmCraneData", tr("Crane data"), session, messages, std::move(changed), parent) {
    attached_.cranes.resize(1);
    auto* content = new QGridLayout;
    content->addWidget(fieldsOfCrane(), 0, 0);
    content->addWidget(outcome(), 0, 1);
    content->setColumnStretch(1, 1);
    content->addWidget(closeButton("cmdOK", tr("Close"), tr("Close the form; the loads stay as they are")), 1, 1,
                       Qt::AlignRight);
    setContent(content);
    // To begin with the group whose loads the project has.
    if (const auto chosen = groupOf(project_, attachedOf(project_).cranes)) plan_.group = chosen->group;
    showInput();
}

QWidget* CraneDataDialog::fieldsOfCrane() {
    const Group all = makeGroup("frCrane", tr("Crane"));
    all.grid->setVerticalSpacing(2);
    whichCrane_ = makeList("cboCrane", tr("Whose data stand below"), [this](int) { showInput(); });
    whichCrane_->addItems({tr("Crane 1"), tr("Crane 2")});
    tonnes_ = makeChoice<QCheckBox>("chkTonnes", tr("Weights in &t"),
                                    tr("Weights are shown and typed in tonnes, 9.81 kN"), [this] { showInput(); });
    all.grid->addWidget(whichCrane_, 0, 0);
    all.grid->addWidget(tonnes_, 0, 1);
    int row = 1;
    for (const FieldGroup& group : fieldGroups()) {
        const Group part = makeGroup("fr" + std::string(group.title).substr(0, 5), tr(group.title));
        part.grid->setVerticalSpacing(2);  // some thirty fields on a small screen
        part.grid->setContentsMargins(8, 2, 8, 2);
        for (const std::string_view name : group.names) {
            if (name == "spacing") addSpacing(part.grid);
            if (name == "type") addTypes(part.grid);
            if (name == "e1") addNumber(part.grid, kFirstWheel);
            for (const auto& field : actions::numberFields())
                if (field.name == name) addNumber(part.grid, field);
            for (const auto& field : actions::choiceFields())
                if (field.name == name) addChoice(part.grid, field);
        }
        if (std::string_view(group.title) == "Drive") {
            phiOnK_ = makeChoice<QCheckBox>("chkPhiOnK", tr("K and \u03be1 with \u03c6"),
                                            tr("The clause reads without dynamic factors in K and in the place of the "
                                               "centre of mass; some calculations take them. It is larger with them."),
                                            [this] {
                                                crane().phiOnK = phiOnK_->isChecked();
                                                craneChanged();
                                            });
            addWide(part.grid, phiOnK_);
        }
        const bool left = row <= 2;
        all.grid->addWidget(part.box, left ? row : row - 2, left ? 0 : 1, row == 2 ? 2 : 1, 1);
        ++row;
    }
    return all.box;
}

bool CraneDataDialog::isWeight(const actions::NumberField& field) const {
    const std::string_view name = field.name;
    return name == "bridge" || name == "crab" || name == "hoist";
}

void CraneDataDialog::addNumber(QGridLayout* grid, const actions::NumberField& field) {
    // Speeds are known by the minute.
    const auto factor = [this, &field] {
        if (std::string_view(field.unit) == "m/s") return 1.0 / 60.0;
        return tonnes_->isChecked() && isWeight(field) ? kTonne : 1.0;
    };
    QString tip = capital(field.what) + ", " + QString::fromStdString(plainText(Single(field.least))) + " to " +
                  QString::fromStdString(plainText(Single(field.most))) + " " + field.unit;
    if (isOfMaker(field.name)) tip += "\n" + tr("Left empty it is calculated; filled it is from the maker.");
    const bool isSpeed = std::string_view(field.unit) == "m/s";
    Box box;
    box.shown = [this, &field, factor] {
        const auto value = field.of(crane());
        return value ? QString::number(*value / factor(), 'g', 10) : QString();
    };
    box.take = [this, &field, factor](const QString& text) -> QString {
        if (text.trimmed().isEmpty() && field.isOptional()) {
            const auto* member = std::get_if<std::optional<double> CraneData::*>(&field.member);
            (crane().**member).reset();
            return {};
        }
        const auto typed = typedNumber(text);
        if (!typed) return tr("A number is needed");
        const std::string fault = field.faultOf(*typed * factor());
        if (!fault.empty()) return QString::fromStdString(fault);
        field.set(crane(), *typed * factor());
        return {};
    };
    box.box = nullptr;
    addBox(grid, QString("txt%1").arg(field.name), symbolOf(field.name), isSpeed ? "m/min" : field.unit,
           std::move(box));
    boxes_.back().box->setMeaning(tip);
    boxes_.back().box->setAccessibleName(capital(field.what));
    if (field.isOptional())
        boxes_.back().box->setPlaceholderText(isOfMaker(field.name) ? tr("calculated") : tr("none"));
}

void CraneDataDialog::addSpacing(QGridLayout* grid) {
    Box box;
    box.shown = [this] {
        QStringList gaps;
        for (const double gap : crane().spacing) gaps << QString::number(gap, 'g', 10);
        return gaps.join(" / ");
    };
    box.take = [this](const QString& text) -> QString {
        std::vector<double> gaps;
        for (const QString& part : text.split(QRegularExpression("[/;]|\\s+"), Qt::SkipEmptyParts)) {
            const auto gap = typedNumber(part);
            if (!gap) return tr("Distances such as 1.1 / 3.6 / 1.1 are needed");
            if (const std::string fault = actions::kSpacing.faultOf(*gap); !fault.empty())
                return QString::fromStdString(fault);
            gaps.push_back(*gap);
        }
        if (gaps.empty() || gaps.size() > 3) return tr("2 to 4 wheels stand on a rail: 1 to 3 distances");
        crane().spacing = gaps;
        return {};
    };
    box.box = nullptr;
    addBox(grid, "txtspacing", symbolOf("spacing"), "m", std::move(box));
    boxes_.back().box->setMeaning(tr("Distances of the wheels on a rail, from wheel to wheel: 1.1 / 3.6 / 1.1"));
    boxes_.back().box->setAccessibleName(tr("Distances of the wheels on a rail"));
}

void CraneDataDialog::addTypes(QGridLayout* grid) {
    QComboBox* list = makeList("cboType", tr("A type of crane proposes HC and S, EN 1991-3 Annex B"), [this](int row) {
        if (row == 0) return;
        const actions::CraneType& type = actions::kCraneTypes[row - 1];
        crane().hc = type.hcTo;
        crane().S = type.sTo;
        craneChanged();
        showInput();
    });
    list->addItem(tr("propose HC, S ..."));
    for (const actions::CraneType& type : actions::kCraneTypes)
        list->addItem(QString::fromUtf8(type.name.data(), static_cast<qsizetype>(type.name.size())));
    list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    list->setMinimumContentsLength(12);
    addRow(grid, tr("Type"), list);
}

void CraneDataDialog::addChoice(QGridLayout* grid, const actions::ChoiceField& field) {
    QComboBox* list = makeList(std::string("cbo") + field.name, capital(field.what), [this, &field](int row) {
        field.set(crane(), row);
        craneChanged();
    });
    for (const std::string_view word : field.words)
        list->addItem(QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size())));
    choices_.emplace_back(list, &field);
    addRow(grid, std::string_view(field.name) == "hc" ? "HC" : capital(field.name), list);
}

void CraneDataDialog::addBox(QGridLayout* grid, const QString& name, const QString& label, const QString& unit,
                             Box box) {
    box.box = new NumberBox(name);
    addRow(grid, label, box.box, unit);
    boxes_.push_back(std::move(box));
    const std::size_t index = boxes_.size() - 1;
    connect(boxes_[index].box, &NumberBox::left, this, [this, index] { commit(boxes_[index]); });
    connect(boxes_[index].box, &NumberBox::enterPressed, this, [this, index] {
        if (commit(boxes_[index])) boxes_[index + 1 < boxes_.size() ? index + 1 : 0].box->setFocus();
    });
}

bool CraneDataDialog::commit(const Box& box) {
    if (!box.box->edited()) return !box.box->refused();
    const QString fault = box.take(box.box->text());
    if (!fault.isEmpty()) {
        box.box->markRefused(fault);
        fault_->setText(box.box->accessibleName() + ": " + fault);
        return false;
    }
    box.box->clearRefusal();
    box.box->showText(box.shown());
    craneChanged();
    return true;
}

CraneData& CraneDataDialog::crane() {
    const auto index = static_cast<std::size_t>(std::max(0, whichCrane_->currentIndex()));
    if (attached_.cranes.size() <= index) attached_.cranes.resize(index + 1);
    return attached_.cranes[index];
}

QWidget* CraneDataDialog::outcome() {
    const Group all = makeGroup("frLoads", tr("Loads of EN 1991-3"));
    state_ = new QLabel;
    state_->setObjectName("lblState");
    fault_ = new QLabel;
    fault_->setObjectName("lblFault");
    fault_->setWordWrap(true);
    QPalette red = fault_->palette();
    red.setColor(QPalette::WindowText, QColor::fromRgb(kRefusedRed));
    fault_->setPalette(red);
    groups_ =
        makeTable("tblGroups", tr("Groups of loads: a wheel's V, H across at the wheels with phi5, HL along, kN"));
    matrix_ = makeTable("tblMatrix", tr("Ratios of every group; * governs its check"));
    picture_ = new Picture(cranePlan([this]() -> const CranePlan& { return plan_; }), 46, 15);
    picture_->setToolTip(tr("The crane in plan, to scale, with the forces of the chosen group across the rails"));
    auto* plan = new QTabWidget;
    plan->addTab(picture_, tr("&Plan"));
    plan->addTab(matrix_, tr("&Ratios of all groups"));
    use_ = makeButton("cmdUse", tr("&Use the chosen group"),
                      tr("Its loads become those of the project, one step to undo"), [this] { use(); });
    use_->setAutoDefault(false);
    QPushButton* compared =
        makeButton("cmdCompare", tr("Compare &groups"),
                   tr("Calculates every group, both ways of travelling, each crane alone and both"), [this, plan] {
                       compare();
                       plan->setCurrentWidget(matrix_);
                   });
    compared->setAutoDefault(false);
    farRails_ = makeChoice<QCheckBox>("chkFarRails", tr("far rail &too"),
                                      tr("Compare for the rail far from the crab too"), [this] {
                                          attached_.farRails = farRails_->isChecked();
                                          craneChanged();
                                      });
    connect(groups_, &QTableWidget::itemSelectionChanged, this, [this] {
        if (groups_->currentRow() < 0 || groups_->item(groups_->currentRow(), 0) == nullptr) return;
        plan_.group = groups_->item(groups_->currentRow(), 0)->text().toInt();
        picture_->update();
    });
    all.grid->addWidget(state_, 0, 0, 1, 3);
    all.grid->addWidget(fault_, 1, 0, 1, 3);
    all.grid->addWidget(groups_, 2, 0, 1, 3);
    all.grid->addWidget(use_, 3, 0);
    all.grid->addWidget(compared, 3, 1);
    all.grid->addWidget(farRails_, 3, 2);
    all.grid->addWidget(plan, 4, 0, 1, 3);
    auto* caution = new QLabel(tr("Hold the factors against the standard and the national annex in force."));
    caution->setWordWrap(true);
    all.grid->addWidget(caution, 5, 0, 1, 3);
    all.grid->setRowStretch(2, 2);
    all.grid->setRowStretch(4, 3);
    return all.box;
}

void CraneDataDialog::showInput() {
    const bool untouched = project_.Attached.empty();
    const std::size_t before = attached_.cranes.size();
    attached_ = attachedOf(project_);
    if (untouched && before > 0 && attached_.cranes.empty()) attached_.cranes.resize(1);
    whichCrane_->setEnabled(project_.NofCranes == 2 || attached_.cranes.size() == 2);
    if (!whichCrane_->isEnabled()) whichCrane_->setCurrentIndex(0);
    for (const Box& box : boxes_) {
        box.box->clearRefusal();
        box.box->showText(box.shown());
    }
    for (const auto& [list, field] : choices_) list->setCurrentIndex(field->of(crane()));
    if (auto* types = findChild<QComboBox*>("cboType")) types->setCurrentIndex(0);
    farRails_->setChecked(attached_.farRails);
    phiOnK_->setChecked(crane().phiOnK);
    showOutcome();
}

void CraneDataDialog::craneChanged() {
    attach(project_, attached_);
    inputChanged();
    matrix_->setRowCount(0);
    showOutcome();
}

void CraneDataDialog::showOutcome() {
    plan_.crane = crane();
    plan_.loads.reset();
    const actions::CraneCheck check = actions::checkCrane(crane());
    QStringList words;
    for (const auto& message : check.isGood() ? check.remarks : check.faults)
        words << QString::fromStdString(message.line());
    // A form that nobody has filled in is not at fault.
    fault_->setEnabled(!project_.Attached.empty());
    fault_->setText(project_.Attached.empty() ? tr("Enter the data sheet of the crane: the groups follow at once.")
                                              : words.mid(0, 2).join("\n"));
    if (check.isGood()) plan_.loads = actions::craneLoads(crane());
    const auto chosen = check.isGood() ? groupOf(project_, attached_.cranes) : std::nullopt;
    state_->setText(tr("Loads of the project: %1")
                        .arg(chosen ? tr("from crane data, %1").arg(QString::fromStdString(nameOf(*chosen)))
                                    : tr("entered by hand")));
    showGroups();
    picture_->update();
}

void CraneDataDialog::showGroups() {
    std::vector<QStringList> rows;
    if (plan_.loads)
        for (const GroupLoads& group : plan_.loads->groups)
            rows.push_back({QString::number(group.group), number(group.crab.V, "0.00"),
                            number(group.crab.psiV, "0.000"), across(group.crab.H, group.psiH),
                            number(group.far.V, "0.00"), across(group.far.H, group.psiH),
                            number(group.HL * group.psiH, "0.00")});
    fill(groups_, {tr("Group"), tr("V"), tr("V/Vstat"), tr("H"), tr("V far"), tr("H far"), tr("HL")}, rows);
    use_->setEnabled(!rows.empty());
    for (int row = 0; row < groups_->rowCount(); ++row)
        if (groups_->item(row, 0)->text().toInt() == plan_.group) groups_->selectRow(row);
}

void CraneDataDialog::compare() {
    try {
        const GroupMatrix matrix = compareGroups(project_, session_.tables, attached_.cranes, attached_.farRails);
        QStringList heads{tr("Loads")};
        for (const std::string& check : matrix.checks) heads << QString::fromStdString(check).replace(' ', '\n');
        std::vector<QStringList> rows;
        for (std::size_t row = 0; row < matrix.runs.size(); ++row) {
            const GroupRun& run = matrix.runs[row];
            QStringList cells{
                QString::fromStdString(nameOf(run.choice) + (run.refusal.empty() ? "" : ": " + run.refusal))};
            for (std::size_t column = 0; column < matrix.checks.size(); ++column) {
                const auto& ratio = run.ratios[column];
                cells << (ratio ? number(*ratio, "0.000") +
                                      (matrix.governing[column] == static_cast<int>(row) ? " *" : "") +
                                      (*ratio > 1.0 || *ratio < 0.0 ? " !!" : "")
                                : QString("-"));
            }
            rows.push_back(cells);
        }
        fill(matrix_, heads, rows);
    } catch (const std::invalid_argument& error) {
        fault_->setText(QString::fromStdString(error.what()));
    }
}

void CraneDataDialog::use() {
    const actions::CraneCheck check = actions::checkCrane(crane());
    if (!check.isGood()) return;
    for (const CraneData& each : attached_.cranes)
        if (!actions::checkCrane(each).isGood()) {
            fault_->setText(tr("The data of the other crane are not complete."));
            return;
        }
    attach(project_, attached_);
    project_ = withGroup(project_, attached_.cranes, {plan_.group});
    inputChanged();
    showOutcome();
}

bool CraneDataDialog::mayClose() {
    for (const Box& box : boxes_)
        if (box.box->hasFocus() && !commit(box) && !box.box->standsRefused()) return false;
    return true;
}

}  // namespace borvik
