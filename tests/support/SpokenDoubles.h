#pragma once

#include "tests/support/PlainDoubles.h"

#include <cstdio>
#include <string>

namespace lexiform {

// Doubles that say on standard error what they are asked to do, so that a test sees from outside how far
// a program came before it died.

class SpokenPane : public PlainTextPane {
public:
    explicit SpokenPane(std::string text = "") : PlainTextPane(std::move(text)) {}

    [[nodiscard]] std::string plainText() const override {
        std::fputs("read;", stderr);
        return PlainTextPane::plainText();
    }
    void replace(const AttributedText& text) override {
        std::fprintf(stderr, "shown %s;", text.string().c_str());
    }
};

class SpokenField : public PlainTextField {
public:
    void setStringValue(const std::string& /*value*/) override { std::fputs("key;", stderr); }
};

class SpokenPopUpButton : public PlainPopUpButton {
public:
    void setEnabled(bool isEnabled) override { std::fputs(isEnabled ? "enabled;" : "disabled;", stderr); }
};

class SpokenDefaults : public PlainUserDefaults {
public:
    void setString(std::string_view /*value*/, std::string_view key) override {
        std::fprintf(stderr, "stored %s;", std::string(key).c_str());
    }
};

} // namespace lexiform
