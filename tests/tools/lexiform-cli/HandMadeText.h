#pragma once

#include "linguistics/text/Analysis.h"

#include <string>
#include <vector>

namespace lexiform::cli {

/// A text of one paragraph, put together token by token.
struct HandMadeText {
    std::string text;
    linguistics::Paragraph paragraph;

    HandMadeText& add(const std::string& form, linguistics::Token token) {
        token.range = {text.size(), form.size()};
        text += form;
        paragraph.range.length = text.size();
        paragraph.tokens.push_back(token);
        return *this;
    }
    HandMadeText& word(const std::string& form, linguistics::UniversalPos pos, bool startsSentence = false) {
        return add(form, {.pos = pos, .startsSentence = startsSentence, .script = "Latn", .language = "en"});
    }
    HandMadeText& mark(const std::string& form) {
        return add(form,
                   {.kind = linguistics::TokenKind::punctuation, .pos = linguistics::UniversalPos::PUNCT});
    }
    HandMadeText& space(const std::string& form) {
        return add(form, {.kind = linguistics::TokenKind::whitespace});
    }
    HandMadeText& lineBreak(const std::string& form) {
        return add(form, {.kind = linguistics::TokenKind::lineBreak});
    }
};

} // namespace lexiform::cli
