#include "dialogs/fatigue_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "base/number_text.h"
#include "boxes/info_picture.h"

namespace borvik {

namespace {

std::string indexed(const std::string& stem, int index) {
    return stem + "(" + std::to_string(index) + ")";
}

QToolButton* makePictureButton(const FatigueInfo& info, QWidget* form) {
    auto* button = new QToolButton;
    button->setObjectName(QString::fromUtf8(info.name));
    button->setText(info.text);
    button->setToolTip(QObject::tr("Detail categories of the standard for this detail"));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    const int side = form->fontMetrics().lineSpacing() * 3;
    const QSize size(side * 4 / 3, side);
    const PicturePainter draw = fatigueDetailPicture(info.detail);
    button->setIcon(QIcon(pictureImage(draw, size, form->palette(), form->devicePixelRatio())));
    button->setIconSize(size);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    QObject::connect(button, &QToolButton::clicked, form, [draw, form] {
        showInfoPicture("frmInfoFatigue", QObject::tr("Detail Categories Ref EN 1993-1-9 , ch 8"), draw, form);
    });
    return button;
}

}  // namespace

FatigueDialog::FatigueDialog(const char* name, const QString& title, Session& session, Messages& messages,
                             std::function<void()> changed, QWidget* parent)
    : InputDialog(name, title, session, messages, std::move(changed), parent) {}

void FatigueDialog::build(FatigueForm form) {
    form_.emplace(std::move(form));
    auto* content = new QGridLayout;
    content->addWidget(details().box, 0, 0);
    auto* right = new QVBoxLayout;
    right->addWidget(splices().box);
    right->addWidget(support().box);
    for (const FatigueWeld& each : form_->welds) right->addWidget(weld(each).box);
    right->addStretch();
    content->addLayout(right, 0, 1);
    addDefaultsAndNotes(content);
    setContent(content);
    WriteSetup();
}

void FatigueDialog::WriteSetup() {
    for (std::size_t i = 0; i < checks_.size(); ++i) checks_[i]->setChecked(project_.*form_->catalogue[i].checked);
    for (int j = 1; j <= kFormSplices; ++j) {
        const SpliceControls& controls = splices_[static_cast<std::size_t>(j - 1)];
        controls.used->setChecked(form_->splices.used(j));
        controls.span->clear();
        for (int span = 1; span <= std::min<int>(project_.NofSpans, kMaxSpans); ++span)
            controls.span->addItem(QString::number(span));
        controls.span->setCurrentIndex(spliceSpan(project_, form_->splices.span(j)) - 1);
        markSpliceSpan(j);
    }
    binder_.show();
    showWelds();
}

void FatigueDialog::showWelds() {
    for (std::size_t i = 0; i < welds_.size(); ++i) {
        const bool fillet = form_->welds[i].kind == kFilletWeld;
        (fillet ? welds_[i].fillet : welds_[i].full)->setChecked(true);
        welds_[i].throat->setEnabled(fillet);
    }
}

Group FatigueDialog::details() {
    const Group group = makeGroup("frDetails", tr("Fatigue details"));
    group.grid->addWidget(new QLabel(tr("Detail")), 0, 0);
    for (std::size_t i = 0; i < form_->details.size(); ++i)
        addDetail(group.grid, form_->catalogue[i], form_->details[i]);
    group.grid->setColumnStretch(4, 1);
    return group;
}

void FatigueDialog::addDetail(QGridLayout* grid, const Detail& detail, const FatigueDetailRow& shown) {
    const int row = nextRow(grid);
    const QString caption = shown.caption.isEmpty() ? tr(inputTitleOf(detail)) : shown.caption;
    auto* check = makeChoice<QCheckBox>("chkFat" + std::to_string(detail.result), caption, tr("Check this detail"),
                                        [this, &detail, i = checks_.size()] {
                                            project_.*detail.checked = checks_[i]->isChecked();
                                            inputChanged();
                                        });
    checks_.push_back(check);
    grid->addWidget(check, row, 0, 2, 1);
    const bool alone = detail.terms[1].category == nullptr;
    for (std::size_t i = 0; i < detail.terms.size(); ++i) {
        if (detail.terms[i].category == nullptr) continue;
        NumberBox* box =
            binder_.add({.name = "txt" + (form_->stem + std::to_string(detail.result)) + "C" + std::to_string(i + 1),
                         .field = project_.*detail.terms[i].category,
                         .mask = "#0",
                         .message = " 36 <= C-factor <= 160 ",
                         .meaning = tr("Detail category in MPa at two million cycles, EN 1993-1-9 Tables 8.1 to 8.10"),
                         .maskWhenFilled = "0"});
        auto* label = new QLabel(QString(detail.symbols[i]) + " =");
        label->setBuddy(box);
        grid->addWidget(label, row + static_cast<int>(i), 1, alone ? 2 : 1, 1);
        grid->addWidget(box, row + static_cast<int>(i), 2, alone ? 2 : 1, 1);
    }
    auto* pictures = new QHBoxLayout;
    for (const FatigueInfo& info : shown.pictures) pictures->addWidget(makePictureButton(info, this));
    grid->addLayout(pictures, row, 3, 2, 1);
}

/// What is no span of this beam, from a damaged file or of a longer beam, is shown as it is stored, where the splice is
/// in use: else it is nothing to be mended.
void FatigueDialog::markSpliceSpan(int j) {
    const QString stored = QString::fromStdString(generalText(form_->splices.span(j)));
    splices_[static_cast<std::size_t>(j - 1)].span->setPlaceholderText(
        form_->splices.used(j) ? QStringLiteral("! ") + stored : QString());
}

Group FatigueDialog::splices() {
    const Group group = makeGroup("frSplices", tr("Beam Splice"));
    QGridLayout* grid = group.grid;
    grid->addWidget(new QLabel(tr("Span")), 0, 1, Qt::AlignHCenter);
    grid->addWidget(new QLabel(tr("d (mm)")), 0, 2, Qt::AlignHCenter);
    const FatigueSplices& record = form_->splices;
    for (int j = 1; j <= kFormSplices; ++j) {
        auto* used = makeChoice<QCheckBox>(
            indexed("ChkFat5Sp", j), tr("Splice %1").arg(j), tr("The beam has this splice"), [this, &record, j] {
                record.used(j) = splices_[static_cast<std::size_t>(j - 1)].used->isChecked();
                markSpliceSpan(j);
                inputChanged();
            });
        QComboBox* span =
            makeList(indexed("cboFat5Sp", j), tr("Span in which the splice lies"), [this, &record, j](int index) {
                record.span(j) = index + 1;
                inputChanged();
            });
        QPalette colours = span->palette();
        colours.setColor(QPalette::PlaceholderText, QColor(kRefusedRed));
        span->setPalette(colours);
        NumberBox* distance = binder_.add({.name = indexed(record.distanceName, j),
                                           .field = record.distance(j),
                                           .mask = "#0",
                                           .message = " 10 <= d <= L ",
                                           .meaning = tr("Distance of the splice from the left support of its span")});
        splices_.push_back({used, span});
        grid->addWidget(used, j, 0);
        grid->addWidget(span, j, 1);
        grid->addWidget(distance, j, 2);
    }
    return group;
}

Group FatigueDialog::support() {
    const Group group = makeGroup("frSupport", tr("Support"));
    const FatigueSupport& record = form_->support;
    NumberBox* e = binder_.add({.name = record.lengthName,
                                .field = record.length,
                                .mask = "#0",
                                .message = " 25 <= e <= 1000 ",
                                .meaning = tr("Length of the support along the beam"),
                                .maskWhenFilled = "0"});
    NumberBox* t = binder_.add({.name = record.thicknessName,
                                .field = record.thickness,
                                .mask = "#0",
                                .message = " 2 <= t <= 100 ",
                                .meaning = tr("Thickness of the stiffener at the support"),
                                .maskWhenFilled = "0"});
    auto* length = new QLabel(tr("e (mm) ="));
    length->setBuddy(e);
    auto* thickness = new QLabel(tr("t (mm) ="));
    thickness->setBuddy(t);
    int column = 0;
    for (QWidget* each : {static_cast<QWidget*>(length), static_cast<QWidget*>(e), static_cast<QWidget*>(thickness),
                          static_cast<QWidget*>(t)})
        group.grid->addWidget(each, 0, column++);
    return group;
}

Group FatigueDialog::weld(const FatigueWeld& record) {
    const Group group =
        makeGroup("frWeld" + record.name, tr("Weld %1").arg(QString::fromStdString(record.name).right(2)));
    const auto option = [&](const std::string& stem, const QString& text, const char* kind) {
        return makeChoice<QRadioButton>("opt" + stem, text, record.where, [this, &record, kind] {
            record.kind = kind;
            showWelds();
            inputChanged();
        });
    };
    auto* fillet = option(record.name + "FW", tr("Fillet Weld"), kFilletWeld);
    auto* full = option(record.name + "FP", tr("Full Penetration weld"), kFullPenetrationWeld);
    full->setObjectName(QStringLiteral("Opt") + QString::fromStdString(record.name) + QStringLiteral("FP"));
    NumberBox* throat = binder_.add({.name = "txt" + record.name + "a",
                                     .field = record.throat,
                                     .mask = "0.0",
                                     .message = " a >=3 mm",
                                     .meaning = tr("Throat of the fillet weld, EN 1993-1-8, 4.5.2")});
    welds_.push_back({fillet, full, throat});
    auto* label = new QLabel(tr("a (mm) ="));
    label->setBuddy(throat);
    group.grid->addWidget(fillet, 0, 0);
    group.grid->addWidget(full, 1, 0);
    group.grid->addWidget(label, 0, 2, Qt::AlignRight);
    group.grid->addWidget(throat, 0, 3);
    group.grid->setColumnStretch(2, 1);
    group.box->setToolTip(record.where);
    return group;
}

void FatigueDialog::addDefaultsAndNotes(QGridLayout* content) {
    auto* buttons = new QHBoxLayout;
    for (const FatigueDefaults& each : form_->defaults)
        buttons->addWidget(makeButton(each.name, each.text, tr("Set details, categories and welds to usual values"),
                                      [this, apply = each.apply] {
                                          apply();
                                          WriteSetup();
                                          inputChanged();
                                      }));
    buttons->addStretch();
    content->addLayout(buttons, 1, 0);
    content->addWidget(new QLabel(form_->note + tr("\nNote 2) Ref EN 1993-1-9, Table 8:2-8:10")), 2, 0);
    content->addWidget(closeButton("cmdOK", tr("Close"), tr("Close the form; all values are stored already")), 2, 1,
                       Qt::AlignRight | Qt::AlignBottom);
}

}  // namespace borvik
