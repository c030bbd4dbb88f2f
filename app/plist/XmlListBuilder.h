#pragma once

#include "app/plist/PropertyList.h"
#include "app/plist/limits.h"
#include "document/xml/XmlParser.h"

#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace lexiform::plist {

/// Builds a list from the elements of its XML. After the first one that does not belong where it stands,
/// everything is let go.
class XmlListBuilder final : public document::XmlHandler {
public:
    void startElement(const document::XmlName& name, const document::XmlAttributes& attributes) override;
    void endElement(const document::XmlName& name) override;
    void characters(std::string_view text) override;
    void missingEntity() override { fail(); }

    /// The list when all of it has been told; nothing when something did not belong.
    [[nodiscard]] std::optional<PropertyList> take() &&;

private:
    struct Container {
        std::variant<PropertyList::Array, PropertyList::Dictionary> values;
        std::optional<std::string> key; ///< of the value that a dictionary gets next
    };

    [[nodiscard]] bool open(std::string_view element);
    [[nodiscard]] bool openContainer(Container container);
    [[nodiscard]] bool close(std::string_view element);
    [[nodiscard]] bool closeContainer();
    [[nodiscard]] bool takesKey() const;
    [[nodiscard]] bool takesValue() const;
    void add(PropertyList value);
    void fail();

    Budget budget_;
    std::vector<Container> containers_; ///< the open ones, the innermost last
    std::optional<PropertyList> root_;
    std::string text_;       ///< of the open element that holds text
    bool holdsText_ = false; ///< an element that holds text is open
    bool hasBegun_ = false;
    bool hasFailed_ = false;
};

} // namespace lexiform::plist
