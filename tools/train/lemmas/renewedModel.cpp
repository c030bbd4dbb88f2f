#include "tools/train/lemmas/renewedModel.h"

#include "linguistics/lemmas/LemmaFormat.h"

namespace lexiform::train {

using namespace linguistics;

std::vector<std::byte> renewedModel(const ModelFile& model, const ModelFileWriter& lemmas) {
    ModelFileWriter renewed(model.language());
    bool placed = false;
    const auto place = [&] {
        if (!placed) renewed.append(lemmas);
        placed = true;
    };
    for (const SectionRecord& section : model.sections()) {
        const auto id = static_cast<SectionId>(section.id);
        if (isLemmaSection(id))
            place();
        else
            renewed.append(id, section.version, model.bytesOf(section));
    }
    place();
    return renewed.bytes();
}

} // namespace lexiform::train
