#include "app/plist/limits.h"
#include "app/plist/readPropertyList.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace lexiform {
namespace {

using Array = PropertyList::Array;
using Dictionary = PropertyList::Dictionary;
using namespace std::string_view_literals;

std::string listOf(std::string_view value) {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Example//DTD List//EN\" \"http://example.com/list.dtd\">\n"
           "<plist version=\"1.0\">" +
           std::string(value) + "</plist>\n";
}

std::optional<PropertyList> read(std::string_view value) {
    return readPropertyList(listOf(value));
}

std::string inUtf16(std::string_view ascii, bool isBigEndian) {
    std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char character : ascii)
        bytes.append(isBigEndian ? std::string{'\0', character} : std::string{character, '\0'});
    return bytes;
}

TEST(XmlList, readsStringsAsTheyStand) {
    EXPECT_EQ(read("<string> a &lt;b&gt; \n&#xE9;<![CDATA[<c>]]></string>"),
              PropertyList{" a <b> \n\xC3\xA9<c>"});
    EXPECT_EQ(read("<string/>"), PropertyList{""});
    EXPECT_EQ(read("<string>a<!-- aside -->b</string>"), PropertyList{"ab"});
}

TEST(XmlList, readsTruthValues) {
    EXPECT_EQ(read("<true/>"), PropertyList{true});
    EXPECT_EQ(read("<false></false>"), PropertyList{false});
    EXPECT_FALSE(read("<true>yes</true>"));
}

TEST(XmlList, readsIntegersOf64BitsWithASign) {
    EXPECT_EQ(read("<integer> -12 </integer>"), PropertyList{std::int64_t{-12}});
    EXPECT_EQ(read("<integer>+0x1F</integer>"), PropertyList{std::int64_t{31}});
    EXPECT_EQ(read("<integer>9223372036854775807</integer>"),
              PropertyList{std::numeric_limits<std::int64_t>::max()});
    EXPECT_EQ(read("<integer>-9223372036854775808</integer>"),
              PropertyList{std::numeric_limits<std::int64_t>::min()});
    for (const auto* const wrong :
         {"9223372036854775808", "-9223372036854775809", "", "-", "0x", "--1", "1 2", "1.0", "one"})
        EXPECT_FALSE(read("<integer>" + std::string(wrong) + "</integer>")) << wrong;
}

TEST(XmlList, readsRealNumbers) {
    EXPECT_EQ(read("<real>-1.5e3</real>"), PropertyList{-1500.0});
    EXPECT_EQ(read("<real> +2 </real>"), PropertyList{2.0});
    EXPECT_EQ(read("<real>inf</real>"), PropertyList{std::numeric_limits<double>::infinity()});
    EXPECT_TRUE(std::isnan(std::get<double>(read("<real>nan</real>")->value)));
    for (const auto* const wrong : {"", "1,5", "+-1", "1e999", "1.5 m"})
        EXPECT_FALSE(read("<real>" + std::string(wrong) + "</real>")) << wrong;
}

TEST(XmlList, readsDatesOfTheCalendar) {
    EXPECT_EQ(read("<date>2001-01-01T00:00:00Z</date>"), (PropertyList{PropertyDate{0}}));
    EXPECT_EQ(read("<date>2000-02-29T23:59:59Z</date>"), (PropertyList{PropertyDate{-26438401}}));
    for (const auto* const wrong :
         {"2001-02-29T00:00:00Z", "2001-13-01T00:00:00Z", "2001-01-01T24:00:00Z", "2001-01-01T00:60:00Z",
          "2001-01-01T00:00:60Z", "2001-01-01T00:00:00", "2001-01-01", ""})
        EXPECT_FALSE(read("<date>" + std::string(wrong) + "</date>")) << wrong;
}

TEST(XmlList, readsDataInBase64) {
    EXPECT_EQ(read("<data>\n\tSGVs\n\tbG8=\n</data>"), (PropertyList{PropertyData{"Hello"}}));
    EXPECT_EQ(read("<data>AP8Q</data>"), (PropertyList{PropertyData{std::string("\0\xFF\x10", 3)}}));
    EXPECT_EQ(read("<data/>"), (PropertyList{PropertyData{}}));
    for (const auto* const wrong : {"SGVsbG8", "SGV-", "=AAA", "AA==AA==", "A===", "===="})
        EXPECT_FALSE(read("<data>" + std::string(wrong) + "</data>")) << wrong;
}

TEST(XmlList, readsArraysAndDictionariesInsideEachOther) {
    EXPECT_EQ(read("<array>\n<dict><key>a</key><array/><key/><dict/></dict>\n<string>b</string></array>"),
              (PropertyList{Array{
                  PropertyList{Dictionary{{"a", PropertyList{Array{}}}, {"", PropertyList{Dictionary{}}}}},
                  PropertyList{"b"}}}));
}

TEST(XmlList, letsTheLastOfEqualKeysWin) {
    EXPECT_EQ(read("<dict><key>a</key><true/><key>b</key><true/><key>a</key><false/></dict>"),
              (PropertyList{Dictionary{{"a", PropertyList{false}}, {"b", PropertyList{true}}}}));
}

TEST(XmlList, needsNoElementAroundTheValue) {
    EXPECT_EQ(readPropertyList(" <array><true/></array> "), (PropertyList{Array{PropertyList{true}}}));
}

TEST(XmlList, readsEveryUsualEncoding) {
    constexpr std::string_view plain = "<plist><string>a</string></plist>";
    EXPECT_EQ(readPropertyList("\xEF\xBB\xBF" + std::string(plain)), PropertyList{"a"});
    EXPECT_EQ(readPropertyList(inUtf16(plain, true)), PropertyList{"a"});
    EXPECT_EQ(readPropertyList(inUtf16(plain, false)), PropertyList{"a"});
    EXPECT_EQ(readPropertyList(inUtf16(listOf("<true/>"), false)), PropertyList{true});
    EXPECT_EQ(readPropertyList(inUtf16(plain, true).substr(2)), PropertyList{"a"});
    EXPECT_EQ(readPropertyList("<?xml version='1.0' encoding='koi8-r'?><string>\xC1</string>"),
              PropertyList{"\xD0\xB0"});
    EXPECT_EQ(readPropertyList("<?xml version='1.0' encoding='ISO-8859-1'?><string>\xE9</string>"),
              PropertyList{"\xC3\xA9"});
}

TEST(XmlList, refusesBytesThatAreNotOfTheirEncoding) {
    EXPECT_FALSE(readPropertyList("<string>\xE9</string>"));
    EXPECT_FALSE(readPropertyList("<?xml version='1.0' encoding='utf-8'?><string>\xC3</string>"));
    EXPECT_FALSE(readPropertyList("<?xml version='1.0' encoding='no-such'?><string>a</string>"));
    EXPECT_FALSE(readPropertyList("\xFE\xFF\0<\xD8\0\0>"sv));
}

TEST(XmlList, refusesWhatDoesNotBelongWhereItStands) {
    for (const auto* const wrong :
         {"", "text", "<true/><true/>", "<plist><true/></plist>", "<dict><true/></dict>",
          "<dict><key>a</key></dict>", "<dict><key>a</key><key>b</key></dict>", "<dict>a</dict>",
          "<array>a<true/></array>", "<array><key>a</key></array>", "<key>a</key>",
          "<string>a<string/></string>", "<string><b/></string>", "<String>a</String>", "<null/>",
          "<string xmlns='urn:other'>a</string>", "<html><body/></html>", "<array><true/>",
          "<array><true></array></true>"})
        EXPECT_FALSE(read(wrong)) << wrong;
}

TEST(XmlList, refusesDeclarationsAndTheirEntities) {
    for (const auto* const declared :
         {"<!ENTITY a 'b'>", "<!ENTITY a SYSTEM 'file:///etc/hostname'>", "<!ENTITY % a 'b'>",
          "<!ELEMENT plist ANY>", "<!ATTLIST plist a CDATA 'b'>", "<!NOTATION a SYSTEM 'b'>"})
        EXPECT_FALSE(
            readPropertyList("<!DOCTYPE plist [" + std::string(declared) + "]><plist><true/></plist>"))
            << declared;
    EXPECT_FALSE(read("<string>&outside;</string>"));
    EXPECT_FALSE(read("<array a='&outside;'/>"));
    EXPECT_TRUE(read("<string>&amp;</string>"));
}

TEST(XmlList, refusesContainersThatAreTooDeep) {
    const auto nested = [](std::size_t depth) {
        std::string list;
        for (std::size_t i = 0; i < depth; ++i)
            list += "<array>";
        for (std::size_t i = 0; i < depth; ++i)
            list += "</array>";
        return list;
    };
    EXPECT_TRUE(read(nested(plist::deepestContainer)));
    EXPECT_FALSE(read(nested(plist::deepestContainer + 1)));
    EXPECT_FALSE(read(nested(30'000)));
}

TEST(XmlList, refusesMoreObjectsThanItsLimit) {
    const auto truths = [](std::size_t count) {
        std::string list = "<array>";
        for (std::size_t i = 0; i < count; ++i)
            list += "<true/>";
        return list + "</array>";
    };
    EXPECT_TRUE(read(truths(plist::mostObjects - 1)));
    EXPECT_FALSE(read(truths(plist::mostObjects)));
}

TEST(XmlList, refusesMoreBytesThanItsLimit) {
    const std::string around = "<string></string>";
    const auto filled = [&](std::size_t bytes) {
        return "<string>" + std::string(bytes - around.size(), 'a') + "</string>";
    };
    EXPECT_TRUE(readPropertyList(filled(plist::mostBytes)));
    EXPECT_FALSE(readPropertyList(filled(plist::mostBytes + 1)));
}

} // namespace
} // namespace lexiform
