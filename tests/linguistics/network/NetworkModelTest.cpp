#include "linguistics/network/NetworkModel.h"

#include "tests/linguistics/network/SmallNetwork.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

namespace lexiform::linguistics {
namespace {

std::string faultOf(const SmallNetwork& network) {
    const std::vector<std::byte> bytes = network.bytes();
    const auto file = ModelFile::over(bytes);
    EXPECT_TRUE(file.succeeded());
    const auto model = NetworkModel::over(file.value());
    return model.succeeded() ? "" : model.fault();
}

std::string faultAfter(const std::function<void(SmallNetwork&)>& change) {
    SmallNetwork network;
    change(network);
    return faultOf(network);
}

TEST(NetworkModel, readsWhatIsWhole) {
    EXPECT_EQ(faultOf(SmallNetwork()), "");
}

TEST(NetworkModel, findsWordsInTheLexicon) {
    const std::vector<std::byte> bytes = SmallNetwork().bytes();
    const auto file = ModelFile::over(bytes);
    const auto model = NetworkModel::over(file.value());
    EXPECT_EQ(model.value().find(hashOf("oslo")), (NetworkEntry{3, 2, cityNames}));
    EXPECT_EQ(model.value().find(hashOf("unheard-of")), NetworkEntry{});
}

TEST(NetworkModel, addsRowsOfSixBits) {
    SmallNetwork network;
    // Every number is 32, which stands for 0; the boundary's row, the second, starts with 1, 31, -32, -1.
    for (std::size_t i = 0; i < network.rows.size(); i += 3) {
        network.rows[i] = 0x20;
        network.rows[i + 1] = 0x08;
        network.rows[i + 2] = 0x82;
    }
    const std::uint32_t four = 33U | 63U << 6 | 0U << 12 | 31U << 18;
    for (std::size_t i = 0; i < 3; ++i)
        network.rows[packedRowSize + i] = static_cast<std::uint8_t>(four >> (8 * i));
    const std::vector<std::byte> bytes = network.bytes();
    const auto file = ModelFile::over(bytes);
    const auto model = NetworkModel::over(file.value());
    const NetworkModel::RowSum sum = model.value().boundarySum();
    EXPECT_EQ(sum[0], 1);
    EXPECT_EQ(sum[1], 31);
    EXPECT_EQ(sum[2], -32);
    EXPECT_EQ(sum[3], -1);
    EXPECT_EQ(sum[4], 0);
    EXPECT_EQ(model.value().sumOf("dog", {2, 1, 0}), NetworkModel::RowSum{});
}

TEST(NetworkModel, refusesOtherSizes) {
    EXPECT_NE(faultAfter([](auto& network) { network.dimensions.width = 65; }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.dimensions.units = 0; }), "");
}

TEST(NetworkModel, refusesShiftsThatLeaveNothing) {
    EXPECT_NE(faultAfter([](auto& network) { network.dimensions.gateShift = 31; }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.dimensions.scoreShift = 4000000000; }), "");
}

TEST(NetworkModel, refusesRowsThatAreFewerThanTheirCounts) {
    EXPECT_NE(faultAfter([](auto& network) { network.rows.pop_back(); }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.dimensions.rowCounts[5] += 1; }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.dimensions.rowCounts[5] = 0; }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.dimensions.rowCounts.fill(0xFFFFFFFF); }), "");
    EXPECT_NE(faultAfter([](auto& network) {
                  network.dimensions.rowCounts[3] -= 1;
                  network.dimensions.rowCounts[4] += 1;
              }),
              "");
}

TEST(NetworkModel, refusesALexiconThatNamesNoRow) {
    EXPECT_NE(faultAfter([](auto& network) { network.entries[0].row = 4; }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.entries[1].ambiguity = 4; }), "");
}

TEST(NetworkModel, refusesALexiconOutOfOrder) {
    EXPECT_NE(faultAfter([](auto& network) { std::swap(network.keys[0], network.keys[1]); }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.keys.pop_back(); }), "");
}

TEST(NetworkModel, refusesWeightsOfAnotherCount) {
    EXPECT_NE(faultAfter([](auto& network) { network.gateWeights.pop_back(); }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.gateBias.clear(); }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.scoreWeights.push_back(1); }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.scoreBias.pop_back(); }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.posTransitions.pop_back(); }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.nameTransitions.push_back(0); }), "");
}

TEST(NetworkModel, refusesNumbersThatMightOverflow) {
    EXPECT_NE(faultAfter([](auto& network) { network.gateBias[7] = 4001; }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.scoreBias[7] = -4001; }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.posTransitions[7] = -32768; }), "");
    EXPECT_NE(faultAfter([](auto& network) { network.nameTransitions[7] = 32767; }), "");
}

} // namespace
} // namespace lexiform::linguistics
