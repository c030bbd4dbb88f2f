#pragma once

#include "app/plist/BinaryTrailer.h"
#include "app/plist/PropertyList.h"
#include "app/plist/limits.h"
#include "document/text/CharsetDecoder.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace lexiform::plist {

/// Reads the objects of a binary list, from the root down. One that holds itself ends at the limit on depth,
/// and one that is shared too often at that on objects or bytes.
class BinaryReader {
public:
    explicit BinaryReader(const BinaryTrailer& trailer)
        : trailer_(trailer), budget_(trailer.objects.size() + trailer.offsets.size()) {}

    [[nodiscard]] std::optional<PropertyList> read() { return object(trailer_.root, 0); }

private:
    /// An object's first byte, halved, and what lies behind it.
    struct Head {
        unsigned kind = 0;
        unsigned detail = 0;
        std::string_view rest;
    };

    [[nodiscard]] std::optional<Head> headOf(std::uint64_t reference) const;
    [[nodiscard]] std::optional<PropertyList> object(std::uint64_t reference, std::size_t depth);
    [[nodiscard]] std::optional<PropertyList> counted(Head head, std::size_t depth);
    [[nodiscard]] std::optional<PropertyList> utf16(std::string_view bytes);
    [[nodiscard]] std::optional<PropertyList> array(std::string_view references, std::size_t depth);
    [[nodiscard]] std::optional<PropertyList> dictionary(std::string_view references, std::size_t depth);
    [[nodiscard]] std::uint64_t referenceAt(std::string_view references, std::size_t index) const;

    BinaryTrailer trailer_;
    Budget budget_;
    std::optional<document::CharsetDecoder> utf16Decoder_; ///< from the first string that needs it
};

} // namespace lexiform::plist
