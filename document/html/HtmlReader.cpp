#include "document/html/HtmlReader.h"

#include "base/fatalError.h"
#include "document/html/HtmlText.h"
#include "document/html/htmlElements.h"
#include "document/html/pageSource.h"
#include "document/markup/crowdedTag.h"
#include "document/text/declaredCharset.h"

#include <libxml/HTMLparser.h>

#include <limits>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace lexiform::document {

namespace {

struct FreeParser {
    void operator()(htmlParserCtxt* parser) const { htmlFreeParserCtxt(parser); }
};

std::string_view viewOf(const xmlChar* text) {
    return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

/// The value of an attribute, empty for one without a value; nothing for one that is not there.
std::optional<std::string_view> attribute(const xmlChar** attributes, std::string_view name) {
    for (; attributes && *attributes; attributes += 2)
        if (viewOf(attributes[0]) == name) return viewOf(attributes[1]);
    return std::nullopt;
}

bool isStyledAway(std::string_view style) {
    std::string bare;
    for (const char c : style)
        if (c != ' ' && c != '\t' && c != '\n') bare += c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c;
    return bare.find("display:none") != std::string::npos;
}

bool isHidden(std::string_view name, const xmlChar** attributes) {
    if (htmlElement(name) == HtmlElement::hidden) return true;
    if (name == "dialog" && !attribute(attributes, "open")) return true;
    return attribute(attributes, "hidden") || isStyledAway(attribute(attributes, "style").value_or(""));
}

/// What the parser calls while it goes through a page.
class Page {
public:
    void start(std::string_view name, const xmlChar** attributes);
    void end();
    void text(std::string_view text);

    [[nodiscard]] bool isTooDeep() const { return isTooDeep_; }
    [[nodiscard]] std::string take() && { return std::move(text_).take(); }

private:
    struct Element {
        HtmlElement kind = HtmlElement::inlined;
        bool isHidden = false;
        bool isPreformatted = false;
    };

    [[nodiscard]] Element enclosing() const { return elements_.empty() ? Element() : elements_.back(); }

    std::vector<Element> elements_;
    HtmlText text_;
    bool startsPreformatted_ = false;
    bool isTooDeep_ = false; ///< stays, though the parser ends every element
};

void Page::start(std::string_view name, const xmlChar** attributes) {
    const HtmlElement kind = htmlElement(name);
    const bool hidden = enclosing().isHidden || isHidden(name, attributes);
    const bool preformatted = enclosing().isPreformatted || kind == HtmlElement::preformatted;
    elements_.push_back({kind, hidden, preformatted});
    startsPreformatted_ = kind == HtmlElement::preformatted;
    isTooDeep_ = isTooDeep_ || elements_.size() > deepestHtmlElement;
    if (hidden || kind == HtmlElement::inlined) return;
    if (kind == HtmlElement::lineBreak)
        text_.breakLine();
    else if (kind == HtmlElement::cell)
        text_.startCell();
    else if (kind == HtmlElement::row)
        text_.startRow();
    else
        text_.breakBlock();
}

void Page::end() {
    if (elements_.empty()) return;
    const Element element = std::exchange(elements_.back(), Element());
    elements_.pop_back();
    const bool isBlock = element.kind == HtmlElement::block || element.kind == HtmlElement::preformatted ||
                         element.kind == HtmlElement::row;
    if (isBlock && !element.isHidden) text_.breakBlock();
}

void Page::text(std::string_view text) {
    if (enclosing().isHidden) return;
    std::string letters;
    if (text.find('\xC2') != std::string_view::npos) text = letters = withWindowsLetters(text);
    if (!enclosing().isPreformatted) return text_.append(text);
    if (std::exchange(startsPreformatted_, false) && text.starts_with('\n')) text.remove_prefix(1);
    text_.appendPreformatted(text);
}

/// The page and its parser, as the parser's callbacks get them.
struct Run {
    Page page;
    htmlParserCtxt* parser = nullptr;
};

void onStart(void* run, const xmlChar* name, const xmlChar** attributes) {
    auto& [page, parser] = *static_cast<Run*>(run);
    page.start(viewOf(name), attributes);
    if (page.isTooDeep()) xmlStopParser(parser);
}

void onEnd(void* run, const xmlChar* /*name*/) {
    static_cast<Run*>(run)->page.end();
}

void onText(void* run, const xmlChar* text, int length) {
    static_cast<Run*>(run)->page.text(
        {reinterpret_cast<const char*>(text), static_cast<std::size_t>(length)});
}

// Scripts and styles.
void onRawText(void* /*run*/, const xmlChar* /*text*/, int /*length*/) {}

htmlSAXHandler callbacks() {
    htmlSAXHandler handler{};
    handler.startElement = onStart;
    handler.endElement = onEnd;
    handler.characters = onText;
    handler.ignorableWhitespace = onText;
    handler.cdataBlock = onRawText;
    return handler;
}

/// Goes through a page in UTF-8 and gives no tree of it: a page of any size takes little room.
void parse(const std::string& source, Run& run) {
    const std::unique_ptr<htmlParserCtxt, FreeParser> parser(htmlNewParserCtxt());
    if (!parser) fatalError("there is no room for a parser");
    *parser->sax = callbacks();
    parser->userData = &run;
    run.parser = parser.get();
    constexpr int options = HTML_PARSE_RECOVER | HTML_PARSE_NONET | HTML_PARSE_NOERROR |
                            HTML_PARSE_NOWARNING | HTML_PARSE_IGNORE_ENC;
    htmlCtxtReadMemory(parser.get(), source.data(), static_cast<int>(source.size()), nullptr, "UTF-8",
                       options);
}

} // namespace

bool isHtml(std::string_view bytes) {
    const auto start = decodeMarkup(bytes.substr(0, startOfPage + bytes.size() % 4));
    return start && startsAsPage(*start);
}

Outcome<std::string, ReadFault> readHtml(std::string_view bytes) {
    const auto source = pageSource(bytes);
    if (!source) return ReadFault::unknownFormat;
    if (source->size() > static_cast<std::size_t>(std::numeric_limits<int>::max()))
        return ReadFault::tooLarge;
    if (hasCrowdedTag(*source, Markup::html)) return ReadFault::tooComplex;
    Run run;
    if (!source->empty()) parse(*source, run);
    if (run.page.isTooDeep()) return ReadFault::tooComplex;
    return std::move(run.page).take();
}

} // namespace lexiform::document
