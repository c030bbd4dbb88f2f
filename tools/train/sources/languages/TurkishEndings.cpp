#include "tools/train/sources/languages/TurkishEndings.h"

#include "base/Unicode.h"

#include <algorithm>
#include <initializer_list>
#include <vector>

namespace lexiform::train {

namespace {

using namespace std::string_view_literals;

// Endings by their vowels: a stands for a and e, i for the four close ones; d for d and t.
std::vector<std::string> variantsOf(std::string_view pattern) {
    std::vector<std::string> variants = {""};
    for (const char letter : pattern) {
        std::vector<std::string> longer;
        const auto append = [&](std::initializer_list<std::string_view> choices) {
            for (const std::string& variant : variants)
                for (const std::string_view choice : choices)
                    longer.push_back(variant + std::string(choice));
        };
        if (letter == 'a')
            append({"a", "e"});
        else if (letter == 'i')
            append({"ı", "i", "u", "ü"});
        else if (letter == 'd')
            append({"d", "t"});
        else if (letter == 'g')
            append({"ğ"});
        else if (letter == 's')
            append({"ş"});
        else if (letter == 'S')
            append({"s"});
        else
            append({std::string_view(&letter, 1)});
        variants = std::move(longer);
    }
    return variants;
}

std::vector<std::string> allVariantsOf(std::string_view patterns) {
    std::vector<std::string> all;
    for (std::size_t start = 0; start < patterns.size();) {
        const std::size_t end = std::min(patterns.find(' ', start), patterns.size());
        const auto variants = variantsOf(patterns.substr(start, end - start));
        all.insert(all.end(), variants.begin(), variants.end());
        start = end + 1;
    }
    std::stable_sort(all.begin(), all.end(),
                     [](const std::string& a, const std::string& b) { return a.size() > b.size(); });
    return all;
}

// The longest of `endings` that `form` ends in, leaving two bytes or more.
std::size_t endingOf(const std::string& form, const std::vector<std::string>& endings) {
    for (const std::string& ending : endings)
        if (form.size() > ending.size() + 1 && form.ends_with(ending)) return ending.size();
    return 0;
}

const std::vector<std::string>& pastCopulas() {
    static const auto endings = allVariantsOf(
        "di dim din dik dilar diniz mis misim missin misiz mislar Sa Sam San Sak Salar Saniz dir dirlar");
    return endings;
}
const std::vector<std::string>& nounCopulas() {
    static const auto endings = allVariantsOf("di dim din dik dilar diniz ydi ydim ydin ydik ydilar ydiniz "
                                              "ymis ymisim ySa ySam mis dir dirlar Sa Saniz ykan");
    return endings;
}
bool isTensed(const std::string& stem) {
    static const auto tenses = allVariantsOf("mis acak yorlar mislar acaklar arlar irlar");
    return endingOf(stem, tenses) != 0;
}

} // namespace

std::string turkishLower(std::string_view text) {
    std::string lowered;
    for (std::size_t at = 0; at < text.size();) {
        const std::string_view rest = text.substr(at);
        if (rest.starts_with("İ")) {
            lowered += 'i';
            at += "İ"sv.size();
        } else if (rest.front() == 'I') {
            lowered += "ı";
            ++at;
        } else {
            lowered += rest.front();
            ++at;
        }
    }
    return lowerCased(lowered);
}

std::size_t nounCopulaIn(const std::string& form) {
    return endingOf(form, nounCopulas());
}

std::size_t verbCopulaIn(const std::string& form) {
    const std::size_t size = endingOf(form, pastCopulas());
    return isTensed(form.substr(0, form.size() - size)) ? size : 0;
}

std::size_t kiIn(const std::string& form) {
    return endingOf(form, {"kiler", "ki", "kü"});
}

} // namespace lexiform::train
