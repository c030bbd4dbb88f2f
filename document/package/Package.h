#pragma once

#include "base/Outcome.h"
#include "document/format/ReadFault.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

struct zip;

namespace lexiform::document {

/// How far the parts of a package may unpack.
struct PackageLimits {
    /// One part, and all parts together that are asked for.
    std::size_t part = std::size_t{128} << 20U;
    std::size_t all = std::size_t{256} << 20U;
    /// A part of more than `unsuspicious` bytes may not unpack to more than `ratio` times its packed size.
    std::size_t unsuspicious = std::size_t{16} << 20U;
    std::size_t ratio = 100;
};

/// Whether `bytes` begin as a zip archive does.
[[nodiscard]] bool isPackage(std::string_view bytes);

/// The parts of a file that is a zip archive.
class Package {
public:
    /// `bytes` must outlive the package. Fails as damaged for what is no whole archive.
    [[nodiscard]] static Outcome<Package, ReadFault> open(std::string_view bytes, PackageLimits limits = {});

    [[nodiscard]] bool has(const std::string& name) const;
    /// The unpacked bytes of a part. Faults: one that is missing, encrypted or packed wrongly is damaged,
    /// one beyond the limits is too large.
    [[nodiscard]] Outcome<std::string, ReadFault> part(const std::string& name);

private:
    struct Close {
        void operator()(zip* archive) const;
    };
    Package(zip* archive, std::size_t size, PackageLimits limits)
        : archive_(archive), size_(size), limits_(limits) {}

    std::unique_ptr<zip, Close> archive_;
    std::size_t size_;
    PackageLimits limits_;
    std::size_t unpacked_ = 0;
};

} // namespace lexiform::document
