#include "platform/qt/shell/urlAnswer.h"

namespace lexiform::qt {

namespace {

std::optional<int> statusOf(const QNetworkReply& reply) {
    const QVariant status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute);
    if (!status.isValid()) return std::nullopt;
    return status.toInt();
}

// The part before the parameters; types are the same in either case.
std::optional<std::string> mimeTypeOf(const QNetworkReply& reply) {
    const QByteArray type = reply.rawHeader("Content-Type").split(';').value(0).trimmed().toLower();
    if (type.isEmpty()) return std::nullopt;
    return type.toStdString();
}

// Qt reports a status of 400 and more as an error too.
bool isToldByStatus(QNetworkReply::NetworkError error) {
    return error >= QNetworkReply::ContentAccessDenied && error != QNetworkReply::ProtocolUnknownError &&
           error != QNetworkReply::ProtocolInvalidOperationError && error != QNetworkReply::ProtocolFailure;
}

} // namespace

std::optional<std::string> bodyOf(QNetworkReply& reply) {
    if (!responseOf(reply) || !reply.isOpen()) return std::nullopt; // closed when it was given up
    return reply.readAll().toStdString();
}

std::optional<UrlResponse> responseOf(const QNetworkReply& reply) {
    const auto status = statusOf(reply);
    if (!status && reply.error() != QNetworkReply::NoError) return std::nullopt;
    return UrlResponse{status, mimeTypeOf(reply)};
}

std::optional<UrlError> errorOf(const QNetworkReply& reply) {
    const bool isAnswer = reply.error() == QNetworkReply::NoError ||
                          (statusOf(reply).has_value() && isToldByStatus(reply.error()));
    if (isAnswer) return std::nullopt;
    return UrlError{reply.errorString().toStdString()};
}

} // namespace lexiform::qt
