#include "document/html/htmlElements.h"

#include <algorithm>
#include <iterator>

namespace lexiform::document {

namespace {

using enum HtmlElement;

struct Entry {
    std::string_view name;
    HtmlElement element;
};

// In alphabetical order: what the HTML standard's rendering section does not show or does not show
// inline. Readings over ideographs (rt) would cut words in pieces, and count as hidden.
constexpr Entry entries[] = {
    {"address", block},
    {"area", hidden},
    {"article", block},
    {"aside", block},
    {"audio", hidden},
    {"base", hidden},
    {"blockquote", block},
    {"body", block},
    {"br", lineBreak},
    {"canvas", hidden},
    {"caption", block},
    {"center", block},
    {"colgroup", hidden},
    {"datalist", hidden},
    {"dd", block},
    {"details", block},
    {"dialog", block},
    {"dir", block},
    {"div", block},
    {"dl", block},
    {"dt", block},
    {"fieldset", block},
    {"figcaption", block},
    {"figure", block},
    {"footer", block},
    {"form", block},
    {"frameset", hidden},
    {"h1", block},
    {"h2", block},
    {"h3", block},
    {"h4", block},
    {"h5", block},
    {"h6", block},
    {"head", hidden},
    {"header", block},
    {"hgroup", block},
    {"hr", block},
    {"html", block},
    {"iframe", hidden},
    {"legend", block},
    {"li", block},
    {"link", hidden},
    {"listing", preformatted},
    {"main", block},
    {"menu", block},
    {"meta", hidden},
    {"nav", block},
    {"noembed", hidden},
    {"noframes", hidden},
    {"noscript", hidden},
    {"ol", block},
    {"optgroup", block},
    {"option", block},
    {"p", block},
    {"param", hidden},
    {"plaintext", preformatted},
    {"pre", preformatted},
    {"rp", hidden},
    {"rt", hidden},
    {"rtc", hidden},
    {"script", hidden},
    {"search", block},
    {"section", block},
    {"select", block},
    {"source", hidden},
    {"style", hidden},
    {"summary", block},
    {"svg", hidden},
    {"table", block},
    {"tbody", block},
    {"td", cell},
    {"template", hidden},
    {"textarea", preformatted},
    {"tfoot", block},
    {"th", cell},
    {"thead", block},
    {"title", hidden},
    {"tr", row},
    {"track", hidden},
    {"ul", block},
    {"video", hidden},
    {"xmp", preformatted},
};

constexpr bool before(const Entry& a, const Entry& b) {
    return a.name < b.name;
}
static_assert(std::is_sorted(std::begin(entries), std::end(entries), before));

} // namespace

HtmlElement htmlElement(std::string_view name) {
    const auto* const known =
        std::lower_bound(std::begin(entries), std::end(entries), Entry{name, inlined}, before);
    return known != std::end(entries) && known->name == name ? known->element : inlined;
}

} // namespace lexiform::document
