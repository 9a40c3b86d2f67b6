// The clock of the system the program runs on.
#pragma once

#include "window/clock.h"

namespace korvet {

class SystemClock : public Clock {
  public:
    [[nodiscard]] std::string ShortDate() const override;
};

/// The decimal mark of the system's locale.
char SystemDecimalMark();

/// Gives the C library its decimal point back: a graphics application takes over the user's mark for it.
void HoldNumericLocale();

}  // namespace korvet
