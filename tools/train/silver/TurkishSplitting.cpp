#include "tools/train/silver/TurkishSplitting.h"

#include "linguistics/tagging/WordTraits.h"
#include "tools/train/sources/languages/TurkishEndings.h"

#include <string>
#include <utility>
#include <vector>

namespace lexiform::train {

namespace {

bool isExistential(const std::string& stem) {
    return stem == "var" || stem == "yok";
}

// The end of a place: -ki makes an adjective of it.
bool isLocative(const std::string& stem) {
    return stem.ends_with("da") || stem.ends_with("de") || stem.ends_with("ta") || stem.ends_with("te");
}

/// How many bytes of the end of `form`, in lower case, are a word of their own.
std::size_t separateIn(const std::string& form, const TurkishForms& forms) {
    if (const std::size_t size = nounCopulaIn(form); isExistential(form.substr(0, form.size() - size)))
        return size;
    const std::string classes = forms.classesOf(linguistics::normalForm(form));
    const auto mayBe = [&](const char* letters) {
        return classes.find_first_of(letters) != std::string::npos;
    };
    if (mayBe("k") && !mayBe("fginpv")) return nounCopulaIn(form);
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
