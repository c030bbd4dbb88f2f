#include "app/plist/isoDate.h"

#include <chrono>
#include <cstddef>

namespace lexiform::plist {

namespace {

// Each zero stands for a digit.
constexpr std::string_view pattern = "0000-00-00T00:00:00Z";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

bool hasPattern(std::string_view text) {
    if (text.size() != pattern.size()) return false;
    for (std::size_t i = 0; i < pattern.size(); ++i)
        if (pattern[i] == '0' ? !isDigit(text[i]) : text[i] != pattern[i]) return false;
    return true;
}

unsigned fieldAt(std::string_view text, std::size_t at, std::size_t width = 2) {
    unsigned number = 0;
    for (const char digit : text.substr(at, width))
        number = number * 10 + static_cast<unsigned>(digit - '0');
    return number;
}

} // namespace

std::optional<double> secondsOfIsoDate(std::string_view text) {
    using namespace std::chrono;
    if (!hasPattern(text)) return std::nullopt;
    const year_month_day date(year(static_cast<int>(fieldAt(text, 0, 4))), month(fieldAt(text, 5)),
                              day(fieldAt(text, 8)));
    const hours hour(fieldAt(text, 11));
    const minutes minute(fieldAt(text, 14));
    const seconds second(fieldAt(text, 17));
    if (!date.ok() || hour >= 24h || minute >= 60min || second >= 60s) return std::nullopt;
    const auto moment = sys_days(date) + hour + minute + second;
    return static_cast<double>((moment - sys_days(2001y / January / 1)).count());
}

} // namespace lexiform::plist
