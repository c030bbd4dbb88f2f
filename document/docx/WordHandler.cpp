#include "document/docx/WordHandler.h"

#include <algorithm>
#include <iterator>

namespace lexiform::document {

namespace {

constexpr std::string_view transitional = "http://schemas.openxmlformats.org/wordprocessingml/2006/main";
constexpr std::string_view strict = "http://purl.oclc.org/ooxml/wordprocessingml/main";
constexpr std::string_view compatibility = "http://schemas.openxmlformats.org/markup-compatibility/2006";

// Properties, in which there are tabs that are no characters; deleted text; the reading over a word.
constexpr std::string_view skipped[] = {"del",    "moveFrom", "pPr",     "rt",   "sdtPr",
                                        "sectPr", "tblPr",    "tblGrid", "tcPr", "trPr"};

bool isSkipped(const XmlName& name, const XmlAttributes& attributes) {
    if (name.space == compatibility) return name.local == "Fallback";
    if (name.local == "footnote" || name.local == "endnote") {
        // Those with a type are the lines that stand above the notes.
        const std::string_view type = attributes.value("type").value_or("normal");
        return type != "normal";
    }
    return std::find(std::begin(skipped), std::end(skipped), name.local) != std::end(skipped);
}

bool isWord(const XmlName& name) {
    return name.space == transitional || name.space == strict;
}

bool isOn(const XmlAttributes& attributes) {
    const std::string_view value = attributes.value("val").value_or("true");
    return value != "false" && value != "0" && value != "off";
}

} // namespace

void WordHandler::startElement(const XmlName& name, const XmlAttributes& attributes) {
    if (skippedDepth_ > 0) {
        ++skippedDepth_;
        return;
    }
    if (!isWord(name) && name.space != compatibility) return;
    if (isSkipped(name, attributes)) {
        skippedDepth_ = 1;
    } else if (name.local == "r") {
        runs_.push_back(false);
    } else if (name.local == "vanish") {
        if (!runs_.empty()) runs_.back() = isOn(attributes);
    } else if (name.local == "t") {
        inText_ = true;
    } else if (name.local == "tc") {
        flow_.text().startCell();
    } else if (name.local == "txbxContent") {
        flow_.startBox();
    } else if (name.local == "footnote" || name.local == "endnote") {
        flow_.startNote();
    } else {
        startCharacter(name.local, attributes);
    }
}

void WordHandler::startCharacter(std::string_view local, const XmlAttributes& attributes) {
    if (local == "tab" || local == "ptab")
        add("\t");
    else if (local == "br")
        add(attributes.value("type") == "page" ? "\f" : "\n");
    else if (local == "cr")
        add("\n");
    else if (local == "noBreakHyphen")
        add("\xE2\x80\x91");
    else if (local == "softHyphen")
        add("\xC2\xAD");
}

void WordHandler::endElement(const XmlName& name) {
    if (skippedDepth_ > 0) {
        --skippedDepth_;
        return;
    }
    if (!isWord(name)) return;
    if (name.local == "t")
        inText_ = false;
    else if (name.local == "r" && !runs_.empty())
        runs_.pop_back();
    else if (name.local == "p")
        flow_.endParagraph();
    else if (name.local == "tc")
        flow_.text().endCell();
    else if (name.local == "tr")
        flow_.text().endRow();
    else if (name.local == "txbxContent")
        flow_.endBox();
    else if (name.local == "footnote" || name.local == "endnote")
        flow_.endNote();
}

void WordHandler::characters(std::string_view text) {
    if (inText_ && skippedDepth_ == 0) add(text);
}

void WordHandler::add(std::string_view text) {
    if (!isHidden()) flow_.text().append(text);
}

} // namespace lexiform::document
