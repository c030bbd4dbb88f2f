#include "platform/qt/shell/makeApplication.h"

#include "platform/qt/shell/missingDisplay.h"

#include <QMessageLogContext>

#include <cstdio>
#include <cstdlib>

namespace lexiform::qt {

namespace {

QtMessageHandler usualHandler = nullptr;

// Qt has named what failed in the messages before its last one, which tells to install it again. What is half
// made cannot be taken down in order.
void endWithoutDisplay(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (type != QtFatalMsg) return usualHandler(type, context, message);
    std::fprintf(stderr, "lexiform: %s\n", qPrintable(noDisplayMessage()));
    std::_Exit(EXIT_FAILURE);
}

} // namespace

std::unique_ptr<QApplication> makeApplication(int& argc, char** argv) {
    usualHandler = qInstallMessageHandler(endWithoutDisplay);
    auto application = std::make_unique<QApplication>(argc, argv);
    qInstallMessageHandler(usualHandler);
    return application;
}

} // namespace lexiform::qt
