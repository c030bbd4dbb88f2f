#include "document/epub/spine.h"

#include "document/package/partName.h"
#include "document/xml/XmlParser.h"

#include <optional>
#include <string_view>
#include <unordered_map>
#include <unordered_set>

namespace lexiform::document {

namespace {

constexpr const char* containerPart = "META-INF/container.xml";

/// Finds the part that describes the book.
class Container : public XmlHandler {
public:
    void startElement(const XmlName& name, const XmlAttributes& attributes) override {
        const auto path = attributes.value("full-path");
        if (!package && name.local == "rootfile" && path) package = std::string(*path);
    }
    void endElement(const XmlName& /*name*/) override {}
    void characters(std::string_view /*text*/) override {}

    std::optional<std::string> package;
};

/// Collects the pages by their ids, and the ids in the order of the spine.
class Contents : public XmlHandler {
public:
    explicit Contents(std::string_view part) : part_(part) {}

    void startElement(const XmlName& name, const XmlAttributes& attributes) override {
        if (name.local == "item")
            addItem(attributes);
        else if (name.local == "itemref")
            order_.emplace_back(attributes.value("idref").value_or(""));
    }
    void endElement(const XmlName& /*name*/) override {}
    void characters(std::string_view /*text*/) override {}

    [[nodiscard]] std::vector<std::string> pages() const {
        std::vector<std::string> pages;
        std::unordered_set<std::string> seen;
        for (const std::string& id : order_) {
            const auto page = pages_.find(id);
            if (page != pages_.end() && seen.insert(page->second).second) pages.push_back(page->second);
        }
        return pages;
    }

private:
    void addItem(const XmlAttributes& attributes) {
        const auto id = attributes.value("id");
        const auto address = attributes.value("href");
        const std::string_view type = attributes.value("media-type").value_or("");
        const bool isPage = type == "application/xhtml+xml" || type == "text/html" ||
                            type == "application/x-dtbook+xml" || type == "text/x-oeb1-document";
        if (id && address && isPage)
            pages_.emplace(std::string(*id), partName(part_, unescapedAddress(*address)));
    }

    std::string_view part_;
    std::unordered_map<std::string, std::string> pages_;
    std::vector<std::string> order_;
};

template <typename Handler>
Outcome<Done, ReadFault> readPart(Package& package, const std::string& name, Handler& handler) {
    const auto bytes = package.part(name);
    if (!bytes.succeeded()) return bytes.fault();
    return parseXml(bytes.value(), handler);
}

} // namespace

Outcome<std::vector<std::string>, ReadFault> spineOf(Package& package) {
    Container container;
    const auto found = readPart(package, containerPart, container);
    if (!found.succeeded()) return found.fault();
    if (!container.package) return ReadFault::damaged;
    Contents contents(*container.package);
    const auto read = readPart(package, *container.package, contents);
    if (!read.succeeded()) return read.fault();
    return contents.pages();
}

} // namespace lexiform::document
