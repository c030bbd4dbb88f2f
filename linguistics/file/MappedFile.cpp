#include "linguistics/file/MappedFile.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace lexiform::linguistics {

namespace {

std::string lastError() {
    return std::generic_category().message(errno);
}

/// Closes what it holds when it goes.
class Descriptor {
public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor() {
        if (number_ >= 0) close(number_);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    [[nodiscard]] int number() const { return number_; }

private:
    int number_;
};

} // namespace

Outcome<std::shared_ptr<const MappedFile>, std::string> MappedFile::open(const std::filesystem::path& file) {
    const Descriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (descriptor.number() < 0) return lastError();
    struct stat status {};
    if (fstat(descriptor.number(), &status) != 0) return lastError();
    if (!S_ISREG(status.st_mode)) return std::string("it is not a regular file");
    const auto size = static_cast<std::size_t>(status.st_size);
    if (size == 0) return std::shared_ptr<const MappedFile>(new MappedFile({}));
    void* start = mmap(nullptr, size, PROT_READ, MAP_PRIVATE, descriptor.number(), 0);
    if (start == MAP_FAILED) return lastError();
    return std::shared_ptr<const MappedFile>(new MappedFile({static_cast<const std::byte*>(start), size}));
}

MappedFile::~MappedFile() {
    if (!bytes_.empty()) munmap(const_cast<std::byte*>(bytes_.data()), bytes_.size());
}

} // namespace lexiform::linguistics
