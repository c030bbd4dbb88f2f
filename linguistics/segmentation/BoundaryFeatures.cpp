#include "linguistics/segmentation/BoundaryFeatures.h"

#include "linguistics/segmentation/LowerCasedHash.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// Chunks of more atoms are hardly ever met twice.
constexpr std::size_t mostAtomsOfForm = 8;
constexpr Atom nothing{};

/// The atoms around a boundary.
struct Window {
    Window(std::span<const Atom> atoms, std::size_t last)
        : before(last > 0 ? atoms[last - 1] : nothing), left(atoms[last]), right(atoms[last + 1]),
          after(last + 2 < atoms.size() ? atoms[last + 2] : nothing) {}

    const Atom& before;
    const Atom& left;
    const Atom& right;
    const Atom& after;
};

std::uint32_t mixed32(std::uint32_t a, std::uint32_t b) {
    const std::uint64_t x = (std::uint64_t{a} << 32 | b) * 0x9E3779B97F4A7C15U;
    return static_cast<std::uint32_t>(x >> 32) ^ static_cast<std::uint32_t>(x);
}

std::string_view lastBytes(std::string_view text, std::size_t count) {
    return text.substr(text.size() - std::min(text.size(), count));
}

void addShapes(const Window& w, FeatureList& features) {
    const std::uint32_t rule = w.left.ruleEnds ? 1 : 0;
    features.add(ruleFeature, rule);
    features.add(0, rule, w.left.isWord(), w.right.isWord());
    features.add(1, w.left.shape, w.right.shape, rule);
    features.add(2, w.before.shape, w.left.shape, w.right.shape, rule);
    features.add(3, w.left.shape, w.right.shape, w.after.shape, rule);
    features.add(4, w.before.shape, w.left.shape, w.right.shape, w.after.shape);
}

void addSpellings(const Window& w, FeatureList& features) {
    features.add(5, w.left.hash, w.right.shape);
    features.add(6, w.left.shape, w.right.hash);
    features.add(7, w.left.hash, w.right.hash);
    features.add(8, w.before.hash, w.left.shape, w.right.hash);
    features.add(9, w.left.hash, w.right.hash, w.after.hash);
    features.add(10, w.left.hash, w.right.shape, w.after.shape);
    features.add(11, w.before.shape, w.left.hash, w.right.shape);
    features.add(12, w.before.shape, w.left.shape, w.right.hash);
    features.add(13, w.before.hash, w.left.shape, w.right.shape);
    features.add(14, w.right.hash, w.after.shape, w.left.shape);
    features.add(15, w.right.shape, w.after.hash, w.left.shape);
}

void addForm(std::span<const Atom> atoms, std::size_t last, FeatureList& features) {
    if (atoms.size() > mostAtomsOfForm) return;
    std::uint32_t shape = 0, hash = 0;
    for (const Atom& atom : atoms) {
        shape = mixed32(shape, atom.shape);
        hash = mixed32(hash, atom.hash);
    }
    const auto place = static_cast<std::uint32_t>(last);
    features.add(16, shape, place);
    features.add(17, hash, place);
}

void addFullStop(const Window& w, const OpenToken& token, const ChunkSurroundings& around,
                 bool isAbbreviation, FeatureList& features) {
    const std::uint32_t known = isAbbreviation ? 1 : 0;
    features.add(18, token.hash, around.nextShape);
    features.add(19, token.shape, around.nextShape, known);
    features.add(20, token.shape, around.next);
    features.add(21, known, around.nextShape, w.left.shape);
    features.add(22, known);
}

// A word that may be two is told by its letters and by the words around it.
void addParts(const Window& w, const ChunkSurroundings& around, std::string_view paragraph,
              FeatureList& features) {
    const std::string_view first = paragraph.substr(w.left.start, w.left.end - w.left.start);
    const std::uint32_t word = mixed32(w.left.hash, w.right.hash);
    features.add(23, w.right.hash);
    for (std::uint32_t length = 1; length <= 4; ++length)
        features.add(24, length, w.right.hash, lowerCasedHash(lastBytes(first, length)));
    features.add(25, static_cast<std::uint32_t>(std::min<std::size_t>(first.size(), 6)), w.right.hash);
    features.add(26, word);
    features.add(27, word, around.previous);
    features.add(28, word, around.next);
    features.add(29, around.previous, w.right.hash);
}

} // namespace

void OpenToken::add(const Atom& atom) {
    hash = mixed32(hash, atom.hash);
    shape = mixed32(shape, atom.shape);
}

void boundaryFeatures(std::span<const Atom> atoms, std::size_t last, const OpenToken& token,
                      const ChunkSurroundings& around, const LearnedSegmentation& learned,
                      std::string_view paragraph, FeatureList& features) {
    const Window window(atoms, last);
    features.clear();
    addShapes(window, features);
    addSpellings(window, features);
    addForm(atoms, last, features);
    features.add(30, token.hash, window.right.hash);
    features.add(31, token.shape, window.right.shape, window.after.shape);
    if (window.right.shape == '.' && window.after.kind == Atom::Kind::none) {
        const std::string_view spelling = paragraph.substr(token.start, window.left.end - token.start);
        const bool known = spelling.size() <= 16 && learned.abbreviations.holds(lowerCasedHash(spelling));
        addFullStop(window, token, around, known, features);
    }
    if (window.left.mayPart) addParts(window, around, paragraph, features);
}

} // namespace lexiform::linguistics
