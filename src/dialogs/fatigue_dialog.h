#pragma once

#include <optional>
#include <span>

#include "dialogs/input_dialog.h"
#include "fatigue/details.h"
#include "pictures/fatigue_pictures.h"

class QCheckBox;
class QRadioButton;

namespace borvik {

/// A small picture that opens the standard's categories of a detail.
struct FatigueInfo {
    const char* name;
    QString text;
    FatigueDetail detail;
};

/// What a form adds to a detail of the catalogue.
struct FatigueDetailRow {
    std::vector<FatigueInfo> pictures;
    QString caption = {};  ///< if another than the catalogue's
};

struct FatigueWeld {
    std::string name;  ///< "W1": names of the controls are made of it
    std::string& kind;
    Single& throat;
    QString where;
};

/// Splices 1 to 4 of the record.
struct FatigueSplices {
    FixedArray<bool, 1, 10>& used;
    FixedArray<Single, 1, 10>& span;
    FixedArray<Single, 1, 10>& distance;
    const char* distanceName;
};

/// The dimensions at the support.
struct FatigueSupport {
    const char* lengthName;
    Single& length;
    const char* thicknessName;
    std::string& thickness;
};

/// A button that sets details, categories and welds to usual values.
struct FatigueDefaults {
    const char* name;
    QString text;
    std::function<void()> apply;
};

/// Everything in which the forms of the overhead crane and of the monorail differ.
struct FatigueForm {
    std::span<const Detail> catalogue;      ///< of fatigue/details.h: flags, categories and their symbols
    const char* stem;                       ///< "Fat": names of the boxes are made of it, "txtFat3C2"
    std::vector<FatigueDetailRow> details;  ///< in the catalogue's order
    FatigueSplices splices;
    std::vector<FatigueWeld> welds;
    FatigueSupport support;
    std::vector<FatigueDefaults> defaults;
    QString note;
};

/// The fatigue details of a project: which are checked, their categories, welds, splices and the geometry at supports.
class FatigueDialog : public InputDialog {
public:
    /// Writes all that the record holds into the controls.
    void WriteSetup();

protected:
    FatigueDialog(const char* name, const QString& title, Session& session, Messages& messages,
                  std::function<void()> changed, QWidget* parent);
    /// Puts the form together; called once, by the constructor of the form.
    void build(FatigueForm form);
    void showInput() override { WriteSetup(); }

private:
    Group details();
    void addDetail(QGridLayout* grid, const Detail& detail, const FatigueDetailRow& row);
    Group splices();
    void markSpliceSpan(int j);
    Group support();
    Group weld(const FatigueWeld& weld);
    void showWelds();
    void addDefaultsAndNotes(QGridLayout* content);

    struct SpliceControls {
        QCheckBox* used;
        QComboBox* span;
    };
    struct WeldControls {
        QRadioButton *fillet, *full;
        NumberBox* throat;
    };

    std::optional<FatigueForm> form_;
    std::vector<QCheckBox*> checks_;
    std::vector<SpliceControls> splices_;
    std::vector<WeldControls> welds_;
};

}  // namespace borvik
