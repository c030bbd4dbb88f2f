#include "analysis/collectTags.h"

namespace lexiform {

Next collectWordAndScript(std::optional<std::string_view> tag, TextRange token, std::string_view text,
                          ViewController& controller) {
    controller.tagWords.push_back(substring(text, token));
    return collectTag(tag, controller.tagScripts, noTagValue);
}

Next collectTag(std::optional<std::string_view> tag, StringList& target, std::string_view fallback) {
    target.push_back(tag.value_or(fallback));
    return Next::proceed;
}

} // namespace lexiform
