#pragma once

#include <QDialog>

#include "calculation/check_working.h"

namespace borvik {

/// frmWorking: how a ratio comes about, line by line: symbol, formula, the formula with its numbers, clause.
class WorkingDialog : public QDialog {
    Q_OBJECT

public:
    WorkingDialog(const std::vector<CheckWorking>& workings, QWidget* parent);
};

}  // namespace borvik
