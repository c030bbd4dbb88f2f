#pragma once

#include "ports/UrlSession.h"

#include <QNetworkAccessManager>
#include <QThread>

namespace lexiform::qt {

/// Fetches over HTTPS on a thread of its own, with Qt's defaults: redirects to addresses that are no less
/// safe are followed, and the user's proxies are used. An answer of more than `mostBytes` is an error.
class QtUrlSession : public UrlSession {
public:
    static constexpr qint64 mostBytes = qint64{16} << 20;

    QtUrlSession();
    ~QtUrlSession() override;
    QtUrlSession(const QtUrlSession&) = delete;
    QtUrlSession& operator=(const QtUrlSession&) = delete;

    [[nodiscard]] std::unique_ptr<DataTask> dataTask(const WebAddress& address,
                                                     Completion completion) override;

    /// Ends what runs without an answer, and the thread. Called again it does nothing.
    void stop();

private:
    QThread thread_;
    QNetworkAccessManager* manager_; // lives on the thread and goes with it
};

} // namespace lexiform::qt
