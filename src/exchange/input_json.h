#pragma once

#include <stdexcept>
#include <string>

#include "project/project.h"

namespace borvik {

/// A text that makes no project; says what and where, in words for the user.
class InputJsonError : public std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// What the user entered into a project, as a JSON object that can be read and edited: every field by its name in the
/// unit of docs/input-json.md, then "Sections", each from the table or welded with its dimensions, and "SpanSections",
/// their names span by span. Arrays leave out what follows their last value. Makes the same project again through
/// projectFromJson: computed properties and fields that no form shows are not in it.
[[nodiscard]] std::string inputJson(const Project& project);

/// Makes a project of such an object, or of a whole result file that has one under "Input". What is left out takes the
/// value of the default project; without "SpanSections" every span has the first section. Values are taken as a file
/// would bring them: the input checks come with the calculation.
/// @throws InputJsonError  text that is no JSON, a name that no field has (the nearest is named), a value of the wrong
///                         kind, a section that the table doesn't have
[[nodiscard]] Project projectFromJson(const std::string& text, const ReferenceTables& tables);

}  // namespace borvik
