#include "boxes/section_combo.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScrollBar>
#include <QToolTip>

namespace borvik {

namespace {

/// Room for a welded section with unequal flanges and plates, so that a new name never moves the form.
constexpr int kLongName = 36;

}  // namespace

QString bareName(const QString& name) {
    return QString(name).remove(QLatin1Char(' ')).toCaseFolded();
}

SectionCombo::SectionCombo(QWidget* parent) : QComboBox(parent) {
    setEditable(true);
    setInsertPolicy(NoInsert);
    setCompleter(nullptr);  // the names are completed here, exact ones first
    setFocusPolicy(Qt::StrongFocus);
    setMinimumContentsLength(kLongName);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    connect(lineEdit(), &QLineEdit::textEdited, this, &SectionCombo::complete);
}

int SectionCombo::named(const QString& text) const {
    const QString wanted = bareName(text);
    for (int i = 0; i < count(); ++i)
        if (bareName(itemText(i)) == wanted) return i;
    return -1;
}

void SectionCombo::type(const QString& text) {
    lineEdit()->setText(text);
    complete(text);
}

void SectionCombo::showPopup() {
    view()->setMinimumWidth(view()->sizeHintForColumn(0) + view()->verticalScrollBar()->sizeHint().width());
    QComboBox::showPopup();
}

void SectionCombo::complete(const QString& text) {
    if (erasing_ || text.isEmpty() || lineEdit()->cursorPosition() < text.size() || named(text) >= 0) return;
    const int row = findText(text, Qt::MatchStartsWith);
    if (row < 0) return;
    const QString name = itemText(row);
    lineEdit()->setText(name);
    lineEdit()->setSelection(static_cast<int>(name.size()), static_cast<int>(text.size() - name.size()));
}

void SectionCombo::choose() {
    const QString text = currentText();
    const int row = named(text);
    if (row >= 0 && row != currentIndex()) {
        setCurrentIndex(row);
        Q_EMIT activated(row);
        return;
    }
    setEditText(itemText(currentIndex()));
    if (row < 0 && !text.trimmed().isEmpty())
        QToolTip::showText(mapToGlobal(QPoint(0, height())), tr("No section \"%1\" in this list").arg(text), this);
}

void SectionCombo::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    erasing_ = key == Qt::Key_Backspace || key == Qt::Key_Delete;
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        choose();
        lineEdit()->selectAll();
        event->ignore();  // the form may go on from here
        return;
    }
    QComboBox::keyPressEvent(event);
}

void SectionCombo::focusOutEvent(QFocusEvent* event) {
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason) choose();
    QComboBox::focusOutEvent(event);
}

SectionCombo* makeSectionList(const std::string& name, const QString& tip, std::function<void(int)> chosen) {
    auto* list = new SectionCombo;
    list->setObjectName(QString::fromStdString(name));
    list->setToolTip(tip);
    QObject::connect(list, &QComboBox::activated, list, [chosen = std::move(chosen)](int index) { chosen(index); });
    return list;
}

}  // namespace borvik
