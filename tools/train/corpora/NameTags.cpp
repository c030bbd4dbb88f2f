#include "tools/train/corpora/NameTags.h"

namespace lexiform::train {

using linguistics::NameLabel;

NameLabel nameLabelSpelt(std::string_view tag) {
    if (tag == "B-PER") return NameLabel::beginsPerson;
    if (tag == "I-PER") return NameLabel::insidePerson;
    if (tag == "B-LOC") return NameLabel::beginsPlace;
    if (tag == "I-LOC") return NameLabel::insidePlace;
    if (tag == "B-ORG") return NameLabel::beginsOrganization;
    if (tag == "I-ORG") return NameLabel::insideOrganization;
    return NameLabel::outside;
}

NameLabel repaired(NameLabel previous, NameLabel label) {
    if (mayFollow(previous, label)) return label;
    return static_cast<NameLabel>(static_cast<int>(label) - 1);
}

} // namespace lexiform::train
