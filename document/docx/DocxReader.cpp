#include "document/docx/DocxReader.h"

#include "document/docx/WordHandler.h"
#include "document/docx/relationships.h"
#include "document/xml/XmlParser.h"

#include <utility>

namespace lexiform::document {

namespace {

std::optional<std::string> mainPartOf(Package& package) {
    return partOfKind(relationshipsOf(package, ""), "officeDocument", package);
}

Outcome<Done, ReadFault> readPart(Package& package, const std::string& name, WordHandler& handler) {
    const auto bytes = package.part(name);
    if (!bytes.succeeded()) return bytes.fault();
    return parseXml(bytes.value(), handler);
}

/// Whether the content types declare the part as a word processor's.
class TypeFinder : public XmlHandler {
public:
    explicit TypeFinder(std::string part) : part_("/" + std::move(part)) {}

    void startElement(const XmlName& /*name*/, const XmlAttributes& attributes) override {
        const std::string_view type = attributes.value("ContentType").value_or("");
        const bool isWord = type.find("wordprocessingml") != std::string_view::npos ||
                            type.find("ms-word.") != std::string_view::npos;
        const auto name = attributes.value("PartName");
        found = found || (isWord && (!name || *name == part_));
    }
    void endElement(const XmlName& /*name*/) override {}
    void characters(std::string_view /*text*/) override {}

    bool found = false;

private:
    std::string part_;
};

} // namespace

bool isDocx(Package& package) {
    const auto part = mainPartOf(package);
    const auto types = package.part("[Content_Types].xml");
    if (!part || !types.succeeded()) return false;
    TypeFinder finder(*part);
    return parseXml(types.value(), finder).succeeded() && finder.found;
}

Outcome<std::string, ReadFault> readDocx(Package& package) {
    const auto mainPart = mainPartOf(package);
    if (!mainPart) return ReadFault::damaged;
    WordHandler handler;
    const auto body = readPart(package, *mainPart, handler);
    if (!body.succeeded()) return body.fault();
    const auto relationships = relationshipsOf(package, *mainPart);
    for (const std::string_view kind : {"footnotes", "endnotes"}) {
        const auto part = partOfKind(relationships, kind, package);
        if (!part) continue;
        const auto notes = readPart(package, *part, handler);
        if (!notes.succeeded()) return notes.fault();
    }
    return std::move(handler).take();
}

} // namespace lexiform::document
