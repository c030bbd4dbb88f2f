#pragma once

#include "analysis/tagger/TagScheme.h"
#include "base/TextRange.h"

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace lexiform {

/// What one token is.
enum class NLTokenUnit : std::uint8_t { word = 0, sentence = 1, paragraph = 2, document = 3 };

/// Something that an enumeration leaves out or joins.
enum class NLTaggerOption : std::uint8_t {
    omitWords,
    omitPunctuation,
    omitWhitespace,
    /// Leaves out symbols and words of no lexical class.
    omitOther,
    /// Gives a name of several words as one token.
    joinNames,
};

/// A set of options. The empty set leaves nothing out: every byte of the range lies in a token.
class NLTaggerOptions {
public:
    constexpr NLTaggerOptions() = default;
    constexpr NLTaggerOptions(std::initializer_list<NLTaggerOption> options) {
        for (const NLTaggerOption option : options)
            bits_ |= bitOf(option);
    }

    [[nodiscard]] constexpr bool contains(NLTaggerOption option) const {
        return (bits_ & bitOf(option)) != 0;
    }
    [[nodiscard]] constexpr bool empty() const { return bits_ == 0; }
    bool operator==(const NLTaggerOptions&) const = default;

private:
    static constexpr unsigned bitOf(NLTaggerOption option) { return 1U << static_cast<unsigned>(option); }

    unsigned bits_ = 0;
};

/// A visitor's answer: whether the enumeration goes on.
enum class Next : bool { stop, proceed };

/// Splits a text into tokens and names each one under a scheme.
///
/// With no options the tokens cover the range without gaps or overlaps: joined in order they give
/// the text back, white space included.
class Tagger {
public:
    /// Called once per token, in text order, on the calling thread; `token` counts bytes of the
    /// text. `tag` is nothing for a token without one, and lasts for the call only.
    using Visitor = std::function<Next(std::optional<std::string_view> tag, TextRange token)>;

    virtual ~Tagger() = default;

    /// Replaces the text to be tagged; the tagger keeps it. To be called before any enumeration.
    virtual void setString(std::string text) = 0;

    /// Visits the tokens of `unit` that lie inside `range`, a range of the text, until they or the
    /// visitor's patience end. `scheme` is one of those that the tagger was made for.
    virtual void enumerateTags(TextRange range, NLTokenUnit unit, TagScheme scheme, NLTaggerOptions options,
                               const Visitor& visitor) = 0;
};

/// Makes a tagger that can tag under each of `schemes`; null when it cannot.
using TaggerFactory = std::function<std::unique_ptr<Tagger>(std::span<const TagScheme> schemes)>;

} // namespace lexiform
