#include "app/plist/readBinaryList.h"

#include "app/plist/BinaryReader.h"

namespace lexiform::plist {

std::optional<PropertyList> readBinaryList(std::string_view bytes) {
    const auto trailer = readBinaryTrailer(bytes);
    if (!trailer) return std::nullopt;
    return BinaryReader(*trailer).read();
}

} // namespace lexiform::plist
