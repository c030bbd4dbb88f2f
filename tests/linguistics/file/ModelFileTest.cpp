#include "linguistics/file/ModelFormat.h"
#include "linguistics/model/Model.h"
#include "linguistics/model/ModelStore.h"
#include "tests/linguistics/AnalysedText.h"

#include <gtest/gtest.h>

#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <thread>

#include <unistd.h>

namespace lexiform::linguistics {
namespace {

namespace fs = std::filesystem;

/// A folder of its own, with a model file of whatever bytes a test wants.
class ModelFile : public testing::Test {
protected:
    ModelFile()
        : folder_(
              fs::path(testing::TempDir()) /
              (testing::UnitTest::GetInstance()->current_test_info()->name() + std::to_string(::getpid()))) {
        fs::create_directories(folder_);
        std::ifstream input(fs::path(LEXIFORM_MODELS_DIR) / "en.lxm", std::ios::binary);
        good_.assign(std::istreambuf_iterator<char>(input), {});
    }
    ~ModelFile() override { fs::remove_all(folder_); }

    fs::path write(const std::string& bytes) {
        const fs::path file = folder_ / "en.lxm";
        std::ofstream(file, std::ios::binary) << bytes;
        return file;
    }

    std::string faultOf(const std::string& bytes) {
        const auto loaded = Model::load(write(bytes));
        return loaded.succeeded() ? "" : loaded.fault().reason;
    }

    // The bytes with a checksum that fits them, so that what is wrong has to be found by itself.
    static std::string sealed(std::string bytes) {
        const std::span all(reinterpret_cast<const std::byte*>(bytes.data()), bytes.size());
        const std::uint64_t checksum = checksumOf(all);
        std::memcpy(bytes.data() + offsetof(ModelHeader, checksum), &checksum, sizeof(checksum));
        return bytes;
    }

    static ModelHeader headerOf(const std::string& bytes) {
        ModelHeader header;
        std::memcpy(&header, bytes.data(), sizeof(header));
        return header;
    }

    template <typename Value>
    static std::string with(std::string bytes, std::size_t offset, Value value) {
        std::memcpy(bytes.data() + offset, &value, sizeof(value));
        return bytes;
    }

    static std::vector<SectionRecord> sectionsOf(const std::string& bytes) {
        std::vector<SectionRecord> records(headerOf(bytes).sectionCount);
        std::memcpy(records.data(), bytes.data() + sizeof(ModelHeader),
                    records.size() * sizeof(SectionRecord));
        return records;
    }

    std::size_t sectionAt(SectionId id) const {
        for (const SectionRecord& record : sectionsOf(good_))
            if (record.id == static_cast<std::uint32_t>(id)) return record.offset;
        ADD_FAILURE() << "the model has no section " << static_cast<std::uint32_t>(id);
        return 0;
    }

    fs::path folder_;
    std::string good_;
};

TEST_F(ModelFile, loadsAsItIs) {
    EXPECT_EQ(faultOf(good_), "");
}

TEST_F(ModelFile, isRefusedWhenEmptyOrNoModel) {
    EXPECT_EQ(faultOf(""), "the file is too short for a model");
    EXPECT_EQ(faultOf(std::string(5000, '\0')), "the file is not a model");
    EXPECT_EQ(faultOf(std::string(5000, 'x')), "the file is not a model");
}

TEST_F(ModelFile, isRefusedWhereverItIsTruncated) {
    std::vector<std::size_t> places = {
        1, 7, 8, 31, sizeof(ModelHeader) - 1, sizeof(ModelHeader), good_.size() - 1};
    for (const SectionRecord& section : sectionsOf(good_))
        for (const std::size_t place :
             {section.offset, section.offset + 1, section.offset + section.size / 2})
            places.push_back(place);
    for (const std::size_t place : places)
        EXPECT_NE(faultOf(good_.substr(0, place)), "") << place;
}

TEST_F(ModelFile, isRefusedWhenBytesAreFlipped) {
    for (std::size_t place = 0; place < sizeof(ModelHeader); ++place)
        EXPECT_NE(faultOf(with(good_, place, static_cast<char>(good_[place] ^ 0x41))), "") << place;
    for (std::size_t place = sizeof(ModelHeader); place < good_.size(); place += good_.size() / 50)
        EXPECT_EQ(faultOf(with(good_, place, static_cast<char>(good_[place] ^ 1))),
                  "the file is damaged: its checksum is wrong");
}

TEST_F(ModelFile, isRefusedInAnotherVersion) {
    EXPECT_EQ(faultOf(with(good_, offsetof(ModelHeader, version), std::uint32_t{99})),
              "the model is of version 99, this program reads " + std::to_string(modelVersion));
    for (std::size_t i = 0; i < sectionsOf(good_).size(); ++i) {
        const std::size_t place =
            sizeof(ModelHeader) + i * sizeof(SectionRecord) + offsetof(SectionRecord, version);
        EXPECT_NE(faultOf(sealed(with(good_, place, std::uint32_t{99}))), "") << i;
    }
}

TEST_F(ModelFile, isRefusedWithSectionsOutsideTheFile) {
    for (std::size_t i = 0; i < sectionsOf(good_).size(); ++i) {
        const std::size_t record = sizeof(ModelHeader) + i * sizeof(SectionRecord);
        const std::size_t offset = record + offsetof(SectionRecord, offset);
        const std::size_t size = record + offsetof(SectionRecord, size);
        for (const std::uint64_t wrong :
             {std::uint64_t{0}, std::uint64_t{sizeof(ModelHeader) + 1}, good_.size() + 8, ~std::uint64_t{7}})
            EXPECT_NE(faultOf(sealed(with(good_, offset, wrong))), "") << i << " " << wrong;
        for (const std::uint64_t wrong :
             {std::uint64_t{3}, good_.size(), ~std::uint64_t{0}, ~std::uint64_t{7}})
            EXPECT_NE(faultOf(sealed(with(good_, size, wrong))), "") << i << " " << wrong;
    }
}

TEST_F(ModelFile, leavesWordsWithoutAClassWhenItIsDamaged) {
    write(good_.substr(0, good_.size() / 2));
    const Engine engine(std::make_shared<const ModelStore>(std::vector<fs::path>{folder_}));
    engine.analyse("The cat sat.", [](const Paragraph& paragraph) {
        EXPECT_EQ(paragraph.tokens.front().pos, UniversalPos::X);
        EXPECT_EQ(paragraph.tokens.back().pos, UniversalPos::PUNCT);
        return true;
    });
}

TEST_F(ModelFile, isAFolderAtWorst) {
    fs::create_directory(folder_ / "en.lxm");
    EXPECT_EQ(Model::load(folder_ / "en.lxm").fault().reason, "it cannot be read: it is not a regular file");
}

TEST_F(ModelFile, isFoundInTheFirstFolderThatHasIt) {
    write("not a model");
    const ModelStore damagedFirst({"/nonexistent", folder_, LEXIFORM_MODELS_DIR});
    EXPECT_EQ(damagedFirst.check("en").fault().file, folder_ / "en.lxm");
    const ModelStore goodFirst({LEXIFORM_MODELS_DIR, folder_});
    EXPECT_TRUE(goodFirst.check("en").succeeded());
}

TEST(ModelStoreTest, saysThatThereIsNoModelForALanguage) {
    const ModelStore store({LEXIFORM_MODELS_DIR});
    const auto check = store.check("xx");
    ASSERT_FALSE(check.succeeded());
    EXPECT_TRUE(check.fault().missing);
    EXPECT_EQ(check.fault().reason, "no folder of models holds xx.lxm");
}

TEST(ModelStoreTest, givesSeveralThreadsTheSameModel) {
    const ModelStore store({LEXIFORM_MODELS_DIR});
    std::array<const Model*, 4> models{};
    {
        std::vector<std::jthread> threads;
        for (const Model*& model : models)
            threads.emplace_back([&] { model = store.model("en").value().get(); });
    }
    for (const Model* model : models)
        EXPECT_EQ(model, models[0]);
}

} // namespace
} // namespace lexiform::linguistics
