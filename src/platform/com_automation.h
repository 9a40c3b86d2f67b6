// Other programs on Windows, driven by the system's automation.
#pragma once

#ifdef _WIN32

#include "window/automation.h"

namespace korvet {

/// Late-bound: members are found by their names as they are used, and no type library is needed. For the
/// thread that makes it, as long as it lives.
class ComAutomation final : public Automation {
  public:
    ComAutomation();
    ~ComAutomation() override;

    [[nodiscard]] std::shared_ptr<AutomationObject> Running(const std::string& progId) override;

  private:
    bool initialised_;
};

}  // namespace korvet

#endif
