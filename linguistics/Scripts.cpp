#include "linguistics/Scripts.h"

#include <unicode/uscript.h>

#include <array>
#include <string>

namespace lexiform::linguistics {

std::vector<std::string_view> scriptsOf(std::string_view language) {
    if (language.empty()) return {};
    // Both writings of Chinese are one script to the Unicode database.
    if (language == "zh" || language.starts_with("zh-")) return {"Hani"};
    // The library names the script that is used most.
    if (language == "sr") return {"Cyrl", "Latn"};
    std::array<UScriptCode, 8> codes{};
    UErrorCode error = U_ZERO_ERROR;
    const int count =
        uscript_getCode(std::string(language).c_str(), codes.data(), static_cast<int>(codes.size()), &error);
    std::vector<std::string_view> names;
    for (int i = 0; i < count && U_SUCCESS(error) != 0; ++i)
        names.emplace_back(uscript_getShortName(codes.at(static_cast<std::size_t>(i))));
    return names;
}

} // namespace lexiform::linguistics
