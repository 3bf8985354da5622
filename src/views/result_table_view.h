#pragma once

#include <QLabel>
#include <QSplitter>
#include <QTableView>
#include <QTextBrowser>
#include <QWidget>

#include "views/result_table_model.h"

namespace borvik {

/// The list of a result table. Its first column stays in view when the others are scrolled away. Copies as
/// tab-separated text and as HTML.
class ResultTableView : public QTableView {
    Q_OBJECT

public:
    explicit ResultTableView(QWidget* parent = nullptr);

    void showTable(ResultTable table);
    [[nodiscard]] const ResultTable& table() const { return model_.table(); }
    /// Results that the input has left behind are shown grey, and say so when they are copied.
    void setOutOfDate(bool outOfDate);

    /// The selected cells, as they stand side by side.
    [[nodiscard]] QString selectionText(bool withHeaders) const;
    [[nodiscard]] QString wholeText() const;
    /// Brings a row into view; -1 does nothing.
    void showRow(int row) { scrollTo(model_.index(row, 0)); }
    /// Makes a row the current one, in view.
    void selectRow(int row);
    /// Width in which every column of the table has what its texts need.
    [[nodiscard]] int wantedWidth() const;

Q_SIGNALS:
    /// A double click on a row, or Enter on it. Counts from 0.
    void rowChosen(int row);
    /// How the ratio of a row comes about is asked for.
    void workingAsked(const borvik::RowOrigin& origin);
    void currentRowChanged(int row);
    /// The user has gone to a cell, by mouse or keys.
    void cellChosen(int row, int column);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    void buildFirstColumn();
    void placeFirstColumn();
    [[nodiscard]] int contentWidth(int column) const;
    void fitColumns();
    void breakLines();
    void copy(const QString& text);

    ResultTableModel model_;
    QTableView* firstColumn_;
    bool outOfDate_ = false;
    bool fitting_ = false;
    bool columnsSetByUser_ = false;
};

/// A table with its name, and its signs and units, above. Where its
/// rows have details, those of the current row stand beneath it.
class ResultTablePane : public QWidget {
    Q_OBJECT

public:
    /// @param listName  object name of the list
    explicit ResultTablePane(const QString& listName, QWidget* parent = nullptr);

    void showTable(const QString& title, ResultTable table);
    void clear();
    void setOutOfDate(bool outOfDate);
    [[nodiscard]] ResultTableView* list() const { return list_; }

private:
    QLabel* title_;
    QLabel* outOfDate_;
    QLabel* note_;
    ResultTableView* list_;
    QTextBrowser* details_;
};

}  // namespace borvik
