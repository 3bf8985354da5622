#pragma once

#include "platform/messages.h"

namespace borvik {

/// The documents that the Help menu opens.
enum class HelpPage { Contents, Search, Theory };

/// Opens a document beside the program; a missing one is said in a message.
void showHelp(HelpPage page, Messages& messages);

}  // namespace borvik
