#pragma once

#include "linguistics/Analyser.h"
#include "linguistics/model/ModelStore.h"

#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::linguistics {

/// How an engine is to read texts.
struct EngineOptions {
    /// The language of every text, BCP 47; empty where each paragraph is to tell its own.
    std::string language;
};

/// The linguistic engine: from a text to its tokens with language, script, part of speech, name
/// type and lemma, all from one analysis, paragraph by paragraph, in time linear in the text and
/// memory bounded by the longest paragraph that it makes.
///
/// Any bytes may be analysed; what is not UTF-8 becomes symbol tokens. An engine is immutable and
/// may be used by several threads at once.
class Engine {
public:
    using Visitor = Analyser::Visitor;

    /// An engine with the models of `models`, which it shares. A language without a model gets tokens,
    /// scripts and languages, and `UniversalPos::X` for its words.
    explicit Engine(std::shared_ptr<const ModelStore> models, const EngineOptions& options = {});

    /// Analyses all of `text`, which must outlive the call, by itself or as a part of a text of which
    /// `context` tells. What was worked out of its words serves later calls.
    void analyse(std::string_view text, const Visitor& visitor) const;
    void analyse(std::string_view text, const TextContext& context, const Visitor& visitor) const;
    /// The same no further than `depth`, which changes nothing of what is told.
    void analyse(std::string_view text, const TextContext& context, Depth depth,
                 const Visitor& visitor) const;

    /// What the beginning of a text, or all of it, tells of the whole.
    [[nodiscard]] TextContext contextOf(std::string_view text) const;

    /// An analyser for many texts or for parts of one.
    [[nodiscard]] Analyser analyser() const { return Analyser(*this); }

    [[nodiscard]] const ModelStore& models() const { return *models_; }
    [[nodiscard]] const EngineOptions& options() const { return options_; }

private:
    std::shared_ptr<const ModelStore> models_;
    EngineOptions options_;
    // Analysers that have learnt words and wait for their next text.
    mutable std::mutex mutex_;
    mutable std::vector<Analyser> idle_;

    [[nodiscard]] Analyser takeAnalyser() const;
    void giveBack(Analyser analyser) const;
};

} // namespace lexiform::linguistics
