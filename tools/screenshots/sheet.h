#pragma once

#include <QStringList>

namespace borvik {

/// Every picture of a project on one sheet, to be looked through in a minute: the sketch and each diagram of the result
/// tree as the main window shows them at its first size and on a large screen, then images of paper.
/// Arguments: OUT.png PROJECT.brvk [PAGE.png...]. @return exit code
int takeSheet(const QStringList& arguments);

}  // namespace borvik
