#pragma once

#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <future>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace lexiform::cli {

/// Threads that turn inputs into results, which are taken in the order of the inputs. Each thread works
/// with a `Tool` of its own. With one thread nothing runs beside the caller.
template <typename Tool, typename Result>
class OrderedWorkers {
public:
    using Work = std::function<Result(Tool&)>;

    /// As many threads as there are `tools`, of which there is at least one.
    explicit OrderedWorkers(std::vector<Tool> tools) : tools_(std::move(tools)) {
        if (tools_.size() == 1) return;
        for (Tool& tool : tools_)
            threads_.emplace_back([this, &tool] { workWith(tool); });
    }
    ~OrderedWorkers() {
        {
            const std::lock_guard lock(mutex_);
            waiting_.clear();
            closed_ = true;
        }
        changed_.notify_all();
    }
    OrderedWorkers(const OrderedWorkers&) = delete;
    OrderedWorkers& operator=(const OrderedWorkers&) = delete;

    /// Whether another piece of work would only wait: take a result first.
    [[nodiscard]] bool isFull() const { return results_.size() >= 2 * tools_.size(); }
    [[nodiscard]] bool isEmpty() const { return results_.empty(); }

    void start(Work work) {
        std::packaged_task<Result(Tool&)> task(std::move(work));
        results_.push_back(task.get_future());
        if (threads_.empty()) return task(tools_.front());
        {
            const std::lock_guard lock(mutex_);
            waiting_.push_back(std::move(task));
        }
        changed_.notify_one();
    }

    /// The result of the oldest work whose result has not been taken; waits for it. What the work threw
    /// is thrown here.
    [[nodiscard]] Result take() {
        Result result = results_.front().get();
        results_.pop_front();
        return result;
    }

private:
    void workWith(Tool& tool) {
        while (true) {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [this] { return closed_ || !waiting_.empty(); });
            if (waiting_.empty()) return;
            std::packaged_task<Result(Tool&)> task = std::move(waiting_.front());
            waiting_.pop_front();
            lock.unlock();
            task(tool);
        }
    }

    std::vector<Tool> tools_;
    std::deque<std::future<Result>> results_;
    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<std::packaged_task<Result(Tool&)>> waiting_;
    bool closed_ = false;
    std::vector<std::jthread> threads_; // last: they end before what they use
};

} // namespace lexiform::cli
