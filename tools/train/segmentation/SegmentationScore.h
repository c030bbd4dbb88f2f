#pragma once

#include "linguistics/segmentation/LearnedSegmentation.h"
#include "tools/train/segmentation/RawText.h"

#include <ostream>
#include <string_view>

namespace lexiform::train {

/// How well the tokens and sentences of a text are found, in percent (F1 over spans).
struct SegmentationScore {
    double tokens = 0, sentences = 0;
};

/// Cuts `raw` and compares with its annotation. `learned` may be null: rules only. Where `errors` is
/// given, each wrong stretch is written to it with what stands around it.
[[nodiscard]] SegmentationScore scoreSegmentation(const RawText& raw, std::string_view language,
                                                  const linguistics::LearnedSegmentation* learned,
                                                  std::ostream* errors);

} // namespace lexiform::train
