#include "tools/train/corpora/ConlluReader.h"

#include "tools/train/corpora/Lines.h"
#include "tools/train/corpora/NameTags.h"

#include <charconv>
#include <fstream>
#include <string_view>

namespace lexiform::train {

namespace {

using linguistics::universalPosNamed;

constexpr std::size_t columnCount = 10;
enum Column { id = 0, form = 1, lemma = 2, universal = 3, fine = 4, features = 5, misc = 9 };

bool hasField(std::string_view column, std::string_view wanted) {
    for (const std::string_view field : partsOf(column, '|'))
        if (field == wanted) return true;
    return false;
}

std::string_view nameField(std::string_view column) {
    for (const std::string_view field : partsOf(column, '|'))
        if (field.starts_with("Name=")) return field.substr(5);
    return "O";
}

/// Gathers the lines of one sentence after the other.
class SentenceReader {
public:
    void comment(std::string_view line) {
        if (line.starts_with("# newpar") || line.starts_with("# newdoc")) startsParagraph_ = true;
    }

    void word(const std::vector<std::string_view>& columns) {
        if (columns[id].find('.') != std::string_view::npos) return; // an empty node
        const std::size_t dash = columns[id].find('-');
        if (dash != std::string_view::npos) return openRange(columns, columns[id].substr(dash + 1));
        GoldToken token = tokenOf(columns);
        if (rangeEnd_ == 0) return put(std::move(token));
        range_.push_back(std::move(token));
        if (number(columns[id]) >= rangeEnd_) closeRange();
    }

    void endSentence(Corpus& corpus) {
        closeRange();
        if (sentence_.tokens.empty()) return;
        sentence_.startsParagraph = startsParagraph_;
        corpus.push_back(std::move(sentence_));
        sentence_ = {};
        startsParagraph_ = false;
    }

private:
    static int number(std::string_view text) {
        int value = 0;
        std::from_chars(text.data(), text.data() + text.size(), value);
        return value;
    }

    static GoldToken tokenOf(const std::vector<std::string_view>& columns) {
        GoldToken token;
        token.form = columns[form];
        token.pos = universalPosNamed(columns[universal]);
        token.finePos = columns[fine];
        token.name = nameLabelSpelt(nameField(columns[misc]));
        token.spaceAfter = !hasField(columns[misc], "SpaceAfter=No");
        // The lemma of an underscore is an underscore; any other word's is unknown then.
        if (columns[lemma] != "_" || columns[form] == "_") token.lemma = columns[lemma];
        if (columns[features] != "_") token.features = columns[features];
        return token;
    }

    void openRange(const std::vector<std::string_view>& columns, std::string_view last) {
        closeRange();
        surface_ = tokenOf(columns);
        rangeEnd_ = number(last);
    }

    void closeRange() {
        rangeEnd_ = 0;
        if (range_.empty()) return;
        std::string spelt;
        for (const GoldToken& token : range_)
            spelt += token.form;
        if (spelt == surface_.form) {
            for (GoldToken& token : range_) {
                token.spaceAfter = false;
                put(std::move(token));
            }
            sentence_.tokens.back().spaceAfter = surface_.spaceAfter;
        } else {
            surface_.pos = range_.front().pos;
            surface_.finePos = range_.front().finePos;
            surface_.name = range_.front().name;
            surface_.lemma = range_.front().lemma;
            surface_.features = range_.front().features;
            for (std::size_t i = 1; i < range_.size(); ++i) {
                if (range_[i].pos) surface_.furtherPos.push_back(*range_[i].pos);
                if (range_[i].lemma) surface_.furtherLemmas.push_back(*range_[i].lemma);
            }
            put(surface_);
        }
        range_.clear();
    }

    void put(GoldToken token) {
        const auto previous =
            sentence_.tokens.empty() ? linguistics::NameLabel::outside : sentence_.tokens.back().name;
        token.name = repaired(previous, token.name);
        sentence_.tokens.push_back(std::move(token));
    }

    GoldSentence sentence_;
    bool startsParagraph_ = false;
    std::vector<GoldToken> range_;
    GoldToken surface_;
    int rangeEnd_ = 0;
};

} // namespace

Outcome<Corpus, std::string> readConllu(const std::filesystem::path& file) {
    std::ifstream input(file, std::ios::binary);
    if (!input) return file.string() + ": it cannot be opened";
    Corpus corpus;
    SentenceReader reader;
    std::string line;
    for (std::size_t number = 1; std::getline(input, line); ++number) {
        if (line.empty()) {
            reader.endSentence(corpus);
        } else if (line[0] == '#') {
            reader.comment(line);
        } else {
            const auto columns = partsOf(line, '\t');
            if (columns.size() != columnCount)
                return file.string() + ":" + std::to_string(number) + ": the line has not ten columns";
            reader.word(columns);
        }
    }
    reader.endSentence(corpus);
    return corpus;
}

} // namespace lexiform::train
