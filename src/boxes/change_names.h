#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>
#include <vector>

#include "project/project.h"

namespace borvik {

class FormBinder;

/// What stands in the controls of a form at a moment, so that a change can be named as the user made it.
class ControlTexts {
public:
    ControlTexts() = default;
    /// @param boxes  also the number boxes and lists; without, the options and check boxes only
    ControlTexts(const QWidget& form, const FormBinder& binder, bool boxes);

    /// One text for each control that stands otherwise now: "V3 175 → 0", "Two cranes", "Include deadload of rail off".
    [[nodiscard]] QStringList changesTo(const ControlTexts& now) const;

private:
    struct Text {
        QString name, value;
        bool option;  ///< one of several: only the one that was chosen is a change
        bool operator==(const Text&) const = default;
    };
    std::vector<Text> texts_;
};

/// What has changed in the spans: "3 → 2 spans", "span 2 8000 → 9500", "span 2 HEA 300 → HEB 400".
[[nodiscard]] QStringList spanChanges(const Project& before, const Project& now);
/// What has changed in the project's list of sections: "HEB 400 added", "HEB 400 removed", "order of the sections".
[[nodiscard]] QStringList sectionChanges(const Project& before, const Project& now);

}  // namespace borvik
