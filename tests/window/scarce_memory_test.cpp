// A memory that gives out: what fails of it says so in words of the program's own.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>

#include "tests/support/test_context.h"
#include "window/fitting_window.h"
#include "window/views.h"

namespace korvet {
namespace {

class ScarceMemoryTest : public testing::Test {
  protected:
    void SetUp() override {
        AcceptExports(shell.ui);
        window->ClickView(PatternButton);
    }

    /// What is shown of an operation for which there is no memory once it comes to the file.
    std::string SaidOf(const std::string& path, const std::function<Outcome()>& operation) {
        shell.files.exhausting = {path};
        shell.ui.messages.clear();
        EXPECT_EQ(operation(), Refused);
        shell.files.exhausting.clear();
        EXPECT_EQ(shell.ui.messages.size(), 1U);
        return shell.ui.messages.empty() ? "" : shell.ui.messages[0].text + "|" + shell.ui.messages[0].detail;
    }

    TestShell shell;
    std::unique_ptr<CFittingWindow> window = shell.OpenSample("Right Cone", 2);
};

TEST_F(ScarceMemoryTest, IsTheReasonWhyAFileIsNotLoaded) {
    ASSERT_EQ(window->SaveFile("cone.Kvt"), Passed);
    EXPECT_EQ(SaidOf("cone.Kvt", [&] { return window->LoadFile("cone.Kvt"); }),
              shell.context.Message(ErrorLoading) + "|cone.Kvt: there is not enough memory");
}

TEST_F(ScarceMemoryTest, IsTheReasonWhyAFileIsNotSaved) {
    EXPECT_EQ(SaidOf("cone.Kvt", [&] { return window->SaveFile("cone.Kvt"); }),
              "there is not enough memory|");
}

TEST_F(ScarceMemoryTest, IsTheReasonWhyNothingIsExported) {
    EXPECT_EQ(SaidOf("cone.dxf", [&] { return window->Export("cone.dxf", ExportMode::Dxf); }),
              "A problem has occured creating the DXF file 7|there is not enough memory");
    shell.context.transfer = nullptr;
    EXPECT_EQ(SaidOf("cone.plt", [&] { return window->Export("cone.plt", ExportMode::Plotter); }),
              "A problem has occured creating the DXF file 7|there is not enough memory");
    EXPECT_EQ(SaidOf("table.txt", [&] { return window->WriteTable("table.txt"); }),
              "Error in COptions:WriteTableFile|there is not enough memory");
}

}  // namespace
}  // namespace korvet
