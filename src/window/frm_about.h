#pragma once

#include <QDialog>

namespace borvik {

/// frmabout: title, version, and a link to the standards that the program works to.
class FrmAbout : public QDialog {
    Q_OBJECT

public:
    explicit FrmAbout(QWidget* parent);
};

}  // namespace borvik
