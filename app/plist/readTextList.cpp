#include "app/plist/readTextList.h"

#include "app/plist/TextReader.h"

namespace lexiform::plist {

std::optional<PropertyList> readTextList(std::string_view text) {
    return TextReader(text).read();
}

} // namespace lexiform::plist
