#include "core/work_watch.h"

#include <utility>

namespace korvet {
namespace {

constexpr std::chrono::milliseconds AskEvery{50};

thread_local WorkWatch* current = nullptr;

}  // namespace

WorkWatch::WorkWatch(Clock::duration patience, GoesOn goesOn)
    : goesOn_(std::move(goesOn)), start_(Clock::now()), next_(start_ + patience) {
    if (current == nullptr) {
        current = this;
    }
}

WorkWatch::~WorkWatch() {
    if (current == this) {
        current = nullptr;
    }
}

void WorkWatch::Look() {
    if (current != nullptr) {
        current->LookAtClock();
    }
}

void WorkWatch::LookAtClock() {
    const Clock::time_point now = Clock::now();
    if (now < next_) {
        return;
    }
    next_ = Clock::time_point::max();  // whatever runs while the user is asked is not the work
    const bool goesOn = goesOn_(now - start_);
    next_ = goesOn ? Clock::now() + AskEvery : start_;
    if (!goesOn) {
        throw WorkCancelled();
    }
}

}  // namespace korvet
