#pragma once

#include <QString>

#include <cstdint>
#include <functional>
#include <vector>

namespace lexiform::qt {

/// Why a file did not become a document.
enum class OpenFault : std::uint8_t {
    missing,
    folder,
    notAFile,
    notAllowed,
    tooLarge,
    unreadable,
    refused,
    cancelled
};

/// A file that could not be opened.
struct OpenFailure {
    QString path;
    OpenFault fault = OpenFault::unreadable;

    bool operator==(const OpenFailure&) const = default;
};

/// Tells the user of files that could not be opened; never called with none.
using FailurePresenter = std::function<void(const std::vector<OpenFailure>& failures)>;

/// The heading and the reasons in the words of the alert, which name every file.
struct FailureMessage {
    QString heading;
    QString reasons;
};
[[nodiscard]] FailureMessage messageFor(const std::vector<OpenFailure>& failures);

/// Shows the message in an alert over the active window and waits until it is read.
void showOpenFailures(const std::vector<OpenFailure>& failures);

} // namespace lexiform::qt
