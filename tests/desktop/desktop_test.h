// How the tests of the widgets are put together: each class registers itself, the program runs them all, or
// those named on its command line.
#pragma once

#include <QObject>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace korvet::desktop {

/// The screens on which a class is run: with one device pixel to the pixel, with two, or on both, where sizes
/// and pixels are looked at.
enum class Scale : std::uint8_t { One, Two, Both };

struct RegisteredTest {
    std::string name;
    Scale scale;
    std::function<std::unique_ptr<QObject>()> make;
};

std::vector<RegisteredTest>& RegisteredTests();

template <typename T>
struct Registered {
    explicit Registered(const char* name, Scale scale = Scale::One) {
        RegisteredTests().push_back({name, scale, [] { return std::make_unique<T>(); }});
    }
};

}  // namespace korvet::desktop
