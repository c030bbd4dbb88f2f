// Prints what the reader makes of each list on standard input, one a line, for comparison with another
// reader. A list comes as the number of its bytes, a line feed and the bytes. Strings, keys and data are
// printed in hexadecimal, so that a line holds no more than the digits, signs and brackets of its own form.

#include "app/plist/readPropertyList.h"

#include <cmath>
#include <cstdio>
#include <iostream>
#include <string>
#include <variant>

namespace {

using lexiform::PropertyList;

std::string hexadecimal(const std::string& bytes) {
    constexpr const char* digits = "0123456789abcdef";
    std::string text;
    for (const char byte : bytes) {
        text += digits[static_cast<unsigned char>(byte) >> 4U];
        text += digits[static_cast<unsigned char>(byte) & 0xFU];
    }
    return text;
}

std::string printed(double number) {
    char text[64];
    std::snprintf(text, sizeof text, "%.17g", number);
    return std::isnan(number) ? "nan" : text;
}

struct Printer {
    std::string operator()(bool value) const { return value ? "T" : "F"; }
    std::string operator()(std::int64_t value) const { return "i" + std::to_string(value); }
    std::string operator()(double value) const { return "r" + printed(value); }
    // Other readers round to microseconds.
    std::string operator()(const lexiform::PropertyDate& date) const {
        return "d" + printed(std::floor(date.seconds));
    }
    std::string operator()(const std::string& text) const { return "s" + hexadecimal(text); }
    std::string operator()(const lexiform::PropertyData& data) const { return "x" + hexadecimal(data.bytes); }
    std::string operator()(const PropertyList::Array& values) const {
        std::string text = "[";
        for (const PropertyList& value : values)
            text += std::visit(*this, value.value) + ",";
        return text + "]";
    }
    std::string operator()(const PropertyList::Dictionary& values) const {
        std::string text = "{";
        for (const auto& [key, value] : values)
            text += hexadecimal(key) + ":" + std::visit(*this, value.value) + ",";
        return text + "}";
    }
};

} // namespace

int main() {
    std::size_t size = 0;
    while (std::cin >> size && std::cin.get() == '\n') {
        std::string bytes(size, '\0');
        std::cin.read(bytes.data(), static_cast<std::streamsize>(size));
        const auto list = lexiform::readPropertyList(bytes);
        std::cout << (list ? std::visit(Printer(), list->value) : "none") << "\n";
    }
    return 0;
}
