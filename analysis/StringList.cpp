#include "analysis/StringList.h"

namespace lexiform {

StringList::StringList(std::initializer_list<std::string_view> strings) {
    for (const std::string_view string : strings)
        push_back(string);
}

void StringList::clear() {
    pool_.clear();
    std::vector<StringPool::Number>().swap(entries_); // and its memory, which may be tens of megabytes
}

bool StringList::operator==(const StringList& other) const {
    if (size() != other.size()) return false;
    for (std::size_t i = 0; i < size(); ++i)
        if ((*this)[i] != other[i]) return false;
    return true;
}

} // namespace lexiform
