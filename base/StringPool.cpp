#include "base/StringPool.h"

#include "base/fatalError.h"

#include <limits>

namespace lexiform {

StringPool::Number StringPool::numberOf(std::string_view string) {
    if (const auto known = numbers_.find(string); known != numbers_.end()) return known->second;
    // The largest number is left free for whoever keeps numbers and needs one for "none".
    if (strings_.size() >= std::numeric_limits<Number>::max())
        fatalError("a text has too many distinct words");
    const auto number = static_cast<Number>(strings_.size());
    strings_.push_back(&numbers_.emplace(string, number).first->first);
    return number;
}

void StringPool::clear() {
    *this = StringPool(); // gives the memory back as well, which a table keeps when it is only cleared
}

} // namespace lexiform
