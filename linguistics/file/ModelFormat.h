#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace lexiform::linguistics {

// The layout of a model file, as docs/formats/model.md describes it. All numbers are little-endian.

inline constexpr std::array<char, 8> modelMagic = {'L', 'X', 'F', 'M', 'O', 'D', 'E', 'L'};
inline constexpr std::uint32_t modelVersion = 2;

/// Sections start at multiples of this, so that their numbers are aligned in the mapped file.
inline constexpr std::size_t sectionAlignment = 8;

/// No file has more sections.
inline constexpr std::uint32_t mostSections = 64;

/// What a section holds. Each part of the engine has a range of its own.
enum class SectionId : std::uint32_t {
    information = 1, ///< for people: lines of key, tab, value
    classifiers = 2, ///< nouns that classify: lines of words

    lexiconKeys = 16,
    lexiconEntries = 17,
    bucketStarts = 18,
    weights = 19,
    posTransitions = 20,

    network = 32, ///< up to 47: the recurrent network; its dimensions first
    networkKeys = 33,
    networkEntries = 34,
    networkRows = 35,
    networkGateWeights = 36,
    networkGateBias = 37,
    networkScoreWeights = 38,
    networkScoreBias = 39,
    networkPosTransitions = 40,
    networkNameTransitions = 41,

    lemmas = 48,         ///< up to 63: the lemmatizer
    segmentation = 64,   ///< up to 79: sentence ends and words
    identification = 80, ///< up to 95: telling languages apart
};

struct SectionRecord {
    std::uint32_t id = 0;
    std::uint32_t version = 0; ///< of what the section holds; the part that reads it checks it
    std::uint64_t offset = 0;  ///< bytes from the start of the file
    std::uint64_t size = 0;    ///< bytes
};

/// What a file begins with; `sectionCount` section records follow it.
struct ModelHeader {
    std::array<char, 8> magic = modelMagic;
    std::uint32_t version = modelVersion;
    std::uint32_t sectionCount = 0;
    std::uint64_t fileSize = 0;
    std::uint64_t checksum = 0;      ///< `checksumOf` the whole file
    std::array<char, 16> language{}; ///< BCP 47, padded with zeros
};
static_assert(sizeof(ModelHeader) == 48 && sizeof(SectionRecord) == 24);

/// The checksum of a model file, at least a header long: of its header with a checksum of zero, and of
/// the rest.
[[nodiscard]] std::uint64_t checksumOf(std::span<const std::byte> file);

} // namespace lexiform::linguistics
