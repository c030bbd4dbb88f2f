#pragma once

#include "tests/platform/qt/shell/support/TestCertificate.h"

#include <QSslServer>
#include <QTcpSocket>
#include <QTimer>

#include <map>
#include <string>

namespace lexiform::qt {

/// What a server sends for one path.
struct HttpAnswer {
    QByteArray status = "200 OK";
    QByteArray body = "";
    /// Lines, each with its end.
    QByteArray headers = "Content-Type: text/plain\r\n";
    int delayInMilliseconds = 0;
};

/// A server of HTTPS at a free port of 127.0.0.1, on the event loop of the test.
class HttpsServer {
public:
    explicit HttpsServer(const TestCertificate& certificate) {
        serveAs(certificate);
        QObject::connect(&server_, &QTcpServer::pendingConnectionAvailable, &server_, [this] { accept(); });
        EXPECT_TRUE(server_.listen(QHostAddress::LocalHost));
    }

    /// Shows this certificate to whoever connects from now on.
    void serveAs(const TestCertificate& certificate) { server_.setSslConfiguration(certificate.forServer()); }
    /// The HTTPS address of a path that starts with a slash.
    [[nodiscard]] std::string address(const std::string& path) const {
        return "https://127.0.0.1:" + std::to_string(server_.serverPort()) + path;
    }
    /// Connections to its port are refused from now on.
    void close() { server_.close(); }

    std::map<QByteArray, HttpAnswer> answers;
    /// The requests that came, each with all its lines.
    QList<QByteArray> requests;

private:
    void accept() {
        QTcpSocket* socket = server_.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(*socket); });
        read(*socket);
    }

    void read(QTcpSocket& socket) {
        if (!socket.peek(socket.bytesAvailable()).contains("\r\n\r\n")) return;
        requests.append(socket.readAll());
        const HttpAnswer answer = answers[requests.back().split(' ').value(1)];
        QTimer::singleShot(answer.delayInMilliseconds, &socket, [&socket, answer] {
            socket.write("HTTP/1.1 " + answer.status + "\r\n" + answer.headers +
                         "Content-Length: " + QByteArray::number(answer.body.size()) +
                         "\r\nConnection: close\r\n\r\n" + answer.body);
            socket.disconnectFromHost();
        });
    }

    QSslServer server_;
};

} // namespace lexiform::qt
