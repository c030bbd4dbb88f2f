#include "platform/qt/adapters/QtUserDefaults.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace lexiform::qt {
namespace {

class UserDefaultsFile : public testing::Test {
protected:
    [[nodiscard]] QString path() const { return folder_.filePath("defaults.ini"); }

private:
    QTemporaryDir folder_;
};

TEST_F(UserDefaultsFile, givesNothingUnderAKeyThatWasNeverStored) {
    EXPECT_EQ(QtUserDefaults(path()).stringForKey("theKeyStr"), std::nullopt);
}

TEST_F(UserDefaultsFile, keepsStringsExactlyFromOneRunToTheNext) {
    for (const std::string value :
         {"Latn, Cyrl\n\n\n\n", "", " ", "@Variant(x)", "a;b=\"c\" %41 \\n", "море 🌊", "1", "true"}) {
        QtUserDefaults(path()).setString(value, "theKeyStr");
        EXPECT_EQ(QtUserDefaults(path()).stringForKey("theKeyStr"), value);
    }
}

TEST_F(UserDefaultsFile, showsAChangeToAnotherProgramAtOnce) {
    QtUserDefaults one(path());
    one.setString("a", "theKeyStr");
    EXPECT_EQ(QtUserDefaults(path()).stringForKey("theKeyStr"), "a");
}

TEST_F(UserDefaultsFile, keepsWhatAnotherProgramStoredUnderAnotherKey) {
    QtUserDefaults one(path());
    QtUserDefaults other(path());
    one.setString("key", "theKeyStr");
    other.setString("title", "windowTitle");
    one.setString("newer key", "theKeyStr");
    EXPECT_EQ(QtUserDefaults(path()).stringForKey("theKeyStr"), "newer key");
    EXPECT_EQ(QtUserDefaults(path()).stringForKey("windowTitle"), "title");
}

} // namespace
} // namespace lexiform::qt
