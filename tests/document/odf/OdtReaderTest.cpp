#include "tests/document/support/Read.h"
#include "tests/document/support/Zip.h"

#include <string>

namespace lexiform::document {
namespace {

const std::string type = "application/vnd.oasis.opendocument.text";

std::string contentOf(const std::string& body) {
    const std::string names = "urn:oasis:names:tc:opendocument:xmlns:";
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<office:document-content xmlns:office=\"" + names +
           "office:1.0\" xmlns:text=\"" + names + "text:1.0\" xmlns:table=\"" + names +
           "table:1.0\" xmlns:draw=\"" + names + "drawing:1.0\" xmlns:svg=\"" + names +
           "svg-compatible:1.0\" xmlns:number=\"" + names +
           "datastyle:1.0\"><office:automatic-styles><number:text>no</number:text></office:automatic-styles>"
           "<office:body><office:text>" +
           body + "</office:text></office:body></office:document-content>";
}

std::string odtOf(const std::string& content) {
    return zipOf({{"mimetype", type}, {"styles.xml", "<a/>"}, {"content.xml", content}});
}

std::string read(const std::string& body) {
    return charactersOf(odtOf(contentOf(body)));
}

TEST(OdtReader, endsEveryParagraphInALineFeed) {
    EXPECT_EQ(read("<text:h>The tide</text:h>\n <text:p>Comes <text:span>in</text:span>.</text:p><text:p/>"
                   "<text:list><text:list-item><text:p>one</text:p></text:list-item></text:list>"),
              "The tide\nComes in.\n\none\n");
}

TEST(OdtReader, readsSpacesTabsAndLineEnds) {
    EXPECT_EQ(read("<text:p>a<text:s/>b<text:s text:c=\"3\"/>c<text:tab/>d<text:line-break/>e</text:p>"),
              "a b   c\td\ne\n");
    EXPECT_EQ(read("<text:p>\n  a \n\t b <text:span> c</text:span> <text:s/>d </text:p>"), "a b c  d\n");
}

TEST(OdtReader, boundsTheNumberOfSpaces) {
    EXPECT_EQ(read("<text:p>a<text:s text:c=\"99999999999999999999\"/>b</text:p>"),
              "a" + std::string(1000, ' ') + "b\n");
    EXPECT_EQ(read("<text:p>a<text:s text:c=\"-1\"/>b<text:s text:c=\"x\"/>c</text:p>"), "a b c\n");
}

TEST(OdtReader, refusesABombOfSpaces) {
    std::string bomb;
    for (int i = 0; i < 20000; ++i)
        bomb += "<text:s text:c=\"1000\"/>";
    EXPECT_EQ(read("<text:p>" + bomb + "a</text:p>").size(), 1000000U + 2);
}

TEST(OdtReader, bearsAParagraphOfTwelveMegabytes) {
    const std::string word(12000000, 'w');
    EXPECT_EQ(read("<text:p>" + word + "</text:p>").size(), word.size() + 1);
}

TEST(OdtReader, refusesNamespacesByTheThousand) {
    std::string spaces;
    for (int i = 0; i < 2000; ++i)
        spaces += "<x xmlns:s" + std::to_string(i) + "=\"s\"/>";
    EXPECT_EQ(read("<text:p>" + spaces + "one at a time</text:p>"), "one at a time\n");
    std::string crowded = "<x";
    for (int i = 0; i < 1000; ++i)
        crowded += " xmlns:s" + std::to_string(i) + "=\"s\"";
    EXPECT_EQ(faultOf(odtOf(contentOf("<text:p>" + crowded + ">" + crowded + "/></x></text:p>"))),
              ReadFault::tooComplex);
}

TEST(OdtReader, separatesTheCellsOfARowByTabs) {
    EXPECT_EQ(
        read("<table:table><table:table-row><table:table-cell><text:p>a</text:p></table:table-cell>"
             "<table:table-cell><text:p>b</text:p><text:p>c</text:p></table:table-cell></table:table-row>"
             "<table:table-row><table:table-cell/><table:table-cell><text:p>d</text:p></table:table-cell>"
             "</table:table-row></table:table><text:p>e</text:p>"),
        "a\tb\nc\n\td\ne\n");
}

TEST(OdtReader, putsTextBoxesBehindTheirParagraphAndNotesBehindTheText) {
    EXPECT_EQ(
        read("<text:p>One<text:note><text:note-citation>1</text:note-citation><text:note-body><text:p>A "
             "note.</text:p></text:note-body></text:note> and <draw:frame><draw:text-box><text:p>in the "
             "box</text:p></draw:text-box></draw:frame>two.</text:p><text:p>Three.</text:p>"),
        "One and two.\nin the box\nThree.\nA note.\n");
}

TEST(OdtReader, leavesOutWhatIsNoText) {
    EXPECT_EQ(
        read("<text:tracked-changes><text:changed-region><text:deletion><text:p>gone</text:p></text:deletion>"
             "</text:changed-region></text:tracked-changes><text:p>a<office:annotation><text:p>comment</"
             "text:p>"
             "</office:annotation>b<text:ruby><text:ruby-base>漢</text:ruby-base><text:ruby-text>かん"
             "</text:ruby-text></text:ruby><draw:frame><draw:image><office:binary-data>AAAA"
             "</office:binary-data></draw:image><svg:desc>no</svg:desc></draw:frame>c</text:p>"),
        "ab漢c\n");
}

TEST(OdtReader, decodesCharacterReferences) {
    EXPECT_EQ(read("<text:p>&lt;&amp;&#233;&#x1F600;<![CDATA[<&]]></text:p>"), "<&é😀<&\n");
}

TEST(OdtReader, readsXmlInUtf16) {
    std::string wide = "\xFF\xFE";
    for (const char c : contentOf("<text:p>The tide</text:p>"))
        wide += {c, '\0'};
    EXPECT_EQ(charactersOf(odtOf(wide)), "The tide\n");
}

TEST(OdtReader, refusesABombOfEntities) {
    std::string bomb = "<?xml version=\"1.0\"?><!DOCTYPE x [<!ENTITY a0 \"lol\">";
    for (int i = 1; i < 10; ++i) {
        bomb += "<!ENTITY a" + std::to_string(i) + " \"";
        for (int k = 0; k < 10; ++k)
            bomb += "&a" + std::to_string(i - 1) + ";";
        bomb += "\">";
    }
    EXPECT_EQ(faultOf(odtOf(bomb + "]><x>&a9;</x>")), ReadFault::tooComplex);
}

TEST(OdtReader, loadsNothingFromOutside) {
    EXPECT_EQ(
        faultOf(odtOf("<?xml version=\"1.0\"?><!DOCTYPE x [<!ENTITY a SYSTEM \"file:///etc/hostname\">]>"
                      "<x>&a;</x>")),
        ReadFault::tooComplex);
    std::string content = contentOf("<text:p>a&secret;b</text:p>");
    content.insert(content.find('\n'), "<!DOCTYPE x SYSTEM \"file:///etc/hostname\">");
    EXPECT_EQ(charactersOf(odtOf(content)), "ab\n");
}

TEST(OdtReader, refusesDefaultsOfAttributes) {
    EXPECT_EQ(faultOf(odtOf("<!DOCTYPE x [<!ATTLIST x a (b|c) \"b\">]><x/>")), ReadFault::tooComplex);
}

TEST(OdtReader, refusesElementsNestedAHundredThousandDeep) {
    std::string deep;
    for (int i = 0; i < 100000; ++i)
        deep += "<text:span>";
    EXPECT_EQ(faultOf(odtOf(contentOf("<text:p>" + deep))), ReadFault::tooComplex);
}

TEST(OdtReader, refusesATagWithAHundredThousandAttributes) {
    std::string tag = "<text:p";
    for (int i = 0; i < 100000; ++i)
        tag += " a" + std::to_string(i) + "=\"1\"";
    EXPECT_EQ(faultOf(odtOf(contentOf(tag + "/>"))), ReadFault::tooComplex);
    EXPECT_EQ(faultOf(odtOf(contentOf("<text:p><![CDATA[<b x=\"]]>" + tag + "/></text:p>"))),
              ReadFault::tooComplex);
}

TEST(OdtReader, refusesXmlThatIsCutShort) {
    EXPECT_EQ(faultOf(odtOf(contentOf("<text:p>a").substr(0, 900))), ReadFault::damaged);
    EXPECT_EQ(faultOf(odtOf("")), ReadFault::damaged);
}

TEST(OdtReader, refusesADocumentWithoutContent) {
    EXPECT_EQ(faultOf(zipOf({{"mimetype", type}})), ReadFault::damaged);
}

TEST(OdtReader, survivesEveryBeginningAndEveryWrongByte) {
    const std::string odt = odtOf(contentOf("<text:p>The tide comes in.</text:p>"));
    readEveryBeginning(odt);
    for (std::size_t at = 0; at < odt.size(); ++at)
        for (const char wrong : {'\0', '\xFF', '\x7F'}) {
            std::string broken = odt;
            broken[at] = wrong;
            (void)readAttributedText(broken);
        }
}

} // namespace
} // namespace lexiform::document
