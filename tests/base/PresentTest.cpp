#include "base/present.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace lexiform {
namespace {

TEST(Present, givesWhatAReferenceRefersTo) {
    const auto shared = std::make_shared<int>(1);
    const auto unique = std::make_unique<int>(2);
    EXPECT_EQ(present(shared), 1);
    EXPECT_EQ(present(unique), 2);
    EXPECT_EQ(*present(std::weak_ptr<int>(shared)), 1);
    EXPECT_EQ(present(std::optional<int>(3)), 3);
}

TEST(PresentDeathTest, stopsTheProgramForAnAbsentReference) {
    EXPECT_DEATH((void)present(std::shared_ptr<int>()), "not connected");
    EXPECT_DEATH((void)present(std::unique_ptr<int>()), "not connected");
    EXPECT_DEATH((void)present(std::weak_ptr<int>()), "not connected");
    EXPECT_DEATH((void)present(std::optional<int>()), "absent");
}

TEST(PresentDeathTest, stopsTheProgramForAWeakReferenceWhoseTargetIsGone) {
    auto target = std::make_shared<int>(1);
    const std::weak_ptr<int> reference = target;
    target.reset();
    EXPECT_DEATH((void)present(reference), "not connected");
}

} // namespace
} // namespace lexiform
