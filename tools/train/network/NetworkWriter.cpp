#include "tools/train/network/NetworkWriter.h"

#include "base/fatalError.h"
#include "linguistics/network/NetworkFormat.h"
#include "linguistics/text/Hash.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <vector>

namespace lexiform::train {

using namespace linguistics;

namespace {

/// Whole numbers from `lowest` to `highest` that stand for themselves over a power of two.
struct Grid {
    int lowest, highest;
    int shift; ///< the power's exponent

    [[nodiscard]] int nearest(float value) const {
        const float scaled = std::ldexp(value, shift);
        return std::clamp(static_cast<int>(std::lround(scaled)), lowest, highest);
    }
    [[nodiscard]] double error(const std::vector<float>& values) const {
        double sum = 0;
        for (const float value : values) {
            const double off =
                static_cast<double>(std::ldexp(static_cast<float>(nearest(value)), -shift) - value);
            sum += off * off;
        }
        return std::sqrt(sum / static_cast<double>(values.size()));
    }
};

// The grid with the least error; its shift is at least `leastShift`.
Grid bestGrid(const std::vector<float>& values, int lowest, int highest, int leastShift) {
    Grid best{lowest, highest, leastShift};
    for (int shift = leastShift + 1; shift < leastShift + 6; ++shift)
        if (const Grid next{lowest, highest, shift}; next.error(values) < best.error(values)) best = next;
    return best;
}

std::vector<std::uint8_t> packed(const Matrix& rows, const Grid& grid) {
    std::vector<std::uint8_t> bytes;
    bytes.reserve(rows.rows() * packedRowSize);
    const std::vector<float>& values = rows.values();
    for (std::size_t i = 0; i < values.size(); i += 4) {
        std::uint32_t four = 0;
        for (std::size_t k = 0; k < 4; ++k)
            four |= static_cast<std::uint32_t>(grid.nearest(values[i + k]) + 32) << (6 * k);
        for (std::size_t byte = 0; byte < 3; ++byte)
            bytes.push_back(static_cast<std::uint8_t>(four >> (8 * byte)));
    }
    return bytes;
}

std::vector<float> firstColumns(const Matrix& matrix, std::size_t columns) {
    std::vector<float> values;
    for (std::size_t row = 0; row < matrix.rows(); ++row)
        values.insert(values.end(), matrix.row(row), matrix.row(row) + columns);
    return values;
}

std::vector<std::int8_t> rounded(const std::vector<float>& values, const Grid& grid) {
    std::vector<std::int8_t> result;
    result.reserve(values.size());
    for (const float value : values)
        result.push_back(static_cast<std::int8_t>(grid.nearest(value)));
    return result;
}

std::vector<std::int16_t> fixed(const std::vector<float>& values, int one) {
    const Grid grid{-largestNetworkBias, largestNetworkBias, std::countr_zero(static_cast<unsigned>(one))};
    std::vector<std::int16_t> result;
    result.reserve(values.size());
    for (const float value : values)
        result.push_back(static_cast<std::int16_t>(grid.nearest(value)));
    return result;
}

void appendLexicon(const Vocabulary& vocabulary, ModelFileWriter& file) {
    std::map<std::uint32_t, NetworkEntry> byKey;
    for (const auto& [word, entry] : vocabulary.entries()) {
        // Of two words with one key the one with a row of its own counts.
        NetworkEntry& known = byKey[static_cast<std::uint32_t>(hashOf(word) >> 32)];
        if (known.row == unknownRow) known = entry;
    }
    std::vector<std::uint32_t> keys;
    std::vector<NetworkEntry> entries;
    for (const auto& [key, entry] : byKey) {
        keys.push_back(key);
        entries.push_back(entry);
    }
    file.append(SectionId::networkKeys, networkVersion, keys);
    file.append(SectionId::networkEntries, networkVersion, entries);
}

int shiftOf(int one) {
    return std::countr_zero(static_cast<unsigned>(one));
}

} // namespace

void appendNetwork(Network& network, const Vocabulary& vocabulary, ModelFileWriter& file, std::ostream& log) {
    const NetworkShape& shape = network.shape();
    if (shape.width != networkWidth || shape.units != networkUnits || shape.layers != 1)
        fatalError("the engine has no network of this size");
    const Matrix& rows = network.rows().values();
    const Grid rowGrid = bestGrid(rows.values(), -32, 31, 3);
    const std::vector<float>& gates = network.layer(0).weights().values();
    const Grid gateGrid = bestGrid(gates, -127, 127, shiftOf(gateOne) - rowGrid.shift);
    const std::vector<float> heads = firstColumns(network.headWeights(), networkLabels);
    const Grid headGrid = bestGrid(heads, -127, 127, 4);
    log << "rows in " << rowGrid.shift << " bits after the point, error " << rowGrid.error(rows.values())
        << "; gates in " << gateGrid.shift << ", error " << gateGrid.error(gates) << "; heads in "
        << headGrid.shift << ", error " << headGrid.error(heads) << '\n';

    NetworkDimensions dimensions;
    dimensions.rowCounts = shape.layout.counts();
    dimensions.gateShift = static_cast<std::uint32_t>(rowGrid.shift + gateGrid.shift - shiftOf(gateOne));
    dimensions.scoreShift =
        static_cast<std::uint32_t>(shiftOf(outputOne) + headGrid.shift - shiftOf(scoreOne));
    file.append(SectionId::network, networkVersion, std::vector{dimensions});
    appendLexicon(vocabulary, file);
    file.append(SectionId::networkRows, networkVersion, packed(rows, rowGrid));
    file.append(SectionId::networkGateWeights, networkVersion, rounded(gates, gateGrid));
    file.append(SectionId::networkGateBias, networkVersion, fixed(network.layer(0).bias().values(), gateOne));
    file.append(SectionId::networkScoreWeights, networkVersion, rounded(heads, headGrid));
    file.append(SectionId::networkScoreBias, networkVersion,
                fixed(firstColumns(network.headBias(), networkLabels), scoreOne));
    file.append(SectionId::networkPosTransitions, networkVersion,
                fixed(network.posChain().transitions().values(), scoreOne));
    file.append(SectionId::networkNameTransitions, networkVersion,
                fixed(network.nameChain().transitions().values(), scoreOne));
}

} // namespace lexiform::train
