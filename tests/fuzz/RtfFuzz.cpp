// Holds the RTF reader to its contract on any bytes: what it gives is UTF-8 and no longer than three
// times the file, and what it gives can be written and read back.

#include "base/Unicode.h"
#include "base/fatalError.h"
#include "document/rtf/RtfReader.h"
#include "document/rtf/RtfWriter.h"

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

void checkBack(const AttributedText& text) {
    const auto rtf = document::writeRtf(text, {0, document::utf16Length(text.string())});
    require(rtf.has_value(), "a whole text is not written");
    const auto back = document::readRtf(*rtf);
    require(back.succeeded() && back.value() == text, "a text is not read back as it was written");
}

} // namespace

const std::vector<std::string>& fuzzPieces() {
    static const std::vector<std::string> all = {"{",
                                                 "}",
                                                 "{",
                                                 "}",
                                                 "\\",
                                                 "\\par ",
                                                 "\\line\n",
                                                 "\\tab",
                                                 "\\'e9",
                                                 "\\'83",
                                                 "\\'8c",
                                                 "\\u8217?",
                                                 "\\u-10179?",
                                                 "\\u-8704?",
                                                 "\\uc0",
                                                 "\\uc2",
                                                 "\\bin3 ",
                                                 "\\f1",
                                                 "\\f2 ",
                                                 "\\cf1 ",
                                                 "\\cf2",
                                                 "\\plain",
                                                 "\\v ",
                                                 "\\v0 ",
                                                 "\\cell",
                                                 "\\row",
                                                 "\\nestcell",
                                                 "{\\fonttbl{\\f1\\fcharset128 A;}{\\f2\\fcharset2 S;}}",
                                                 "{\\colortbl;\\red215\\green0\\blue21;}",
                                                 "{\\*\\x ",
                                                 "{\\footnote ",
                                                 "{\\field{\\*\\fldinst x}{\\fldrslt ",
                                                 "{\\upr{a}{\\*\\ud{b}}}",
                                                 "{\\*\\lxeol13}",
                                                 "{\\*\\lxeol8232}",
                                                 "\\ansicpg932",
                                                 "\\ansicpg1251",
                                                 "text",
                                                 " ",
                                                 "\n",
                                                 "\r\n",
                                                 "\t",
                                                 "\xE9",
                                                 "\x83",
                                                 "\xC3\xA9",
                                                 "\\~",
                                                 "\\-",
                                                 "\\_",
                                                 "\\*",
                                                 "\\\n",
                                                 "7",
                                                 "-",
                                                 ";",
                                                 std::string(1, '\0')};
    return all;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string rtf = "{\\rtf1 " + std::string(reinterpret_cast<const char*>(data), size);
    const auto text = document::readRtf(rtf);
    if (!text.succeeded()) return 0;
    require(!firstInvalidUtf8(text.value().string()), "a text is not UTF-8");
    require(text.value().string().size() <= 3 * rtf.size(), "a text is longer than its file could be");
    checkBack(text.value());
    return 0;
}
