#include "analysis/ViewController.h"
#include "analysis/colourToken.h"
#include "base/present.h"

namespace lexiform {

void ViewController::parseText() {
    noteShown(std::nullopt);
    clearWordDicts();
    totWordC = 0;
    const std::string text = present(intextTextbox).plainText();
    AttributedText output;
    output.reserve(text.size());

    const std::array schemes = {NLTagSchemeNameTypeOrLexicalClass};
    const std::unique_ptr<Tagger> tagger = makeTagger_(schemes);
    present(tagger).setString(text);
    // No options: leaving out white space here would turn the output pane into a list of bare words.
    tagger->enumerateTags({0, text.size()}, NLTokenUnit::word, NLTagSchemeNameTypeOrLexicalClass,
                          NLTaggerOptions(), [&](std::optional<std::string_view> tag, TextRange token) {
                              return colourToken(tag, token, text, *this, output);
                          });

    if (TextStorage* storage = present(outtextTextbox).textStorage()) storage->replace(output);
    present(colourKeyText).setStringValue(std::string(stdColourKeys));
}

void ViewController::parseButton() {
    parseText();
    taggedText.clear();
    present(typesPopup)->setEnabled(false);
}

} // namespace lexiform
