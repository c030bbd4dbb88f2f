#include "document/odf/OdtReader.h"

#include "document/text/NestedFlow.h"
#include "document/xml/XmlParser.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <vector>

namespace lexiform::document {

namespace {

constexpr std::string_view textSpace = "urn:oasis:names:tc:opendocument:xmlns:text:1.0";
constexpr std::string_view tableSpace = "urn:oasis:names:tc:opendocument:xmlns:table:1.0";
constexpr std::string_view officeSpace = "urn:oasis:names:tc:opendocument:xmlns:office:1.0";
constexpr std::string_view drawSpace = "urn:oasis:names:tc:opendocument:xmlns:drawing:1.0";
constexpr std::string_view svgSpace = "urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0";
constexpr std::string_view mathSpace = "http://www.w3.org/1998/Math/MathML";

struct Name {
    std::string_view space;
    std::string_view local;
};

constexpr Name skipped[] = {
    {textSpace, "note-citation"}, {textSpace, "ruby-text"},    {textSpace, "tracked-changes"},
    {textSpace, "hidden-text"},   {officeSpace, "annotation"}, {officeSpace, "binary-data"},
    {officeSpace, "forms"},       {svgSpace, "title"},         {svgSpace, "desc"},
};

// More spaces in one place than this are no text, nor are more in all.
constexpr std::size_t mostSpaces = 1000;
constexpr std::size_t mostSpacesInAll = 1000000;

bool isSkipped(const XmlName& name) {
    if (name.space == mathSpace) return true;
    return std::any_of(std::begin(skipped), std::end(skipped), [&](const Name& entry) {
        return entry.space == name.space && entry.local == name.local;
    });
}

std::size_t spacesOf(const XmlAttributes& attributes) {
    const std::string_view written = attributes.value("c").value_or("1");
    std::size_t count = 0;
    const auto read = std::from_chars(written.data(), written.data() + written.size(), count);
    // A number that has no room is a large one.
    if (read.ec == std::errc::result_out_of_range) return mostSpaces;
    return read.ec == std::errc() ? std::min(count, mostSpaces) : 1;
}

/// Collects the text of the content part.
class Content : public XmlHandler {
public:
    void startElement(const XmlName& name, const XmlAttributes& attributes) override;
    void endElement(const XmlName& name) override;
    void characters(std::string_view text) override;

    [[nodiscard]] std::string take() && { return std::move(flow_).take(); }

private:
    /// White space in a paragraph collapses to one space, and vanishes at its ends.
    struct Paragraph {
        bool hasText = false;
        bool owesSpace = false;
    };

    void startText(std::string_view local, const XmlAttributes& attributes);
    void endText(std::string_view local);
    void addSpaces(std::size_t count);
    void addExactly(std::string_view text);

    NestedFlow flow_;
    std::vector<Paragraph> paragraphs_; ///< those that are open, each inside the one before
    std::size_t skippedDepth_ = 0;
    std::size_t spacesLeft_ = mostSpacesInAll;
};

void Content::startElement(const XmlName& name, const XmlAttributes& attributes) {
    if (skippedDepth_ > 0 || isSkipped(name)) {
        ++skippedDepth_;
        return;
    }
    if (name.space == textSpace) startText(name.local, attributes);
    if (name.space == drawSpace && name.local == "text-box") flow_.startBox();
    if (name.space == tableSpace && name.local == "table-cell") flow_.text().startCell();
}

void Content::startText(std::string_view local, const XmlAttributes& attributes) {
    if (local == "p" || local == "h")
        paragraphs_.emplace_back();
    else if (local == "s")
        addSpaces(spacesOf(attributes));
    else if (local == "tab")
        addExactly("\t");
    else if (local == "line-break")
        addExactly("\n");
    else if (local == "note-body")
        flow_.startNote();
}

void Content::endElement(const XmlName& name) {
    if (skippedDepth_ > 0) {
        --skippedDepth_;
        return;
    }
    if (name.space == textSpace) endText(name.local);
    if (name.space == drawSpace && name.local == "text-box") flow_.endBox();
    if (name.space != tableSpace) return;
    if (name.local == "table-cell") flow_.text().endCell();
    if (name.local == "table-row") flow_.text().endRow();
}

void Content::endText(std::string_view local) {
    if (local == "note-body") return flow_.endNote();
    if ((local != "p" && local != "h") || paragraphs_.empty()) return;
    paragraphs_.pop_back();
    flow_.endParagraph();
}

void Content::characters(std::string_view text) {
    constexpr std::string_view spaces = " \t\r\n";
    if (skippedDepth_ > 0 || paragraphs_.empty()) return;
    while (!text.empty()) {
        const std::size_t word = std::min(text.find_first_not_of(spaces), text.size());
        Paragraph& paragraph = paragraphs_.back();
        paragraph.owesSpace = paragraph.hasText && (paragraph.owesSpace || word > 0);
        text.remove_prefix(word);
        const std::size_t end = std::min(text.find_first_of(spaces), text.size());
        if (end > 0) addExactly(text.substr(0, end));
        text.remove_prefix(end);
    }
}

void Content::addSpaces(std::size_t count) {
    count = std::min(count, spacesLeft_);
    spacesLeft_ -= count;
    addExactly(std::string(count, ' '));
}

void Content::addExactly(std::string_view text) {
    if (paragraphs_.empty()) return;
    Paragraph& paragraph = paragraphs_.back();
    if (paragraph.owesSpace) flow_.text().append(" ");
    paragraph = {true, false};
    flow_.text().append(text);
}

} // namespace

bool isOdt(Package& package) {
    constexpr std::string_view type = "application/vnd.oasis.opendocument.text";
    const auto declared = package.part("mimetype");
    // Templates and master documents have a longer name.
    return declared.succeeded() && declared.value().starts_with(type);
}

Outcome<std::string, ReadFault> readOdt(Package& package) {
    const auto part = package.part("content.xml");
    if (!part.succeeded()) return part.fault();
    Content content;
    const auto parsed = parseXml(part.value(), content);
    if (!parsed.succeeded()) return parsed.fault();
    return std::move(content).take();
}

} // namespace lexiform::document
