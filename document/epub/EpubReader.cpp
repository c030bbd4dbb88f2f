#include "document/epub/EpubReader.h"

#include "document/epub/spine.h"
#include "document/html/HtmlReader.h"

namespace lexiform::document {

bool isEpub(Package& package) {
    const auto declared = package.part("mimetype");
    if (declared.succeeded() && declared.value().starts_with("application/epub+zip")) return true;
    // Some tools forget the type.
    return package.has("META-INF/container.xml");
}

Outcome<std::string, ReadFault> readEpub(Package& package) {
    const auto pages = spineOf(package);
    if (!pages.succeeded()) return pages.fault();
    std::string text;
    bool hasPage = false;
    for (const std::string& name : pages.value()) {
        const auto bytes = package.part(name);
        if (!bytes.succeeded() && bytes.fault() == ReadFault::tooLarge) return ReadFault::tooLarge;
        if (!bytes.succeeded()) continue;
        const auto page = readHtml(bytes.value());
        if (!page.succeeded()) continue;
        text += page.value();
        hasPage = true;
    }
    if (!hasPage) return ReadFault::damaged;
    return text;
}

} // namespace lexiform::document
