#include "app/plist/XmlListBuilder.h"

#include "app/plist/xmlScalars.h"

#include <utility>

namespace lexiform::plist {

namespace {

bool isBlank(std::string_view text) {
    return text.find_first_not_of(" \t\r\n") == std::string_view::npos;
}

} // namespace

void XmlListBuilder::startElement(const document::XmlName& name,
                                  const document::XmlAttributes& /*attributes*/) {
    if (hasFailed_) return;
    if (!name.space.empty() || holdsText_ || !open(name.local)) fail();
    hasBegun_ = true;
}

void XmlListBuilder::endElement(const document::XmlName& name) {
    if (!hasFailed_ && !close(name.local)) fail();
}

void XmlListBuilder::characters(std::string_view text) {
    if (hasFailed_) return;
    if (holdsText_)
        text_ += text;
    else if (!isBlank(text))
        fail();
}

std::optional<PropertyList> XmlListBuilder::take() && {
    return std::move(root_);
}

bool XmlListBuilder::open(std::string_view element) {
    if (element == "plist") return !hasBegun_;
    if (!budget_.takeObjects(1)) return false;
    if (element == "key") return holdsText_ = takesKey();
    if (!takesValue()) return false;
    if (element == "array") return openContainer({PropertyList::Array(), {}});
    if (element == "dict") return openContainer({PropertyList::Dictionary(), {}});
    return holdsText_ = isXmlScalar(element);
}

bool XmlListBuilder::openContainer(Container container) {
    containers_.push_back(std::move(container));
    return containers_.size() <= deepestContainer;
}

bool XmlListBuilder::close(std::string_view element) {
    if (element == "plist") return true;
    if (!std::exchange(holdsText_, false)) return closeContainer();
    std::string text = std::exchange(text_, std::string());
    if (element == "key") {
        containers_.back().key = std::move(text);
        return true;
    }
    auto value = readXmlScalar(element, std::move(text));
    if (!value) return false;
    add(*std::move(value));
    return true;
}

bool XmlListBuilder::closeContainer() {
    Container container = std::move(containers_.back());
    containers_.pop_back();
    if (container.key) return false;
    add(std::visit([](auto&& values) { return PropertyList{std::forward<decltype(values)>(values)}; },
                   std::move(container.values)));
    return true;
}

bool XmlListBuilder::takesKey() const {
    return !containers_.empty() && !containers_.back().key &&
           std::holds_alternative<PropertyList::Dictionary>(containers_.back().values);
}

bool XmlListBuilder::takesValue() const {
    if (containers_.empty()) return !root_;
    return containers_.back().key || std::holds_alternative<PropertyList::Array>(containers_.back().values);
}

void XmlListBuilder::add(PropertyList value) {
    if (containers_.empty()) {
        root_ = std::move(value);
        return;
    }
    Container& container = containers_.back();
    if (auto* const array = std::get_if<PropertyList::Array>(&container.values))
        array->push_back(std::move(value));
    else
        std::get<PropertyList::Dictionary>(container.values)
            .insert_or_assign(*std::exchange(container.key, std::nullopt), std::move(value));
}

void XmlListBuilder::fail() {
    *this = XmlListBuilder();
    hasFailed_ = true;
}

} // namespace lexiform::plist
