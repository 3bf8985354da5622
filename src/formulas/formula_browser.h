#pragma once

#include <QTextBrowser>

namespace borvik {

/// Shows a text with formulas; what is copied from it has them as text.
class FormulaBrowser : public QTextBrowser {
    Q_OBJECT

public:
    using QTextBrowser::QTextBrowser;

protected:
    QMimeData* createMimeDataFromSelection() const override;
};

}  // namespace borvik
