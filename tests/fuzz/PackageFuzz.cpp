// Reads any bytes as the parts of packages, and packages with any bytes wrong: a text is UTF-8.

#include "base/Unicode.h"
#include "base/fatalError.h"
#include "document/readAttributedText.h"
#include "tests/document/support/Zip.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform;

constexpr std::string_view odt = "application/vnd.oasis.opendocument.text";
const std::string office = "<o:x xmlns:o=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\" "
                           "xmlns:t=\"urn:oasis:names:tc:opendocument:xmlns:text:1.0\" "
                           "xmlns:b=\"urn:oasis:names:tc:opendocument:xmlns:table:1.0\" "
                           "xmlns:d=\"urn:oasis:names:tc:opendocument:xmlns:drawing:1.0\">";
const std::string word = "<w:x xmlns:w=\"http://schemas.openxmlformats.org/wordprocessingml/2006/main\">";
const std::string relation = "<R><Relationship Type=\"x/officeDocument\" Target=\"d.xml\"/></R>";

void read(const std::string& bytes, document::Format format) {
    const auto text = document::readAttributedText(bytes, {format});
    if (text.succeeded() && firstInvalidUtf8(text.value().string())) fatalError("a text is not UTF-8");
    (void)document::readAttributedText(bytes);
}

std::string withWrongBytes(std::string bytes, std::string_view wrong) {
    for (std::size_t i = 0; i + 2 < wrong.size() && i < 30; i += 3) {
        const std::size_t place =
            static_cast<unsigned char>(wrong[i]) * 256U + static_cast<unsigned char>(wrong[i + 1]);
        bytes[place % bytes.size()] = wrong[i + 2];
    }
    return bytes;
}

} // namespace

const std::vector<std::string>& fuzzPieces() {
    static const std::vector<std::string> all = {"<t:p>",
                                                 "</t:p>",
                                                 "<t:s t:c=\"5\"/>",
                                                 "<t:tab/>",
                                                 "<t:note-body>",
                                                 "</t:note-body>",
                                                 "<d:text-box>",
                                                 "</d:text-box>",
                                                 "<b:table-cell>",
                                                 "</b:table-cell>",
                                                 "<b:table-row>",
                                                 "</b:table-row>",
                                                 "<w:p>",
                                                 "</w:p>",
                                                 "<w:r>",
                                                 "</w:r>",
                                                 "<w:t>",
                                                 "</w:t>",
                                                 "<w:tab/>",
                                                 "<w:del>",
                                                 "</w:del>",
                                                 "<w:tc>",
                                                 "</w:tc>",
                                                 "<w:tr>",
                                                 "</w:tr>",
                                                 "<w:txbxContent>",
                                                 "</w:txbxContent>",
                                                 "<w:vanish/>",
                                                 "</o:x>",
                                                 "</w:x>",
                                                 "text",
                                                 " ",
                                                 "&amp;",
                                                 "&#233;",
                                                 "&a;",
                                                 "<![CDATA[",
                                                 "]]>",
                                                 "<!DOCTYPE x [",
                                                 "<!ENTITY a \"b\">",
                                                 "]>",
                                                 "<",
                                                 ">",
                                                 "/",
                                                 "\"",
                                                 "=",
                                                 "\xC3\xA9",
                                                 "\xFF",
                                                 "PK\x03\x04",
                                                 "PK\x01\x02",
                                                 "PK\x05\x06",
                                                 std::string(4, '\0')};
    return all;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using document::Format;
    using document::zipOf;
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    const std::string text =
        zipOf({{"mimetype", std::string(odt)}, {"content.xml", office + bytes + "</o:x>"}});
    read(text, Format::odt);
    read(withWrongBytes(text, bytes), Format::odt);
    const std::string docx = zipOf({{"_rels/.rels", relation}, {"d.xml", word + bytes + "</w:x>"}});
    read(docx, Format::docx);
    read(withWrongBytes(docx, bytes), Format::docx);
    read(zipOf({{"META-INF/container.xml", bytes}}), Format::epub);
    return 0;
}
