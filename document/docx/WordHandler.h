#pragma once

#include "document/text/NestedFlow.h"
#include "document/xml/XmlParser.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform::document {

/// Collects the text of WordprocessingML parts: of the main part first, then of its notes.
class WordHandler : public XmlHandler {
public:
    void startElement(const XmlName& name, const XmlAttributes& attributes) override;
    void endElement(const XmlName& name) override;
    void characters(std::string_view text) override;

    [[nodiscard]] std::string take() && { return std::move(flow_).take(); }

private:
    void startCharacter(std::string_view local, const XmlAttributes& attributes);
    void add(std::string_view text);
    [[nodiscard]] bool isHidden() const { return !runs_.empty() && runs_.back(); }

    NestedFlow flow_;
    std::vector<bool> runs_; ///< whether each run that is open is hidden; a text box nests them
    std::size_t skippedDepth_ = 0;
    bool inText_ = false;
};

} // namespace lexiform::document
