#pragma once

#include "document/readAttributedText.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <string_view>

namespace lexiform::document {

/// The characters that reading gives, or the number of the fault in brackets.
inline std::string charactersOf(std::string_view bytes, std::optional<Format> format = {}) {
    const auto text = readAttributedText(bytes, {format});
    if (text.succeeded()) return text.value().string();
    return "[fault " + std::to_string(static_cast<int>(text.fault())) + "]";
}

/// The fault that reading gives; nothing for a text.
inline std::optional<ReadFault> faultOf(std::string_view bytes, std::optional<Format> format = {}) {
    const auto text = readAttributedText(bytes, {format});
    return text.succeeded() ? std::nullopt : std::optional(text.fault());
}

/// Reads every beginning of a file: whatever is cut short must end in a text or in a fault.
inline void readEveryBeginning(std::string_view bytes, std::size_t step = 1) {
    for (std::size_t length = 0; length <= bytes.size(); length += step)
        (void)readAttributedText(std::string(bytes.substr(0, length)));
}

} // namespace lexiform::document
