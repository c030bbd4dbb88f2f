#include "linguistics/lemmas/LemmaModel.h"

#include "linguistics/text/Utf8.h"

#include <algorithm>
#include <bit>
#include <optional>
#include <string_view>

namespace lexiform::linguistics {

namespace {

constexpr std::uint8_t wholeFlag = 1;

/// Reads rules one after the other; gives nothing for one that is cut off or out of bounds.
class RuleReader {
public:
    explicit RuleReader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

    [[nodiscard]] bool atEnd() const { return at_ == bytes_.size(); }

    std::optional<LemmaRule> next() {
        if (bytes_.size() - at_ < 4) return std::nullopt;
        LemmaRule rule;
        const std::uint8_t flags = bytes_[at_++];
        rule.whole = flags == wholeFlag;
        rule.prefixKept = bytes_[at_++];
        rule.prefixDropped = bytes_[at_++];
        rule.suffixDropped = bytes_[at_++];
        const bool good = flags <= wholeFlag && text(rule.inserted) && text(rule.ending);
        if (!good || (rule.whole && rule.ending.empty())) return std::nullopt;
        return rule;
    }

private:
    bool text(std::u32string& result) {
        if (atEnd()) return false;
        const std::size_t length = bytes_[at_++];
        if (length > bytes_.size() - at_) return false;
        const std::string_view spelt(reinterpret_cast<const char*>(bytes_.data()) + at_, length);
        at_ += length;
        for (std::size_t i = 0; i < spelt.size();) {
            const CodePoint point = codePointAt(spelt, i);
            if (!point.valid || result.size() == longestRuleText) return false;
            result += point.value;
            i += point.length;
        }
        return true;
    }

    std::span<const std::uint8_t> bytes_;
    std::size_t at_ = 0;
};

} // namespace

Outcome<LemmaModel, std::string> LemmaModel::over(const ModelFile& file) {
    const auto rules = file.section<std::uint8_t>(lemmaRules, lemmaVersion);
    if (!rules.succeeded()) return rules.fault();
    const auto starts = file.section<std::uint16_t>(lemmaBucketStarts, lemmaVersion);
    if (!starts.succeeded()) return starts.fault();
    const auto weights = file.section<LemmaWeight>(lemmaWeights, lemmaVersion);
    if (!weights.succeeded()) return weights.fault();
    LemmaModel model;
    model.caseRules_ = caseRulesOf(file.language());
    model.bucketStarts_ = starts.value();
    model.weights_ = weights.value();
    if (std::string fault = model.readRules(rules.value()); !fault.empty()) return fault;
    if (std::string fault = model.faultInWeights(); !fault.empty()) return fault;
    return model;
}

std::string LemmaModel::readRules(std::span<const std::uint8_t> bytes) {
    for (RuleReader reader(bytes); !reader.atEnd();) {
        auto rule = reader.next();
        if (!rule) return "a lemma rule is damaged";
        if (labelCount() == mostLemmaLabels) return "there are too many lemma rules";
        rules_.push_back(*std::move(rule));
    }
    if (rules_.empty() || !rules_.front().keepsAll()) return "the first lemma rule changes the word";
    return "";
}

std::string LemmaModel::faultInWeights() const {
    if (bucketStarts_.size() < 2 || !std::has_single_bit(bucketStarts_.size() - 1) ||
        bucketStarts_.size() - 1 > mostLemmaBuckets)
        return "the buckets of the lemma weights have a wrong count";
    if (bucketStarts_.front() != 0 || bucketStarts_.back() != weights_.size() ||
        !std::is_sorted(bucketStarts_.begin(), bucketStarts_.end()))
        return "the buckets do not cover the lemma weights";
    const bool known = std::all_of(weights_.begin(), weights_.end(),
                                   [&](const LemmaWeight& weight) { return weight.label() < labelCount(); });
    return known ? "" : "a lemma weight is for no label";
}

} // namespace lexiform::linguistics
