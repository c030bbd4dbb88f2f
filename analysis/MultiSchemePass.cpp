#include "analysis/ViewController.h"
#include "analysis/collectTags.h"
#include "analysis/distinctValues.h"
#include "base/Unicode.h"
#include "base/present.h"

#include <algorithm>

namespace lexiform {

namespace {

/// The view that the pass ends with; it looks like the view by type that the pop-up chooses.
constexpr int passView = 3;

void enumerateWords(Tagger& tagger, std::string_view text, TagScheme scheme, const Tagger::Visitor& visitor) {
    tagger.enumerateTags({0, text.size()}, NLTokenUnit::word, scheme, NLTaggerOptions(), visitor);
}

Tagger::Visitor collectInto(StringList& target, std::string_view fallback) {
    return [&target, fallback](std::optional<std::string_view> tag, TextRange) {
        return collectTag(tag, target, fallback);
    };
}

void collectAll(Tagger& tagger, const std::string& text, ViewController& controller) {
    tagger.setString(text);
    enumerateWords(tagger, text, NLTagSchemeScript,
                   [&](std::optional<std::string_view> tag, TextRange token) {
                       return collectWordAndScript(tag, token, text, controller);
                   });
    enumerateWords(tagger, text, NLTagSchemeLanguage, collectInto(controller.tagLangs, noTagValue));
    enumerateWords(tagger, text, NLTagSchemeNameTypeOrLexicalClass,
                   collectInto(controller.tagTypes, noTagValue));
    enumerateWords(tagger, text, NLTagSchemeLemma, collectInto(controller.tagLemmas, noLemmaValue));
}

/// The position of a value in its index, by a search from the start: an index holds a few values.
std::int64_t positionIn(const std::vector<std::string>& index, const std::string& value) {
    const auto found = std::find_if(index.begin(), index.end(), [&](const std::string& candidate) {
        return canonicallyEqual(candidate, value);
    });
    return found == index.end() ? 0 : found - index.begin();
}

/// The position of every distinct value of a list, by the value's number.
std::vector<std::int64_t> positionsIn(const std::vector<std::string>& index, const StringList& list) {
    std::vector<std::int64_t> positions;
    for (StringPool::Number number = 0; number < list.distinct().size(); ++number)
        positions.push_back(positionIn(index, list.distinct()[number]));
    return positions;
}

} // namespace

void ViewController::multiParse() {
    const std::string text = present(intextTextbox).plainText();
    for (StringList* list : {&tagLangs, &tagTypes, &tagWords, &tagLemmas, &tagScripts})
        list->clear();
    if (const std::unique_ptr<Tagger> tagger = makeTagger_(fourSchemes)) collectAll(*tagger, text, *this);
    buildTaggedText();
    showSchemeView(passView);
    present(typesPopup)->setEnabled(true);
}

void ViewController::buildTaggedText() {
    taggedText.clear();
    const std::size_t count = tagWords.size();
    if (count == 0) return;
    // The schemes disagree on the tokens: no record can be made, and the indexes stay as they were.
    for (const StringList* list : {&tagScripts, &tagLangs, &tagTypes, &tagLemmas})
        if (list->size() != count) return;

    indScripts = distinctValues(tagScripts);
    indLangs = distinctValues(tagLangs);
    indTypes = distinctValues(tagTypes);
    const auto scripts = positionsIn(indScripts, tagScripts);
    const auto langs = positionsIn(indLangs, tagLangs);
    const auto types = positionsIn(indTypes, tagTypes);
    taggedText.reserve(count);
    for (std::size_t i = 0; i < count; ++i)
        taggedText.push_back(tagWords[i], scripts[tagScripts.numberAt(i)], langs[tagLangs.numberAt(i)],
                             types[tagTypes.numberAt(i)], tagLemmas[i]);
}

} // namespace lexiform
