#include "frame/recovery.h"

#include <algorithm>
#include <exception>

#include "core/text_encoding.h"
#include "window/parameter_file.h"

namespace korvet {

// The copy of every window that can be saved can be read again, with a million views.
static_assert(LargestCopy > LargestParameterFile + (std::size_t{128} << 20U));

std::string NameOfCopy(const RecoveryCopy& copy) {
    return Printable(copy.path.empty() ? copy.Category() + " (without a file)" : copy.path);
}

void Recovery::Keep(const Windows& windows) {
    DropGone(windows);
    std::exception_ptr failure;
    for (const auto& window : windows) {
        try {
            KeepOne(*window);
        } catch (const std::exception&) {
            failure = std::current_exception();
        }
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
}

void Recovery::KeepOne(const CFittingWindow& window) {
    if (!HasChanges(window)) {
        return;
    }
    const auto known = kept_.find(&window);
    const Kept now = {known != kept_.end() ? known->second.number : ++lastNumber_,
                      CopyOf(window, MeshInCopy::LeftOut).Compose(), window.mesh.DXFMesh.List1};
    if (known == kept_.end() || known->second != now) {
        store_.Keep(now.number, CopyOf(window).Compose());
        kept_[&window] = now;
    }
}

void Recovery::DropGone(const Windows& windows) {
    std::erase_if(kept_, [&](const auto& entry) {
        const bool wanted = std::any_of(windows.begin(), windows.end(), [&](const auto& window) {
            return window.get() == entry.first && HasChanges(*window);
        });
        if (!wanted) {
            store_.Drop(entry.second.number);
        }
        return !wanted;
    });
}

}  // namespace korvet
