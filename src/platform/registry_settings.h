// The settings that the user's system keeps for the program.
#pragma once

#include "frame/settings_store.h"

namespace korvet {

/// The section "Settings" of the application: in the registry, or in the file that stands for it.
class RegistrySettings final : public SettingsStore {
  public:
    [[nodiscard]] std::optional<std::string> Get(const std::string& key) const override;
    void Set(const std::string& key, const std::string& value) override;
};

}  // namespace korvet
