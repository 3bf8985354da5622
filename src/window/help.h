#pragma once

#include <QObject>
#include <QWidget>

#include "platform/messages.h"
#include "results/result_tree.h"

namespace borvik {

/// Where the help pages are found: Qt's search path of this name, which the program sets to the folder of the pages.
inline constexpr const char* kHelpPath = "help";

/// What the Help menu opens.
enum class HelpPage { Contents, Search, Theory };

/// Opens the help window over the active window; where the help pages are missing a message says so.
void showHelp(HelpPage page, Messages& messages);

/// The help page of a window, by its name; that of the window it belongs to if it has none of its own.
/// @return file below the help folder
[[nodiscard]] QString helpPageOf(const QWidget* window);

/// The help page of a node that opens something in the main window's tree.
/// @return file below the help folder
[[nodiscard]] QString helpPageOf(const TreeNode& node, bool monorail);

/// Opens a page, a file below the help folder, over the active window.
void showHelpPage(const QString& page, Messages& messages);

/// F1 in a form opens the form's own page. Installed on the application; the main window has its menu for it.
class HelpKey : public QObject {
public:
    /// @param messages  must outlive it
    explicit HelpKey(Messages& messages) : messages_(messages) {}
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Messages& messages_;
};

}  // namespace borvik
