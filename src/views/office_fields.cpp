#include "views/office_fields.h"

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "base/whole_file.h"
#include "platform/qt/qt_printer.h"

namespace borvik {
namespace {

constexpr const char* kSection = "Report";
constexpr const char* kFirstPageKey = "FirstPage";
constexpr const char* kLogoKey = "Logo";
constexpr int kMostLetters = 200;

QLineEdit* textBox(std::string& text, const QString& name) {
    auto* box = new QLineEdit(QString::fromStdString(text));
    box->setObjectName(name);
    box->setMaxLength(kMostLetters);
    QObject::connect(box, &QLineEdit::textChanged, box, [&text](const QString& typed) { text = typed.toStdString(); });
    return box;
}

}  // namespace

void loadOffice(const SettingsStore& settings, ReportExtras& extras) {
    const auto kept = [&settings](const char* key) { return settings.get(kApplicationTitle, kSection, key); };
    extras.firstPage = kept(kFirstPageKey) == "1";
    extras.logo = kept(kLogoKey);
    for (const OfficeField& field : officeFields()) extras.office.*field.text = kept(field.name);
}

void saveOffice(SettingsStore& settings, const ReportExtras& extras) {
    const auto keep = [&settings](const char* key, const std::string& text) {
        settings.save(kApplicationTitle, kSection, key, text);
    };
    keep(kFirstPageKey, extras.firstPage ? "1" : "0");
    keep(kLogoKey, extras.logo);
    for (const OfficeField& field : officeFields()) keep(field.name, extras.office.*field.text);
}

OfficeFields::OfficeFields(ReportExtras& extras, const Services& services, QWidget* parent) : QWidget(parent) {
    setWindowTitle(tr("First page"));  // the name of its tab
    auto* form = new QFormLayout(this);
    auto* firstPage = new QCheckBox(tr("The report begins with a &first page"));
    firstPage->setObjectName("chkFirstPage");
    firstPage->setChecked(extras.firstPage);
    connect(firstPage, &QCheckBox::toggled, this, [&extras](bool on) { extras.firstPage = on; });
    form->addRow(firstPage);
    for (const OfficeField& field : officeFields()) {
        QLineEdit* box = textBox(extras.office.*field.text, QString("txt%1").arg(field.name));
        if (field.text == &OfficeTexts::date) box->setPlaceholderText(tr("the day of the print"));
        form->addRow(tr(field.title) + ":", box);
        // The texts stand on that page alone.
        box->setEnabled(extras.firstPage);
        connect(firstPage, &QCheckBox::toggled, box, &QWidget::setEnabled);
    }
    QLineEdit* logo = textBox(extras.logo, "txtLogo");
    logo->setPlaceholderText(tr("a picture for the head of every page: PNG, JPEG or SVG"));
    auto* choose = new QPushButton(tr("&Choose ..."));
    choose->setObjectName("cmdLogo");
    choose->setAutoDefault(false);
    connect(choose, &QPushButton::clicked, this, [logo, &services] {
        const auto file = services.questions.fileToOpen("*.png *.svg *.jpg", {});
        if (!file) return;
        try {
            checkPicture(*file);
            logo->setText(QString::fromStdString(*file));
        } catch (const OutputError& error) {
            services.messages.show(error.what());
        }
    });
    auto* row = new QHBoxLayout;
    row->addWidget(logo, 1);
    row->addWidget(choose);
    form->addRow(tr("Logo:"), row);
}

bool editOffice(ReportExtras& extras, const Services& services, QWidget* parent) {
    ReportExtras edited = extras;
    QDialog dialog(parent);
    dialog.setObjectName("frmFirstPage");
    dialog.setWindowTitle(QObject::tr("First page and logo of the report"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new OfficeFields(edited, services));
    layout->addWidget(buttons);
    dialog.resize(560, dialog.sizeHint().height());
    if (dialog.exec() != QDialog::Accepted) return false;
    extras = edited;
    saveOffice(services.settings, extras);
    return true;
}

}  // namespace borvik
