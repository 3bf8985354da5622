#include "views/result_table_model.h"

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <algorithm>

#include "views/icons.h"

namespace borvik {

void ResultTableModel::setTable(ResultTable table) {
    beginResetModel();
    table_ = std::move(table);
    endResetModel();
}

void ResultTableModel::setOutOfDate(bool outOfDate) {
    if (outOfDate == outOfDate_) return;
    outOfDate_ = outOfDate;
    if (rowCount() > 0 && columnCount() > 0)
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1),
                           {Qt::ForegroundRole, Qt::DecorationRole});
}

int ResultTableModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.rows.size());
}

int ResultTableModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(table_.columns.size());
}

const TableCell* ResultTableModel::cell(int row, int column) const {
    const auto& cells = table_.rows[static_cast<std::size_t>(row)];
    return static_cast<std::size_t>(column) < cells.size() ? &cells[static_cast<std::size_t>(column)] : nullptr;
}

bool ResultTableModel::isLine(int row) const {
    const TableCell* first = cell(row, 0);
    return first != nullptr && (first->emphasis == Emphasis::Heading || first->emphasis == Emphasis::Note);
}

QVariant ResultTableModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid()) return {};
    const TableCell* shown = cell(index.row(), index.column());
    if (shown == nullptr) return {};
    const bool over = shown->emphasis == Emphasis::OverLimit;
    switch (role) {
        case Qt::DisplayRole:
            return QString::fromStdString(shown->text);
        case Qt::EditRole:
            return shown->number ? QVariant(*shown->number) : QString::fromStdString(shown->text);
        case Qt::ToolTipRole: {
            const QString text = QString::fromStdString(shown->text);
            if (over && *shown->number > 1.0) return tr("%1: the ratio is greater than 1").arg(text);
            if (over) return tr("%1: the check does not hold, no resistance is left").arg(text);
            return text.size() > 12 ? QVariant(text) : QVariant();
        }
        case Qt::AccessibleTextRole:
            return over ? tr("%1, not satisfied").arg(QString::fromStdString(shown->text))
                        : QString::fromStdString(shown->text);
        case Qt::TextAlignmentRole:
            return int(Qt::AlignVCenter) | int(shown->number && index.column() > 0 ? Qt::AlignRight : Qt::AlignLeft);
        case Qt::FontRole:
            if (over || shown->emphasis == Emphasis::Heading) {
                QFont font = QApplication::font("QTableView");
                font.setBold(true);
                return font;
            }
            return {};
        case Qt::ForegroundRole: {
            const QPalette palette = QApplication::palette();
            if (outOfDate_) return palette.color(QPalette::Disabled, QPalette::Text);
            if (over) return overLimitColour(palette);
            return {};
        }
        case Qt::BackgroundRole:
            if (shown->emphasis == Emphasis::Heading) return QApplication::palette().color(QPalette::Button);
            return {};
        case Qt::DecorationRole:
            if (!over) return {};
            return outOfDate_ ? pictureIcon(Picture::OverLimit).pixmap(16, QIcon::Disabled)
                              : QVariant(pictureIcon(Picture::OverLimit));
        default:
            return {};
    }
}

bool ResultTableModel::holdsNumbers(int column) const {
    return std::any_of(table_.rows.begin(), table_.rows.end(), [column](const auto& row) {
        return static_cast<std::size_t>(column) < row.size() && row[static_cast<std::size_t>(column)].number;
    });
}

QVariant ResultTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    const TableColumn& column = table_.columns[static_cast<std::size_t>(section)];
    switch (role) {
        case Qt::DisplayRole: {
            // The unit stands on a line of its own, and so does the
            // last word of a header that is wider than its numbers.
            constexpr qsizetype kWidthOfNumbers = 12;
            QString head = QString::fromStdString(column.header);
            const qsizetype blank = head.trimmed().lastIndexOf(QLatin1Char(' '));
            if (blank > 0 && head.size() > kWidthOfNumbers && column.unit.empty() && holdsNumbers(section))
                head[blank] = QLatin1Char('\n');
            if (!column.unit.empty()) head += QLatin1Char('\n') + QString::fromStdString(column.unit);
            return head;
        }
        case Qt::ToolTipRole:
            return QString::fromStdString(column.help);
        case Qt::TextAlignmentRole:
            return int(Qt::AlignVCenter) | int(holdsNumbers(section) ? Qt::AlignHCenter : Qt::AlignLeft);
        default:
            return {};
    }
}

}  // namespace borvik
