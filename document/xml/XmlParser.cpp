#include "document/xml/XmlParser.h"

#include "base/fatalError.h"
#include "document/markup/crowdedTag.h"
#include "document/text/declaredCharset.h"

#include <libxml/parser.h>

#include <limits>
#include <memory>
#include <vector>

namespace lexiform::document {

namespace {

struct FreeParser {
    void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};

/// What the parser's callbacks get.
class Run {
public:
    Run(XmlHandler& told, xmlParserCtxt* parser) : handler(told), parser_(parser) {}

    /// Counts an element that opens with so many namespaces. The parser goes through all of them for each
    /// name.
    void open(std::size_t spaces) {
        spaces_ += spaces;
        opened_.push_back(spaces);
        if (opened_.size() > deepestXmlElement || spaces_ > mostNamespaces) refuse();
    }
    void close() {
        if (opened_.empty()) return;
        spaces_ -= opened_.back();
        opened_.pop_back();
    }
    void refuse() {
        isRefused_ = true;
        xmlStopParser(parser_);
    }
    [[nodiscard]] bool isRefused() const { return isRefused_; }

    XmlHandler& handler;

private:
    xmlParserCtxt* parser_;
    std::vector<std::size_t> opened_; ///< the namespaces of each open element
    std::size_t spaces_ = 0;
    bool isRefused_ = false;
};

std::string_view viewOf(const xmlChar* text) {
    return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

void onStart(void* given, const xmlChar* local, const xmlChar* /*prefix*/, const xmlChar* space, int spaces,
             const xmlChar** /*declared*/, int count, int /*defaulted*/, const xmlChar** attributes) {
    Run& run = *static_cast<Run*>(given);
    run.open(static_cast<std::size_t>(spaces));
    if (run.isRefused()) return;
    run.handler.startElement({viewOf(space), viewOf(local)}, {attributes, static_cast<std::size_t>(count)});
}

void onEnd(void* given, const xmlChar* local, const xmlChar* /*prefix*/, const xmlChar* space) {
    Run& run = *static_cast<Run*>(given);
    run.close();
    run.handler.endElement({viewOf(space), viewOf(local)});
}

void onText(void* run, const xmlChar* text, int length) {
    static_cast<Run*>(run)->handler.characters(
        {reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
}

void onEntity(void* run, const xmlChar* /*name*/, int /*type*/, const xmlChar* /*publicId*/,
              const xmlChar* /*systemId*/, xmlChar* /*content*/) {
    static_cast<Run*>(run)->refuse();
}

void onAttributeDeclaration(void* run, const xmlChar* /*element*/, const xmlChar* /*name*/, int /*type*/,
                            int /*default*/, const xmlChar* /*value*/, xmlEnumeration* values) {
    xmlFreeEnumeration(values);
    static_cast<Run*>(run)->refuse();
}

void onElementDeclaration(void* run, const xmlChar* /*name*/, int /*type*/, xmlElementContent* /*content*/) {
    static_cast<Run*>(run)->refuse();
}

void onNotation(void* run, const xmlChar* /*name*/, const xmlChar* /*publicId*/,
                const xmlChar* /*systemId*/) {
    static_cast<Run*>(run)->refuse();
}

void onUnparsedEntity(void* run, const xmlChar* /*name*/, const xmlChar* /*publicId*/,
                      const xmlChar* /*systemId*/, const xmlChar* /*notation*/) {
    static_cast<Run*>(run)->refuse();
}

void onReference(void* run, const xmlChar* /*name*/) {
    static_cast<Run*>(run)->handler.missingEntity();
}

xmlSAXHandler callbacks() {
    xmlSAXHandler handler{};
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = onStart;
    handler.endElementNs = onEnd;
    handler.characters = onText;
    handler.ignorableWhitespace = onText;
    handler.cdataBlock = onText;
    handler.entityDecl = onEntity;
    handler.attributeDecl = onAttributeDeclaration;
    handler.elementDecl = onElementDeclaration;
    handler.notationDecl = onNotation;
    handler.unparsedEntityDecl = onUnparsedEntity;
    handler.reference = onReference;
    return handler;
}

} // namespace

std::optional<std::string_view> XmlAttributes::value(std::string_view local) const {
    // Five pointers each: local name, prefix, namespace, start and end of the value.
    for (std::size_t i = 0; i < count_; ++i) {
        const unsigned char* const* attribute = attributes_ + 5 * i;
        if (viewOf(attribute[0]) == local)
            return std::string_view(reinterpret_cast<const char*>(attribute[3]),
                                    static_cast<std::size_t>(attribute[4] - attribute[3]));
    }
    return std::nullopt;
}

Outcome<Done, ReadFault> parseXml(std::string_view bytes, XmlHandler& handler) {
    const auto source = decodeMarkup(bytes);
    if (!source || source->empty()) return ReadFault::damaged;
    if (source->size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return ReadFault::tooLarge;
    if (hasCrowdedTag(*source, Markup::xml)) return ReadFault::tooComplex;
    const std::unique_ptr<xmlParserCtxt, FreeParser> parser(xmlNewParserCtxt());
    if (!parser) fatalError("there is no room for a parser");
    Run run(handler, parser.get());
    *parser->sax = callbacks();
    parser->userData = &run;
    // Its limits on size are for programs without their own; huge names cost nothing here.
    constexpr int options =
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_IGNORE_ENC | XML_PARSE_HUGE;
    // Of a file that it was told to stop in, the parser leaves its declarations.
    xmlFreeDoc(xmlCtxtReadMemory(parser.get(), source->data(), static_cast<int>(source->size()), nullptr,
                                 "UTF-8", options));
    if (run.isRefused()) return ReadFault::tooComplex;
    if (parser->wellFormed == 0) return ReadFault::damaged;
    return Done{};
}

} // namespace lexiform::document
