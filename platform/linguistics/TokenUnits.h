#pragma once

#include "analysis/tagger/Tagger.h"
#include "linguistics/text/Analysis.h"

#include <optional>
#include <string_view>
#include <vector>

namespace lexiform {

/// A token of some unit with its tag under some scheme.
struct TaggedUnit {
    TextRange range;
    std::optional<std::string_view> tag;
};

/// What a scheme says of one analysed token of `text`.
using TagOfToken = std::optional<std::string_view> (*)(const linguistics::Token& token,
                                                       std::string_view text);

/// The words of a paragraph of `text`, less those that `options` leave out, the words of a name
/// joined where they ask for it.
[[nodiscard]] std::vector<TaggedUnit> wordsOf(const linguistics::Paragraph& paragraph, std::string_view text,
                                              TagOfToken tagOf, NLTaggerOptions options);

/// The sentences of a paragraph; together they cover it. Each has the tag of its first word.
[[nodiscard]] std::vector<TaggedUnit> sentencesOf(const linguistics::Paragraph& paragraph,
                                                  std::string_view text, TagOfToken tagOf);

/// A paragraph as a whole, with the tag of its first word.
[[nodiscard]] TaggedUnit wholeOf(const linguistics::Paragraph& paragraph, std::string_view text,
                                 TagOfToken tagOf);

} // namespace lexiform
