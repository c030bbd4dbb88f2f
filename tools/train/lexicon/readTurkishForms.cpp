#include "tools/train/lexicon/readTurkishForms.h"

#include "tools/train/lexicon/DictionaryReaders.h"

namespace lexiform::train {

ReadFault readTurkishForms(const std::filesystem::path& lists, TurkishForms& forms) {
    const TakeForm addRoot = [&](std::string_view root, char pos) { forms.addRoot(root, pos); };
    for (const char* file : {"master-dictionary.dict", "non-tdk.dict"})
        if (ReadFault fault = readTurkishRoots(lists / file, addRoot)) return fault;
    return std::nullopt;
}

} // namespace lexiform::train
