#pragma once

#include <stdexcept>
#include <string>

namespace borvik::fuzzing {

/// Something that must hold for every input did not. The text says what.
class BrokenLaw : public std::logic_error {
    using std::logic_error::logic_error;
};

/// Each of these feeds arbitrary bytes to one door of the system and tests what must hold behind it. They are called by
/// the fuzzers and, with kept inputs, by the ordinary tests.
/// @throws BrokenLaw

/// The project loader: refuses the bytes with a ProjectFileError, or gives a project that is written as the same bytes
/// again (but for texts that were mended, flags, and bytes behind the record) and reads back as the same record.
void checkProjectFile(const std::string& bytes);

/// The table loader. The first byte says which of the three tables the others are the content of. Refused with a
/// TableError, or all numbers are finite and a default project can be made, saved and loaded.
void checkTables(const std::string& bytes);

/// Numbers from texts and texts from numbers. The first line of the bytes is a text to be read, the rest a mask.
void checkNumbers(const std::string& bytes);

/// A calculation of whatever the project loader accepts, on a beam short enough to be walked at once: it ends with
/// results, a message or a run-time fault, the same a second time and by either walk; tables, diagrams, summary and
/// JSON can be made of its results.
void checkCalculation(const std::string& bytes);

}  // namespace borvik::fuzzing
