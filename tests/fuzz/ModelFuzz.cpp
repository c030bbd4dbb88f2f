// Holds the reader of whole model files to its contract on any damage: it refuses the file with a reason, or
// the engine reads a text with what it holds, and its tokens cover the text.

#include "base/fatalError.h"
#include "linguistics/Engine.h"
#include "linguistics/file/ModelFormat.h"
#include "linguistics/model/Model.h"

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace lexiform;
using namespace lexiform::linguistics;

void require(bool condition, std::string_view what) {
    if (!condition) fatalError(what);
}

std::string wholeModel() {
    std::ifstream file(LEXIFORM_MODELS_DIR "/en.lxm", std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

// The model with bytes of the input at places that they tell themselves, half of them among the places of the
// sections and half anywhere, and a checksum that fits: what is wrong has to be found by the readers.
std::string damaged(std::string_view bytes) {
    static const std::string whole = wholeModel();
    require(whole.size() > sizeof(ModelHeader), "there is no model to damage");
    std::string file = whole;
    constexpr std::size_t step = 5;
    constexpr std::size_t table = 1024;
    for (; bytes.size() >= step; bytes.remove_prefix(step)) {
        std::uint32_t place = 0;
        std::memcpy(&place, bytes.data(), 3);
        const std::size_t reach = bytes[3] % 2 == 0 ? table : file.size() - sizeof(ModelHeader);
        file[sizeof(ModelHeader) + place % reach] = bytes[4];
    }
    const std::uint64_t checksum = checksumOf(std::as_bytes(std::span(file)));
    std::memcpy(file.data() + offsetof(ModelHeader, checksum), &checksum, sizeof(checksum));
    return file;
}

/// A file in memory.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view bytes) : descriptor_(memfd_create("model", 0)) {
        require(write(descriptor_, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()),
                "there is no room for a file");
    }
    ~MemoryFile() { close(descriptor_); }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    [[nodiscard]] std::string path() const { return "/proc/self/fd/" + std::to_string(descriptor_); }

private:
    int descriptor_;
};

void readWith(const std::shared_ptr<const Model>& model, std::string_view text) {
    const Engine engine(std::make_shared<const ModelStore>(model), {.language = model->language()});
    std::size_t end = 0;
    engine.analyse(text, [&](const Paragraph& paragraph) {
        for (const Token& token : paragraph.tokens) {
            require(token.range.start == end, "tokens leave a gap or overlap");
            end = token.range.end();
        }
        return true;
    });
    require(end == text.size(), "tokens do not reach the end of the text");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    const MemoryFile file(damaged(bytes));
    const auto model = Model::load(file.path());
    if (!model.succeeded()) {
        require(!model.fault().reason.empty(), "a model is refused without a reason");
        return 0;
    }
    readWith(model.value(),
             "The U.S. cats don't sit on Mr Brown's mats in Oslo; they were running. " + std::string(bytes));
    return 0;
}
