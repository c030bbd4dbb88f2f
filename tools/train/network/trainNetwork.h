#pragma once

#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/lexicon/LexiconBuilder.h"
#include "tools/train/network/Network.h"
#include "tools/train/network/NetworkTrainer.h"
#include "tools/train/sources/Source.h"

#include <cstddef>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace lexiform::train {

/// How large a tagger is and how it is trained.
struct NetworkOptions {
    std::size_t words = 24000;            ///< that have rows of their own
    double affixes = 1;                   ///< scales the tables of affixes and shapes
    int vectorPasses = 1;                 ///< over the open text, for the rows that words start from
    std::size_t vectorBytes = 24'000'000; ///< of each open text
    TrainingPlan plan{};

    /// Larger networks that label text without annotation, from which the tagger learns besides (Hinton,
    /// Vinyals and Dean 2015, "Distilling the knowledge in a neural network").
    std::size_t teachers = 2;
    NetworkShape teacher{};
    std::size_t teacherWords = 40000;
    double teacherAffixes = 4;
    TrainingPlan teacherPlan{};
    std::size_t silverWords = 2'400'000;

    /// Those that `language` is best trained with.
    [[nodiscard]] static NetworkOptions of(std::string_view language);
    /// For languages of the first ring, whose models may take 3 MB.
    [[nodiscard]] static NetworkOptions firstRing();
    /// For the others, 2 MB.
    [[nodiscard]] static NetworkOptions secondRing();
};

/// Trains a recurrent tagger and appends its sections to `file`; tells `log` what it does and how the network
/// fits the development parts, which nothing else depends on. Gives a fault if an open text cannot be read.
/// The same sources give the same sections on the same machine.
[[nodiscard]] std::optional<std::string> trainNetwork(const LanguageSources& sources, const Lexicon& lexicon,
                                                      const NetworkOptions& options, ModelFileWriter& file,
                                                      std::ostream& log);

} // namespace lexiform::train
