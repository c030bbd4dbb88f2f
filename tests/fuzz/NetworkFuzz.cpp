// Holds the reader of a network to its contract on any bytes: it refuses them, or tags with what it read.

#include "linguistics/network/NetworkTagger.h"
#include "tests/linguistics/network/SmallNetwork.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform::linguistics;

// A whole file in which the bytes of the input stand at places that they tell themselves, with a checksum
// that fits, so that what is wrong has to be found by the reader.
std::vector<std::byte> damaged(const std::uint8_t* data, std::size_t size) {
    static const std::vector<std::byte> whole = SmallNetwork().bytes();
    std::vector<std::byte> file = whole;
    constexpr std::size_t step = 5;
    for (; size >= step; data += step, size -= step) {
        const std::size_t place = data[0] | std::size_t{data[1]} << 8 | std::size_t{data[2]} << 16;
        // The first sections are small and full of counts: half of the damage is done there.
        const std::size_t reach = data[3] % 2 == 0 ? 1024 : file.size();
        file[sizeof(ModelHeader) + place % (std::min(reach, file.size()) - sizeof(ModelHeader))] =
            std::byte{data[4]};
    }
    const std::uint64_t checksum = checksumOf(file);
    std::memcpy(file.data() + offsetof(ModelHeader, checksum), &checksum, sizeof(checksum));
    return file;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<std::byte> bytes = damaged(data, size);
    const auto file = ModelFile::over(bytes);
    if (!file.succeeded()) return 0;
    const auto model = NetworkModel::over(file.value());
    if (!model.succeeded()) return 0;
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const std::vector<std::string_view> words = {"dog", text.substr(0, size / 2), "Oslo",
                                                 text.substr(size / 2), "."};
    std::vector<WordLabels> labels(words.size());
    NetworkTagger(model.value()).tag(words, labels);
    return 0;
}
