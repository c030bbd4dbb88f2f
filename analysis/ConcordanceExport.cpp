#include "analysis/ViewController.h"
#include "base/present.h"

namespace lexiform {

namespace {

constexpr std::string_view nameSuffix = "-wordlist.text";
constexpr std::string_view titleOfNone = "Untitled";
constexpr std::array<std::string_view, 2> allowedExtensions = {"text", "txt"};

std::shared_ptr<SavePanel> panelFor(std::string_view title, const AnalysisServices& services) {
    std::shared_ptr<SavePanel> panel = present(services.makeSavePanel)();
    present(panel).setCanCreateDirectories(true);
    panel->setAllowedFileTypes(allowedExtensions);
    panel->setNameFieldStringValue(std::string(title.empty() ? titleOfNone : title).append(nameSuffix));
    return panel;
}

} // namespace

void ViewController::saveConcButton() {
    if (!concordTextbox) return;
    // Taken now: what is listed while the panel is open does not reach the file.
    const std::string snapshot = concordTextbox->plainText();
    const std::shared_ptr<SavePanel> panel = panelFor(window().title(), services_);

    // The panel, the snapshot and the controller live until the person has answered.
    panel->begin([self = shared_from_this(), panel, snapshot](SavePanel::Response response) {
        if (response != SavePanel::Response::ok) return;
        const std::optional<std::string> path = panel->url();
        if (!path) return;
        const auto outcome = present(self->services_.files).write(*path, snapshot);
        if (!outcome.succeeded()) self->appendOutputText(outcome.fault().localizedDescription);
    });
}

} // namespace lexiform
