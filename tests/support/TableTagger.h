#pragma once

#include "analysis/tagger/Tagger.h"

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lexiform {

/// One token of a text and its tags under the four schemes, any of which may be absent.
struct TableRow {
    std::string word;
    std::optional<std::string> script = std::nullopt;
    std::optional<std::string> lang = std::nullopt;
    std::optional<std::string> type = std::nullopt;
    std::optional<std::string> lemma = std::nullopt;
};

/// What table taggers were asked.
struct TableCalls {
    std::vector<std::vector<std::string>> made;
    std::vector<std::string> enumerated;
};

/// Gives the tokens of a table, whatever its text.
class TableTagger : public Tagger {
public:
    TableTagger(std::vector<TableRow> table, std::shared_ptr<TableCalls> calls, std::string shortScheme)
        : table_(std::move(table)), calls_(std::move(calls)), shortScheme_(std::move(shortScheme)) {}

    void setString(std::string /*text*/) override {}

    void enumerateTags(TextRange /*range*/, NLTokenUnit /*unit*/, TagScheme scheme,
                       NLTaggerOptions /*options*/, const Visitor& visitor) override {
        calls_->enumerated.emplace_back(scheme);
        const std::size_t count = table_.size() - (scheme == shortScheme_ ? 1 : 0);
        std::size_t start = 0;
        for (std::size_t i = 0; i < count; ++i) {
            const TextRange token{start, table_[i].word.size()};
            if (visitor(tagUnder(scheme, table_[i]), token) == Next::stop) return;
            start = token.end();
        }
    }

private:
    static std::optional<std::string_view> tagUnder(TagScheme scheme, const TableRow& row) {
        if (scheme == NLTagSchemeScript) return row.script;
        if (scheme == NLTagSchemeLanguage) return row.lang;
        if (scheme == NLTagSchemeLemma) return row.lemma;
        return row.type;
    }

    std::vector<TableRow> table_;
    std::shared_ptr<TableCalls> calls_;
    std::string shortScheme_;
};

/// Makes taggers of a table; `shortScheme` loses the last token.
inline TaggerFactory tableTaggers(std::vector<TableRow> table,
                                  std::shared_ptr<TableCalls> calls = std::make_shared<TableCalls>(),
                                  std::string shortScheme = "") {
    return [=](std::span<const TagScheme> schemes) {
        calls->made.emplace_back(schemes.begin(), schemes.end());
        return std::make_unique<TableTagger>(table, calls, shortScheme);
    };
}

/// The text that the tokens of a table spell.
inline std::string textOf(const std::vector<TableRow>& table) {
    std::string text;
    for (const TableRow& row : table)
        text += row.word;
    return text;
}

} // namespace lexiform
