#include "forms/form_binder.h"

#include <QApplication>
#include <QTimer>
#include <algorithm>
#include <cctype>
#include <cmath>

#include "base/number_text.h"

namespace borvik {

namespace {

/// True when the one converter would find a number at the head of the text.
bool startsWithNumber(const std::string& text) {
    auto at = text.begin();
    while (at != text.end() && *at == ' ') ++at;
    if (at != text.end() && (*at == '+' || *at == '-')) ++at;
    if (at != text.end() && (*at == '.' || *at == ',')) ++at;
    return at != text.end() && std::isdigit(static_cast<unsigned char>(*at)) != 0;
}

std::int16_t toWholeNumber(double value) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(
        roundHalfEven(std::clamp(value, static_cast<double>(Limits::min()), static_cast<double>(Limits::max()))));
}

}  // namespace

bool Range::holds(Single value) const {
    const float number = value.stored();
    const bool highEnough = withoutLowest ? number > lowest.stored() : number >= lowest.stored();
    const bool lowEnough = withoutHighest ? number < highest.stored() : number <= highest.stored();
    return !empty && highEnough && lowEnough;
}

std::string Range::inWords() const {
    if (empty) return "none, until another value of this form is mended";
    const std::string low = generalText(lowest), high = generalText(highest);
    const bool hasLow = std::isfinite(double(lowest)), hasHigh = std::isfinite(double(highest));
    if (hasLow && hasHigh && *this == between(lowest, highest)) return low + " to " + high;
    std::string words;
    if (hasLow) words = (withoutLowest ? "more than " : "at least ") + low;
    if (hasHigh) words += std::string(hasLow ? ", " : "") + (withoutHighest ? "less than " : "at most ") + high;
    return words;
}

Range anyNumber() {
    return {};
}

Range noNumber() {
    return {.empty = true};
}

Range atLeast(double lowest) {
    return {.lowest = lowest};
}

Range atMost(double highest) {
    return {.highest = highest};
}

Range moreThan(double lowest) {
    return {.lowest = lowest, .withoutLowest = true};
}

Range between(double lowest, double highest) {
    return {.lowest = lowest, .highest = highest};
}

NumberField::NumberField(Single& field)
    : read_([&field] { return field; }), write_([&field](Single value) { field = value; }) {}

NumberField::NumberField(std::int16_t& field)
    : read_([&field] { return Single(field); }), write_([&field](Single value) { field = toWholeNumber(value); }) {}

NumberField::NumberField(std::string& field)
    : read_([&field] { return DecimalValue(field); }), write_([&field](Single value) { field = generalText(value); }) {}

FormBinder::FormBinder(Messages& messages, std::string mismatch, QObject* parent)
    : QObject(parent), messages_(messages), mismatch_(std::move(mismatch)) {}

NumberBox* FormBinder::add(NumberRow row) {
    auto* box = new NumberBox(QString::fromStdString(row.name));
    box->setMeaning(row.meaning);
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
    const NumberRow& row = entryOf(box)->row;
    const char* mask = row.maskWhenFilled != nullptr ? row.maskWhenFilled : row.mask;
    box->showText(QString::fromStdString(formatNumber(row.field.get(), mask)));
    box->clearRefusal();
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
        const std::string text = box->text().toStdString();
        if (!startsWithNumber(text)) {
            box->markRefused(QCoreApplication::translate("FormBinder", "A number is needed here"));
            return mismatch_.c_str();
        }
        row.field.set(DecimalValue(text));
    }
    const Single value = row.field.get();
    box->showText(QString::fromStdString(formatNumber(value, row.mask)));
    const Range range = row.range();
    if (!range.holds(value)) {
        box->markRefused(QCoreApplication::translate("FormBinder", "Refused. Allowed: ") +
                         QString::fromStdString(range.inWords()));
        return row.message;
    }
    box->clearRefusal();
    if (edited) {
        if (row.accepted) row.accepted();
        if (accepted) accepted();
    }
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
    goingBack_ = true;
    messages_.show(refusal);
    if (refusal == entry.row.message && entry.row.refused) entry.row.refused();
    entry.box->setFocus(Qt::OtherFocusReason);
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
    if (next != entries_.end()) {
        (*next)->box->setFocus(Qt::TabFocusReason);
    } else if (QWidget* after = from->window()->findChild<QWidget*>(QStringLiteral("cmdOK"))) {
        after->setFocus(Qt::TabFocusReason);
    } else {
        from->nextInFocusChain()->setFocus(Qt::TabFocusReason);
    }
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
