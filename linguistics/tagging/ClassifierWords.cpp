#include "linguistics/tagging/ClassifierWords.h"

#include <algorithm>

namespace lexiform::linguistics {

Outcome<ClassifierWords, std::string> ClassifierWords::over(const ModelFile& file) {
    ClassifierWords list;
    if (!file.has(SectionId::classifiers)) return list;
    const auto bytes = file.section<char>(SectionId::classifiers, classifierVersion);
    if (!bytes.succeeded()) return bytes.fault();
    std::string_view rest(bytes.value().data(), bytes.value().size());
    while (!rest.empty()) {
        const std::size_t end = rest.find('\n');
        if (end == 0 || end == std::string_view::npos)
            return std::string("the classifiers are not lines of words");
        list.words_.push_back(rest.substr(0, end));
        rest.remove_prefix(end + 1);
    }
    if (!std::is_sorted(list.words_.begin(), list.words_.end()))
        return std::string("the classifiers are out of order");
    return list;
}

bool ClassifierWords::holds(std::string_view word) const {
    return std::binary_search(words_.begin(), words_.end(), word);
}

} // namespace lexiform::linguistics
