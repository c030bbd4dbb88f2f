#include "app/plist/TextReader.h"

#include <utility>

namespace lexiform::plist {

std::optional<PropertyList> TextReader::read() {
    auto list = value(0);
    scanner_.skipSpace();
    return scanner_.isAtEnd() ? std::move(list) : std::nullopt;
}

std::optional<PropertyList> TextReader::value(std::size_t depth) {
    if (!budget_.takeObjects(1)) return std::nullopt;
    if (takeSign('(')) return array(depth + 1);
    if (takeSign('{')) return dictionary(depth + 1);
    if (takeSign('<')) return data();
    auto string = scanner_.takeString();
    return string ? std::optional(PropertyList{*std::move(string)}) : std::nullopt;
}

std::optional<PropertyList> TextReader::array(std::size_t depth) {
    if (depth > deepestContainer) return std::nullopt;
    PropertyList::Array values;
    while (!takeSign(')')) {
        auto next = value(depth);
        if (!next) return std::nullopt;
        values.push_back(*std::move(next));
        if (takeSign(',')) continue;
        if (!takeSign(')')) return std::nullopt;
        break;
    }
    return PropertyList{std::move(values)};
}

std::optional<PropertyList> TextReader::dictionary(std::size_t depth) {
    if (depth > deepestContainer) return std::nullopt;
    PropertyList::Dictionary values;
    while (!takeSign('}')) {
        auto key = scanner_.takeString();
        if (!key || !budget_.takeObjects(1) || !takeSign('=')) return std::nullopt;
        auto next = value(depth);
        if (!next || !takeSign(';')) return std::nullopt;
        values.insert_or_assign(*std::move(key), *std::move(next));
    }
    return PropertyList{std::move(values)};
}

std::optional<PropertyList> TextReader::data() {
    auto bytes = scanner_.takeHexadecimal();
    if (!bytes || !takeSign('>')) return std::nullopt;
    return PropertyList{PropertyData{*std::move(bytes)}};
}

bool TextReader::takeSign(char sign) {
    scanner_.skipSpace();
    return scanner_.take(sign);
}

} // namespace lexiform::plist
