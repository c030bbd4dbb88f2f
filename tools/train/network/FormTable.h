#pragma once

#include "linguistics/text/Hash.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lexiform::train {

/// The distinct forms of words of some texts, numbered in the order in which they are first met.
class FormTable {
public:
    [[nodiscard]] std::uint32_t numberOf(std::string_view form) {
        const auto found = numbers_.find(form);
        if (found != numbers_.end()) return found->second;
        const auto number = static_cast<std::uint32_t>(forms_.size());
        forms_.emplace_back(form);
        numbers_.emplace(forms_.back(), number);
        return number;
    }
    [[nodiscard]] const std::vector<std::string>& forms() const { return forms_; }
    [[nodiscard]] std::size_t size() const { return forms_.size(); }

private:
    struct TextHash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return linguistics::hashOf(text); }
    };

    std::unordered_map<std::string, std::uint32_t, TextHash, std::equal_to<>> numbers_;
    std::vector<std::string> forms_;
};

} // namespace lexiform::train
