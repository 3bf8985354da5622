#include "views/working_dialog.h"

#include <QPushButton>
#include <QTextCursor>
#include <QVBoxLayout>

#include "formulas/formula_browser.h"
#include "formulas/formula_object.h"
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

/// A mark in the text where a formula goes in: a character that no text has.
constexpr QChar kFormulaMark(0xE000);

/// The table of a working, with marks for its formulas, which are added to a list.
QString htmlOf(const CheckWorking& working, QStringList& formulas) {
    QString html = "<h3>" + escaped(working.title) + "</h3><table>";
    for (const WorkingLine& line : linesOf(working)) {
        if (line.isHeading) {
            html += "<tr><td colspan='2' style='padding-top: 8px'><i>" + escaped(line.symbol) + "</i></td></tr>";
            continue;
        }
        formulas << QString::fromStdString(line.tex + line.numbersTex);
        html +=
            "<tr>" + cell(kFormulaMark) + cell(escaped(line.clause), "color: gray; vertical-align: middle") + "</tr>";
    }
    return html + "</table>";
}

void setFormulas(QTextDocument& document, const QStringList& formulas) {
    new FormulaObject(document);  // the document's own
    QTextCursor at(&document);
    for (const QString& tex : formulas) {
        at = document.find(kFormulaMark, at);
        insertFormula(at, tex, true);
    }
}

}  // namespace

WorkingDialog::WorkingDialog(const std::vector<CheckWorking>& workings, QWidget* parent) : QDialog(parent) {
    setObjectName("frmWorking");
    setWindowTitle(tr("How was this calculated?"));
    auto* text = new FormulaBrowser;
    text->setObjectName("txtWorking");
    text->setAccessibleName(windowTitle());
    // The ratio asked for first, what it rests on behind it.
    QString html;
    QStringList formulas;
    for (auto working = workings.rbegin(); working != workings.rend(); ++working) html += htmlOf(*working, formulas);
    text->setHtml(html);
    setFormulas(*text->document(), formulas);
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
