#include "platform/qt/adapters/QtUserDefaults.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <unistd.h>

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

/// Stores a string as another program does, in a process of its own.
void storeElsewhere(const QString& path, std::string_view value, std::string_view key) {
    const pid_t other = fork();
    if (other == 0) {
        QtUserDefaults(path).setString(value, key);
        _exit(0);
    }
    int status = 0;
    ASSERT_EQ(waitpid(other, &status, 0), other);
    ASSERT_EQ(status, 0);
}

TEST_F(UserDefaultsFile, showsWhatAnotherProgramHasStored) {
    QtUserDefaults own(path());
    own.setString("mine", "theKeyStr");
    storeElsewhere(path(), "another's, and longer", "theKeyStr");
    EXPECT_EQ(own.stringForKey("theKeyStr"), "another's, and longer");
}

TEST_F(UserDefaultsFile, keepsWhatAnotherProgramStoredUnderAnotherKey) {
    QtUserDefaults own(path());
    own.setString("key", "theKeyStr");
    storeElsewhere(path(), "title", "windowTitle");
    own.setString("newer key", "theKeyStr");
    EXPECT_EQ(own.stringForKey("theKeyStr"), "newer key");
    EXPECT_EQ(own.stringForKey("windowTitle"), "title");
}

TEST_F(UserDefaultsFile, keepsTruthAndNumbersExactlyFromOneRunToTheNext) {
    for (const bool value : {true, false}) {
        QtUserDefaults(path()).setBool(value, "noUpdateCheck");
        EXPECT_EQ(QtUserDefaults(path()).boolForKey("noUpdateCheck"), value);
    }
    for (const double value : {43200.0, 0.1, 817'412'345.678, 1e300, -7.5}) {
        QtUserDefaults(path()).setDouble(value, "updateCheckInt");
        EXPECT_EQ(QtUserDefaults(path()).doubleForKey("updateCheckInt"), value);
    }
}

TEST_F(UserDefaultsFile, readsAnAbsentValueAsFalseAndZero) {
    EXPECT_FALSE(QtUserDefaults(path()).boolForKey("noUpdateCheck"));
    EXPECT_EQ(QtUserDefaults(path()).doubleForKey("updateCheckInt"), 0.0);
}

} // namespace
} // namespace lexiform::qt
