#pragma once

#include "analysis/tagger/Tagger.h"
#include "base/fatalError.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform {

/// What a scripted tagger was asked, kept for the test that asks.
struct TaggerCalls {
    int made = 0;
    std::vector<std::string> schemes;
    std::vector<std::string> texts;
    std::vector<TextRange> ranges;
    std::vector<NLTokenUnit> units;
    std::vector<NLTaggerOptions> options;
};

/// Tags the words of a text by a list. Words are runs of letters and everything else is one token per
/// character; white space is tagged "Whitespace", the rest "Punctuation", and a word that the list
/// does not hold has no tag.
class ScriptedTagger : public Tagger {
public:
    using Script = std::map<std::string, std::string, std::less<>>;

    ScriptedTagger(Script script, std::shared_ptr<TaggerCalls> calls)
        : script_(std::move(script)), calls_(std::move(calls)) {}

    void setString(std::string text) override {
        text_ = std::move(text);
        calls_->texts.push_back(text_);
    }

    void enumerateTags(TextRange range, NLTokenUnit unit, TagScheme /*scheme*/, NLTaggerOptions options,
                       const Visitor& visitor) override {
        calls_->ranges.push_back(range);
        calls_->units.push_back(unit);
        calls_->options.push_back(options);
        for (std::size_t at = range.start; at < range.end();) {
            const TextRange token{at, tokenLength(at)};
            if (visitor(tagOf(substring(text_, token)), token) == Next::stop) return;
            at = token.end();
        }
    }

private:
    static bool isWordByte(char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || static_cast<unsigned char>(c) >= 0x80;
    }

    [[nodiscard]] std::size_t tokenLength(std::size_t at) const {
        std::size_t end = at;
        while (end < text_.size() && isWordByte(text_[end]))
            ++end;
        return end > at ? end - at : 1;
    }

    [[nodiscard]] std::optional<std::string_view> tagOf(std::string_view token) const {
        if (const auto entry = script_.find(token); entry != script_.end()) return entry->second;
        if (isWordByte(token.front())) return std::nullopt;
        return token == " " || token == "\n" ? "Whitespace" : "Punctuation";
    }

    Script script_;
    std::shared_ptr<TaggerCalls> calls_;
    std::string text_;
};

/// Makes scripted taggers and notes in `calls` that it did.
inline TaggerFactory scriptedTaggers(ScriptedTagger::Script script, std::shared_ptr<TaggerCalls> calls) {
    return [script = std::move(script), calls = std::move(calls)](std::span<const TagScheme> schemes) {
        ++calls->made;
        calls->schemes.assign(schemes.begin(), schemes.end());
        return std::make_unique<ScriptedTagger>(script, calls);
    };
}

} // namespace lexiform
