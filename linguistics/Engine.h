#pragma once

#include "linguistics/Analysis.h"
#include "linguistics/ModelStore.h"

#include <functional>
#include <memory>
#include <string_view>

namespace lexiform::linguistics {

/// The linguistic engine: from a text to its tokens with language, script, part of speech, name
/// type and lemma, all from one analysis, paragraph by paragraph, in time linear in the text and
/// memory bounded by the longest paragraph that it makes.
///
/// Any bytes may be analysed; what is not UTF-8 becomes symbol tokens. An engine is immutable and
/// may be used by several threads at once.
class Engine {
public:
    /// Called once per paragraph, in text order; answers whether to go on. The paragraph and what its
    /// tokens refer to last for the call only.
    using Visitor = std::function<bool(const Paragraph&)>;

    /// An engine with the models of `models`, which it shares. A language without a model gets tokens
    /// and scripts, and `UniversalPos::X` for its words.
    explicit Engine(std::shared_ptr<const ModelStore> models);

    /// Analyses all of `text`, which must outlive the call.
    void analyse(std::string_view text, const Visitor& visitor) const;

private:
    std::shared_ptr<const ModelStore> models_;
};

} // namespace lexiform::linguistics
