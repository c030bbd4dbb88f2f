#include "platform/qt/sidewindows/sideScenes.h"

#include "app/windows/HelpViewController.h"
#include "app/windows/PaletteViewController.h"
#include "platform/qt/adapters/QtTextField.h"
#include "platform/qt/panes/KeyTextEdit.h"
#include "platform/qt/sidewindows/ColourTable.h"
#include "platform/qt/sidewindows/QtPdfDocument.h"
#include "platform/qt/sidewindows/QtPdfView.h"
#include "platform/qt/sidewindows/Sheet.h"
#include "platform/qt/sidewindows/SideWindow.h"
#include "platform/qt/windows/RememberedPlace.h"
#include "platform/qt/windows/followClassMarks.h"

#include <QCoreApplication>
#include <QVBoxLayout>

#include <utility>

namespace lexiform::qt {

namespace {

constexpr int sheetMargin = 8;
constexpr QSize paletteSize{192, 500};
constexpr QSize helpSize{640, 720};

// The line of a sheet's own outline stays free.
Sheet* sheetWith(QWidget* content) {
    auto* sheet = new Sheet;
    auto* layout = new QVBoxLayout(sheet);
    layout->setContentsMargins(1, sheetMargin, 1, 2);
    layout->addWidget(content);
    return sheet;
}

} // namespace

std::shared_ptr<SceneController> makeColourScene(const WindowServices& services) {
    auto* table = new ColourTable;
    followClassMarks(services.theme, *table,
                     [table](const ClassMarks& marks) { table->setClassPalette(marks.palette); });
    auto window = std::make_unique<SideWindow>(QCoreApplication::translate("sideScenes", "Colours"),
                                               sheetWith(table), sheetMargin, services);
    window->layout()->setSizeConstraint(QLayout::SetFixedSize);
    return SideWindow::makeController(std::move(window), nullptr);
}

std::shared_ptr<SceneController> makePaletteScene(const std::shared_ptr<UserDefaults>& defaults,
                                                  const WindowServices& services) {
    auto* key = new KeyTextEdit;
    followClassMarks(services.theme, *key, [key](const ClassMarks& marks) { key->setClassMarks(marks); });
    auto window = std::make_unique<SideWindow>(QCoreApplication::translate("sideScenes", "Palette"),
                                               sheetWith(key), sheetMargin, services);
    new RememberedPlace(*window, QStringLiteral("palette"), paletteSize, services);
    auto controller = std::make_shared<PaletteViewController>(defaults);
    controller->paletteKeyText = std::make_shared<QtTextField>(key);
    return SideWindow::makeController(std::move(window), controller);
}

std::shared_ptr<SceneController> makeHelpScene(const std::shared_ptr<Bundle>& bundle,
                                               const WindowServices& services) {
    auto* view = new ManualView;
    auto window =
        std::make_unique<SideWindow>(QCoreApplication::translate("sideScenes", "Help"), view, 0, services);
    new RememberedPlace(*window, QStringLiteral("help"), helpSize, services);
    auto controller = std::make_shared<HelpViewController>(bundle, QtPdfDocument::read);
    controller->helpPDFView = std::make_shared<QtPdfView>(view);
    return SideWindow::makeController(std::move(window), controller);
}

} // namespace lexiform::qt
