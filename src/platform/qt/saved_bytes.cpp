#include "platform/qt/saved_bytes.h"

#include <system_error>

#include "base/whole_file.h"

namespace borvik {

void saveBytes(const std::string& fileName, const QByteArray& bytes) {
    try {
        replaceFile(fileName, bytes.toStdString());
    } catch (const std::system_error& error) {
        throw OutputError(reasonOf(error));
    }
}

}  // namespace borvik
