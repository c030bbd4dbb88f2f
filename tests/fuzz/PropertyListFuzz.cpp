// Reads any bytes as a property list, and binary lists with any bytes wrong: the reader ends, and what it
// gives is within its limits and UTF-8.

#include "app/plist/limits.h"
#include "app/plist/readPropertyList.h"
#include "base/Unicode.h"
#include "base/fatalError.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace {

using namespace lexiform;
using namespace std::string_view_literals;

/// Holds every value of a list against the contract.
class Inspector {
public:
    void operator()(bool /*value*/) {}
    void operator()(std::int64_t /*value*/) {}
    void operator()(double /*value*/) {}
    void operator()(const PropertyData& data) { count(data.bytes); }
    void operator()(const PropertyDate& date) { require(std::isfinite(date.seconds), "a date is no moment"); }
    void operator()(const std::string& text) {
        count(text);
        require(!firstInvalidUtf8(text), "a string is not UTF-8");
    }
    void operator()(const PropertyList::Array& values) {
        enter();
        for (const PropertyList& value : values)
            inspect(value);
        --depth_;
    }
    void operator()(const PropertyList::Dictionary& values) {
        enter();
        for (const auto& [key, value] : values) {
            (*this)(key);
            inspect(value);
        }
        --depth_;
    }
    void inspect(const PropertyList& list) {
        require(++objects_ <= plist::mostObjects, "a list has too many values");
        std::visit(*this, list.value);
    }

private:
    static void require(bool holds, std::string_view what) {
        if (!holds) fatalError(what);
    }
    void enter() { require(++depth_ <= plist::deepestContainer, "a list is too deep"); }
    void count(const std::string& bytes) {
        bytes_ += bytes.size();
        // A unit of UTF-16 becomes three bytes at most.
        require(bytes_ <= plist::mostContentBytes / 2 * 3, "a list has too many bytes");
    }

    std::size_t depth_ = 0;
    std::size_t objects_ = 0;
    std::size_t bytes_ = 0;
};

void read(std::string_view bytes) {
    const auto list = readPropertyList(bytes);
    if (list) Inspector().inspect(*list);
}

// One object of each kind behind a dictionary that refers to them all.
const std::string binaryList(
    "bplist00\xD2\x01\x02\x03\x04\x51"
    "a\x61\0b\xA8\x05\x06\x07\x08\x09\x0A\x0B\x0C\x4F\x10\x02xy\x09\x10\x07\x14\xFF\xFF\xFF\xFF\xFF\xFF\xFF"
    "\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFF\xFE\x22\x3F\xC0\0\0\x23\xC0\x04\0\0\0\0\0\0\x33\x40\xF5\x18\0\0\0\0\0"
    "\x80\x05\xD1\x01\x05\x08\x0D\x0F\x12\x1B\x20\x21\x23\x34\x39\x42\x4B\x4D\0\0\0\0\0\0\x01\x01\0\0\0\0\0"
    "\0\0\x0D\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x50"sv);

void readWithWrongBytes(std::string bytes, std::string_view wrong) {
    for (std::size_t i = 0; i + 1 < wrong.size() && i < 12; i += 2) {
        bytes[static_cast<unsigned char>(wrong[i]) % bytes.size()] = wrong[i + 1];
        read(bytes);
    }
}

} // namespace

const std::vector<std::string>& fuzzPieces() {
    static const std::vector<std::string> all = {"<?xml version='1.0' encoding='UTF-8'?>",
                                                 "<?xml version='1.0' encoding='koi8-r'?>",
                                                 "<!DOCTYPE plist SYSTEM 'a'>",
                                                 "<!DOCTYPE plist [<!ENTITY a 'b'>]>",
                                                 "<plist version='1.0'>",
                                                 "</plist>",
                                                 "<array>",
                                                 "</array>",
                                                 "<dict>",
                                                 "</dict>",
                                                 "<key>a</key>",
                                                 "<string>",
                                                 "</string>",
                                                 "<integer>-0x1F</integer>",
                                                 "<real>1e3</real>",
                                                 "<true/>",
                                                 "<false/>",
                                                 "<date>2026-03-14T09:26:53Z</date>",
                                                 "<data>SGVsbG8=</data>",
                                                 "<![CDATA[",
                                                 "]]>",
                                                 "<!--",
                                                 "-->",
                                                 "&amp;",
                                                 "&a;",
                                                 "&#233;",
                                                 "(",
                                                 ")",
                                                 "{",
                                                 "}",
                                                 "a = b;",
                                                 "= ",
                                                 "; ",
                                                 ", ",
                                                 "word",
                                                 "\"",
                                                 "'",
                                                 "\\U00e9",
                                                 "\\UD83D\\UDE00",
                                                 "\\335",
                                                 "\\",
                                                 "<0fbd 77>",
                                                 "<",
                                                 ">",
                                                 "/*",
                                                 "*/",
                                                 "//",
                                                 "\n",
                                                 " ",
                                                 "\xC3\xA9",
                                                 "\xFF\xFE",
                                                 "\xFE\xFF",
                                                 "\xEF\xBB\xBF",
                                                 "\xFF",
                                                 "bplist00",
                                                 binaryList,
                                                 binaryList.substr(binaryList.size() - 32),
                                                 std::string(1, '\0')};
    return all;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    read(bytes);
    read("(" + std::string(bytes) + ")");
    read("<plist><array>" + std::string(bytes) + "</array></plist>");
    readWithWrongBytes(binaryList, bytes);
    return 0;
}
