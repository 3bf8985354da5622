#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "base/single.h"
#include "forms/number_box.h"
#include "platform/messages.h"

namespace borvik {

/// The values that a box accepts. Limits are stored numbers, so that the comparison is one of single precision: 0.8
/// typed meets a limit of 0.8.
struct Range {
    Single lowest = -std::numeric_limits<double>::infinity();
    Single highest = std::numeric_limits<double>::infinity();
    bool withoutLowest = false;  ///< the limit itself is refused
    bool withoutHighest = false;
    bool empty = false;  ///< nothing is accepted

    [[nodiscard]] bool holds(Single value) const;
    bool operator==(const Range&) const = default;
    /// In words for the tool tip: "0.1 to 0.8", "at least 5", "more than 100".
    [[nodiscard]] std::string inWords() const;
};

[[nodiscard]] Range anyNumber();
[[nodiscard]] Range noNumber();
[[nodiscard]] Range atLeast(double lowest);
[[nodiscard]] Range atMost(double highest);
[[nodiscard]] Range moreThan(double lowest);
[[nodiscard]] Range between(double lowest, double highest);

/// Where a number of a box lives: a field of the record of any width, or a text of the record that holds a number.
class NumberField {
public:
    NumberField(Single& field);        // NOLINT: a field stands for itself in the tables of the forms
    NumberField(std::int16_t& field);  // NOLINT: rounded half to even; beyond 16 bits the nearest end
    NumberField(std::string& field);   // NOLINT: general text of the number
    NumberField(std::function<Single()> read, std::function<void(Single)> write)
        : read_(std::move(read)), write_(std::move(write)) {}

    [[nodiscard]] Single get() const { return read_(); }
    void set(Single value) const { write_(value); }

private:
    std::function<Single()> read_;
    std::function<void(Single)> write_;
};

/// One row of a form's table of numeric boxes: everything in which one box differs from another.
struct NumberRow {
    std::string name;  ///< of the control
    NumberField field;
    const char* mask;
    std::function<Range()> range;          ///< asked at each test, since some limits move with other input
    const char* message = "";              ///< when the test fails, word for word
    QString meaning;                       ///< tool tip: what the value is, and its clause
    std::function<void()> accepted = {};   ///< after a changed value has passed the test
    std::function<void()> refused = {};    ///< after the message of a failed test, before the focus goes back
    const char* maskWhenFilled = nullptr;  ///< when the form is filled from the record, if another than `mask`
};

/// A range that never moves.
[[nodiscard]] inline std::function<Range()> fixed(const Range& range) {
    return [range] { return range; };
}

/// Gives all numeric boxes of a form the same manners: on leaving, the text is converted, stored, shown by its mask and
/// tested; a value that fails stays stored, is marked at its box, brings its message and the focus back. Enter moves on
/// in the order in which the rows were added; arrow keys walk over a grid where there is one.
class FormBinder : public QObject {
public:
    /// @param mismatch  the message for a text that is no number
    FormBinder(Messages& messages, std::string mismatch, QObject* parent);

    /// Makes the box of a row, and fills it from the record.
    NumberBox* add(NumberRow row);
    /// Fills every box from the record.
    void show();
    /// Fills one box from the record.
    void show(NumberBox* box);

    /// Columns of boxes over which the arrow keys move. Up and down run round within a column; left and right stop at
    /// the edge, and take the last row of a shorter column.
    void addGrid(std::vector<std::vector<NumberBox*>> columns);

    /// Stores what stands in the box that has the focus, as leaving it would.
    /// @return false when it was refused; its message has then been shown
    bool commitFocused();
    /// A refusal whose message is still to come, since the focus has only just moved.
    [[nodiscard]] bool refusalPending() const { return pending_ != nullptr; }

    /// Called after each accepted change of a box, behind the row's own action.
    std::function<void()> accepted;

private:
    struct Entry {
        NumberBox* box;
        NumberRow row;
    };

    [[nodiscard]] Entry* entryOf(const QObject* box);
    /// @return the message of a refusal, or null when the value was taken
    const char* commit(Entry& entry);
    void leave(NumberBox* box);
    void tell(Entry& entry, const char* refusal);
    void moveOn(const NumberBox* from);
    bool moveInGrid(const NumberBox* from, int key);

    Messages& messages_;
    std::string mismatch_;
    std::vector<std::unique_ptr<Entry>> entries_;
    std::vector<std::vector<std::vector<NumberBox*>>> grids_;
    Entry* pending_ = nullptr;  ///< refused on leaving, message to be shown as soon as the focus has settled
    bool goingBack_ = false;  ///< the focus is on its way back to a refused box; boxes passed on the way are not tested
};

}  // namespace borvik
