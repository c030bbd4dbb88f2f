#include "app/plist/xmlScalars.h"

#include "app/plist/base64.h"
#include "app/plist/isoDate.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>
#include <utility>

namespace lexiform::plist {

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view spaces = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(spaces), text.size()));
    return text.substr(0, text.find_last_not_of(spaces) + 1);
}

/// The number that all of `text` is.
template <typename Number, typename... Base>
std::optional<Number> numberOf(std::string_view text, Base... base) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base...);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

std::optional<PropertyList> integerOf(std::string_view text) {
    const bool isNegative = text.starts_with('-');
    if (isNegative || text.starts_with('+')) text.remove_prefix(1);
    const bool isHexadecimal = text.starts_with("0x") || text.starts_with("0X");
    if (isHexadecimal) text.remove_prefix(2);
    const auto magnitude = numberOf<std::uint64_t>(text, isHexadecimal ? 16 : 10);
    constexpr auto most = static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max());
    if (!magnitude || *magnitude > most + (isNegative ? 1 : 0)) return std::nullopt;
    return PropertyList{static_cast<std::int64_t>(isNegative ? 0 - *magnitude : *magnitude)};
}

std::optional<PropertyList> realOf(std::string_view text) {
    if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
    const auto number = numberOf<double>(text);
    return number ? std::optional(PropertyList{*number}) : std::nullopt;
}

std::optional<PropertyList> dateOf(std::string_view text) {
    const auto seconds = secondsOfIsoDate(text);
    return seconds ? std::optional(PropertyList{PropertyDate{*seconds}}) : std::nullopt;
}

std::optional<PropertyList> dataOf(std::string_view text) {
    auto bytes = decodeBase64(text);
    return bytes ? std::optional(PropertyList{PropertyData{*std::move(bytes)}}) : std::nullopt;
}

std::optional<PropertyList> truthOf(std::string_view text, bool value) {
    return text.empty() ? std::optional(PropertyList{value}) : std::nullopt;
}

} // namespace

bool isXmlScalar(std::string_view element) {
    constexpr std::array<std::string_view, 7> names = {"string", "integer", "real", "true",
                                                       "false",  "date",    "data"};
    return std::find(names.begin(), names.end(), element) != names.end();
}

std::optional<PropertyList> readXmlScalar(std::string_view element, std::string text) {
    if (element == "string") return PropertyList{std::move(text)};
    if (element == "integer") return integerOf(trimmed(text));
    if (element == "real") return realOf(trimmed(text));
    if (element == "date") return dateOf(trimmed(text));
    if (element == "data") return dataOf(text);
    return truthOf(text, element == "true");
}

} // namespace lexiform::plist
