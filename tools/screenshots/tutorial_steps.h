#pragma once

#include <span>

#include "dialogs/dialogs.h"
#include "form_hands.h"

namespace borvik {

/// What docs/help/tutorial.md asks for in one form.
struct TutorialStep {
    DialogKind kind;
    const char *command, *form, *close;  ///< menu entry, the form that it opens, the button that closes it
    const char* what;                    ///< of the project changes
    const char* picture;                 ///< of the form at the end of the step
    void (*work)(const FormHands& form);
};

/// The steps in their order, from the new project to the fatigue details.
[[nodiscard]] std::span<const TutorialStep> tutorialSteps();

}  // namespace borvik
