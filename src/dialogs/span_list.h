#pragma once

#include <QPointer>
#include <QTreeWidget>
#include <vector>

#include "boxes/span_text.h"
#include "platform/messages.h"
#include "project/project.h"

namespace borvik {

/// The 30 rows of a beam: number, length and section of each span. The rows are edited in
/// place: a digit opens the length of the selected rows, a letter their section; Enter
/// stores and goes on below. Lengths and sections can be pasted and copied, spans put in
/// and taken out. It writes `Span` and `SpanSection` of the record and tells by `edited`.
class SpanList : public QTreeWidget {
    Q_OBJECT

public:
    /// @param project  its SpanSection has rows 1 to 30; outlives the list, as do the messages
    SpanList(Project& project, Messages& messages);

    /// Fills all rows from the record.
    void showAll();
    [[nodiscard]] std::vector<int> selectedRows() const;
    /// Rows 1 to the last one with a length, or to the last selected one where that lies further down.
    [[nodiscard]] std::vector<int> rowsInUse() const;

    /// Gives rows a length, an entry of the project's list, which is in use from then on, or both.
    void give(const std::vector<int>& rows, const SpanEntry& entry);
    void clearSelected();
    /// Puts an empty span before the first selected row; splices further on stay in their spans.
    void insertSpan();
    /// Takes the selected spans out; those below close up, and the splices with them.
    void removeSpans();
    /// Writes the rows of a text from the first selected row on, one row of text to all selected rows; a faulty cell
    /// refuses the whole with a message that names its row.
    void paste(const QString& text);
    /// The selected rows as a spreadsheet takes them.
    [[nodiscard]] QString copied() const;

    /// Opens the cell of the selected rows. @param typed what has
    /// been typed already; empty: the present value, selected
    void openCell(int column, const QString& typed = {});
    /// Stores what stands in an open cell. @return false when it was refused; its message has then been shown
    bool commitCell();
    /// Goes to a row at which the input check has stopped, and marks it until the next change.
    void mark(int row);
    [[nodiscard]] int marked() const { return marked_; }
    void moveDown();

Q_SIGNALS:
    /// The record has been changed.
    void edited();
    /// Enter without an open cell.
    void enterPressed();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    friend class SpanCells;

    void showRow(int row);
    void write(int row, const SpanEntry& entry);
    void goTo(int row);
    void rowsChanged(const std::vector<int>& rows);
    [[nodiscard]] const char* takeCell();
    void closeCell();
    void leaveCell();
    bool cellKey(QKeyEvent* key);
    void selectColumn(int column);

    Project& project_;
    Messages& messages_;
    QPointer<QWidget> editor_;
    QString before_;           ///< text of the open cell when it was opened
    bool typed_ = false;       ///< the open cell was opened by typing, so that it counts though it looks the same
    int column_ = 1;           ///< of the open cell
    std::vector<int> target_;  ///< rows that the open cell stands for
    int marked_ = 0;
};

}  // namespace borvik
