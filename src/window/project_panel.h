#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QWidget>

#include "boxes/form_binder.h"
#include "boxes/undo_keys.h"
#include "calculation/session.h"
#include "platform/messages.h"

namespace borvik {

/// The part of the main window that edits the project itself: names, material, crane type.
class ProjectPanel : public QWidget {
    Q_OBJECT

public:
    /// @param session, messages  must outlive the panel
    ProjectPanel(Session& session, Messages& messages, QWidget* parent = nullptr);

    /// Fills the controls from the record, and brings MaterialIndex and StartStopOutside
    /// in line with it: a crane that stands fixed can't start outside the beam. What is
    /// just being typed, and a refused strength with its mark, is left alone.
    void showProject();
    /// Stores what is just being typed, as leaving its box would.
    /// @return false when it was refused; a message has said so
    bool commit();

Q_SIGNALS:
    /// The names of project or girder have changed; results stay as they are.
    void namesChanged();
    /// Results no longer belong to the input. @param what  the change in the user's words
    void inputChanged(const QString& what);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* namesBox();
    QWidget* materialBox();
    QWidget* craneTypeBox();
    /// The field of the record that a box of names edits.
    [[nodiscard]] std::string& nameOf(const QLineEdit* box);
    void storeName(QLineEdit* from, std::string& to);
    void enterInIdent();
    void chooseMaterial(int row);

    Session& session_;
    FormBinder binder_;
    UndoKeys undoKeys_;
    QLineEdit* iproj_ = nullptr;
    QLineEdit* iident_ = nullptr;
    QComboBox* cbofyk_ = nullptr;
    NumberBox* ifyk_ = nullptr;
    QRadioButton* optOverH_ = nullptr;
    QRadioButton* optRunW_ = nullptr;
    QCheckBox* chkStartStop_ = nullptr;
};

}  // namespace borvik
