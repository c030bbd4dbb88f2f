#include "tests/document/support/Read.h"
#include "tests/document/support/Zip.h"

#include <string>
#include <utility>
#include <vector>

namespace lexiform::document {
namespace {

const std::string types =
    "<?xml version=\"1.0\"?><Types xmlns=\"http://schemas.openxmlformats.org/package/2006/content-types\">"
    "<Override PartName=\"/word/document.xml\" ContentType=\"application/"
    "vnd.openxmlformats-officedocument.wordprocessingml.document.main+xml\"/></Types>";

std::string relationship(const std::string& kind, const std::string& target) {
    return "<Relationship Id=\"r" + kind +
           "\" Type=\"http://schemas.openxmlformats.org/officeDocument/2006/relationships/" + kind +
           "\" Target=\"" + target + "\"/>";
}

std::string relationships(const std::string& all) {
    return "<?xml version=\"1.0\"?><Relationships "
           "xmlns=\"http://schemas.openxmlformats.org/package/2006/relationships\">" +
           all + "</Relationships>";
}

std::string part(const std::string& root, const std::string& content,
                 const std::string& space = "http://schemas.openxmlformats.org/wordprocessingml/2006/main") {
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?><w:" + root + " xmlns:w=\"" + space +
           "\" xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\">" + content +
           "</w:" + root + ">";
}

std::string docxOf(const std::string& document, std::vector<std::pair<std::string, std::string>> more = {}) {
    std::vector<std::pair<std::string, std::string>> parts = {
        {"[Content_Types].xml", types},
        {"_rels/.rels", relationships(relationship("officeDocument", "word/document.xml"))},
        {"word/document.xml", document}};
    parts.insert(parts.end(), more.begin(), more.end());
    return zipOf(parts);
}

std::string read(const std::string& body) {
    return charactersOf(docxOf(part("document", "<w:body>" + body + "</w:body>")));
}

TEST(DocxReader, endsEveryParagraphInALineFeed) {
    EXPECT_EQ(
        read("<w:p><w:pPr><w:tabs><w:tab w:val=\"left\"/></w:tabs></w:pPr><w:r><w:rPr><w:b/></w:rPr><w:t "
             "xml:space=\"preserve\">The </w:t></w:r>\n<w:r><w:t>tide</w:t></w:r></w:p><w:p/>"
             "<w:p><w:hyperlink><w:r><w:t>two</w:t></w:r></w:hyperlink></w:p>"),
        "The tide\n\ntwo\n");
}

TEST(DocxReader, readsTabsBreaksAndHyphens) {
    EXPECT_EQ(
        read(
            "<w:p><w:r><w:t>a</w:t><w:tab/><w:t>b</w:t><w:br/><w:t>c</w:t><w:br w:type=\"page\"/><w:t>d</w:t>"
            "<w:cr/><w:t>e</w:t><w:noBreakHyphen/><w:t>f</w:t><w:softHyphen/></w:r></w:p>"),
        "a\tb\nc\fd\ne\u2011f\u00AD\n");
}

TEST(DocxReader, leavesOutDeletedHiddenAndInstructions) {
    EXPECT_EQ(
        read("<w:p><w:ins><w:r><w:t>new "
             "</w:t></w:r></w:ins><w:del><w:r><w:delText>old</w:delText></w:r></w:del>"
             "<w:moveFrom><w:r><w:t>moved</w:t></w:r></w:moveFrom><w:r><w:rPr><w:vanish/></w:rPr><w:t>hidden"
             "</w:t></w:r><w:r><w:rPr><w:vanish w:val=\"0\"/></w:rPr><w:t>shown</w:t></w:r></w:p>"),
        "new shown\n");
    EXPECT_EQ(
        read("<w:p><w:r><w:fldChar w:fldCharType=\"begin\"/></w:r><w:r><w:instrText>PAGE</w:instrText></w:r>"
             "<w:r><w:t>7</w:t></w:r><w:fldSimple w:instr=\"DATE\"><w:r><w:t> "
             "May</w:t></w:r></w:fldSimple></w:p>"),
        "7 May\n");
    EXPECT_EQ(
        read("<w:p><w:r><w:ruby><w:rt><w:r><w:t>かん</w:t></w:r></w:rt><w:rubyBase><w:r><w:t>漢</w:t></w:r>"
             "</w:rubyBase></w:ruby></w:r></w:p>"),
        "漢\n");
}

TEST(DocxReader, separatesTheCellsOfARowByTabs) {
    EXPECT_EQ(
        read("<w:tbl><w:tr><w:tc><w:p><w:r><w:t>a</w:t></w:r></w:p></w:tc><w:tc><w:p/></w:tc><w:tc><w:p><w:r>"
             "<w:t>c</w:t></w:r></w:p></w:tc></w:tr></w:tbl><w:p><w:r><w:t>d</w:t></w:r></w:p>"),
        "a\t\tc\nd\n");
}

TEST(DocxReader, readsATextBoxOnceBehindItsParagraph) {
    const std::string box = "<w:txbxContent><w:p><w:r><w:t>in the box</w:t></w:r></w:p></w:txbxContent>";
    EXPECT_EQ(read("<w:p><w:r><w:t>One </w:t><mc:AlternateContent><mc:Choice Requires=\"wps\">" + box +
                   "</mc:Choice><mc:Fallback>" + box +
                   "</mc:Fallback></mc:AlternateContent><w:t>two.</w:t></w:r></w:p>"),
              "One two.\nin the box\n");
}

TEST(DocxReader, putsNotesBehindTheText) {
    const std::string document =
        part("document",
             "<w:body><w:p><w:r><w:t>One.</w:t><w:footnoteReference w:id=\"2\"/></w:r></w:p></w:body>");
    const std::string footnotes =
        part("footnotes",
             "<w:footnote w:type=\"separator\" w:id=\"0\"><w:p><w:r><w:t>no</w:t></w:r></w:p></w:footnote>"
             "<w:footnote w:id=\"2\"><w:p><w:r><w:footnoteRef/><w:tab/></w:r><w:r><w:t>A "
             "note.</w:t></w:r></w:p></w:footnote>");
    const std::string endnotes =
        part("endnotes", "<w:endnote w:id=\"1\"><w:p><w:r><w:t>The end.</w:t></w:r></w:p></w:endnote>");
    EXPECT_EQ(charactersOf(docxOf(document, {{"word/_rels/document.xml.rels",
                                              relationships(relationship("endnotes", "/word/endnotes.xml") +
                                                            relationship("footnotes", "footnotes.xml"))},
                                             {"word/footnotes.xml", footnotes},
                                             {"word/endnotes.xml", endnotes}})),
              "One.\nA note.\nThe end.\n");
}

TEST(DocxReader, readsTheStrictForm) {
    EXPECT_EQ(charactersOf(docxOf(part("document", "<w:body><w:p><w:r><w:t>strict</w:t></w:r></w:p></w:body>",
                                       "http://purl.oclc.org/ooxml/wordprocessingml/main"))),
              "strict\n");
}

TEST(DocxReader, readsXmlInUtf16) {
    std::string wide = "\xFE\xFF";
    for (const char c : part("document", "<w:body><w:p><w:r><w:t>wide</w:t></w:r></w:p></w:body>"))
        wide += {'\0', c};
    EXPECT_EQ(charactersOf(docxOf(wide)), "wide\n");
}

TEST(DocxReader, leavesASheetAlone) {
    EXPECT_EQ(
        faultOf(zipOf(
            {{"[Content_Types].xml", "<Types><Override PartName=\"/xl/workbook.xml\" "
                                     "ContentType=\"application/spreadsheetml.sheet.main+xml\"/></Types>"},
             {"_rels/.rels", relationships(relationship("officeDocument", "xl/workbook.xml"))},
             {"xl/workbook.xml", "<workbook/>"}})),
        ReadFault::unknownFormat);
}

TEST(DocxReader, refusesElementsNestedAHundredThousandDeep) {
    std::string deep;
    for (int i = 0; i < 100000; ++i)
        deep += "<w:sdt>";
    EXPECT_EQ(faultOf(docxOf(part("document", deep))), ReadFault::tooComplex);
}

TEST(DocxReader, survivesEveryBeginningAndEveryWrongByte) {
    const std::string docx = docxOf(part("document", "<w:body><w:p><w:r><w:t>a</w:t></w:r></w:p></w:body>"));
    readEveryBeginning(docx);
    for (std::size_t at = 0; at < docx.size(); ++at) {
        std::string broken = docx;
        broken[at] = static_cast<char>(~broken[at]);
        (void)readAttributedText(broken);
    }
}

} // namespace
} // namespace lexiform::document
