// A look at the clock in long work, so that whoever waits for it sees that it goes on and can end it.
#pragma once

#include <chrono>
#include <functional>
#include <stdexcept>

namespace korvet {

/// Ends work that nobody wants any more.
class WorkCancelled : public std::runtime_error {
  public:
    WorkCancelled() : std::runtime_error("the work has been cancelled") {}
};

/// Watches the work of its thread for as long as it lives; one within another watches nothing, since the
/// outer one does.
class WorkWatch {
  public:
    using Clock = std::chrono::steady_clock;

    /// Told how long the work has taken; false ends it.
    using GoesOn = std::function<bool(Clock::duration)>;

    /// `goesOn` is asked first after `patience`, and then several times a second.
    WorkWatch(Clock::duration patience, GoesOn goesOn);
    ~WorkWatch();
    WorkWatch(const WorkWatch&) = delete;
    WorkWatch& operator=(const WorkWatch&) = delete;

    /// Called by whatever may be done a million times. Throws WorkCancelled.
    static void Look();

  private:
    void LookAtClock();

    GoesOn goesOn_;
    Clock::time_point start_;
    Clock::time_point next_;
};

}  // namespace korvet
