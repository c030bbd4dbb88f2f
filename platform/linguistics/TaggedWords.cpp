#include "platform/linguistics/TaggedWords.h"

#include "platform/linguistics/wordTags.h"

#include <algorithm>
#include <limits>

namespace lexiform {

namespace {

constexpr StringPool::Number absentTag = std::numeric_limits<StringPool::Number>::max();

} // namespace

TaggedWords::TaggedWords(std::string_view text, const linguistics::Engine& engine,
                         const linguistics::TextContext& context, linguistics::Depth depth) {
    engine.analyse(text, context, depth, [&](const linguistics::Paragraph& paragraph) {
        add(paragraph, text);
        return true;
    });
}

void TaggedWords::enumerate(TagScheme scheme, std::size_t start, const Tagger::Visitor& visitor) const {
    const auto column = static_cast<std::size_t>(std::find(fourSchemes.begin(), fourSchemes.end(), scheme) -
                                                 fourSchemes.begin());
    for (const Word& word : words_) {
        const StringPool::Number number = word.tags.at(column);
        const auto tag = number == absentTag ? std::nullopt : std::optional<std::string_view>(tags_[number]);
        if (visitor(tag, {start, word.length}) == Next::stop) return;
        start += word.length;
    }
}

void TaggedWords::add(const linguistics::Paragraph& paragraph, std::string_view text) {
    for (const linguistics::Token& token : paragraph.tokens) {
        Word& word = words_.emplace_back();
        word.length = static_cast<std::uint32_t>(token.range.length);
        for (std::size_t column = 0; column < fourSchemes.size(); ++column) {
            const auto tag = wordTagsUnder(fourSchemes[column])(token, text);
            word.tags[column] = tag ? tags_.numberOf(*tag) : absentTag;
        }
    }
}

} // namespace lexiform
