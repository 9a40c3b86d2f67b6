// Work in several threads whose results are taken in order.
#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace korvet::batch {

/// How many results may wait for their turn, for each thread.
inline constexpr std::size_t WaitingPerJob = 4;

/// Calls `work(job, i)` for each i below `count`, in `jobs` threads, `job` being the number of the thread
/// from 0, and `take(i, result)` for each result in the order of i, in the calling thread, where all of it
/// runs when there is one job. `work` gives a unique_ptr to a Result; where it throws, the exception comes
/// out here, when the work under way has ended.
template <typename Result, typename Work, typename Take>
void InOrder(std::size_t count, int jobs, Work work, Take take) {
    const std::size_t threads = std::min(count, static_cast<std::size_t>(std::max(jobs, 1)));
    if (threads <= 1) {
        for (std::size_t i = 0; i < count; ++i) {
            take(i, *work(std::size_t{0}, i));
        }
        return;
    }
    std::mutex mutex;
    std::condition_variable changed;
    std::map<std::size_t, std::unique_ptr<Result>> done;
    std::size_t next = 0;   // to be begun
    std::size_t taken = 0;  // in their order
    std::exception_ptr failure;
    const auto goOn = [&](std::size_t job) {
        std::unique_lock lock(mutex);
        while (true) {
            changed.wait(lock,
                         [&] { return failure || next == count || next < taken + WaitingPerJob * threads; });
            if (failure || next == count) {
                return;
            }
            const std::size_t i = next++;
            lock.unlock();
            std::unique_ptr<Result> result;
            std::exception_ptr thrown;
            try {
                result = work(job, i);
            } catch (...) {
                thrown = std::current_exception();
            }
            lock.lock();
            if (thrown) {
                failure = thrown;
            } else {
                done[i] = std::move(result);
            }
            changed.notify_all();
        }
    };
    std::vector<std::jthread> workers;
    const auto stop = [&](std::exception_ptr reason) {
        const std::lock_guard lock(mutex);
        failure = std::move(reason);
        changed.notify_all();
    };
    try {
        for (std::size_t i = 0; i < threads; ++i) {
            workers.emplace_back(goOn, i);
        }
        std::unique_lock lock(mutex);
        while (taken < count && !failure) {
            changed.wait(lock, [&] { return failure || done.contains(taken); });
            if (failure) {
                break;
            }
            const std::unique_ptr<Result> result = std::move(done.extract(taken).mapped());
            lock.unlock();
            take(taken, *result);
            lock.lock();
            ++taken;
            changed.notify_all();
        }
    } catch (...) {
        stop(std::current_exception());
    }
    workers.clear();  // joined
    if (failure) {
        std::rethrow_exception(failure);
    }
}

}  // namespace korvet::batch
