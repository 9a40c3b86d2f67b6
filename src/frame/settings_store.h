// Port: where the frame's place is kept between runs.
#pragma once

#include <optional>
#include <string>

namespace korvet {

/// Texts by key, in the section "Settings" of the application.
class SettingsStore {
  public:
    SettingsStore() = default;
    SettingsStore(const SettingsStore&) = delete;
    SettingsStore& operator=(const SettingsStore&) = delete;
    virtual ~SettingsStore() = default;

    [[nodiscard]] virtual std::optional<std::string> Get(const std::string& key) const = 0;
    virtual void Set(const std::string& key, const std::string& value) = 0;
};

}  // namespace korvet
