#pragma once

#include <optional>
#include <string>

namespace lexiform {

/// What is known of one token of the output, as the tags of the four schemes; what is not known is absent.
struct WordDetails {
    std::optional<std::string> type{};
    std::optional<std::string> lemma{};
    std::optional<std::string> language{};
    std::optional<std::string> script{};

    bool operator==(const WordDetails&) const = default;
};

} // namespace lexiform
