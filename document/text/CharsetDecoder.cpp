#include "document/text/CharsetDecoder.h"

#include "base/fatalError.h"
#include "document/text/utf8.h"

#include <unicode/ucnv.h>
#include <unicode/ucnv_cb.h>
#include <unicode/utf16.h>

#include <array>

namespace lexiform::document {

namespace {

// ICU's own substitution writes a control character in the place of some single bytes.
void substitute(const void* context, UConverterToUnicodeArgs* arguments, const char* /*units*/,
                int32_t /*length*/, UConverterCallbackReason reason, UErrorCode* status) {
    if (reason > UCNV_IRREGULAR) return;
    *static_cast<bool*>(const_cast<void*>(context)) = true;
    *status = U_ZERO_ERROR;
    constexpr UChar replacement = replacementCharacter;
    ucnv_cbToUWriteUChars(arguments, &replacement, 1, 0, status);
}

/// Appends UTF-16 as UTF-8; a high surrogate at the end waits in `high` for the next piece.
class Utf16Sink {
public:
    explicit Utf16Sink(std::string& text) : text_(text) {}

    void append(const UChar* units, const UChar* end) {
        for (; units != end; ++units) {
            if (U16_IS_LEAD(*units)) {
                high_ = *units;
            } else if (U16_IS_TRAIL(*units) && high_ != 0) {
                appendCodePoint(static_cast<char32_t>(U16_GET_SUPPLEMENTARY(high_, *units)), text_);
                high_ = 0;
            } else {
                appendCodePoint(*units, text_);
            }
        }
    }

private:
    std::string& text_;
    UChar high_ = 0;
};

} // namespace

void CharsetDecoder::Close::operator()(UConverter* converter) const {
    ucnv_close(converter);
}

std::optional<CharsetDecoder> CharsetDecoder::named(const std::string& name) {
    // An empty name would be the default of the machine that the program runs on.
    if (name.empty()) return std::nullopt;
    UErrorCode status = U_ZERO_ERROR;
    CharsetDecoder decoder(ucnv_open(name.c_str(), &status));
    if (U_FAILURE(status)) return std::nullopt;
    return decoder;
}

bool CharsetDecoder::append(std::string_view bytes, std::string& text) {
    bool substituted = false;
    UErrorCode status = U_ZERO_ERROR;
    ucnv_reset(converter_.get());
    ucnv_setToUCallBack(converter_.get(), substitute, &substituted, nullptr, nullptr, &status);
    Utf16Sink sink(text);
    std::array<UChar, 2048> buffer{};
    const char* source = bytes.data();
    do {
        status = U_ZERO_ERROR;
        UChar* target = buffer.data();
        ucnv_toUnicode(converter_.get(), &target, buffer.data() + buffer.size(), &source,
                       bytes.data() + bytes.size(), nullptr, 1, &status);
        sink.append(buffer.data(), target);
    } while (status == U_BUFFER_OVERFLOW_ERROR);
    if (U_FAILURE(status)) fatalError("a character set could not be converted");
    return !substituted;
}

} // namespace lexiform::document
