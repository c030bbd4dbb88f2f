#pragma once

#include "linguistics/file/ModelFile.h"

#include <cstdint>
#include <span>
#include <string>

namespace lexiform::linguistics {

/// Reads sections of one version; remembers the first thing that is wrong.
class SectionReader {
public:
    /// A reader of the sections of `file`, which must outlive it.
    SectionReader(const ModelFile& file, std::uint32_t version) : file_(file), version_(version) {}

    /// The elements of section `id`; none where something is wrong with it.
    template <typename Value>
    std::span<const Value> section(SectionId id) {
        auto values = file_.section<Value>(id, version_);
        if (values.succeeded()) return values.value();
        if (fault_.empty()) fault_ = values.fault();
        return {};
    }

    /// In plain English; empty while nothing is wrong.
    [[nodiscard]] const std::string& fault() const { return fault_; }

private:
    const ModelFile& file_;
    std::uint32_t version_;
    std::string fault_;
};

} // namespace lexiform::linguistics
