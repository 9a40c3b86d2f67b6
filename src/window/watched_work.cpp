#include "window/watched_work.h"

namespace korvet {
namespace {

constexpr std::size_t Whole = 1000;

/// How much there is to do is not known: the bar goes on, ever slower.
std::size_t DoneAfter(WorkWatch::Clock::duration taken) {
    constexpr double HalfTime = 10;  // seconds
    const double seconds = std::chrono::duration<double>(taken).count();
    return static_cast<std::size_t>(Whole * seconds / (seconds + HalfTime));
}

}  // namespace

WatchedWork::WatchedWork(WindowContext& context) : ui_(context.ui) {
    if (context.patience) {
        watch_.emplace(*context.patience, [this](auto taken) { return Show(taken); });
    }
}

WatchedWork::~WatchedWork() {
    if (shown_) {
        (void)ui_.GoesOn({{}, Whole, Whole});
    }
}

bool WatchedWork::Show(WorkWatch::Clock::duration taken) {
    shown_ = true;
    return ui_.GoesOn({"Working on the fitting", DoneAfter(taken), Whole});
}

}  // namespace korvet
