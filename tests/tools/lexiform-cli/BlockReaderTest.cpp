#include "tools/lexiform-cli/BlockReader.h"

#include "linguistics/segmentation/ParagraphSplitter.h"
#include "tests/tools/lexiform-cli/CommandTest.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace lexiform::cli {
namespace {

class BlockReaderTest : public CommandTest {
protected:
    std::vector<TextBlock> blocksOf(const std::string& text) {
        auto reader = BlockReader::open(file("text.txt", text));
        if (!reader.succeeded()) return {};
        BlockReader opened = std::move(reader).value();
        std::vector<TextBlock> blocks;
        for (auto block = opened.next(); block.succeeded() && block.value(); block = opened.next())
            blocks.push_back(*block.value());
        return blocks;
    }
};

std::string joined(const std::vector<TextBlock>& blocks) {
    std::string text;
    for (const TextBlock& block : blocks) {
        EXPECT_EQ(block.offset, text.size());
        text += block.text;
    }
    return text;
}

std::set<std::size_t> paragraphEnds(std::string_view text) {
    std::set<std::size_t> ends;
    for (std::size_t at = 0; at < text.size();)
        ends.insert(at = linguistics::paragraphAt(text, at).end());
    return ends;
}

TEST_F(BlockReaderTest, givesAShortTextAsOneBlockAndAnEmptyOneAsNone) {
    EXPECT_EQ(joined(blocksOf("one\n\ntwo")), "one\n\ntwo");
    EXPECT_EQ(blocksOf("one\n\ntwo").size(), 1U);
    EXPECT_TRUE(blocksOf("").empty());
}

TEST_F(BlockReaderTest, cutsALongTextBetweenItsParagraphs) {
    std::string text;
    for (int i = 0; text.size() < 2'000'000; ++i)
        text += std::string(static_cast<std::size_t>(i * 37 % 900), 'x') + (i % 3 == 0 ? "\n\n \n" : "\n");
    const auto blocks = blocksOf(text);
    EXPECT_GT(blocks.size(), 4U);
    EXPECT_EQ(joined(blocks), text);
    const auto ends = paragraphEnds(text);
    for (const TextBlock& block : blocks)
        EXPECT_TRUE(ends.contains(block.offset + block.text.size())) << block.offset;
}

TEST_F(BlockReaderTest, cutsALongLineWhereTheEngineWould) {
    std::string text;
    while (text.size() < 1'500'000)
        text += "слово 🏳️‍🌈 ";
    const auto blocks = blocksOf(text);
    EXPECT_GT(blocks.size(), 3U);
    EXPECT_EQ(joined(blocks), text);
    const auto ends = paragraphEnds(text);
    for (const TextBlock& block : blocks)
        EXPECT_TRUE(ends.contains(block.offset + block.text.size())) << block.offset;
}

TEST_F(BlockReaderTest, tellsWhereBytesAreNotUtf8) {
    auto reader = BlockReader::open(file("latin.txt", "caf\xE9"));
    ASSERT_TRUE(reader.succeeded());
    const auto block = std::move(reader).value().next();
    ASSERT_FALSE(block.succeeded());
    EXPECT_NE(block.fault().message.find("the byte at offset 3"), std::string::npos);
}

} // namespace
} // namespace lexiform::cli
