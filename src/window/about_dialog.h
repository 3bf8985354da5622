#pragma once

#include <QDialog>

namespace borvik {

/// frmabout: title, version, and a link to the standards that the program works to.
class AboutDialog : public QDialog {
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent);
};

}  // namespace borvik
