#include "window/about_dialog.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSysInfo>
#include <QVBoxLayout>

#include "platform/services.h"

namespace borvik {

AboutDialog::AboutDialog(const QString& fingerprint, QWidget* parent) : QDialog(parent) {
    setObjectName("frmabout");
    setWindowTitle("About Borvik");
    auto* title = new QLabel(kApplicationTitle);
    title->setObjectName("lblTitle");
    QFont large = title->font();
    large.setPointSizeF(large.pointSizeF() * 2.0);
    large.setBold(true);
    title->setFont(large);
    auto* version = new QLabel(tr("Version %1").arg(QApplication::applicationVersion()));
    version->setObjectName("lblVersion");
    auto* purpose = new QLabel(tr("Design of steel crane runway beams\nto EN 1993-6, EN 1993-1-1 and EN 1993-1-9"));
    auto* link = new QLabel("<a href=\"https://eurocodes.jrc.ec.europa.eu\">eurocodes.jrc.ec.europa.eu</a>");
    link->setObjectName("lblLink");
    link->setOpenExternalLinks(true);
    link->setTextInteractionFlags(Qt::TextBrowserInteraction);
    auto* build = new QLabel(tr("Qt %1, %2").arg(QLatin1String(qVersion()), QSysInfo::prettyProductName()));

    auto* input = new QLabel(fingerprint.isEmpty() ? QString() : tr("Fingerprint of the input: %1").arg(fingerprint));
    input->setObjectName("lblFingerprint");
    input->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    input->setToolTip(tr("The same for the same project file: first digits of its SHA-256"));

    auto* copy = new QPushButton(tr("Copy to clipboard"));
    copy->setAutoDefault(false);
    auto* cmdOK = new QPushButton("OK");
    cmdOK->setObjectName("cmdOK");
    cmdOK->setDefault(true);
    connect(cmdOK, &QPushButton::clicked, this, &QDialog::accept);
    connect(copy, &QPushButton::clicked, this, [version, build, input] {
        QApplication::clipboard()->setText(QString::fromLatin1(kApplicationTitle) + "\n" + version->text() + "\n" +
                                           build->text() + "\n" + input->text());
    });
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(copy);
    buttons->addStretch();
    buttons->addWidget(cmdOK);
    auto* layout = new QVBoxLayout(this);
    for (QLabel* label : {title, version, purpose, link, build, input}) layout->addWidget(label);
    layout->addSpacing(12);
    layout->addLayout(buttons);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

}  // namespace borvik
