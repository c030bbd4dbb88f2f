#include "tests/document/support/Read.h"
#include "tests/document/support/Zip.h"

#include <string>
#include <utility>
#include <vector>

namespace lexiform::document {
namespace {

using Parts = std::vector<std::pair<std::string, std::string>>;

const std::string container =
    "<?xml version=\"1.0\"?><container xmlns=\"urn:oasis:names:tc:opendocument:xmlns:container\"><rootfiles>"
    "<rootfile full-path=\"OEBPS/book.opf\" "
    "media-type=\"application/oebps-package+xml\"/></rootfiles></container>";

std::string page(const std::string& body) {
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?><!DOCTYPE html><html "
           "xmlns=\"http://www.w3.org/1999/xhtml\">"
           "<head><title>no</title></head><body>" +
           body + "</body></html>";
}

std::string item(const std::string& id, const std::string& address,
                 const std::string& type = "application/xhtml+xml") {
    return "<item id=\"" + id + "\" href=\"" + address + "\" media-type=\"" + type + "\"/>";
}

std::string bookOf(const std::string& items, const std::string& spine, const Parts& pages) {
    Parts parts = {
        {"mimetype", "application/epub+zip"},
        {"META-INF/container.xml", container},
        {"OEBPS/book.opf", "<package xmlns=\"http://www.idpf.org/2007/opf\"><metadata/><manifest>" + items +
                               "</manifest><spine>" + spine + "</spine></package>"}};
    parts.insert(parts.end(), pages.begin(), pages.end());
    return zipOf(parts);
}

TEST(EpubReader, readsThePagesInTheOrderOfTheSpine) {
    EXPECT_EQ(charactersOf(bookOf(item("a", "text/one%20page.xhtml") + item("b", "two.xhtml#part") +
                                      item("c", "cover.svg", "image/svg+xml") + item("n", "nav.xhtml"),
                                  "<itemref idref=\"b\"/><itemref idref=\"c\"/><itemref idref=\"a\"/>",
                                  {{"OEBPS/text/one page.xhtml", page("<h1>One</h1><p>First.</p>")},
                                   {"OEBPS/two.xhtml", page("<p>Second&#8212;</p>")},
                                   {"OEBPS/cover.svg", "<svg/>"},
                                   {"OEBPS/nav.xhtml", page("no")}})),
              "Second—\nOne\nFirst.\n");
}

TEST(EpubReader, leavesOutAPageThatIsMissing) {
    EXPECT_EQ(charactersOf(bookOf(item("a", "one.xhtml") + item("b", "../two.xhtml"),
                                  "<itemref idref=\"a\"/><itemref idref=\"b\"/><itemref idref=\"z\"/>",
                                  {{"two.xhtml", page("here")}})),
              "here\n");
}

TEST(EpubReader, refusesABookWithoutPages) {
    EXPECT_EQ(faultOf(bookOf("", "", {})), ReadFault::damaged);
    EXPECT_EQ(faultOf(bookOf(item("a", "a.xhtml"), "<itemref idref=\"a\"/>", {})), ReadFault::damaged);
    EXPECT_EQ(faultOf(zipOf({{"mimetype", "application/epub+zip"}})), ReadFault::damaged);
}

TEST(EpubReader, readsAPageOnceThatTheSpineRepeats) {
    std::string spine;
    for (int i = 0; i < 100000; ++i)
        spine += "<itemref idref=\"a\"/><itemref idref=\"b\"/>";
    EXPECT_EQ(charactersOf(bookOf(item("a", "a.xhtml") + item("b", "./a.xhtml"), spine,
                                  {{"OEBPS/a.xhtml", page("<p>once</p>")}})),
              "once\n");
}

TEST(EpubReader, staysInsideThePackage) {
    EXPECT_EQ(faultOf(bookOf(item("a", "../../../../etc/hostname"), "<itemref idref=\"a\"/>", {})),
              ReadFault::damaged);
}

TEST(EpubReader, survivesEveryBeginningOfABook) {
    readEveryBeginning(
        bookOf(item("a", "a.xhtml"), "<itemref idref=\"a\"/>", {{"OEBPS/a.xhtml", page("<p>text</p>")}}));
}

} // namespace
} // namespace lexiform::document
