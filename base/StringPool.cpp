#include "base/StringPool.h"

namespace lexiform {

StringPool::Number StringPool::numberOf(std::string_view string) {
    const Number number =
        index_.findOrAdd(string, [&](Number known) -> std::string_view { return strings_[known]; });
    if (number == strings_.size()) strings_.emplace_back(string);
    return number;
}

void StringPool::clear() {
    *this = StringPool(); // gives the memory back as well, which a list keeps when it is only cleared
}

} // namespace lexiform
