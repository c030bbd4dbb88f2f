#include "tools/lexiform-cli/OrderedWorkers.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <memory>
#include <stdexcept>
#include <string>

namespace lexiform::cli {
namespace {

struct Counter {
    int uses = 0;
};

using Workers = OrderedWorkers<Counter, std::string>;

std::string resultsInOrder(std::size_t threads) {
    Workers workers{std::vector<Counter>(threads)};
    std::string results;
    for (int i = 0; i < 40; ++i) {
        if (workers.isFull()) results += workers.take();
        workers.start([i](Counter& counter) {
            ++counter.uses;
            // The first ones take longest, so that order is not given by speed.
            std::this_thread::sleep_for(std::chrono::microseconds(i % 4 == 0 ? 500 : 0));
            return std::to_string(i) + " ";
        });
    }
    while (!workers.isEmpty())
        results += workers.take();
    return results;
}

TEST(OrderedWorkers, giveResultsInTheOrderOfTheWorkForAnyNumberOfThreads) {
    const std::string alone = resultsInOrder(1);
    EXPECT_TRUE(alone.starts_with("0 1 2 3 "));
    EXPECT_EQ(resultsInOrder(2), alone);
    EXPECT_EQ(resultsInOrder(7), alone);
}

TEST(OrderedWorkers, throwWhatTheWorkThrewWhereItsResultIsTaken) {
    Workers workers{std::vector<Counter>(2)};
    workers.start([](Counter&) -> std::string { throw std::runtime_error("no"); });
    workers.start([](Counter&) { return std::string("yes"); });
    EXPECT_THROW((void)workers.take(), std::runtime_error);
    workers.start([](Counter&) { return std::string("on"); });
}

TEST(OrderedWorkers, mayBeLeftWithWorkWaiting) {
    const auto ran = std::make_shared<std::atomic<int>>(0);
    {
        Workers workers{std::vector<Counter>(2)};
        for (int i = 0; i < 4; ++i)
            workers.start([ran](Counter&) {
                ++*ran;
                return std::string();
            });
    }
    EXPECT_LE(*ran, 4);
    EXPECT_EQ(ran.use_count(), 1); // nothing holds on to the work
}

} // namespace
} // namespace lexiform::cli
