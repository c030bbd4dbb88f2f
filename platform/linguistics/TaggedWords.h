#pragma once

#include "analysis/tagger/Tagger.h"
#include "base/StringPool.h"
#include "linguistics/Engine.h"

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace lexiform {

/// Every word of a text with its tags under the four schemes, from one analysis as deep as is asked for:
/// twenty bytes a word and each distinct tag once.
class TaggedWords {
public:
    TaggedWords(std::string_view text, const linguistics::Engine& engine,
                const linguistics::TextContext& context, linguistics::Depth depth);

    /// Calls `visitor` for every word with its tag under one of the four schemes, until it has enough. The
    /// text begins at byte `start` of the one that the ranges are told in.
    void enumerate(TagScheme scheme, std::size_t start, const Tagger::Visitor& visitor) const;

private:
    struct Word {
        std::uint32_t length = 0; // bytes; an engine's token is far shorter than its paragraph
        std::array<StringPool::Number, fourSchemes.size()> tags{};
    };

    void add(const linguistics::Paragraph& paragraph, std::string_view text);

    StringPool tags_;
    std::vector<Word> words_;
};

} // namespace lexiform
