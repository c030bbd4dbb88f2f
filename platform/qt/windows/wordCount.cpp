#include "platform/qt/windows/wordCount.h"

#include "analysis/ClassTable.h"

#include <string>
#include <vector>

namespace lexiform::qt {

std::int64_t wordCount(const ViewController& controller) {
    std::int64_t sum = 0;
    for (const auto dictionary : ViewController::wordDictionaries())
        for (const auto& [word, count] : controller.*dictionary)
            sum += count;
    return sum;
}

std::int64_t recordedWordCount(const ViewController& controller) {
    std::vector<bool> isCounted;
    for (const std::string& type : controller.indTypes)
        isCounted.push_back(classRow(type).dictionary != nullptr);
    std::int64_t sum = 0;
    for (std::size_t i = 0; i < controller.taggedText.size(); ++i)
        sum += isCounted[static_cast<std::size_t>(controller.taggedText.type(i))] ? 1 : 0;
    return sum;
}

} // namespace lexiform::qt
