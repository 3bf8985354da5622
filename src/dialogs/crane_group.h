#pragma once

#include "calculation/load_check.h"
#include "dialogs/input_dialog.h"

namespace borvik {

/// What differs between the group of crane 1, of crane 2 and of the hoist.
struct CraneGroupText {
    const char* name;  ///< object name of the group
    QString title;
    QString vertical;  ///< label of the vertical dynamic factor's line
    QString horizontal;
    QString psiV, psiH;        ///< labels of the factors
    QString wheelsTitle;       ///< of the frame around the wheels
    const char* firstMessage;  ///< when the first wheel carries nothing
    const char* lastMessage;   ///< when the load of the fourth wheel is refused
};

/// The boxes of one crane: dynamic factors, class, and for each wheel its loads and the distance to the next. Wheels
/// are 1..4 for crane 1 and the hoist, 5..8 for crane 2.
class CraneGroup {
public:
    /// @param crane       1 or 2
    /// @param craneClass  field of the record that takes the class, 0..9
    /// @param gapMask     mask of the distances when the form is filled
    CraneGroup(FormBinder& binder, Project& project, int crane, const CraneGroupText& text, std::int16_t& craneClass,
               const char* gapMask, const std::function<void()>& changed);

    [[nodiscard]] QGroupBox* box() const { return group_.box; }
    [[nodiscard]] QGridLayout* grid() const { return group_.grid; }
    /// Shows the crane's class.
    void show();

private:
    QGroupBox* wheels(FormBinder& binder, Project& project, int crane, const CraneGroupText& text, const char* gapMask);

    Group group_;
    QComboBox* class_;
    std::int16_t& craneClass_;
};

/// The closing test of both load forms. A refusal is shown, the box that is to be mended marked and given the focus,
/// and the form stays; unless nothing in the form can mend it, since then nobody could ever leave.
/// @return true when the form may close
[[nodiscard]] bool mayCloseLoads(QWidget& form, Project& project, Messages& messages, LoadForm kind);

/// The box of the fixed position, with its two options around it, as both load forms have it.
class PositionGroup {
public:
    PositionGroup(FormBinder& binder, Project& project, const QString& title, const QString& label,
                  const std::function<void()>& changed);
    [[nodiscard]] QGroupBox* box() const { return group_.box; }
    void show();

private:
    Group group_;
    Project& project_;
    FormBinder& binder_;
    NumberBox* txtPosition_;
    QAbstractButton* optRorlig_;
    QAbstractButton* optFixerad_;
};

}  // namespace borvik
