#include "tools/train/language/SerbianScript.h"

#include <array>
#include <utility>

namespace lexiform::train {

namespace {

using Pair = std::pair<std::string_view, std::string_view>;

// Two letters for one sound stand before single ones.
constexpr std::array pairs = {
    Pair{"Lj", "Љ"}, Pair{"LJ", "Љ"}, Pair{"lj", "љ"}, Pair{"Nj", "Њ"}, Pair{"NJ", "Њ"}, Pair{"nj", "њ"},
    Pair{"Dž", "Џ"}, Pair{"DŽ", "Џ"}, Pair{"dž", "џ"}, Pair{"A", "А"},  Pair{"B", "Б"},  Pair{"V", "В"},
    Pair{"G", "Г"},  Pair{"D", "Д"},  Pair{"Đ", "Ђ"},  Pair{"E", "Е"},  Pair{"Ž", "Ж"},  Pair{"Z", "З"},
    Pair{"I", "И"},  Pair{"J", "Ј"},  Pair{"K", "К"},  Pair{"L", "Л"},  Pair{"M", "М"},  Pair{"N", "Н"},
    Pair{"O", "О"},  Pair{"P", "П"},  Pair{"R", "Р"},  Pair{"S", "С"},  Pair{"T", "Т"},  Pair{"Ć", "Ћ"},
    Pair{"U", "У"},  Pair{"F", "Ф"},  Pair{"H", "Х"},  Pair{"C", "Ц"},  Pair{"Č", "Ч"},  Pair{"Š", "Ш"},
    Pair{"a", "а"},  Pair{"b", "б"},  Pair{"v", "в"},  Pair{"g", "г"},  Pair{"d", "д"},  Pair{"đ", "ђ"},
    Pair{"e", "е"},  Pair{"ž", "ж"},  Pair{"z", "з"},  Pair{"i", "и"},  Pair{"j", "ј"},  Pair{"k", "к"},
    Pair{"l", "л"},  Pair{"m", "м"},  Pair{"n", "н"},  Pair{"o", "о"},  Pair{"p", "п"},  Pair{"r", "р"},
    Pair{"s", "с"},  Pair{"t", "т"},  Pair{"ć", "ћ"},  Pair{"u", "у"},  Pair{"f", "ф"},  Pair{"h", "х"},
    Pair{"c", "ц"},  Pair{"č", "ч"},  Pair{"š", "ш"},
};

} // namespace

std::string serbianCyrillic(std::string_view latin) {
    std::string cyrillic;
    while (!latin.empty()) {
        Pair found{latin.substr(0, 1), latin.substr(0, 1)};
        for (const Pair& pair : pairs)
            if (latin.starts_with(pair.first)) {
                found = pair;
                break;
            }
        cyrillic += found.second;
        latin.remove_prefix(found.first.size());
    }
    return cyrillic;
}

} // namespace lexiform::train
