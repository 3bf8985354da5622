#pragma once

#include <QByteArray>
#include <QString>
#include <string>

namespace borvik {

/// Makes `bytes` the whole of a file; the old file stays until the new one is whole.
/// @param fileName  in the encoding of the file system
/// @return an empty text, or what went wrong
[[nodiscard]] QString saveBytes(const std::string& fileName, const QByteArray& bytes);

}  // namespace borvik
