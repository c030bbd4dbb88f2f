#include "tests/app/ShellUnderTest.h"

#include <gtest/gtest.h>

namespace lexiform {
namespace {

/// Any body that is accepted shows an alert: an empty array.
class Response : public testing::Test {
protected:
    [[nodiscard]] bool isAccepted(std::optional<UrlResponse> response,
                                  std::optional<UrlError> error = std::nullopt) {
        ShellUnderTest shell;
        shell.delegate->checkForUpdate();
        shell.answer("()", std::move(response), std::move(error));
        EXPECT_EQ(shell.application->titles.back(), "Update not checked");
        return !shell.alerts.empty();
    }
};

TEST_F(Response, isAcceptedWithAStatusFrom200To299) {
    EXPECT_TRUE(isAccepted(UrlResponse{200, "text/xml"}));
    EXPECT_TRUE(isAccepted(UrlResponse{299, "text/xml"}));
    for (const int status : {0, 199, 300, 304, 404, 500})
        EXPECT_FALSE(isAccepted(UrlResponse{status, "text/xml"})) << status;
}

TEST_F(Response, isAcceptedAsTextOrXmlTextAlone) {
    EXPECT_TRUE(isAccepted(UrlResponse{200, "text/plain"}));
    for (const char* type : {"application/x-plist", "application/xml", "text/html", "Text/XML", "text/plain ",
                             "text/plain; charset=utf-8", ""})
        EXPECT_FALSE(isAccepted(UrlResponse{200, type})) << type;
    EXPECT_FALSE(isAccepted(UrlResponse{200, std::nullopt}));
}

TEST_F(Response, endsTheCheckWhenItIsMissingFailedOrNotOfHttp) {
    EXPECT_FALSE(isAccepted(std::nullopt));
    EXPECT_FALSE(isAccepted(UrlResponse{200, "text/xml"}, UrlError{"the connection was lost"}));
    EXPECT_FALSE(isAccepted(std::nullopt, UrlError{"no such host"}));
    EXPECT_FALSE(isAccepted(UrlResponse{std::nullopt, "text/xml"}));
}

TEST(ResponseHandling, leavesEverythingToTheMainThread) {
    const ShellUnderTest shell;
    shell.delegate->checkForUpdate();
    shell.session->completion("()", UrlResponse{200, "text/xml"}, std::nullopt);
    EXPECT_TRUE(shell.alerts.empty());
    EXPECT_EQ(shell.mainQueue->work.size(), 1U);
    shell.mainQueue->run();
    EXPECT_EQ(shell.alerts.size(), 1U);
}

} // namespace
} // namespace lexiform
