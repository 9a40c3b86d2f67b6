#include <QApplication>
#include <QTest>
#include <algorithm>
#include <cstdio>

#include "tests/desktop/desktop_test.h"

namespace korvet::desktop {

std::vector<RegisteredTest>& RegisteredTests() {
    static std::vector<RegisteredTest> tests;
    return tests;
}

}  // namespace korvet::desktop

using namespace korvet::desktop;

namespace {

/// The classes with the scales of the screens that they are for. Under the sanitizers once is enough: a
/// second scale is the same code once more.
void ListClasses() {
#ifdef KORVET_SANITIZE
    constexpr bool Again = false;
#else
    constexpr bool Again = true;
#endif
    for (const RegisteredTest& test : RegisteredTests()) {
        if (test.scale != Scale::Two) {
            std::printf("%s@1.\n", test.name.c_str());
        }
        if (test.scale == Scale::Two || (test.scale == Scale::Both && Again)) {
            std::printf("%s@2.\n", test.name.c_str());
        }
    }
}

}  // namespace

/// desktop_tests --list: names the classes. desktop_tests [CLASS [OPTION...]]: runs all of them, or one with
/// options of the test framework.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const std::string wanted = arguments.size() > 1 ? arguments[1].toStdString() : "";
    if (wanted == "--list") {
        ListClasses();
        return 0;
    }
    int failures = 0;
    int classes = 0;
    for (const RegisteredTest& test : RegisteredTests()) {
        if (!wanted.empty() && test.name != wanted) {
            continue;
        }
        ++classes;
        QStringList forTest = arguments;
        if (!wanted.empty()) {
            forTest.removeAt(1);
        }
        failures += QTest::qExec(test.make().get(), forTest);
    }
    if (classes == 0) {
        std::fprintf(stderr, "no test class %s\n", wanted.c_str());
        return 1;
    }
    return std::min(failures, 100);
}
