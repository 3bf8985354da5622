#include "formulas/formula_browser.h"

#include <QMimeData>
#include <QTextDocumentFragment>

#include "formulas/formula_object.h"

namespace borvik {

QMimeData* FormulaBrowser::createMimeDataFromSelection() const {
    QTextDocument copied;
    QTextCursor(&copied).insertFragment(textCursor().selection());
    putFormulasOnOneLine(copied);
    auto* copy = new QMimeData;
    copy->setText(copied.toPlainText());
    copy->setHtml(copied.toHtml());
    return copy;
}

}  // namespace borvik
