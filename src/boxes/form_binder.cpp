#include "boxes/form_binder.h"

#include <QApplication>
#include <QRegularExpression>
#include <QTimer>
#include <algorithm>
#include <cmath>
#include <limits>

#include "base/number_text.h"

namespace borvik {

namespace {

std::int16_t toWholeNumber(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(
        roundHalfEven(std::clamp(value, static_cast<double>(Limits::min()), static_cast<double>(Limits::max()))));
}

}  // namespace

std::optional<std::string> plainNumber(const QString& typed) {
    static const QRegularExpression form(QStringLiteral(R"(^[+-]?(\d+[.,]?\d*|[.,]\d+)([eE][+-]?\d+)?$)"));
    QString text = typed.trimmed();
    if (text.startsWith(QChar(0x2212))) text[0] = QLatin1Char('-');
    if (!form.match(text).hasMatch()) return std::nullopt;
    std::string number = text.toStdString();
    // The converter holds what is too large at the end of 32 bits.
    if (std::abs(DecimalValue(number).stored()) == std::numeric_limits<float>::max()) return std::nullopt;
    return number;
}

NumberField::NumberField(Single& field)
    : place_(&field), read_([&field] { return field; }), write_([&field](Single value) { field = value; }) {}

NumberField::NumberField(std::int16_t& field)
    : place_(&field),
      read_([&field] { return Single(field); }),
      write_([&field](Single value) { field = toWholeNumber(value); }) {}

NumberField::NumberField(std::string& field)
    : place_(&field),
      read_([&field] { return DecimalValue(field); }),
      write_([&field](Single value) { field = generalText(value); }) {}

FormBinder::FormBinder(const Project& project, Messages& messages, std::string mismatch, QObject* parent)
    : QObject(parent), project_(project), messages_(messages), mismatch_(std::move(mismatch)) {}

NumberBox* FormBinder::add(NumberRow row) {
    auto* box = new NumberBox(QString::fromStdString(row.name));
    entries_.push_back(std::make_unique<Entry>(Entry{box, std::move(row)}));
    connect(box, &NumberBox::left, this, [this, box] { leave(box); });
    connect(box, &NumberBox::enterPressed, this, [this, box] { moveOn(box); });
    connect(box, &NumberBox::arrowPressed, this, [this, box](int key, bool& taken) { taken = moveInGrid(box, key); });
    show(box);
    return box;
}

void FormBinder::show() {
    for (const auto& entry : entries_) show(entry->box);
}

void FormBinder::show(NumberBox* box) {
    const Entry& entry = *entryOf(box);
    const NumberRow& row = entry.row;
    const char* mask = row.maskWhenFilled != nullptr ? row.maskWhenFilled : row.mask;
    box->showText(QString::fromStdString(formatNumber(row.field.get(), mask)));
    box->clearRefusal();
    if (standsOutside(row)) box->markRefused(tr("Outside the values that this box takes"));
    describe(entry);
    if (box->hasFocus()) box->selectAll();  // as on entry: typing replaces what has just been shown
}

void FormBinder::addGrid(std::vector<std::vector<NumberBox*>> columns) {
    grids_.push_back(std::move(columns));
}

bool FormBinder::commitFocused() {
    Entry* entry = entryOf(QApplication::focusWidget());
    if (entry == nullptr) return true;
    const char* refusal = commit(*entry);
    if (refusal != nullptr) tell(*entry, refusal);
    return refusal == nullptr;
}

void FormBinder::refresh() {
    for (const auto& entry : entries_) {
        if (entry->box->edited()) continue;
        if (standsOutside(entry->row)) {
            if (!entry->box->refused()) entry->box->markRefused(tr("Outside the values that this box takes"));
        } else if (rangeOf(entry->row).holds(entry->row.field.get())) {
            entry->box->clearRefusal();
        }
        describe(*entry);
    }
}

Range FormBinder::rangeOf(const NumberRow& row) const {
    return row.range ? row.range() : inputNumber(project_, row.field.place()).range;
}

std::vector<const NumberRow*> FormBinder::rows() const {
    std::vector<const NumberRow*> all;
    for (const auto& entry : entries_) all.push_back(&entry->row);
    return all;
}

/// True for a stored value that would be refused if it were typed, and that something reads.
bool FormBinder::standsOutside(const NumberRow& row) const {
    if (row.range) return !row.range().holds(row.field.get());
    const InputNumber number = inputNumber(project_, row.field.place());
    return number.counts && !number.range.holds(number.value);
}

/// The tool tip: what the value is, what the box takes, and the digits that its mask doesn't show.
void FormBinder::describe(const Entry& entry) {
    QString tip = entry.row.meaning + QLatin1Char('\n') +
                  tr("Allowed: %1").arg(QString::fromStdString(rangeOf(entry.row).inWords()));
    const std::string whole = generalText(entry.row.field.get());
    if (!entry.box->edited() &&
        DecimalValue(entry.box->text().toStdString()).stored() != entry.row.field.get().stored())
        tip += QLatin1Char('\n') + tr("Holds %1").arg(QString::fromStdString(whole));
    entry.box->setMeaning(tip);
}

FormBinder::Entry* FormBinder::entryOf(const QObject* box) {
    const auto found =
        std::find_if(entries_.begin(), entries_.end(), [box](const auto& entry) { return entry->box == box; });
    return found == entries_.end() ? nullptr : found->get();
}

const char* FormBinder::commit(Entry& entry) {
    NumberBox* box = entry.box;
    const NumberRow& row = entry.row;
    const bool edited = box->edited();
    if (edited) {
        // A value that was only looked at keeps the digits that its mask doesn't show.
        const auto number = plainNumber(box->text());
        if (!number) {
            box->markRefused(tr("A number is needed here, without blanks, group signs or units"));
            return mismatch_.c_str();
        }
        row.field.set(DecimalValue(*number));
    }
    const Single value = row.field.get();
    box->showText(QString::fromStdString(formatNumber(value, row.mask)));
    if (!rangeOf(row).holds(value)) {
        box->markRefused(tr("Refused"));
        describe(entry);
        return std::isfinite(value.stored()) ? row.message : mismatch_.c_str();
    }
    box->clearRefusal();
    if (edited) {
        if (row.accepted) row.accepted();
        if (accepted) accepted();
    }
    refresh();
    return nullptr;
}

void FormBinder::leave(NumberBox* box) {
    if (goingBack_ || pending_ != nullptr) return;
    Entry* entry = entryOf(box);
    const char* refusal = commit(*entry);
    if (refusal == nullptr) return;
    // The focus is still on its way to the next control: the box with the message has to wait until it is there.
    pending_ = entry;
    QTimer::singleShot(0, this, [this, entry, refusal] { tell(*entry, refusal); });
}

void FormBinder::tell(Entry& entry, const char* refusal) {
    while (QWidget* popup = QApplication::activePopupWidget()) popup->close();
    // Back before the message takes the window's activity: an inactive window tells the box that the focus had passed
    // on to nothing of the way back, and it would stay green.
    goingBack_ = true;
    entry.box->setFocus(Qt::OtherFocusReason);
    messages_.show(refusal);
    if (refusal == entry.row.message && entry.row.refused) entry.row.refused();
    entry.box->selectAll();
    goingBack_ = false;
    pending_ = nullptr;
}

void FormBinder::moveOn(const NumberBox* from) {
    const auto current =
        std::find_if(entries_.begin(), entries_.end(), [from](const auto& entry) { return entry->box == from; });
    const auto next = std::find_if(current + 1, entries_.end(), [](const auto& entry) {
        return entry->box->isEnabled() && !entry->box->isReadOnly() && entry->box->isVisible();
    });
    QWidget* to = next != entries_.end() ? (*next)->box : afterLast != nullptr ? afterLast : from->nextInFocusChain();
    from->window()->setAttribute(Qt::WA_KeyboardFocusChange);  // a button shows its ring, as after Tab
    to->setFocus(Qt::TabFocusReason);
}

bool FormBinder::moveInGrid(const NumberBox* from, int key) {
    for (const auto& columns : grids_) {
        for (std::size_t c = 0; c < columns.size(); ++c) {
            const auto& column = columns[c];
            const auto at = static_cast<std::size_t>(std::find(column.begin(), column.end(), from) - column.begin());
            if (at == column.size()) continue;
            NumberBox* to = nullptr;
            if (key == Qt::Key_Up) to = column[(at + column.size() - 1) % column.size()];
            if (key == Qt::Key_Down) to = column[(at + 1) % column.size()];
            const auto* side = key == Qt::Key_Left && c > 0                     ? &columns[c - 1]
                               : key == Qt::Key_Right && c + 1 < columns.size() ? &columns[c + 1]
                                                                                : nullptr;
            if (side != nullptr) to = (*side)[std::min(at, side->size() - 1)];
            if (to == nullptr) return false;
            to->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return false;
}

}  // namespace borvik
