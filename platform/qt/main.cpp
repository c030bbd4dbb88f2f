#include "linguistics/Engine.h"
#include "platform/linguistics/LinguisticTagger.h"
#include "platform/linguistics/ModelMessage.h"
#include "platform/linguistics/modelFolders.h"
#include "platform/qt/adapters/QtFileWriter.h"
#include "platform/qt/adapters/QtSavePanel.h"
#include "platform/qt/adapters/QtUserDefaults.h"
#include "platform/qt/documents/DialogQuestions.h"
#include "platform/qt/documents/DocumentController.h"
#include "platform/qt/documents/FileType.h"
#include "platform/qt/documents/SceneStoryboard.h"
#include "platform/qt/documents/commandLine.h"
#include "platform/qt/documents/printedDocument.h"
#include "platform/qt/makerAddresses.h"
#include "platform/qt/shell/QtBundle.h"
#include "platform/qt/shell/Shell.h"
#include "platform/qt/shell/makeApplication.h"
#include "platform/qt/shell/missingDisplay.h"
#include "platform/qt/sidewindows/sideScenes.h"
#include "platform/qt/theme/ApplicationIcon.h"
#include "platform/qt/theme/PortalAppearance.h"
#include "platform/qt/theme/Theme.h"
#include "platform/qt/theme/ToolkitFont.h"
#include "platform/qt/theme/pixmapCache.h"
#include "platform/qt/windows/StateStore.h"
#include "platform/qt/windows/documentScene.h"
#include "platform/qt/windows/interfaceLanguage.h"
#include "platform/qt/windows/messageBox.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLocale>
#include <QStandardPaths>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

using namespace lexiform;

QString configFile(const QString& name) {
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation) + u'/' + name;
}

// What the program remembers is no preference: it has a place of its own beside those of other programs.
QString stateFile(const QString& name) {
    const QString given = qEnvironmentVariable("XDG_STATE_HOME");
    const QString folder = QDir::isAbsolutePath(given) ? given : QDir::homePath() + u"/.local/state"_qs;
    return folder + u"/lexiform/"_qs + name;
}

AnalysisServices analysisServices() {
    return {
        .defaults = std::make_shared<qt::QtUserDefaults>(configFile(QStringLiteral("defaults.ini"))),
        .makeSavePanel = [] { return std::make_shared<qt::QtSavePanel>(QObject::tr("Save List of Words")); },
        .files = std::make_shared<qt::QtFileWriter>(),
    };
}

QStringList chooseFiles() {
    return QFileDialog::getOpenFileNames(QApplication::activeWindow(), QObject::tr("Open"), {},
                                         qt::openFilters().join(QLatin1String(";;")));
}

// Texts for a terminal are translated as well as windows.
void translate(QCoreApplication& application) {
    qt::translateInterface(application, QLocale(), qt::resourceFolder() + QStringLiteral("/translations"));
}

// Without its model the program still opens and shows texts, every word in the colour of no class.
void tellOfMissingModel(const linguistics::ModelStore& models) {
    const auto outcome = models.check("en");
    if (outcome.succeeded()) return;
    auto* box = new QMessageBox(QApplication::activeWindow());
    qt::fillMessageBox(*box, QString::fromStdString(englishModelMessage(outcome.fault())),
                       QObject::tr("Words are shown without the colours of their classes."));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void addScenes(qt::SceneStoryboard& storyboard, const TaggerFactory& taggers,
               const std::shared_ptr<Bundle>& bundle, const qt::WindowServices& services) {
    storyboard.addScene(std::string(qt::documentSceneIdentifier),
                        [=] { return qt::makeDocumentScene(taggers, services); });
    storyboard.addScene(std::string(qt::colourSceneIdentifier),
                        [=] { return qt::makeColourScene(services); });
    storyboard.addScene(std::string(qt::paletteSceneIdentifier),
                        [=] { return qt::makePaletteScene(services.analysis.defaults, services); });
    storyboard.addScene(std::string(qt::helpSceneIdentifier),
                        [=] { return qt::makeHelpScene(bundle, services); });
}

int run(QApplication& application, const QStringList& files) {
    QApplication::setDesktopFileName(QStringLiteral("lexiform"));
    QApplication::setWindowIcon(qt::applicationIcon());
    qt::limitPixmapCache();

    qt::StateStore store(configFile(QStringLiteral("state.ini")));
    qt::Theme theme(application, store.appearance());
    theme.setClassMarks(store.classMarks());
    const qt::ToolkitFont font;
    const qt::PortalAppearance portal(QDBusConnection::sessionBus());
    QObject::connect(&portal, &qt::PortalAppearance::changed, &theme, &qt::Theme::setDesktopPreference);
    qt::WindowList windows;

    const auto models = std::make_shared<const linguistics::ModelStore>(modelFolders());
    const TaggerFactory taggers = linguisticTaggers(std::make_shared<linguistics::Engine>(models));
    const auto storyboard = std::make_shared<qt::SceneStoryboard>();
    const auto bundle =
        std::make_shared<qt::QtBundle>(QApplication::applicationVersion(), qt::resourceFolder());
    const auto actions = qt::makeApplicationActions(&application);
    const qt::WindowServices services{theme, store, windows, analysisServices(), &actions};
    addScenes(*storyboard, taggers, bundle, services);

    qt::DialogQuestions questions;
    qt::RememberedFiles remembered(stateFile(QStringLiteral("documents.ini")));
    qt::DocumentController documents(storyboard, {.present = qt::showOpenFailures,
                                                  .choose = chooseFiles,
                                                  .questions = questions,
                                                  .remembered = remembered,
                                                  .save = qt::saveFile,
                                                  .print = qt::showPrintPreview});
    // A file that is named is what the person wants to see, and nothing else.
    const QStringList first = files.isEmpty() && remembered.reopens() ? remembered.session() : files;
    if (first.isEmpty() || !documents.open(first)) documents.newDocument();
    tellOfMissingModel(*models);

    qt::Shell shell({services.analysis.defaults, bundle, storyboard, qt::makerAddresses()}, actions);
    shell.delegate().applicationDidFinishLaunching({});
    const int status = QApplication::exec();
    shell.delegate().applicationWillTerminate({});
    return status;
}

} // namespace

int main(int argc, char** argv) {
    QCoreApplication::setApplicationName(QStringLiteral("Lexiform"));
    QCoreApplication::setOrganizationName(QStringLiteral("lexiform"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LEXIFORM_VERSION));

    // Help and version are for a terminal, which may have no desktop.
    if (qt::asksForText(QStringList(argv, argv + argc))) {
        QCoreApplication terminal(argc, argv);
        translate(terminal);
        return qt::filesToOpen(QCoreApplication::arguments()).isEmpty() ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    if (const auto fault = qt::missingDisplay(QStringList(argv, argv + argc))) {
        std::fprintf(stderr, "lexiform: %s\n", qPrintable(*fault));
        return EXIT_FAILURE;
    }
    const auto application = qt::makeApplication(argc, argv);
    translate(*application);
    return run(*application, qt::filesToOpen(QCoreApplication::arguments()));
}
