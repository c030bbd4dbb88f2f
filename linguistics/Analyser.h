#pragma once

#include "linguistics/text/Analysis.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lexiform::linguistics {

class Engine;

/// What is known of a whole text when a part of it is analysed.
struct TextContext {
    /// The language that most of the text seems to be in, for paragraphs too short to tell their own;
    /// BCP 47, empty where it cannot be told.
    std::string mainLanguage;
};

/// Analyses texts one after the other, and keeps what it has worked out of their words in bounded
/// memory. One for each thread; it refers to the engine that made it, which must outlive it.
class Analyser {
public:
    /// Called once per paragraph, in text order; answers whether to go on. The paragraph and what its
    /// tokens refer to last for the call only.
    using Visitor = std::function<bool(const Paragraph&)>;

    explicit Analyser(const Engine& engine);
    ~Analyser();
    Analyser(const Analyser&) = delete;
    Analyser& operator=(const Analyser&) = delete;
    Analyser(Analyser&&) noexcept;
    Analyser& operator=(Analyser&&) noexcept;

    /// Analyses all of `text`, paragraph by paragraph. What it says depends on the paragraph and the
    /// context alone, so that a text may be given in parts that end where a paragraph ends.
    void analyse(std::string_view text, const TextContext& context, const Visitor& visitor) {
        analyse(text, context, Depth::lemmas, visitor);
    }
    /// The same no further than `depth`, which changes nothing of what is told.
    void analyse(std::string_view text, const TextContext& context, Depth depth, const Visitor& visitor);

private:
    class Work;
    std::unique_ptr<Work> work_;
};

} // namespace lexiform::linguistics
