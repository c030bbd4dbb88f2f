#include "platform/qt/documents/commandLine.h"

#include <QCommandLineParser>

namespace lexiform::qt {

bool asksForText(const QStringList& arguments) {
    static const QStringList questions = {QStringLiteral("--help"), QStringLiteral("-h"),
                                          QStringLiteral("--help-all"), QStringLiteral("--version"),
                                          QStringLiteral("-v")};
    for (const QString& argument : arguments.mid(1)) {
        if (argument == QLatin1String("--")) return false; // only files follow
        if (questions.contains(argument)) return true;
    }
    return false;
}

QStringList filesToOpen(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::translate("commandLine", "Reads a text and colours every word by its class."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(QStringLiteral("FILE"),
                                 QCoreApplication::translate("commandLine", "Texts to open."),
                                 QStringLiteral("[FILE...]"));
    parser.process(arguments);
    return parser.positionalArguments();
}

} // namespace lexiform::qt
