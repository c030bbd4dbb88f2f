#pragma once

#include "analysis/ViewController.h"
#include "analysis/tagger/Tagger.h"
#include "base/AttributedText.h"

#include <optional>
#include <string_view>

namespace lexiform {

/// One token of the lexical pass: counts it into the word dictionary of its class in `controller` and
/// appends it to `output` in the colour of its class. A token without a tag is neither counted nor
/// written; a range outside `text` stops the program. Never asks the enumeration to stop.
Next colourToken(std::optional<std::string_view> tag, TextRange token, std::string_view text,
                 ViewController& controller, AttributedText& output);

} // namespace lexiform
