#pragma once

#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "calculation/session.h"
#include "dialogs/dialog_kind.h"
#include "dialogs/input_dialog.h"
#include "platform/messages.h"

namespace borvik {

/// An entry of the Input menu.
struct FormMenu {
    const char* name = "";  ///< object name; without it there is no entry
    const char* caption = "";
    int digit = 0;  ///< with Ctrl its shortcut, and its place among the entries
};

/// What is said of a form that the crane type doesn't have.
struct FormRefusal {
    const char* inMenu = "";
    const char* inTree = "";
};

/// All that is known of an input form beside its class. A new form is a name in DialogKind and a row of these.
struct FormKind {
    enum Cranes { Both, Overhead, Monorail };

    DialogKind kind;
    const char* window;    ///< object name of the form
    const char* helpPage;  ///< file below the help folder
    std::unique_ptr<InputDialog> (*make)(Session& session, Messages& messages, std::function<void()> changed,
                                         QWidget* parent);
    Cranes cranes = Both;  ///< those that have the form
    const char* key = "";
    const char* node = "";  ///< of the main window's tree; empty where another form opens this one
    FormMenu menu = {};
    FormRefusal refusal = {};
};

/// The input forms in the order of the tree. Two forms of one node are that of the overhead crane and that of the
/// monorail; the first has the menu entry for both.
[[nodiscard]] std::span<const FormKind> formKinds();
/// The form of a node for a crane type; where that type has none, the other's.
/// @return null for a node that opens no form
[[nodiscard]] const FormKind* findForm(std::string_view node, bool monorail);

/// Makes an input form, not yet shown.
/// @param session  must outlive the form; its project is edited in place, field by field
/// @param messages  where refusals go; must outlive the form
/// @param changed  called after each field that the form has written, so that the window's sketch can follow
[[nodiscard]] std::unique_ptr<InputDialog> makeDialog(DialogKind kind, Session& session, Messages& messages,
                                                      std::function<void()> changed, QWidget* parent);

}  // namespace borvik
