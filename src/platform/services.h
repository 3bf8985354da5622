#pragma once

#include <string>

#include "platform/messages.h"
#include "platform/questions.h"
#include "platform/settings_store.h"

namespace borvik {

/// The outside as the windows see it. Tests put their own in place of boxes, choosers and settings.
struct Services {
    Messages& messages;
    Questions& questions;
    SettingsStore& settings;
    std::string recoveryFolder = {};  ///< of copies of unsaved projects; empty: none are kept
};

/// The program's title: in boxes, and as the application name of the settings.
inline constexpr const char* kApplicationTitle = "Borvik";

}  // namespace borvik
