#include "views/working_dialog.h"

#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "results/values_text.h"
#include "views/dialog_parts.h"

namespace borvik {

namespace {

QString cell(const QString& text, const char* style = "") {
    return QString("<td style='padding: 1px 8px; %1'>%2</td>").arg(style, text);
}

QString escaped(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped();
}

QString htmlOf(const CheckWorking& working) {
    QString html = "<h3>" + escaped(working.title) + "</h3><table>";
    for (const WorkingLine& line : linesOf(working)) {
        if (line.isHeading) {
            html += "<tr><td colspan='3' style='padding-top: 8px'><i>" + escaped(line.symbol) + "</i></td></tr>";
            continue;
        }
        QStringList parts;
        for (const std::string& part : {line.formula, line.numbers}) {
            if (!part.empty()) parts << escaped(part);
        }
        parts << "<b>" + escaped(line.result) + "</b>";
        html += "<tr>" + cell(escaped(line.symbol)) + cell("= " + parts.join("<br>= ")) +
                cell(escaped(line.clause), "color: gray") + "</tr>";
    }
    return html + "</table>";
}

}  // namespace

WorkingDialog::WorkingDialog(const std::vector<CheckWorking>& workings, QWidget* parent) : QDialog(parent) {
    setObjectName("frmWorking");
    setWindowTitle(tr("How was this calculated?"));
    auto* text = new QTextBrowser;
    text->setObjectName("txtWorking");
    text->setAccessibleName(windowTitle());
    // The ratio asked for first, what it rests on behind it.
    QString html;
    for (auto working = workings.rbegin(); working != workings.rend(); ++working) html += htmlOf(*working);
    text->setHtml(html);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(closeButton("cmbOk", this));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text, 1);
    layout->addLayout(buttons);
    resize(generousSize(parent));
    text->setFocus();
}

}  // namespace borvik
