#pragma once

namespace borvik {

/// Fonts and painters want an application; this makes one unless there is one. It asks for no display unless the user
/// chose a platform.
void needApplication();

}  // namespace borvik
