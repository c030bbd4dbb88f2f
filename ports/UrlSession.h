#pragma once

#include "base/WebAddress.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace lexiform {

/// What an address answered.
struct UrlResponse {
    /// Absent when the answer is not one of HTTP.
    std::optional<int> statusCode;
    /// In lower case and without parameters; absent when the answer names none.
    std::optional<std::string> mimeType;
};

/// Why there was no answer, or not all of it. A status that tells of a failure is an answer.
struct UrlError {
    /// For whoever looks for the reason.
    std::string description;
};

/// A request that waits to be started.
class DataTask {
public:
    virtual ~DataTask() = default;

    /// Starts the request and returns at once. The session keeps it going when the task is let go.
    virtual void resume() = 0;
};

/// Fetches what is under addresses, in the background.
class UrlSession {
public:
    using Completion = std::function<void(std::optional<std::string> body, std::optional<UrlResponse>,
                                          std::optional<UrlError>)>;

    virtual ~UrlSession() = default;

    /// A plain request for what is under `address`. `completion` is called once, on the session's own
    /// thread, unless the program ends before.
    [[nodiscard]] virtual std::unique_ptr<DataTask> dataTask(const WebAddress& address,
                                                             Completion completion) = 0;
};

} // namespace lexiform
