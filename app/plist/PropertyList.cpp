#include "app/plist/PropertyList.h"

#include <utility>

namespace lexiform {

PropertyList::PropertyList(Value given) : value(std::move(given)) {}
PropertyList::PropertyList(const PropertyList& other) = default;
PropertyList::PropertyList(PropertyList&& other) noexcept = default;
PropertyList& PropertyList::operator=(const PropertyList& other) = default;
PropertyList& PropertyList::operator=(PropertyList&& other) noexcept = default;
PropertyList::~PropertyList() = default;

} // namespace lexiform
