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

/// desktop_tests [CLASS [OPTION...]]: all classes, or one with options of the test framework.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const std::string wanted = arguments.size() > 1 ? arguments[1].toStdString() : "";
    int failures = 0;
    int classes = 0;
    for (const auto& test : korvet::desktop::RegisteredTests()) {
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
