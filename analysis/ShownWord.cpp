#include "analysis/ViewController.h"
#include "analysis/collectTags.h"
#include "analysis/shownText.h"
#include "base/present.h"

namespace lexiform {

namespace {

// The fallback values stand for a tag that is not there.
std::optional<std::string> unlessNone(const std::string& value, std::string_view none) {
    return value == none ? std::nullopt : std::optional(value);
}

std::optional<std::string> entryOf(const std::vector<std::string>& index, std::int64_t position) {
    return unlessNone(index.at(static_cast<std::size_t>(position)), noTagValue);
}

} // namespace

std::optional<WordDetails> ViewController::shownWordAt(std::size_t byte) {
    if (shownView_) return recordShownAt(byte);
    if (!lookUp_) {
        std::unique_ptr<Tagger> tagger = makeTagger_(fourSchemes);
        if (!tagger) return std::nullopt;
        lookUp_.emplace(std::move(tagger), present(outtextTextbox).plainText());
    }
    return lookUp_->at(byte);
}

std::optional<WordDetails> ViewController::recordShownAt(std::size_t byte) const {
    std::size_t end = 0;
    for (std::size_t i = 0; i < taggedText.size(); ++i) {
        end += shownText(taggedText, i, *shownView_).size();
        if (byte >= end) continue;
        const std::string* const lemma = taggedText.lemma(i);
        return WordDetails{.type = entryOf(indTypes, taggedText.type(i)),
                           .lemma = lemma == nullptr ? std::nullopt : unlessNone(*lemma, noLemmaValue),
                           .language = entryOf(indLangs, taggedText.lang(i)),
                           .script = entryOf(indScripts, taggedText.script(i))};
    }
    return std::nullopt;
}

void ViewController::noteShown(std::optional<int> view) {
    shownView_ = view;
    lookUp_.reset();
}

} // namespace lexiform
