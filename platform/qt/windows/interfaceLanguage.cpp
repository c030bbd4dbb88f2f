#include "platform/qt/windows/interfaceLanguage.h"

#include <QLibraryInfo>
#include <QTranslator>

namespace lexiform::qt {

namespace {

bool install(QCoreApplication& application, const QString& file, const QString& folder) {
    auto* translator = new QTranslator(&application);
    if (translator->load(file, folder)) return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
}

} // namespace

// Qt's own loading by locale would take the second language of somebody whose first is English, in which
// the texts are written.
void translateInterface(QCoreApplication& application, const QLocale& locale, const QString& folder) {
    for (const QString& name : locale.uiLanguages()) {
        const QString language = name.section(u'-', 0, 0);
        if (language == QLatin1String("en") || language == QLatin1String("C")) return;
        if (!install(application, QStringLiteral("lexiform_") + language, folder)) continue;
        // The dialogs and the names of keys are Qt's.
        install(application, QStringLiteral("qtbase_") + language,
                QLibraryInfo::path(QLibraryInfo::TranslationsPath));
        return;
    }
}

} // namespace lexiform::qt
