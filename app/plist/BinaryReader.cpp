#include "app/plist/BinaryReader.h"

#include "app/plist/binaryScalars.h"
#include "document/text/utf8.h"

#include <string>
#include <utility>

namespace lexiform::plist {

namespace {

/// The upper half of an object's first byte.
enum Kind : unsigned {
    constants = 0x0,
    integer = 0x1,
    real = 0x2,
    date = 0x3,
    dataBytes = 0x4,
    asciiString = 0x5,
    utf16String = 0x6,
    identifier = 0x8,
    arrayOfObjects = 0xA,
    dictionaryOfObjects = 0xD
};

std::optional<std::string_view> firstBytes(std::string_view bytes, std::uint64_t count) {
    if (count > bytes.size()) return std::nullopt;
    return bytes.substr(0, count);
}

/// Takes the count of an object off `rest`: its detail, or where that is full the integer that follows.
std::optional<std::uint64_t> takeCount(unsigned detail, std::string_view& rest) {
    constexpr unsigned follows = 0xF;
    constexpr unsigned widestCount = 0x13;
    if (detail != follows) return detail;
    if (rest.empty()) return std::nullopt;
    const auto marker = static_cast<unsigned char>(rest.front());
    if (marker < 0x10 || marker > widestCount) return std::nullopt;
    const auto bytes = firstBytes(rest.substr(1), std::uint64_t{1} << (marker & 0xFU));
    if (!bytes) return std::nullopt;
    rest.remove_prefix(1 + bytes->size());
    return bigEndian(*bytes);
}

/// How many bytes each of an object's parts has; nothing for kinds that have no parts.
std::optional<std::size_t> partWidth(unsigned kind, std::size_t referenceWidth) {
    switch (kind) {
    case dataBytes:
    case asciiString:
        return 1;
    case utf16String:
        return 2;
    case arrayOfObjects:
        return referenceWidth;
    case dictionaryOfObjects:
        return 2 * referenceWidth;
    default:
        return std::nullopt;
    }
}

std::optional<PropertyList> constantOf(unsigned detail) {
    if (detail == 8 || detail == 9) return PropertyList{detail == 9};
    return std::nullopt;
}

/// The value, without parts, of an object of this kind.
std::optional<PropertyList> scalarOf(unsigned kind, unsigned detail, std::string_view rest) {
    if (kind == constants) return constantOf(detail);
    constexpr unsigned mostPower = 4; // a size is a power of two, 16 bytes at most
    if (kind != identifier && detail > mostPower) return std::nullopt;
    const std::size_t size = kind == identifier ? std::size_t{detail} + 1 : std::size_t{1} << detail;
    const auto bytes = firstBytes(rest, size);
    if (!bytes) return std::nullopt;
    if (kind == integer) return binaryInteger(*bytes);
    if (kind == real) return binaryReal(*bytes);
    if (kind == date) return size == 8 ? binaryDate(*bytes) : std::nullopt;
    return kind == identifier ? binaryIdentifier(*bytes) : std::nullopt;
}

std::optional<PropertyList> asciiOf(std::string_view bytes) {
    if (!document::isAscii(bytes)) return std::nullopt;
    return PropertyList{std::string(bytes)};
}

} // namespace

std::optional<BinaryReader::Head> BinaryReader::headOf(std::uint64_t reference) const {
    if (reference >= trailer_.count) return std::nullopt;
    const std::uint64_t offset =
        bigEndian(trailer_.offsets.substr(reference * trailer_.offsetWidth, trailer_.offsetWidth));
    if (offset < binaryMark.size() || offset >= trailer_.objects.size()) return std::nullopt;
    const unsigned marker = static_cast<unsigned char>(trailer_.objects[offset]);
    return Head{marker >> 4U, marker & 0xFU, trailer_.objects.substr(offset + 1)};
}

std::optional<PropertyList> BinaryReader::object(std::uint64_t reference, std::size_t depth) {
    const auto head = headOf(reference);
    if (!head || !budget_.takeObjects(1)) return std::nullopt;
    return partWidth(head->kind, 1) ? counted(*head, depth) : scalarOf(head->kind, head->detail, head->rest);
}

std::optional<PropertyList> BinaryReader::counted(Head head, std::size_t depth) {
    const auto count = takeCount(head.detail, head.rest);
    const auto width = partWidth(head.kind, trailer_.referenceWidth);
    // Divided, since a product could overflow.
    if (!count || !width || *count > head.rest.size() / *width) return std::nullopt;
    const std::string_view parts = head.rest.substr(0, *count * *width);
    if (head.kind == arrayOfObjects) return array(parts, depth + 1);
    if (head.kind == dictionaryOfObjects) return dictionary(parts, depth + 1);
    if (!budget_.takeBytes(parts.size())) return std::nullopt;
    if (head.kind == asciiString) return asciiOf(parts);
    return head.kind == utf16String ? utf16(parts) : PropertyList{PropertyData{std::string(parts)}};
}

std::optional<PropertyList> BinaryReader::utf16(std::string_view bytes) {
    if (!utf16Decoder_) utf16Decoder_ = document::CharsetDecoder::named("UTF-16BE");
    std::string text;
    if (!utf16Decoder_ || !utf16Decoder_->append(bytes, text)) return std::nullopt;
    return PropertyList{std::move(text)};
}

std::optional<PropertyList> BinaryReader::array(std::string_view references, std::size_t depth) {
    if (depth > deepestContainer) return std::nullopt;
    PropertyList::Array values;
    for (std::size_t i = 0; i < references.size() / trailer_.referenceWidth; ++i) {
        auto value = object(referenceAt(references, i), depth);
        if (!value) return std::nullopt;
        values.push_back(*std::move(value));
    }
    return PropertyList{std::move(values)};
}

std::optional<PropertyList> BinaryReader::dictionary(std::string_view references, std::size_t depth) {
    if (depth > deepestContainer) return std::nullopt;
    PropertyList::Dictionary values;
    // All the keys come before all the values.
    const std::size_t count = references.size() / trailer_.referenceWidth / 2;
    for (std::size_t i = 0; i < count; ++i) {
        auto key = object(referenceAt(references, i), depth);
        auto value = object(referenceAt(references, count + i), depth);
        auto* const name = key ? std::get_if<std::string>(&key->value) : nullptr;
        if (!name || !value) return std::nullopt;
        values.insert_or_assign(std::move(*name), *std::move(value));
    }
    return PropertyList{std::move(values)};
}

std::uint64_t BinaryReader::referenceAt(std::string_view references, std::size_t index) const {
    return bigEndian(references.substr(index * trailer_.referenceWidth, trailer_.referenceWidth));
}

} // namespace lexiform::plist
