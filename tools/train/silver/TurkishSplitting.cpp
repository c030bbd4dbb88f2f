#include "tools/train/silver/TurkishSplitting.h"

#include "linguistics/tagging/WordTraits.h"
#include "tools/train/sources/languages/TurkishEndings.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lexiform::train {

namespace {

using namespace std::string_view_literals;

bool isExistential(const std::string& stem) {
    return stem == "var" || stem == "yok";
}

// The end of a place: -ki makes an adjective of it.
bool isLocative(const std::string& stem) {
    return stem.ends_with("da") || stem.ends_with("de") || stem.ends_with("ta") || stem.ends_with("te");
}

// Particles of questions and a few adverbs are one word with their copula.
bool isWhole(const std::string& form) {
    constexpr std::array whole = {"nerede"sv, "mi"sv, "mı"sv, "mu"sv, "mü"sv};
    const std::string stem = form.substr(0, form.size() - nounCopulaIn(form));
    return std::find(whole.begin(), whole.end(), stem) != whole.end();
}

// "görmek|ti": BOUN always cuts it.
bool isInfinitive(const std::string& stem) {
    return stem.size() > 4 && (stem.ends_with("mak") || stem.ends_with("mek"));
}

/// How many bytes of the end of `form`, in lower case, are a word of their own.
std::size_t separateIn(const std::string& form, const TurkishForms& forms) {
    if (isWhole(form)) return 0;
    const std::size_t copula = nounCopulaIn(form);
    const std::string stem = form.substr(0, form.size() - copula);
    if (isExistential(stem) || isInfinitive(stem)) return copula;
    const std::string classes = forms.classesOf(linguistics::normalForm(form));
    const auto mayBe = [&](const char* letters) {
        return classes.find_first_of(letters) != std::string::npos;
    };
    if (mayBe("k") && !mayBe("fginpv")) return copula;
    if (mayBe("f") && !mayBe("gin")) return verbCopulaIn(form);
    const std::size_t ki = kiIn(form);
    return mayBe("i") && isLocative(form.substr(0, form.size() - ki)) ? ki : 0;
}

void addSplit(GoldToken token, std::size_t size, std::vector<GoldToken>& tokens) {
    GoldToken second = token;
    second.form = token.form.substr(token.form.size() - size);
    token.form.resize(token.form.size() - size);
    token.spaceAfter = false;
    tokens.push_back(std::move(token));
    tokens.push_back(std::move(second));
}

} // namespace

void splitTurkishWords(const TurkishForms& forms, Corpus& corpus) {
    for (GoldSentence& sentence : corpus) {
        std::vector<GoldToken> tokens;
        for (GoldToken& token : sentence.tokens) {
            const std::string form = turkishLower(token.form);
            // Capitals change their length with their case.
            const bool whole =
                token.name != linguistics::NameLabel::outside || form.size() != token.form.size();
            const std::size_t size = whole ? 0 : separateIn(form, forms);
            if (size == 0)
                tokens.push_back(std::move(token));
            else
                addSplit(std::move(token), size, tokens);
        }
        sentence.tokens = std::move(tokens);
    }
}

} // namespace lexiform::train
