#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "base/single.h"
#include "boxes/number_box.h"
#include "platform/messages.h"
#include "project/input_ranges.h"

namespace borvik {

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
    /// The member itself, by which the project finds its limits; null for a pair of functions.
    [[nodiscard]] const void* place() const { return place_; }

private:
    const void* place_ = nullptr;
    std::function<Single()> read_;
    std::function<void(Single)> write_;
};

/// One row of a form's table of numeric boxes: everything in which one box differs from another.
struct NumberRow {
    std::string name;  ///< of the control
    NumberField field;
    const char* mask;
    std::function<Range()> range = {};     ///< asked at each test; left out: what the project knows of the field
    const char* message = "";              ///< when the test fails, word for word
    QString meaning;                       ///< what the value is, and its clause; the tool tip adds the range
    std::function<void()> accepted = {};   ///< after a changed value has passed the test
    std::function<void()> refused = {};    ///< after the message of a failed test, before the focus goes back
    const char* maskWhenFilled = nullptr;  ///< when the form is filled from the record, if another than `mask`
};

/// A range that never moves.
[[nodiscard]] inline std::function<Range()> fixed(const Range& range) {
    return [range] { return range; };
}

/// The number that a user has typed, as a text for `DecimalValue`: sign, digits, one decimal sign (comma or point),
/// perhaps an exponent, blanks and tabs of any kind around it. A typographic minus is a minus.
/// @return nullopt for everything else, so that nothing is cut off in silence ("1 850", "12kN"), and for a number that
///         32 bits can't hold
[[nodiscard]] std::optional<std::string> plainNumber(const QString& typed);

/// Gives all numeric boxes of a form the same manners: on leaving, the text is converted, stored, shown by its mask and
/// tested; a value that fails stays stored, is marked at its box, brings its message and the focus back. A stored value
/// that counts and would fail is marked when the form is filled. Enter moves on in the order in which the rows were
/// added, and from the last one to the button that closes the form; arrow keys walk over a grid where there is one.
class FormBinder : public QObject {
    Q_OBJECT

public:
    /// @param project   knows the limits of its fields
    /// @param mismatch  the message for a text that is no number
    FormBinder(const Project& project, Messages& messages, std::string mismatch, QObject* parent);

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

    /// To be called after every change of the form's input: marks and tool tips follow limits that have moved.
    void refresh();
    /// The values that a box takes at the moment.
    [[nodiscard]] Range rangeOf(const NumberRow& row) const;
    /// The rows in the order of Enter.
    [[nodiscard]] std::vector<const NumberRow*> rows() const;

    /// Called after each accepted change of a box, behind the row's own action.
    std::function<void()> accepted;
    /// Where Enter goes from the last box.
    QWidget* afterLast = nullptr;

private:
    struct Entry {
        NumberBox* box;
        NumberRow row;
    };

    [[nodiscard]] Entry* entryOf(const QObject* box);
    void describe(const Entry& entry);
    [[nodiscard]] bool standsOutside(const NumberRow& row) const;
    /// @return the message of a refusal, or null when the value was taken
    const char* commit(Entry& entry);
    void leave(NumberBox* box);
    void tell(Entry& entry, const char* refusal);
    void moveOn(const NumberBox* from);
    bool moveInGrid(const NumberBox* from, int key);

    const Project& project_;
    Messages& messages_;
    std::string mismatch_;
    std::vector<std::unique_ptr<Entry>> entries_;
    std::vector<std::vector<std::vector<NumberBox*>>> grids_;
    Entry* pending_ = nullptr;  ///< refused on leaving, message to be shown as soon as the focus has settled
    bool goingBack_ = false;  ///< the focus is on its way back to a refused box; boxes passed on the way are not tested
};

}  // namespace borvik
