// Holds what reads the program's own files to its contract on any bytes: preferences, the state of the
// windows and the remembered files are values that make sense, and are written again.

#include "base/fatalError.h"
#include "platform/qt/adapters/QtUserDefaults.h"
#include "platform/qt/documents/RememberedFiles.h"
#include "platform/qt/windows/StateStore.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform;

void require(bool condition, std::string_view what) {
    if (!condition) fatalError(what);
}

// A name of its own each time: files of settings are remembered by their names.
QString fileWith(const QByteArray& bytes) {
    static const QTemporaryDir folder;
    static int count = 0;
    QFile file(folder.filePath(QString::number(++count)));
    require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(),
            "there is no room for a file");
    return file.fileName();
}

void readFiles(const QString& path) {
    qt::RememberedFiles files(path);
    require(files.recent().size() <= qt::RememberedFiles::mostRecent, "a menu has too many files");
    (void)files.session();
    files.setReopens(!files.reopens());
    files.noteOpened(QStringLiteral("/dev/null"));
}

void readState(const QString& path) {
    qt::StateStore store(path);
    const QString window = QStringLiteral("window");
    const QSize size = store.windowSize(window);
    require(!size.isValid() || !size.isEmpty(), "a window has no size");
    (void)store.windowPlace(window);
    (void)store.windowIsMaximised(window);
    (void)store.classMarks();
    const QList<int> panes = store.paneSizes();
    require(std::all_of(panes.begin(), panes.end(), [](int pane) { return pane > 0; }), "a pane has no size");
    (void)store.paneZooms();
    (void)store.wrapsLines(QStringLiteral("input"));
    store.setAppearance(store.appearance());
}

void readDefaults(const QString& path) {
    qt::QtUserDefaults defaults(path);
    (void)defaults.doubleForKey("dateLastUpdateCheck");
    (void)defaults.boolForKey("noUpdateCheck");
    defaults.setString("The cat", "key");
    require(defaults.stringForKey("key") == "The cat", "a preference is lost");
}

} // namespace

const std::vector<std::string>& fuzzPieces() {
    static const std::vector<std::string> all = {"[General]\n",
                                                 "[files]\n",
                                                 "[window]\n",
                                                 "[wrap]\n",
                                                 "recent=",
                                                 "session=",
                                                 "reopen=",
                                                 "width=",
                                                 "height=",
                                                 "panes=",
                                                 "zoom=",
                                                 "input=",
                                                 "appearance=",
                                                 "key=",
                                                 "noUpdateCheck=",
                                                 "true",
                                                 "dark",
                                                 "@Invalid()",
                                                 "@ByteArray(",
                                                 "@Variant(\\0\\0\\0\\x9",
                                                 "@Size(1 2)",
                                                 "@Rect(",
                                                 "1, 2, 3",
                                                 "-1",
                                                 "1e999",
                                                 "2147483648",
                                                 "/dev/null",
                                                 "/tmp, ",
                                                 "\"",
                                                 "\\",
                                                 "\\x41",
                                                 "\\x",
                                                 "%",
                                                 "%U0",
                                                 ";",
                                                 ",",
                                                 "=",
                                                 "\n",
                                                 "\r\n",
                                                 "]",
                                                 "[",
                                                 "/",
                                                 "\xEF\xBB\xBF",
                                                 "\xC3\xA9",
                                                 "\xFF",
                                                 std::string(1, '\0')};
    return all;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
    for (const auto read : {readFiles, readState, readDefaults}) {
        const QString path = fileWith(bytes);
        read(path);
        QFile::remove(path);
    }
    return 0;
}
