// The recovery copies of the windows of a run, and the offer of what an earlier run has left.
#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "core/points.h"
#include "frame/recovery_store.h"
#include "window/fitting_window.h"
#include "window/recovery_copy.h"

namespace korvet {

/// The choice that a start offers after a run that ended badly.
struct RecoveryDialog {
    enum class Choice { Later, OpenAll, DeleteAll };

    std::string caption;  ///< the product title
    std::string lblText = "The program did not end properly the last time. This was not saved:";
    std::vector<std::string> windows;  ///< a line for each
    std::string btnOpenAll = "&Open All";
    std::string btnDeleteAll = "Open None and &Delete";
    std::string btnLater = "&Later";
    Choice choice = Choice::Later;
};

/// The line of a copy: its file, or the fitting of a window that has none.
std::string NameOfCopy(const RecoveryCopy& copy);

/// Keeps the copies of the windows that hold anything unsaved.
class Recovery {
  public:
    /// The store must outlive it.
    explicit Recovery(RecoveryStore& store) : store_(store) {}

    using Windows = std::vector<std::unique_ptr<CFittingWindow>>;

    /// Writes the copies of windows that have changed since their last one, and takes those away that are no
    /// longer wanted: of windows that were saved, or are not among these any more. Throws the last error
    /// after it has tried all.
    void Keep(const Windows& windows);

  private:
    /// What the last copy of a window was made from, for telling whether another one is due.
    struct Kept {
        int number = 0;
        std::string withoutMesh;
        PointList mesh;
        bool operator==(const Kept&) const = default;
    };

    void KeepOne(const CFittingWindow& window);
    void DropGone(const Windows& windows);

    RecoveryStore& store_;
    std::map<const CFittingWindow*, Kept> kept_;
    int lastNumber_ = 0;
};

}  // namespace korvet
