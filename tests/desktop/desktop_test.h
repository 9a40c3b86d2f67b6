// How the tests of the widgets are put together: each class registers itself, the program runs them all, or
// those named on its command line.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace korvet::desktop {

struct RegisteredTest {
    std::string name;
    std::function<std::unique_ptr<QObject>()> make;
};

std::vector<RegisteredTest>& RegisteredTests();

template <typename T>
struct Registered {
    explicit Registered(const char* name) {
        RegisteredTests().push_back({name, [] { return std::make_unique<T>(); }});
    }
};

}  // namespace korvet::desktop
