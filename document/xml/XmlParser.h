#pragma once

#include "base/Outcome.h"
#include "document/format/ReadFault.h"

#include <cstddef>
#include <optional>
#include <string_view>

namespace lexiform::document {

/// The name of an element with the address of its namespace, which is empty for none.
struct XmlName {
    std::string_view space;
    std::string_view local;
};

/// The attributes of an element, for as long as its start is told.
class XmlAttributes {
public:
    XmlAttributes(const unsigned char* const* attributes, std::size_t count)
        : attributes_(attributes), count_(count) {}

    /// The value of the first attribute with this local name, in whatever namespace.
    [[nodiscard]] std::optional<std::string_view> value(std::string_view local) const;

private:
    const unsigned char* const* attributes_;
    std::size_t count_;
};

/// Whoever is told of the content of an XML file, in its order.
class XmlHandler {
public:
    virtual ~XmlHandler() = default;

    virtual void startElement(const XmlName& name, const XmlAttributes& attributes) = 0;
    virtual void endElement(const XmlName& name) = 0;
    /// A piece of text; a text may come in many.
    virtual void characters(std::string_view text) = 0;
    /// A reference to an entity that only a declaration outside the file could explain; its text is missing.
    virtual void missingEntity() {}
};

/// The most elements that are open at a time, and the most namespaces that they declare.
inline constexpr std::size_t deepestXmlElement = 256;
inline constexpr std::size_t mostNamespaces = 1024;

/// Goes through an XML file, in any encoding that it declares. Nothing outside it is ever loaded, and a
/// file that declares entities or anything else of its own is refused as too complex, as is one with too
/// many elements inside each other or namespaces at a time; one that is not well-formed is damaged. The
/// handler has been told what comes before the fault.
[[nodiscard]] Outcome<Done, ReadFault> parseXml(std::string_view bytes, XmlHandler& handler);

} // namespace lexiform::document
