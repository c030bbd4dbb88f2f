#include "tools/train/commands/renewLemmas.h"

#include "linguistics/file/MappedFile.h"
#include "linguistics/lemmas/Lemmatizer.h"
#include "tests/tools/train/TextFile.h"
#include "tools/train/file/ModelFileWriter.h"
#include "tools/train/file/writeFile.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lexiform::train {
namespace {

using namespace linguistics;
namespace fs = std::filesystem;

constexpr auto before = SectionId::network, after = SectionId::information;

// A sentence of `nouns` with a particle, which the lemma parts from them.
std::string withParticle(std::initializer_list<std::string> nouns) {
    std::string text;
    int id = 0;
    for (const std::string& noun : nouns) {
        text += std::to_string(++id);
        text += "\t" + noun + "는\t" + noun + "+는\tNOUN\t_\t_\t_\t_\t_\t_\n";
    }
    return text + "\n";
}

/// A folder with a model of two sections around lemmas of another version, and corpora for it.
class RenewLemmas : public testing::Test {
protected:
    RenewLemmas() : folder_(testing::UnitTest::GetInstance()->current_test_info()->name()) {
        folder_.write("ko/ko_gsd-train.salvaged.conllu", withParticle({"새", "나", "소", "꽃집", "바다"}));
        folder_.write("ko/ko_gsd-dev.conllu", withParticle({"하늘"}));
    }

    [[nodiscard]] fs::path model() const { return folder_.path() / "ko.lxm"; }

    void writeModel() const {
        ModelFileWriter writer("ko");
        writer.append(before, 7, std::vector<std::uint8_t>{1, 2, 3});
        writer.append(lemmaRules, lemmaVersion + 1, std::vector<std::uint8_t>{4});
        writer.append(after, 1, std::vector<std::uint8_t>{5, 6});
        ASSERT_TRUE(writeFile(model(), writer.bytes()));
    }

    [[nodiscard]] int renew(const std::string& language) const {
        return renewLemmas({language}, folder_.path(), folder_.path());
    }

    TextFolder folder_;
};

TEST_F(RenewLemmas, leavesTheOtherSectionsAsTheyAre) {
    writeModel();
    ASSERT_EQ(renew("ko"), 0);
    const auto mapped = MappedFile::open(model());
    const auto file = ModelFile::over(mapped.value()->bytes());
    ASSERT_TRUE(file.succeeded());
    std::vector<SectionId> ids;
    for (const SectionRecord& section : file.value().sections())
        ids.push_back(static_cast<SectionId>(section.id));
    EXPECT_EQ(ids, (std::vector{before, lemmaRules, lemmaBucketStarts, lemmaWeights, after}));
    EXPECT_THAT(file.value().section<std::uint8_t>(before, 7).value(), testing::ElementsAre(1, 2, 3));
    EXPECT_THAT(file.value().section<std::uint8_t>(after, 1).value(), testing::ElementsAre(5, 6));
}

TEST_F(RenewLemmas, putsLemmasThatCanBeUsedIntoTheModel) {
    writeModel();
    ASSERT_EQ(renew("ko"), 0);
    const auto mapped = MappedFile::open(model());
    const auto file = ModelFile::over(mapped.value()->bytes());
    const auto lemmas = LemmaModel::over(file.value());
    ASSERT_TRUE(lemmas.succeeded()) << lemmas.fault();
    const std::vector<TaggedWord> unseen = {{"바람는", UniversalPos::NOUN}};
    EXPECT_EQ(Lemmatizer(lemmas.value()).lemmaOf(unseen, 0).lemma, "바람+는");
}

TEST_F(RenewLemmas, saysWhichModelIsMissing) {
    testing::internal::CaptureStderr();
    EXPECT_EQ(renew("ko"), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "lexiform-train: " + model().string() + ": there is no model whose lemmas could be renewed\n");
}

TEST_F(RenewLemmas, leavesADamagedModelAlone) {
    folder_.write("ko.lxm", "no model");
    testing::internal::CaptureStderr();
    EXPECT_EQ(renew("ko"), 1);
    EXPECT_EQ(testing::internal::GetCapturedStderr(),
              "lexiform-train: " + model().string() + ": the file is too short for a model\n");
    EXPECT_EQ(fs::file_size(model()), 8U);
}

} // namespace
} // namespace lexiform::train
