#pragma once

#include <optional>

#include "actions/crane_fields.h"
#include "dialogs/input_dialog.h"
#include "exchange/attached.h"
#include "pictures/crane_plan.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QTableWidget;

namespace borvik {

/// frmCraneData: wheel loads of overhead cranes from crane data to EN 1991-3. The data at the left, what follows from
/// them at the right, at once: the groups of loads, the crane in plan, the ratios of all groups. The data are attached
/// to the project; its loads change only by "Use".
class CraneDataDialog final : public InputDialog {
public:
    CraneDataDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

protected:
    void showInput() override;
    bool mayClose() override;
    [[nodiscard]] bool boxesShowRecord() const override { return false; }

private:
    /// A box of the form: how its text is shown and taken.
    struct Box {
        NumberBox* box;
        std::function<QString()> shown;
        std::function<QString(const QString&)> take;  ///< @return what is wrong with a text; empty: it was taken
    };

    QWidget* fieldsOfCrane();
    QWidget* outcome();
    void addNumber(QGridLayout* grid, const actions::NumberField& field);
    void addChoice(QGridLayout* grid, const actions::ChoiceField& field);
    void addSpacing(QGridLayout* grid);
    void addTypes(QGridLayout* grid);
    void addBox(QGridLayout* grid, const QString& name, const QString& label, const QString& unit, Box box);
    [[nodiscard]] bool isWeight(const actions::NumberField& field) const;
    /// @return false when the text stands refused
    bool commit(const Box& box);
    actions::CraneData& crane();
    void craneChanged();
    void showOutcome();
    void showGroups();
    void compare();
    void use();

    Attached attached_;
    CranePlan plan_;
    std::vector<Box> boxes_;
    std::vector<std::pair<QComboBox*, const actions::ChoiceField*>> choices_;
    QComboBox* whichCrane_;
    QCheckBox* tonnes_;
    QCheckBox* farRails_;
    QCheckBox* phiOnK_;
    QLabel* state_;
    QLabel* fault_;
    QTableWidget* groups_;
    QTableWidget* matrix_;
    QPushButton* use_;
    Picture* picture_;
};

}  // namespace borvik
