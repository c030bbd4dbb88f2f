#include "platform/qt/shell/missingDisplay.h"

#include <QCoreApplication>

#include <algorithm>

namespace lexiform::qt {

namespace {

bool environmentNamesDisplay() {
    const auto isSet = [](const char* name) { return !qEnvironmentVariableIsEmpty(name); };
    // In a session of Wayland its display has a usual name.
    return isSet("DISPLAY") || isSet("WAYLAND_DISPLAY") || isSet("WAYLAND_SOCKET") ||
           isSet("QT_QPA_PLATFORM") || qEnvironmentVariable("XDG_SESSION_TYPE") == QLatin1String("wayland");
}

// Qt's own options, with one dash or two.
bool argumentNamesDisplay(const QString& argument) {
    return argument.startsWith(u"-platform") || argument.startsWith(u"--platform") ||
           argument == u"-display" || argument == u"--display";
}

} // namespace

QString noDisplayMessage() {
    return QCoreApplication::translate("missingDisplay",
                                       "There is no display to show windows on. In a terminal, "
                                       "lexiform-cli reads texts.");
}

std::optional<QString> missingDisplay(const QStringList& arguments) {
    if (environmentNamesDisplay()) return std::nullopt;
    if (std::any_of(arguments.begin(), arguments.end(), argumentNamesDisplay)) return std::nullopt;
    return noDisplayMessage();
}

} // namespace lexiform::qt
