#pragma once

#include <QComboBox>
#include <functional>

namespace borvik {

/// The name of a section without what doesn't matter when it is typed: blanks and capitals.
[[nodiscard]] QString bareName(const QString& name);

/// A list of sections in which a name can be typed: the rest of the first fitting name is added, selected, behind what
/// has been typed, so that typing on replaces it. An exact name comes before a longer one; capitals and blanks don't
/// matter. Enter, or leaving the list, chooses; a text that names no section gives way to the section chosen before.
class SectionCombo : public QComboBox {
    Q_OBJECT

public:
    explicit SectionCombo(QWidget* parent = nullptr);

    /// The entry with that name, blanks and capitals apart; -1 for none.
    [[nodiscard]] int named(const QString& text) const;
    /// Types over the present text, as the keyboard would.
    void type(const QString& text);
    void showPopup() override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void complete(const QString& text);
    void choose();

    bool erasing_ = false;
};

/// A named list of sections, empty; `chosen` gets the index when the user chooses, not when the form is filled.
[[nodiscard]] SectionCombo* makeSectionList(const std::string& name, const QString& tip,
                                            std::function<void(int)> chosen);

}  // namespace borvik
