#pragma once

#include "document/text/FlowText.h"

#include <string>
#include <string_view>
#include <vector>

namespace lexiform::document {

/// The text of a word processor's file, in which paragraphs can hold paragraphs: those of a text box come
/// behind the paragraph that holds it, and those of notes behind the whole text.
class NestedFlow {
public:
    NestedFlow() : levels_(1) {}

    /// What is being written.
    [[nodiscard]] FlowText& text() { return levels_.back().text; }
    void endParagraph();

    void startBox() { levels_.emplace_back(); }
    void endBox();
    void startNote() { levels_.emplace_back(); }
    void endNote();

    /// All of it. Boxes and notes that are still open are let go.
    [[nodiscard]] std::string take() &&;

private:
    struct Level {
        FlowText text;
        std::string boxes; ///< of the paragraph that is being written
    };

    [[nodiscard]] std::string takeLevel();

    std::vector<Level> levels_;
    std::string notes_;
};

} // namespace lexiform::document
