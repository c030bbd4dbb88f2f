#include "platform/qt/documents/readInBackground.h"

#include <QApplication>
#include <QProgressDialog>
#include <QTimer>

#include <gtest/gtest.h>

#include <thread>

namespace lexiform::qt {
namespace {

TEST(ReadInBackground, letsThePersonCancelASlowDisk) {
    const auto slow = [](const QString&, const ReadObserver& goesOn) -> Outcome<std::string, OpenFault> {
        while (goesOn(1, 100))
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return OpenFault::cancelled;
    };
    QTimer person;
    QObject::connect(&person, &QTimer::timeout, [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* progress = qobject_cast<QProgressDialog*>(window)) emit progress->canceled();
    });
    person.start(20);
    const auto outcome = readInBackground("slow.txt", slow, std::chrono::milliseconds(10));
    ASSERT_FALSE(outcome.succeeded());
    EXPECT_EQ(outcome.fault(), OpenFault::cancelled);
}

TEST(ReadInBackground, givesTheBytesOfADiskThatTakesItsTime) {
    const auto late = [](const QString&, const ReadObserver&) -> Outcome<std::string, OpenFault> {
        std::this_thread::sleep_for(std::chrono::milliseconds(120));
        return std::string("The cat");
    };
    const auto outcome = readInBackground("late.txt", late, std::chrono::milliseconds(10));
    ASSERT_TRUE(outcome.succeeded());
    EXPECT_EQ(outcome.value(), "The cat");
}

} // namespace
} // namespace lexiform::qt
