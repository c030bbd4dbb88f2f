#pragma once

#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/network/Network.h"
#include "tools/train/network/TrainingData.h"

#include <iosfwd>
#include <span>

namespace lexiform::train {

/// Tells how a network fits the development parts, as it is in training.
void logScores(const TrainingData& data, Network& network, std::span<const SeenForm> forms,
               std::ostream& log);

/// Tells how the network in a model file fits them, as the engine runs it.
void logScores(const TrainingData& data, const ModelFileWriter& file, std::ostream& log);

} // namespace lexiform::train
