// Work in several threads whose results are taken in order.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

namespace korvet::batch {

/// How many results may wait for their turn, for each thread.
inline constexpr std::size_t WaitingPerJob = 4;

/// The results of work on the numbers below `count`, between the threads that do it and the one that takes
/// them in order. No more than `ahead` are begun before the first of them is taken and done with.
template <typename Result>
class ResultsInOrder {
  public:
    ResultsInOrder(std::size_t count, std::size_t ahead) : results_(count), ahead_(ahead) {}

    /// The next number to work on; nothing when none is left or the work has failed.
    std::optional<std::size_t> Begin() {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return failure_ || AllAreBegun() || begun_ < doneWith_ + ahead_; });
        return failure_ || AllAreBegun() ? std::nullopt : std::optional(begun_++);
    }

    void Put(std::size_t i, std::unique_ptr<Result> result) {
        const std::lock_guard lock(mutex_);
        results_[i] = std::move(result);
        changed_.notify_all();
    }

    /// Ends the work with a failure, unless it has failed before.
    void Fail(std::exception_ptr failure) {
        const std::lock_guard lock(mutex_);
        failure_ = failure_ ? failure_ : std::move(failure);
        changed_.notify_all();
    }

    /// Waits for the result of i, to be asked for in order; null when the work has failed.
    std::unique_ptr<Result> Take(std::size_t i) {
        std::unique_lock lock(mutex_);
        doneWith_ = i;
        changed_.notify_all();
        changed_.wait(lock, [&] { return failure_ || results_[i]; });
        return failure_ ? nullptr : std::move(results_[i]);
    }

    /// Throws what the work has failed with.
    void ThrowFailure() {
        if (failure_) {
            std::rethrow_exception(failure_);
        }
    }

  private:
    [[nodiscard]] bool AllAreBegun() const { return begun_ == results_.size(); }

    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::unique_ptr<Result>> results_;
    std::size_t ahead_;
    std::size_t begun_ = 0;
    std::size_t doneWith_ = 0;
    std::exception_ptr failure_;
};

/// Begins `count` threads that call `run(number)`, or as many as the system gives.
template <typename Run>
void BeginThreads(std::vector<std::jthread>& threads, std::size_t count, Run run) {
    try {
        for (std::size_t i = 0; i < count; ++i) {
            threads.emplace_back(run, i);
        }
    } catch (const std::system_error&) {
        return;  // those that run do the work of all
    }
}

/// Calls `work(job, i)` for each i below `count`, in `jobs` threads, `job` being the number of the thread
/// from 0, and `take(i, result)` for each result in the order of i, in the calling thread, where all of it
/// runs when there is one job, and when the system gives no thread. `work` gives a unique_ptr to a Result;
/// where it throws, the exception comes out here, when the work under way has ended.
template <typename Result, typename Work, typename Take>
void InOrder(std::size_t count, int jobs, Work work, Take take) {
    const std::size_t threads = std::min(count, static_cast<std::size_t>(std::max(jobs, 1)));
    ResultsInOrder<Result> results(count, WaitingPerJob * threads);
    const auto workOn = [&](std::size_t job) {
        try {
            while (const auto i = results.Begin()) {
                results.Put(*i, work(job, *i));
            }
        } catch (...) {
            results.Fail(std::current_exception());
        }
    };
    std::vector<std::jthread> workers;
    try {
        BeginThreads(workers, threads > 1 ? threads : 0, workOn);
        std::unique_ptr<Result> result;
        for (std::size_t i = 0; i < count; ++i) {
            result = workers.empty() ? work(std::size_t{0}, i) : results.Take(i);
            if (!result) {
                break;
            }
            take(i, *result);
        }
    } catch (...) {
        results.Fail(std::current_exception());
    }
    workers.clear();  // joined
    results.ThrowFailure();
}

}  // namespace korvet::batch
