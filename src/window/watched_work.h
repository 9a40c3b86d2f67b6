// Work of a window that its user may have to wait for.
#pragma once

#include <optional>

#include "core/work_watch.h"
#include "window/context.h"

namespace korvet {

/// Shows, for as long as it lives, work that takes longer than the context's patience, with a way to cancel
/// it: the work then ends with WorkCancelled.
class WatchedWork {
  public:
    explicit WatchedWork(WindowContext& context);
    ~WatchedWork();
    WatchedWork(const WatchedWork&) = delete;
    WatchedWork& operator=(const WatchedWork&) = delete;

  private:
    bool Show(WorkWatch::Clock::duration taken);

    UserInterface& ui_;
    bool shown_ = false;
    std::optional<WorkWatch> watch_;
};

}  // namespace korvet
