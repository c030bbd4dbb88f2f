#include "linguistics/segmentation/Particles.h"

#include "linguistics/text/AsciiText.h"

namespace lexiform::linguistics {

namespace {

constexpr std::array<std::string_view, 14> questioned = {
    "ada",   "adakah", "apa",      "bagaimana", "benar", "berapa",  "bisa",
    "bukan", "dapat",  "haruskah", "kapan",     "mana",  "mungkin", "siapa"};
// Adverbs and others that end like a word with "nya" and are one.
constexpr std::array<std::string_view, 19> whole = {
    "agak", "akhir",  "berikut", "biasa",   "hendak",  "kira",    "lain",     "lazim",   "misal", "pada",
    "rasa", "sebaik", "sebalik", "sebelum", "sebenar", "seharus", "selanjut", "semesti", "umum"};
static_assert(std::is_sorted(questioned.begin(), questioned.end()));
static_assert(std::is_sorted(whole.begin(), whole.end()));

// Shorter ones are roots: "hanya", "punya", "tanya".
constexpr std::size_t shortestBase = 3;

} // namespace

std::size_t startOfParticle(std::string_view word) {
    const LowerCasedWord lower(word);
    const std::string_view text = word.size() <= 16 ? lower.view() : word;
    if (text.size() < shortestBase + 3) return word.size();
    const std::string_view base = text.substr(0, text.size() - 3);
    if (text.ends_with("nya")) return holds(whole, base) ? word.size() : base.size();
    return text.ends_with("kah") && holds(questioned, base) ? base.size() : word.size();
}

} // namespace lexiform::linguistics
