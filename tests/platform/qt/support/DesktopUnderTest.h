#pragma once

#include "analysis/ViewController.h"
#include "platform/qt/adapters/QtFileWriter.h"
#include "platform/qt/adapters/QtSavePanel.h"
#include "platform/qt/adapters/QtWindowController.h"
#include "platform/qt/documents/DocumentController.h"
#include "platform/qt/documents/SceneStoryboard.h"
#include "platform/qt/windows/DocumentWindow.h"
#include "platform/qt/windows/documentScene.h"
#include "tests/platform/qt/support/NotedQuestions.h"
#include "tests/support/PlainDoubles.h"
#include "tests/support/ScriptedTagger.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <string>
#include <vector>

namespace lexiform::qt {

/// The whole program without its process: document machinery, windows and theme, with a tagger that
/// knows the words of "The cat sat.", a state of its own, and alerts that are only noted.
class DesktopUnderTest {
public:
    explicit DesktopUnderTest(const QString& stateFile = {})
        : stateFile_(stateFile.isEmpty() ? folder_.filePath("state.ini") : stateFile), store(stateFile_),
          theme(*qApp, AppearanceChoice::light), storyboard(std::make_shared<SceneStoryboard>()),
          remembered(folder_.filePath("documents.ini")),
          documents(
              storyboard,
              {.present = [this](const auto& failures) { told.push_back(failures); },
               .choose = [this] { return chosen; },
               .questions = questions,
               .remembered = remembered,
               .save = [this](const QString& path, std::string_view bytes) { return save(path, bytes); },
               .print = [this](QWidget& window,
                               const DocumentPanes&) { printed.append(window.windowTitle()); }}) {
        storyboard->addScene(std::string(documentSceneIdentifier), [this] { return makeScene(); });
    }

    /// The path of a new file in the test's own folder.
    QString file(const QString& name, const QByteArray& bytes) {
        QString path = folder_.filePath(name);
        QFile file(path);
        if (file.open(QIODevice::WriteOnly)) file.write(bytes);
        return path;
    }
    [[nodiscard]] QString folder() const { return folder_.path(); }

    std::shared_ptr<SceneController> makeScene() {
        return makeDocumentScene(makeTagger ? makeTagger : scriptedTaggers(script, tagger),
                                 {theme, store, windows, analysis, application});
    }

    [[nodiscard]] static DocumentWindow& windowOf(const Document& document) {
        const auto controller =
            std::dynamic_pointer_cast<QtWindowController>(document.windowControllers.front());
        return *qobject_cast<DocumentWindow*>(controller->window());
    }
    [[nodiscard]] static ViewController& contentOf(const Document& document) {
        return *std::dynamic_pointer_cast<ViewController>(
            document.windowControllers.front()->contentViewController());
    }
    [[nodiscard]] DocumentWindow& window(std::size_t index = 0) const {
        return windowOf(*documents.documents().at(index));
    }
    [[nodiscard]] ViewController& content(std::size_t index = 0) const {
        return contentOf(*documents.documents().at(index));
    }

    /// A new window with `text` in its input pane, as if typed.
    DocumentWindow& typedInto(const QString& text) {
        documents.newDocument();
        DocumentWindow& newest = window(documents.documents().size() - 1);
        newest.panes()->input()->insertPlainText(text);
        return newest;
    }

    ScriptedTagger::Script script = {{"The", "Determiner"}, {"cat", "Noun"}, {"sat", "Verb"}};
    std::shared_ptr<TaggerCalls> tagger = std::make_shared<TaggerCalls>();
    std::shared_ptr<PlainUserDefaults> defaults = std::make_shared<PlainUserDefaults>();
    /// Every save panel that was opened and is not gone.
    std::vector<std::weak_ptr<QtSavePanel>> panels;
    AnalysisServices analysis{defaults, [this] { return makePanel(); }, std::make_shared<QtFileWriter>()};
    /// The commands of the application, when its menus are to have them.
    const ApplicationActions* application = nullptr;
    /// In the place of the taggers that know `script`.
    TaggerFactory makeTagger;
    std::vector<std::vector<OpenFailure>> told;
    QStringList chosen;
    NotedQuestions questions;
    FileSaver save = saveFile;
    QStringList printed;

private:
    std::shared_ptr<SavePanel> makePanel() {
        auto panel = std::make_shared<QtSavePanel>("Save");
        panels.push_back(panel);
        return panel;
    }

    QTemporaryDir folder_;
    QString stateFile_;

public:
    StateStore store;
    Theme theme;
    WindowList windows;
    std::shared_ptr<SceneStoryboard> storyboard;
    RememberedFiles remembered;
    DocumentController documents;
};

} // namespace lexiform::qt
