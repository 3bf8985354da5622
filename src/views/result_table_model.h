#pragma once

#include <QAbstractTableModel>

#include "results/tables.h"

namespace borvik {

/// A result table as a model. Texts stand in the display role, the numbers behind them in the edit role.
class ResultTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    using QAbstractTableModel::QAbstractTableModel;

    void setTable(ResultTable table);
    [[nodiscard]] const ResultTable& table() const { return table_; }
    /// Out of date: all is shown in the colour of what can't be used.
    void setOutOfDate(bool outOfDate);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

    /// True for a line that belongs to no column: a heading or a note.
    [[nodiscard]] bool isLine(int row) const;
    /// True for a column in which at least one number stands.
    [[nodiscard]] bool holdsNumbers(int column) const;

private:
    [[nodiscard]] const TableCell* cell(int row, int column) const;

    ResultTable table_;
    bool outOfDate_ = false;
};

}  // namespace borvik
