#include "platform/qt/shell/QtUrlSession.h"

#include "platform/qt/shell/runLater.h"
#include "platform/qt/shell/urlAnswer.h"

#include <QNetworkReply>
#include <QNetworkRequest>

#include <utility>

namespace lexiform::qt {

namespace {

void complete(QNetworkReply& reply, const UrlSession::Completion& completion) {
    reply.deleteLater();
    completion(bodyOf(reply), responseOf(reply), errorOf(reply));
}

void start(QNetworkAccessManager& manager, const QUrl& address, UrlSession::Completion completion) {
    QNetworkReply* reply = manager.get(QNetworkRequest(address));
    QObject::connect(reply, &QNetworkReply::finished, reply,
                     [reply, completion = std::move(completion)] { complete(*reply, completion); });
    // One without an end would fill the memory.
    QObject::connect(reply, &QNetworkReply::readyRead, reply, [reply] {
        if (reply->bytesAvailable() > QtUrlSession::mostBytes) reply->abort();
    });
}

class QtDataTask : public DataTask {
public:
    QtDataTask(QNetworkAccessManager& manager, QUrl address, UrlSession::Completion completion)
        : manager_(manager), address_(std::move(address)), completion_(std::move(completion)) {}

    // The manager may be used on its own thread alone.
    void resume() override {
        if (!completion_) return;
        runLater(manager_,
                 [manager = &manager_, address = address_, completion = std::exchange(completion_, nullptr)] {
                     start(*manager, address, completion);
                 });
    }

private:
    QNetworkAccessManager& manager_;
    QUrl address_;
    UrlSession::Completion completion_;
};

} // namespace

QtUrlSession::QtUrlSession() : manager_(new QNetworkAccessManager) {
    manager_->moveToThread(&thread_);
    QObject::connect(&thread_, &QThread::finished, manager_, &QObject::deleteLater);
    thread_.setObjectName(QStringLiteral("network"));
    thread_.start();
}

QtUrlSession::~QtUrlSession() {
    stop();
}

std::unique_ptr<DataTask> QtUrlSession::dataTask(const WebAddress& address, Completion completion) {
    return std::make_unique<QtDataTask>(*manager_, QUrl(QString::fromStdString(address.string())),
                                        std::move(completion));
}

void QtUrlSession::stop() {
    thread_.quit();
    thread_.wait();
}

} // namespace lexiform::qt
