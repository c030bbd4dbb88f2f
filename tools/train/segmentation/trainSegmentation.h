#pragma once

#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/sources/Source.h"

#include <ostream>

namespace lexiform::train {

/// Learns from the training sources with spacing, and from open text, how their language is cut into tokens
/// and sentences, and appends the sections of it to `image`. Says in `log` what it does. The same sources
/// give the same bytes.
void trainSegmentation(const LanguageSources& sources, ModelFileWriter& image, std::ostream& log);

} // namespace lexiform::train
