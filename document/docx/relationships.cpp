#include "document/docx/relationships.h"

#include "document/package/partName.h"
#include "document/xml/XmlParser.h"

namespace lexiform::document {

namespace {

class Collector : public XmlHandler {
public:
    Collector(std::string_view part, std::vector<Relationship>& found) : part_(part), found_(found) {}

    void startElement(const XmlName& name, const XmlAttributes& attributes) override {
        const auto type = attributes.value("Type");
        const auto target = attributes.value("Target");
        const bool isOutside = attributes.value("TargetMode") == "External";
        if (name.local != "Relationship" || !type || !target || isOutside) return;
        found_.push_back(
            {std::string(type->substr(type->rfind('/') + 1)), partName(part_, unescapedAddress(*target))});
    }
    void endElement(const XmlName& /*name*/) override {}
    void characters(std::string_view /*text*/) override {}

private:
    std::string_view part_;
    std::vector<Relationship>& found_;
};

std::string relationshipPartOf(std::string_view part) {
    const std::size_t name = part.rfind('/') + 1;
    return std::string(part.substr(0, name)) + "_rels/" + std::string(part.substr(name)) + ".rels";
}

} // namespace

std::vector<Relationship> relationshipsOf(Package& package, std::string_view part) {
    std::vector<Relationship> found;
    const auto bytes = package.part(relationshipPartOf(part));
    if (!bytes.succeeded()) return found;
    Collector collector(part, found);
    if (!parseXml(bytes.value(), collector).succeeded()) found.clear();
    return found;
}

std::optional<std::string> partOfKind(const std::vector<Relationship>& relationships, std::string_view kind,
                                      const Package& package) {
    for (const Relationship& relationship : relationships)
        if (relationship.kind == kind && package.has(relationship.part)) return relationship.part;
    return std::nullopt;
}

} // namespace lexiform::document
