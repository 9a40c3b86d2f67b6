// The graphics application that fonts live in.
#pragma once

namespace korvet {

/// Pictures and sheets need one for their texts. A program without one gets one that needs no screen, and
/// keeps it to its end. Throws std::logic_error in a program that has an application of another kind.
void EnsureGraphicsApplication();

}  // namespace korvet
