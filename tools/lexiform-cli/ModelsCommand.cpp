#include "tools/lexiform-cli/ModelsCommand.h"

#include "linguistics/model/Model.h"
#include "tools/lexiform-cli/Sink.h"

#include <string>
#include <string_view>

namespace lexiform::cli {

namespace {

void appendColumn(std::string_view value, std::size_t width, std::string& out) {
    out.append(value);
    if (value.size() < width) out.append(width - value.size(), ' ');
    out += "  ";
}

void appendLine(const linguistics::Model& model, std::string& out) {
    const auto orDash = [](std::string_view text) { return text.empty() ? "-" : text; };
    appendColumn(model.language(), 8, out);
    appendColumn(std::to_string((model.size() + 1023) / 1024) + " KB", 8, out);
    appendColumn(orDash(model.information("licence")), 12, out);
    out.append(orDash(model.information("figures"))).append("\n");
}

} // namespace

int listModels(const linguistics::ModelStore& models, std::FILE* out, std::FILE* errors) {
    Sink sink(out);
    int status = 0;
    const auto files = models.available();
    if (!files.empty()) sink.pending += "language  size      licence       figures\n";
    for (const auto& [language, file] : files) {
        const auto model = linguistics::Model::load(file);
        if (model.succeeded()) {
            appendLine(*model.value(), sink.pending);
        } else {
            report(errors, file.string() + ": " + model.fault().reason);
            status = 1;
        }
    }
    if (files.empty()) report(errors, "there are no models");
    return sink.finish(errors) && !files.empty() ? status : 1;
}

} // namespace lexiform::cli
