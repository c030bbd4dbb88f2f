#pragma once

#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/network/Network.h"
#include "tools/train/network/Vocabulary.h"

#include <iosfwd>

namespace lexiform::train {

/// Rounds a network of one layer and of the engine's sizes to small integers and appends its sections to
/// `file`. The vocabulary is the one that the network was trained with.
void appendNetwork(Network& network, const Vocabulary& vocabulary, ModelFileWriter& file, std::ostream& log);

} // namespace lexiform::train
