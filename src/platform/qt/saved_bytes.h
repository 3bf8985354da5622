#pragma once

#include <QByteArray>
#include <string>

namespace borvik {

/// Makes `bytes` the whole of a file; the old file stays until the new one is whole.
/// @param fileName  in the encoding of the file system
/// @throws OutputError  the file is then as it was
void saveBytes(const std::string& fileName, const QByteArray& bytes);

}  // namespace borvik
