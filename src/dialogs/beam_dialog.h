#pragma once

#include <memory>

#include "dialogs/input_dialog.h"

class QCheckBox;

namespace borvik {

class Picture;
class SectionCombo;
class SpanList;

/// frmBeam: length and section of each of up to 30 spans.
class BeamDialog final : public InputDialog {
public:
    BeamDialog(Session& session, Messages& messages, std::function<void()> changed, QWidget* parent);

    /// Fills the list and the boxes from the record.
    void Write();

protected:
    bool mayClose() override;
    void showInput() override;
    void settle(Project& project) const override;
    [[nodiscard]] bool boxesShowRecord() const override { return false; }
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum What { Length = 1, Profile = 2 };

    Group entry();
    void makeList30();
    void fillSections();
    /// Gives length, section or both from above the list to rows.
    void apply(const std::vector<int>& rows, int what);
    void bringSectionsUpToDate();
    void openSectionForm();

    std::string BeamLengthText;
    SpanList* lstViewTill_;
    SectionCombo* cboProf_;
    QCheckBox* chkDead_;
    NumberBox* txtBeamLength_;
    Picture* picture_;
    std::unique_ptr<InputDialog> sectionForm_;
};

}  // namespace borvik
