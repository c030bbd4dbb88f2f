#pragma once

#include "ports/UrlSession.h"

#include <QNetworkReply>

namespace lexiform::qt {

// What a reply that has finished answered. A status that tells of a failure is an answer, and no error.

[[nodiscard]] std::optional<std::string> bodyOf(QNetworkReply& reply);
[[nodiscard]] std::optional<UrlResponse> responseOf(const QNetworkReply& reply);
[[nodiscard]] std::optional<UrlError> errorOf(const QNetworkReply& reply);

} // namespace lexiform::qt
