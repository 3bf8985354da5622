#pragma once

#include <QDialog>

namespace borvik {

/// frmabout: title, version, and a link to the standards that the program works to.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    /// @param fingerprint  of the input at hand; empty: not shown
    AboutDialog(const QString& fingerprint, QWidget* parent);
};

}  // namespace borvik
