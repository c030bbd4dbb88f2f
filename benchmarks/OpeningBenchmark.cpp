// What it takes to open a document: `qt-opening-benchmark STAGE FILE` prints seconds and the peak memory in
// MB. The stages: `characters` reads the file and decodes it; `window` shows it too, untagged; `colour` is
// all that the application does.

#include "base/Unicode.h"
#include "document/Document.h"
#include "document/readAttributedText.h"
#include "linguistics/Engine.h"
#include "platform/linguistics/LinguisticTagger.h"
#include "platform/linguistics/modelFolders.h"
#include "platform/qt/documents/DialogQuestions.h"
#include "platform/qt/documents/DocumentController.h"
#include "platform/qt/documents/SceneStoryboard.h"
#include "platform/qt/documents/readFile.h"
#include "platform/qt/windows/DocumentWindow.h"
#include "platform/qt/windows/documentScene.h"
#include "tests/support/PlainDoubles.h"

#include <QApplication>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

using namespace lexiform;

/// Finds no token in any text.
class BlindTagger : public Tagger {
public:
    void setString(std::string /*text*/) override {}
    void enumerateTags(TextRange /*range*/, NLTokenUnit /*unit*/, TagScheme /*scheme*/,
                       NLTaggerOptions /*options*/, const Visitor& /*visitor*/) override {}
};

bool readCharacters(const QString& path) {
    const auto bytes = qt::readFile(path);
    if (!bytes.succeeded()) return false;
    if (qt::typeOfFile(path, bytes.value()) == plainTextType) return !firstInvalidUtf8(bytes.value());
    return document::readAttributedText(bytes.value()).succeeded();
}

bool showWindow(const QString& path, const TaggerFactory& taggers) {
    const QTemporaryDir folder;
    qt::StateStore store(folder.filePath("state.ini"));
    qt::Theme theme(*qApp, qt::AppearanceChoice::light);
    qt::WindowList windows;
    const qt::WindowServices services{theme, store, windows, {std::make_shared<PlainUserDefaults>(), {}, {}}};
    const auto storyboard = std::make_shared<qt::SceneStoryboard>();
    storyboard->addScene(std::string(qt::documentSceneIdentifier),
                         [&] { return qt::makeDocumentScene(taggers, services); });
    qt::DialogQuestions questions;
    qt::RememberedFiles remembered(folder.filePath("documents.ini"));
    qt::DocumentController documents(storyboard, {.present = [](const auto&) {},
                                                  .choose = [] { return QStringList(); },
                                                  .questions = questions,
                                                  .remembered = remembered,
                                                  .save = qt::saveFile,
                                                  .print = [](QWidget&, const qt::DocumentPanes&) {}});
    if (!documents.open({path})) return false;
    QApplication::processEvents();
    return !qt::windowOf(*documents.documents().front())->grab().isNull();
}

bool run(const QString& stage, const QString& path) {
    if (stage == QLatin1String("characters")) return readCharacters(path);
    if (stage == QLatin1String("window"))
        return showWindow(path, [](auto) { return std::make_unique<BlindTagger>(); });
    const auto models = std::make_shared<const linguistics::ModelStore>(modelFolders());
    return showWindow(path, linguisticTaggers(std::make_shared<linguistics::Engine>(models)));
}

// What the system counts for a process includes the memory of the one that started it; this does not.
double peakMegabytes() {
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with("VmHWM:")) return std::stod(line.substr(sizeof "VmHWM:")) / 1024;
    return 0;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 3)
        return std::puts("usage: qt-opening-benchmark characters|window|colour FILE"), EXIT_FAILURE;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, arguments);
    const auto began = std::chrono::steady_clock::now();
    if (!run(QString::fromLocal8Bit(arguments[1]), QString::fromLocal8Bit(arguments[2])))
        return std::puts("the file cannot be opened"), EXIT_FAILURE;
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - began).count();
    std::printf("%.3f %.0f\n", seconds, peakMegabytes());
    return EXIT_SUCCESS;
}
