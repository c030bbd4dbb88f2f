#include "platform/qt/documents/writeInPlace.h"

#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace lexiform::qt {

namespace {

SaveFault faultOfSystem(int error) {
    return {qt_error_string(error) + u'.'};
}

// What the file held is still there afterwards, whatever comes of it. Gives the number of the error, or 0.
int makeRoom(QFile& file, qint64 size) {
    const qint64 before = file.size();
    if (size <= before) return 0;
    const int error = posix_fallocate(file.handle(), 0, size);
    if (error != 0) file.resize(before);
    return error;
}

bool overwrite(QFile& file, std::string_view bytes) {
    const auto size = static_cast<qint64>(bytes.size());
    return file.write(bytes.data(), size) == size && file.resize(size);
}

} // namespace

bool hasOtherNames(const QString& path) {
    struct stat status {};
    return stat(QFile::encodeName(path).constData(), &status) == 0 && status.st_nlink > 1;
}

Outcome<Done, SaveFault> writeInPlace(const QString& path, std::string_view bytes) {
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly | QIODevice::Unbuffered))
        return SaveFault{file.errorString() + u'.'};
    const int error = makeRoom(file, static_cast<qint64>(bytes.size()));
    if (error != 0) return faultOfSystem(error);
    if (!overwrite(file, bytes)) return SaveFault{file.errorString() + u'.'};
    if (fsync(file.handle()) != 0) return faultOfSystem(errno);
    return Done{};
}

} // namespace lexiform::qt
