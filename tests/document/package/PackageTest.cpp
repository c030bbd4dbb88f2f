#include "document/package/Package.h"

#include "document/package/partName.h"
#include "tests/document/support/Zip.h"

#include <gtest/gtest.h>

#include <string>

namespace lexiform::document {
namespace {

Package opened(const std::string& bytes, PackageLimits limits = {}) {
    return Package::open(bytes, limits).value();
}

TEST(Package, givesThePartsOfAnArchive) {
    const std::string bytes = zipOf({{"mimetype", "stored"}, {"a/b.xml", "packed packed packed"}});
    Package package = opened(bytes);
    EXPECT_TRUE(isPackage(bytes));
    EXPECT_TRUE(package.has("a/b.xml"));
    EXPECT_FALSE(package.has("A/b.xml"));
    EXPECT_EQ(package.part("mimetype").value(), "stored");
    EXPECT_EQ(package.part("a/b.xml").value(), "packed packed packed");
    EXPECT_EQ(package.part("c").fault(), ReadFault::damaged);
}

TEST(Package, refusesABombByItsRatio) {
    const std::string bytes = zipOf({{"bomb", std::string(std::size_t{64} << 20U, 'a')}});
    EXPECT_LT(bytes.size(), std::size_t{100000});
    EXPECT_EQ(opened(bytes).part("bomb").fault(), ReadFault::tooLarge);
}

TEST(Package, bearsAHighRatioInASmallPart) {
    const std::string bytes = zipOf({{"small", std::string(1000000, 'a')}});
    EXPECT_TRUE(opened(bytes).part("small").succeeded());
}

TEST(Package, refusesMoreThanItsLimitsOfAPartAndOfAll) {
    const std::string bytes = zipOf({{"a", std::string(600, 'a')}, {"b", std::string(600, 'b')}});
    Package small = opened(bytes, {.part = 599});
    EXPECT_EQ(small.part("a").fault(), ReadFault::tooLarge);
    Package package = opened(bytes, {.part = 600, .all = 1100});
    EXPECT_TRUE(package.part("a").succeeded());
    EXPECT_EQ(package.part("b").fault(), ReadFault::tooLarge);
}

TEST(Package, measuresWhatComesOutAndNotWhatIsClaimed) {
    std::string bytes = zipOf({{"liar", std::string(100000, 'a')}});
    // The unpacked size, in the local header and in the central directory.
    const std::string size = {'\xA0', '\x86', '\x01', '\0'};
    for (std::size_t at = bytes.find(size); at != std::string::npos; at = bytes.find(size, at))
        bytes.replace(at, 4, std::string({'\x0A', '\0', '\0', '\0'}));
    auto package = Package::open(bytes, {.part = 50000});
    EXPECT_FALSE(package.succeeded() && std::move(package).value().part("liar").succeeded());
}

TEST(Package, refusesAPartWhoseBytesAreWrong) {
    std::string bytes = zipOf({{"mimetype", "the right bytes"}});
    bytes.replace(bytes.find("right"), 5, "wrong");
    EXPECT_EQ(opened(bytes).part("mimetype").fault(), ReadFault::damaged);
}

TEST(Package, refusesAnArchiveThatIsCutShort) {
    const std::string bytes = zipOf({{"a", "text"}});
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_FALSE(Package::open(std::string_view(bytes).substr(0, length)).succeeded()) << length;
}

TEST(PartName, isRelativeToTheFolderOfThePart) {
    EXPECT_EQ(partName("word/document.xml", "footnotes.xml"), "word/footnotes.xml");
    EXPECT_EQ(partName("word/document.xml", "/word/notes.xml"), "word/notes.xml");
    EXPECT_EQ(partName("", "word/document.xml"), "word/document.xml");
    EXPECT_EQ(partName("a/b/c.opf", "../d/./e.xhtml"), "a/d/e.xhtml");
    EXPECT_EQ(partName("a", "../../../b"), "b");
}

TEST(PartName, readsEscapedAddresses) {
    EXPECT_EQ(unescapedAddress("one%20page.xhtml#part"), "one page.xhtml");
    EXPECT_EQ(unescapedAddress("100%"), "100%");
    EXPECT_EQ(unescapedAddress("%4"), "%4");
    EXPECT_EQ(unescapedAddress("%zz%C3%A9"), "%zzé");
}

} // namespace
} // namespace lexiform::document
