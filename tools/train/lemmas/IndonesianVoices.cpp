#include "tools/train/lemmas/IndonesianVoices.h"

#include <array>

namespace lexiform::train {

namespace {

/// A shape of meN- and the first letter of a root that gives way to it; 0 where it stays.
struct Prefix {
    std::string_view spelt;
    char swallows;
};

constexpr std::array prefixes = {Prefix{"meng", 'k'}, Prefix{"meny", 's'}, Prefix{"mem", 'p'},
                                 Prefix{"men", 't'},  Prefix{"menge", 0},  Prefix{"meng", 0},
                                 Prefix{"mem", 0},    Prefix{"men", 0},    Prefix{"me", 0}};
constexpr std::array<std::string_view, 3> endings = {"", "kan", "i"};

bool isMadeOf(std::string_view active, std::string_view base, std::string_view ending) {
    for (const Prefix& prefix : prefixes) {
        if (prefix.swallows != 0 && prefix.swallows != base.front()) continue;
        const std::string_view kept = base.substr(prefix.swallows != 0 ? 1 : 0);
        if (active.size() == prefix.spelt.size() + kept.size() + ending.size() &&
            active.starts_with(prefix.spelt) && active.substr(prefix.spelt.size()).starts_with(kept) &&
            active.ends_with(ending))
            return true;
    }
    return false;
}

} // namespace

std::optional<std::string> indonesianPassive(std::string_view active, std::string_view root) {
    if (root.empty()) return std::nullopt;
    for (const std::string& base : {std::string(root), "per" + std::string(root)})
        for (const std::string_view ending : endings)
            if (isMadeOf(active, base, ending)) return "di" + base + std::string(ending);
    return std::nullopt;
}

} // namespace lexiform::train
