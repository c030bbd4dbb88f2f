#include "analysis/distinctValues.h"

#include "base/Unicode.h"

#include <cstdint>
#include <random>
#include <string_view>
#include <unordered_set>

namespace lexiform {

namespace {

/// Hashes what canonically equivalent strings have in common.
struct SeededHash {
    std::uint64_t seed = 0;

    // FNV-1a from a seed, with a last mixing so that the seed reaches the low bits that choose a place.
    [[nodiscard]] std::size_t operator()(const std::string& value) const {
        std::uint64_t hash = 0xCBF29CE484222325U ^ seed;
        for (const char c : composed(value))
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3U;
        hash = (hash ^ (hash >> 32U)) * 0xD6E8FEB86659FD93U;
        return hash ^ (hash >> 32U);
    }
};

struct CanonicallyEqual {
    [[nodiscard]] bool operator()(const std::string& a, const std::string& b) const {
        return canonicallyEqual(a, b);
    }
};

using HashSet = std::unordered_set<std::string, SeededHash, CanonicallyEqual>;

std::uint64_t freshSeed() {
    std::random_device source;
    return (static_cast<std::uint64_t>(source()) << 32U) | source();
}

/// The members place by place: the set's own iterator follows the order of insertion instead.
std::vector<std::string> inHashOrder(const HashSet& set) {
    std::vector<std::string> members;
    members.reserve(set.size());
    for (std::size_t place = 0; place < set.bucket_count(); ++place)
        members.insert(members.end(), set.begin(place), set.end(place));
    return members;
}

} // namespace

std::vector<std::string> distinctValues(const StringList& list) {
    HashSet set(16, SeededHash{freshSeed()});
    // In order of first appearance, as the entries themselves would come.
    const StringPool& distinct = list.distinct();
    for (StringPool::Number number = 0; number < distinct.size(); ++number)
        set.insert(distinct[number]);
    return inHashOrder(set);
}

} // namespace lexiform
