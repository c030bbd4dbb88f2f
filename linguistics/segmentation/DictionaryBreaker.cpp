#include "linguistics/segmentation/DictionaryBreaker.h"

#include <unicode/brkiter.h>
#include <unicode/utext.h>

namespace lexiform::linguistics {

struct DictionaryBreaker::Iterator {
    std::unique_ptr<icu::BreakIterator> words;
};

DictionaryBreaker::DictionaryBreaker() = default;
DictionaryBreaker::~DictionaryBreaker() = default;

std::vector<std::size_t> DictionaryBreaker::wordEnds(std::string_view run) {
    UErrorCode status = U_ZERO_ERROR;
    if (!iterator_) {
        iterator_ = std::make_unique<Iterator>();
        iterator_->words.reset(icu::BreakIterator::createWordInstance(icu::Locale::getRoot(), status));
    }
    std::vector<std::size_t> ends;
    UText bytes = UTEXT_INITIALIZER;
    utext_openUTF8(&bytes, run.data(), static_cast<std::int64_t>(run.size()), &status);
    if (U_SUCCESS(status) && iterator_->words) {
        iterator_->words->setText(&bytes, status);
        if (U_SUCCESS(status)) {
            iterator_->words->first();
            for (auto end = iterator_->words->next(); end != icu::BreakIterator::DONE;
                 end = iterator_->words->next())
                ends.push_back(static_cast<std::size_t>(end));
        }
    }
    utext_close(&bytes);
    if (ends.empty() || ends.back() != run.size()) ends.push_back(run.size());
    return ends;
}

} // namespace lexiform::linguistics
