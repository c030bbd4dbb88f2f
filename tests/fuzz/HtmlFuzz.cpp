// Holds the HTML reader to its contract on any bytes: what it gives is UTF-8, whose last line is ended.

#include "base/Unicode.h"
#include "base/fatalError.h"
#include "document/html/HtmlReader.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform;

void require(bool condition, std::string_view what) {
    if (!condition) fatalError(what);
}

} // namespace

const std::vector<std::string>& fuzzPieces() {
    static const std::vector<std::string> all = {"<",
                                                 ">",
                                                 "</",
                                                 "/>",
                                                 "<p>",
                                                 "</p>",
                                                 "<b>",
                                                 "</b>",
                                                 "<i ",
                                                 "<div>",
                                                 "</div>",
                                                 "<br>",
                                                 "<pre>",
                                                 "</pre>",
                                                 "<table>",
                                                 "<tr>",
                                                 "<td>",
                                                 "</td>",
                                                 "</tr>",
                                                 "</table>",
                                                 "<script>",
                                                 "</script>",
                                                 "<style>",
                                                 "</style>",
                                                 "<!--",
                                                 "-->",
                                                 "<!DOCTYPE html>",
                                                 "<meta charset=\"utf-8\">",
                                                 "<meta charset=shift_jis>",
                                                 "<template>",
                                                 "</template>",
                                                 "<p hidden>",
                                                 "<ruby>",
                                                 "<rt>",
                                                 "<svg>",
                                                 "</svg>",
                                                 "<![CDATA[",
                                                 "]]>",
                                                 "<?xml ",
                                                 "?>",
                                                 "&amp;",
                                                 "&eacute;",
                                                 "&#233;",
                                                 "&#x1F600;",
                                                 "&#150;",
                                                 "&",
                                                 ";",
                                                 "=",
                                                 "\"",
                                                 "'",
                                                 " ",
                                                 "\n",
                                                 "\t",
                                                 "text",
                                                 "a",
                                                 "\xE9",
                                                 "\xC3\xA9",
                                                 "\x83\x41",
                                                 "\xC2\x85",
                                                 "\xFF\xFE",
                                                 "\xFE\xFF",
                                                 "\xEF\xBB\xBF",
                                                 "\x01",
                                                 std::string(1, '\0')};
    return all;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    (void)document::isHtml(bytes);
    const auto text = document::readHtml(bytes);
    if (!text.succeeded()) return 0;
    require(!firstInvalidUtf8(text.value()), "a text is not UTF-8");
    require(text.value().empty() || text.value().back() == '\n', "the last line of a page is not ended");
    return 0;
}
