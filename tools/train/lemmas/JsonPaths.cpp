#include "tools/train/lemmas/JsonPaths.h"

#include <charconv>
#include <cstddef>
#include <utility>

#include <unicode/utf8.h>

namespace lexiform::train {

namespace {

/// Reads a JSON text from left to right.
class JsonScanner {
public:
    explicit JsonScanner(std::string_view json) : json_(json) {}

    template <typename Visitor>
    void scan(const Visitor& visitor) {
        std::vector<std::string> names;
        std::string last;
        bool pending = false; // a string that may turn out to be a name
        for (; at_ < json_.size(); ++at_) {
            const char c = json_[at_];
            if (c == '"') {
                last = string();
                pending = true;
            } else if (c == ':') {
                names.push_back(std::exchange(last, {}));
                pending = false;
            } else if (c == ',' || c == '}' || c == ']') {
                if (pending) visitor(names, last);
                pending = false;
                if (c == '}' || (c == ',' && inObject())) dropName(names);
                if (c != ',' && !open_.empty()) open_.pop_back();
            } else if (c == '{' || c == '[') {
                open_.push_back(c);
            }
        }
    }

private:
    [[nodiscard]] bool inObject() const { return !open_.empty() && open_.back() == '{'; }

    static void dropName(std::vector<std::string>& names) {
        if (!names.empty()) names.pop_back();
    }

    std::string string() {
        std::string text;
        for (++at_; at_ < json_.size() && json_[at_] != '"'; ++at_) {
            if (json_[at_] == '\\' && at_ + 1 < json_.size())
                escaped(text);
            else
                text += json_[at_];
        }
        return text;
    }

    // Of the escapes only those that words need: any character by its number, and itself.
    void escaped(std::string& text) {
        ++at_;
        if (json_[at_] != 'u' || at_ + 4 >= json_.size()) {
            text += json_[at_];
            return;
        }
        unsigned value = 0;
        std::from_chars(json_.data() + at_ + 1, json_.data() + at_ + 5, value, 16);
        at_ += 4;
        char code[U8_MAX_LENGTH];
        std::int32_t length = 0;
        U8_APPEND_UNSAFE(code, length, static_cast<UChar32>(value));
        text.append(code, static_cast<std::size_t>(length));
    }

    std::string_view json_;
    std::size_t at_ = 0;
    std::string open_;
};

} // namespace

void forEachJsonString(
    std::string_view json,
    const std::function<void(const std::vector<std::string>& names, const std::string& value)>& visitor) {
    JsonScanner(json).scan(visitor);
}

} // namespace lexiform::train
