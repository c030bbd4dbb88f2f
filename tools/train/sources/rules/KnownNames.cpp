#include "tools/train/sources/rules/KnownNames.h"

#include "base/Unicode.h"

#include <algorithm>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>

namespace lexiform::train {

namespace {

using linguistics::NameLabel;

// A given name, a middle one and a family name.
constexpr std::size_t longestPerson = 3;

std::vector<std::string> namesIn(std::string_view list) {
    std::vector<std::string> names;
    for (std::size_t start = 0; start < list.size();) {
        const std::size_t end = std::min(list.find('|', start), list.size());
        names.emplace_back(list.substr(start, end - start));
        start = end + 1;
    }
    return names;
}

std::set<std::string, std::less<>> setOf(std::string_view list) {
    std::vector<std::string> names = namesIn(list);
    return {std::make_move_iterator(names.begin()), std::make_move_iterator(names.end())};
}

bool isProper(const GoldToken& token) {
    return token.finePos == "NNP" || token.finePos == "NNPS";
}

/// The words of a text from `first` to before `end`.
struct Stretch {
    std::size_t first = 0, end = 0;
};

class Namer {
public:
    explicit Namer(const KnownNames& names)
        : givenNames_(setOf(names.givenNames)), titles_(setOf(names.titles)) {
        add(names.persons, NameLabel::beginsPerson);
        add(names.places, NameLabel::beginsPlace);
        add(names.organizations, NameLabel::beginsOrganization);
        add(names.others, NameLabel::outside);
    }

    void name(GoldSentence& sentence) const {
        std::vector<GoldToken>& tokens = sentence.tokens;
        sentence.namesKnown = true;
        for (std::size_t first = 0; first < tokens.size();) {
            const std::size_t end = endOfKnown(tokens, first);
            if (end == first)
                ++first;
            else if (nameStretch(tokens, {first, end}))
                first = end;
            else
                return leaveUnknown(sentence);
        }
    }

private:
    void add(std::string_view list, NameLabel label) {
        for (std::string& name : namesIn(list)) {
            longest_ = std::max(longest_, std::size_t(1 + std::count(name.begin(), name.end(), ' ')));
            labels_.emplace(std::move(name), label);
        }
    }

    static void leaveUnknown(GoldSentence& sentence) {
        sentence.namesKnown = false;
        for (GoldToken& token : sentence.tokens)
            token.name = NameLabel::outside;
    }

    // One past the proper nouns from `first` on, with the small words between those of a known name.
    std::size_t endOfKnown(const std::vector<GoldToken>& tokens, std::size_t first) const {
        std::size_t end = first;
        while (end < tokens.size() && isProper(tokens[end]))
            ++end;
        for (std::size_t further = std::min(first + longest_, tokens.size()); further > end; --further)
            if (holdsProper(tokens, {first, further}) && find(tokens, {first, further})) {
                const bool cuts =
                    further < tokens.size() && isProper(tokens[further]) && isProper(tokens[further - 1]);
                return cuts ? end : further;
            }
        return end;
    }

    static bool holdsProper(const std::vector<GoldToken>& tokens, Stretch words) {
        return std::any_of(tokens.begin() + std::ptrdiff_t(words.first),
                           tokens.begin() + std::ptrdiff_t(words.end), isProper);
    }

    std::optional<NameLabel> find(const std::vector<GoldToken>& tokens, Stretch words) const {
        std::string name;
        for (std::size_t i = words.first; i < words.end; ++i)
            name += (name.empty() ? "" : " ") + tokens[i].form;
        const auto found = labels_.find(name);
        return found == labels_.end() ? std::nullopt : std::optional(found->second);
    }

    bool nameStretch(std::vector<GoldToken>& tokens, Stretch words) const {
        if (const auto label = find(tokens, words)) return put(tokens, words, *label);
        Stretch rest = words;
        while (rest.first < rest.end && titles_.contains(tokens[rest.first].form))
            ++rest.first;
        if (rest.first == rest.end) return true;
        const auto label = find(tokens, rest);
        if (label == NameLabel::beginsPerson || isPerson(tokens, rest))
            return put(tokens, rest, NameLabel::beginsPerson);
        // "Mr. Finch", and whoever has that title.
        if (rest.first == words.first || label) return false;
        return rest.end == rest.first + 1 && put(tokens, rest, NameLabel::beginsPerson);
    }

    bool isPerson(const std::vector<GoldToken>& tokens, Stretch words) const {
        if (words.end - words.first > longestPerson || !givenNames_.contains(tokens[words.first].form))
            return false;
        for (std::size_t i = words.first + 1; i < words.end; ++i)
            if (!mayFollowGivenName(tokens[i])) return false;
        return true;
    }

    // An initial, or a capitalised word that names nothing by itself.
    bool mayFollowGivenName(const GoldToken& token) const {
        const std::string& form = token.form;
        if (form.size() == 1 || (form.size() == 2 && form.back() == '.')) return true;
        if (token.finePos != "NNP" || lowerCased(form).substr(1) != form.substr(1) ||
            lowerCased(form) == form)
            return false;
        const auto found = labels_.find(form);
        return found == labels_.end() || found->second == NameLabel::beginsPerson;
    }

    static bool put(std::vector<GoldToken>& tokens, Stretch words, NameLabel label) {
        for (std::size_t i = words.first; i < words.end; ++i)
            tokens[i].name = label;
        if (label != NameLabel::outside)
            for (std::size_t i = words.first + 1; i < words.end; ++i)
                tokens[i].name = static_cast<NameLabel>(static_cast<int>(label) + 1);
        return true;
    }

    std::map<std::string, NameLabel, std::less<>> labels_;
    std::set<std::string, std::less<>> givenNames_, titles_;
    std::size_t longest_ = 1; ///< words of a name
};

} // namespace

Preparation namedBy(const KnownNames& names) {
    const auto namer = std::make_shared<const Namer>(names);
    return [namer](Corpus& corpus) {
        for (GoldSentence& sentence : corpus)
            namer->name(sentence);
    };
}

} // namespace lexiform::train
