// Port: today's date as the user's system writes it.
#pragma once

#include <string>

namespace korvet {

class Clock {
  public:
    Clock() = default;
    Clock(const Clock&) = delete;
    Clock& operator=(const Clock&) = delete;
    virtual ~Clock() = default;

    /// The current date in the system's short format.
    [[nodiscard]] virtual std::string ShortDate() const = 0;
};

}  // namespace korvet
