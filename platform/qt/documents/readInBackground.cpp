#include "platform/qt/documents/readInBackground.h"

#include <QApplication>
#include <QEventLoop>
#include <QFileInfo>
#include <QProgressDialog>
#include <QTimer>

#include <atomic>
#include <future>
#include <memory>
#include <thread>
#include <utility>

namespace lexiform::qt {

namespace {

using namespace std::chrono_literals;
using Bytes = Outcome<std::string, OpenFault>;

constexpr int wholeFile = 100;

// What the two threads share: it outlives the one that waits, for a disk may not answer at all.
struct Reading {
    std::atomic<int> percent = 0;
    std::atomic<bool> cancelled = false;
    std::promise<Bytes> bytes;
};

std::shared_ptr<Reading> begin(const QString& path, const FileReader& read) {
    auto reading = std::make_shared<Reading>();
    const auto note = [reading](qint64 done, qint64 total) {
        reading->percent = total > 0 ? static_cast<int>(done * wholeFile / total) : 0;
        return !reading->cancelled;
    };
    std::thread([reading, path, read, note] { reading->bytes.set_value(read(path, note)); }).detach();
    return reading;
}

// Returns when the file is read or the person has cancelled.
void showProgress(const QString& path, Reading& reading, const std::future<Bytes>& bytes) {
    QProgressDialog dialog(QApplication::activeWindow());
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setWindowTitle(QCoreApplication::applicationName());
    dialog.setLabelText(
        QCoreApplication::translate("readInBackground", "Opening “%1”").arg(QFileInfo(path).fileName()));
    dialog.setRange(0, wholeFile);
    dialog.setAutoClose(false);
    dialog.setAutoReset(false);
    QEventLoop loop;
    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, &loop, [&] {
        dialog.setValue(reading.percent);
        if (bytes.wait_for(0ms) == std::future_status::ready) loop.quit();
    });
    QObject::connect(&dialog, &QProgressDialog::canceled, &loop, [&] {
        reading.cancelled = true;
        loop.quit();
    });
    poll.start(50ms);
    dialog.show();
    loop.exec();
}

} // namespace

Bytes readInBackground(const QString& path, const FileReader& read, std::chrono::milliseconds patience) {
    const auto reading = begin(path, read);
    auto bytes = reading->bytes.get_future();
    if (bytes.wait_for(patience) != std::future_status::ready) showProgress(path, *reading, bytes);
    if (reading->cancelled) return OpenFault::cancelled;
    return bytes.get();
}

} // namespace lexiform::qt
