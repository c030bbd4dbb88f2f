#include "linguistics/network/NetworkModel.h"

#include "linguistics/file/SectionReader.h"
#include "linguistics/network/NetworkKernels.h"

#include <algorithm>

namespace lexiform::linguistics {

namespace {

// Where the bias stands in a projection: at a word's own place.
constexpr std::size_t ownPlace = windowPlaces / 2;

void addRow(const std::uint8_t* packed, NetworkModel::RowSum& sum) {
    constexpr std::uint32_t zero = 32;
    for (std::size_t i = 0; i < networkWidth; i += 4, packed += 3) {
        const std::uint32_t four = packed[0] | std::uint32_t{packed[1]} << 8 | std::uint32_t{packed[2]} << 16;
        for (std::size_t k = 0; k < 4; ++k)
            sum[i + k] = static_cast<std::int16_t>(sum[i + k] + static_cast<int>(four >> (6 * k) & 63U) -
                                                   static_cast<int>(zero));
    }
}

bool anyBeyond(std::span<const std::int16_t> values, int limit) {
    return std::any_of(values.begin(), values.end(),
                       [&](std::int16_t value) { return value > limit || value < -limit; });
}

} // namespace

Outcome<NetworkModel, std::string> NetworkModel::over(const ModelFile& file) {
    SectionReader reader(file, networkVersion);
    NetworkModel model;
    const auto dimensions = reader.section<NetworkDimensions>(SectionId::network);
    model.keys_ = reader.section<std::uint32_t>(SectionId::networkKeys);
    model.entries_ = reader.section<NetworkEntry>(SectionId::networkEntries);
    model.rows_ = reader.section<std::uint8_t>(SectionId::networkRows);
    const auto gateWeights = reader.section<std::int8_t>(SectionId::networkGateWeights);
    const auto gateBias = reader.section<std::int16_t>(SectionId::networkGateBias);
    const auto scoreWeights = reader.section<std::int8_t>(SectionId::networkScoreWeights);
    model.scoreBias_ = reader.section<std::int16_t>(SectionId::networkScoreBias);
    model.posTransitions_ = reader.section<std::int16_t>(SectionId::networkPosTransitions);
    model.nameTransitions_ = reader.section<std::int16_t>(SectionId::networkNameTransitions);
    if (!reader.fault().empty()) return reader.fault();
    if (const std::string fault = model.setDimensions(dimensions); !fault.empty()) return fault;
    for (const std::string& fault :
         {model.faultInLexicon(), model.faultInSizes(gateWeights, gateBias, scoreWeights),
          model.faultInValues(gateBias)})
        if (!fault.empty()) return fault;
    model.gateWeights_ = arrangedForProjection(gateWeights);
    model.scoreWeights_ = arrangedForScores(scoreWeights);
    model.gateBias_.assign(projectionSize, 0);
    std::copy(gateBias.begin(), gateBias.end(), model.gateBias_.begin() + ownPlace * networkGates);
    return model;
}

std::string NetworkModel::setDimensions(std::span<const NetworkDimensions> dimensions) {
    if (dimensions.size() != 1) return "the network has a wrong number of dimensions";
    const NetworkDimensions& only = dimensions.front();
    if (only.width != networkWidth || only.units != networkUnits) return "the network is of another size";
    if (only.gateShift > largestShift || only.scoreShift > largestShift) return "the network shifts too far";
    const auto& counts = only.rowCounts;
    // Few enough that their sum fits; the rows themselves bound it closer.
    constexpr std::uint32_t mostRows = std::uint32_t{1} << 24;
    if (std::any_of(counts.begin(), counts.end(), [](std::uint32_t n) { return n == 0 || n > mostRows; }))
        return "the network lacks rows of a kind";
    layout_ = RowLayout(counts);
    gateShift_ = only.gateShift;
    scoreShift_ = only.scoreShift;
    if (layout_.countOf(RowKind::word) < firstWordRow || layout_.countOf(RowKind::lists) < listRowCount)
        return "the network has too few rows";
    return rows_.size() == layout_.size() * packedRowSize ? "" : "the network's rows have a wrong count";
}

std::string NetworkModel::faultInLexicon() const {
    if (keys_.size() != entries_.size()) return "the network's lexicon has keys without entries";
    if (!std::is_sorted(keys_.begin(), keys_.end())) return "the network's lexicon is out of order";
    const bool known = std::all_of(entries_.begin(), entries_.end(), [&](const NetworkEntry& entry) {
        return entry.row < layout_.countOf(RowKind::word) &&
               entry.ambiguity < layout_.countOf(RowKind::ambiguity);
    });
    return known ? "" : "the network's lexicon names a row that does not exist";
}

std::string NetworkModel::faultInSizes(std::span<const std::int8_t> gateWeights,
                                       std::span<const std::int16_t> gateBias,
                                       std::span<const std::int8_t> scoreWeights) const {
    if (gateWeights.size() != networkWidth * projectionSize || gateBias.size() != networkGates)
        return "the network's gates have a wrong count";
    if (scoreWeights.size() != networkOutputs * networkLabels || scoreBias_.size() != networkLabels)
        return "the network's scores have a wrong count";
    const bool fits = posTransitions_.size() == (universalPosCount + 1) * universalPosCount &&
                      nameTransitions_.size() == (nameLabelCount + 1) * nameLabelCount;
    return fits ? "" : "the network's transitions have a wrong count";
}

std::string NetworkModel::faultInValues(std::span<const std::int16_t> gateBias) const {
    for (const auto values : {gateBias, scoreBias_, posTransitions_, nameTransitions_})
        if (anyBeyond(values, largestNetworkBias)) return "a number of the network is too large";
    return "";
}

NetworkEntry NetworkModel::find(std::uint64_t normalHash) const {
    const auto key = static_cast<std::uint32_t>(normalHash >> 32);
    const auto found = std::lower_bound(keys_.begin(), keys_.end(), key);
    if (found == keys_.end() || *found != key) return {};
    return entries_[static_cast<std::size_t>(found - keys_.begin())];
}

NetworkModel::RowSum NetworkModel::sumOf(const WordRows& rows) const {
    RowSum sum{};
    for (const std::uint32_t row : rows)
        addRow(rows_.data() + row * packedRowSize, sum);
    return sum;
}

NetworkModel::RowSum NetworkModel::sumOf(std::string_view word, NetworkEntry entry) const {
    return sumOf(rowsOf(word, entry, layout_));
}

NetworkModel::RowSum NetworkModel::boundarySum() const {
    return sumOf(boundaryRows(layout_));
}

} // namespace lexiform::linguistics
