#include "tools/train/sources/rules/Condition.h"

#include "linguistics/text/Characters.h"
#include "linguistics/text/Utf8.h"
#include "tools/train/corpora/Lines.h"

#include <algorithm>

namespace lexiform::train {

Condition operator&&(Condition a, Condition b) {
    return Condition([a = std::move(a), b = std::move(b)](Place place) { return a(place) && b(place); });
}

Condition operator||(Condition a, Condition b) {
    return Condition([a = std::move(a), b = std::move(b)](Place place) { return a(place) || b(place); });
}

Condition operator!(Condition a) {
    return Condition([a = std::move(a)](Place place) { return !a(place); });
}

Words wordsOf(std::string_view list) {
    Words words;
    for (const std::string_view word : partsOf(list, ' '))
        words.emplace(word);
    return words;
}

Condition form(std::string_view list) {
    return Condition([words = wordsOf(list)](Place place) { return words.count(place.lowered()) != 0; });
}

Condition exactForm(std::string_view list) {
    return Condition([words = wordsOf(list)](Place place) { return words.count(place.token().form) != 0; });
}

Condition formEndsIn(std::string_view list) {
    return Condition([ends = wordsOf(list)](Place place) {
        const std::string& form = place.lowered();
        return std::any_of(ends.begin(), ends.end(), [&](const std::string& end) {
            return form.size() > end.size() && form.ends_with(end);
        });
    });
}

Condition formBeginsWith(std::string_view list) {
    return Condition([starts = wordsOf(list)](Place place) {
        const std::string& form = place.lowered();
        return std::any_of(starts.begin(), starts.end(), [&](const std::string& start) {
            return form.size() > start.size() && form.starts_with(start);
        });
    });
}

Condition lemma(std::string_view list) {
    return Condition([words = wordsOf(list)](Place place) {
        return place.token().lemma && words.count(*place.token().lemma) != 0;
    });
}

Condition lemmaHolds(std::string_view part) {
    return Condition([part = std::string(part)](Place place) {
        return place.token().lemma && place.token().lemma->find(part) != std::string::npos;
    });
}

Condition tagged(Tags tags) {
    return Condition([tags = std::move(tags)](Place place) {
        return place.token().pos && std::find(tags.begin(), tags.end(), *place.token().pos) != tags.end();
    });
}

Condition feature(std::string_view feature) {
    return Condition([feature = std::string(feature)](Place place) {
        const auto features = partsOf(place.token().features, '|');
        return std::find(features.begin(), features.end(), feature) != features.end();
    });
}

Condition inflected() {
    return Condition([](Place place) {
        return place.token().lemma && lowerCased(*place.token().lemma) != place.lowered();
    });
}

Condition capitalised() {
    return Condition([](Place place) {
        const std::string& form = place.token().form;
        return !form.empty() && linguistics::isUpperCase(linguistics::codePointAt(form, 0).value);
    });
}

Condition outsideNames() {
    return Condition([](Place place) { return place.token().name == linguistics::NameLabel::outside; });
}

Condition firstOfName() {
    return Condition([](Place place) { return beginsName(place.token().name); });
}

Condition firstInSentence() {
    return Condition([](Place place) { return place.at == 0; });
}

Condition before(Condition previous) {
    return precededWithin(1, std::move(previous));
}

Condition after(Condition next) {
    return followedWithin(1, std::move(next));
}

Condition followedWithin(std::size_t reach, Condition wanted, Condition stop) {
    return Condition([reach, wanted = std::move(wanted), stop = std::move(stop)](Place place) {
        for (std::size_t i = 1; i <= reach && place.at + i < place.sentence.size(); ++i) {
            const Place next{place.sentence, place.at + i};
            if (wanted(next)) return true;
            if (stop(next)) return false;
        }
        return false;
    });
}

Condition followedWithin(std::size_t reach, Condition wanted) {
    return followedWithin(reach, std::move(wanted), never());
}

Condition precededWithin(std::size_t reach, Condition wanted, Condition stop) {
    return Condition([reach, wanted = std::move(wanted), stop = std::move(stop)](Place place) {
        for (std::size_t i = 1; i <= reach && i <= place.at; ++i) {
            const Place previous{place.sentence, place.at - i};
            if (wanted(previous)) return true;
            if (stop(previous)) return false;
        }
        return false;
    });
}

Condition precededWithin(std::size_t reach, Condition wanted) {
    return precededWithin(reach, std::move(wanted), never());
}

Condition always() {
    return Condition([](Place) { return true; });
}

Condition never() {
    return Condition([](Place) { return false; });
}

} // namespace lexiform::train
