// Sheets as a PDF file: whole or not at all.
#include "platform/pdf_job.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/paper_device.h"
#include "platform/system_printers.h"
#include "tests/platform/temporary_folder.h"

namespace korvet {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;

class PdfJobTest : public testing::Test {
  protected:
    [[nodiscard]] std::unique_ptr<PrintJob> Start() { return printers.StartDoc(setup, "Cone", path); }

    static void Draw(DrawingDevice& sheet) {
        const std::vector<PixelPoint> line = {{0, 0}, {7200, 7200}};
        sheet.Polyline({}, line);
    }

    [[nodiscard]] std::string Contents() const {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

    /// How many pages the file tells of.
    [[nodiscard]] int Pages() const {
        const std::string contents = Contents();
        const std::size_t at = contents.find("/Count ");
        return at == std::string::npos ? 0 : std::atoi(contents.c_str() + at + 7);
    }

    /// What ending the document says; empty when it ends well.
    static std::string EndOf(PrintJob& job) {
        try {
            job.EndDoc();
            return "";
        } catch (const PrintError& error) {
            return error.what();
        }
    }

    const TemporaryFolder place;
    const fs::path& folder = place.Path();
    std::string path = (folder / "sheets.pdf").string();
    DiskFiles files;
    SystemPrinters printers{files};
    SheetSetup setup = {PdfPrinter, PdfPapers().front(), Portrait};
};

TEST_F(PdfJobTest, EverySheetIsAPage) {
    const auto job = Start();
    for (int i = 0; i < 3; ++i) {
        Draw(job->NewPage());
    }
    EXPECT_FALSE(fs::exists(path));  // not before it is whole
    EXPECT_EQ(EndOf(*job), "");
    EXPECT_EQ(Pages(), 3);
    EXPECT_EQ(place.Entries(), 1);
}

TEST_F(PdfJobTest, EverySheetHasItsLinesWithoutATextBehindThem) {
    const auto lengthWith = [this](bool onFirst, bool onSecond) {
        const auto job = Start();
        for (const bool lines : {onFirst, onSecond}) {
            DrawingDevice& sheet = job->NewPage();
            for (int x = 0; lines && x < 200; ++x) {
                const PixelPoint line[] = {{x * x, 7 * x}, {x, 300 + x * x}};
                sheet.Polyline({}, line);
            }
        }
        job->EndDoc();
        return Contents().size();
    };
    const std::size_t packedLines = 200 * 4;  // bytes at least
    const std::size_t empty = lengthWith(false, false);
    EXPECT_GT(lengthWith(true, false), empty + packedLines);
    EXPECT_GT(lengthWith(false, true), empty + packedLines);
}

TEST_F(PdfJobTest, ASheetIsThePaperInFineDots) {
    const PrintableArea area = printers.AreaOf(setup);
    EXPECT_NEAR(area.width, 210, 25.4 / 144);  // whole points
    EXPECT_NEAR(area.height, 297, 25.4 / 144);
    const auto job = Start();
    const DrawingDevice& sheet = job->NewPage();
    EXPECT_DOUBLE_EQ(sheet.ScaleSize().width / PaperDotsPerInch * 25.4, area.width);
    EXPECT_DOUBLE_EQ(sheet.ScaleSize().height / PaperDotsPerInch * 25.4, area.height);
    EXPECT_EQ(sheet.LogicalDpiY(), PaperDotsPerInch);
    setup.orientation = Landscape;
    EXPECT_DOUBLE_EQ(printers.AreaOf(setup).width, area.height);
}

TEST_F(PdfJobTest, GivenUpItLeavesTheOldFileAndNothingElse) {
    std::ofstream(path, std::ios::binary) << "old";
    {
        const auto job = Start();
        Draw(job->NewPage());
        Draw(job->NewPage());
    }
    EXPECT_EQ(Contents(), "old");
    EXPECT_EQ(place.Entries(), 1);
    (void)Start();  // given up before its first sheet
    EXPECT_EQ(Contents(), "old");
}

TEST_F(PdfJobTest, WithoutASheetThereIsNoDocument) {
    const auto job = Start();
    EXPECT_NE(EndOf(*job), "");
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(PdfJobTest, ItTakesThePlaceOfTheOldFile) {
    std::ofstream(path, std::ios::binary) << "old";
    const auto job = Start();
    Draw(job->NewPage());
    EXPECT_EQ(EndOf(*job), "");
    EXPECT_EQ(Contents().substr(0, 5), "%PDF-");
    EXPECT_EQ(place.Entries(), 1);
}

TEST_F(PdfJobTest, ItIsMadeInAFileThatNamesTheProgramAndTellsOfPartedNames) {
    std::vector<std::string> told;
    files.onPartedNames = [&told](const std::string& parted) { told.push_back(parted); };
    std::ofstream(path, std::ios::binary) << "old";
    fs::create_hard_link(path, folder / "other");
    const auto job = Start();
    const auto isOurs = [](const fs::path& file) {
        return file.filename().string().starts_with("korvet-") && file.extension() == ".tmp";
    };
    EXPECT_EQ(std::count_if(fs::directory_iterator(folder), fs::directory_iterator(), isOurs), 1);
    Draw(job->NewPage());
    EXPECT_EQ(EndOf(*job), "");
    EXPECT_EQ(place.Entries(), 2);
    EXPECT_EQ(told, std::vector<std::string>{path});
}

TEST_F(PdfJobTest, AFolderThatIsNotThereIsToldOf) {
    path = (folder / "none" / "sheets.pdf").string();
    try {
        (void)Start();
        FAIL();
    } catch (const PrintError& error) {
        EXPECT_THAT(error.what(),
                    HasSubstr("none/sheets.pdf cannot be written: no file can be made in the folder "));
    }
}

#ifdef __linux__
TEST_F(PdfJobTest, AFullDiskIsToldOfAndADeviceStaysADevice) {
    path = "/dev/full";
    const auto job = Start();
    for (int i = 0; i < 20; ++i) {
        Draw(job->NewPage());
    }
    EXPECT_THAT(EndOf(*job), HasSubstr("/dev/full cannot be written: No space left on device"));
    EXPECT_TRUE(fs::is_character_file(path));
}
#endif

TEST_F(PdfJobTest, TextIsMeasuredAsItIsDrawn) {
    const auto job = Start();
    const DrawingDevice& sheet = job->NewPage();
    const PixelSize ten = sheet.TextExtent("1234", 10);
    const PixelSize twenty = sheet.TextExtent("1234", 20);
    EXPECT_NEAR(twenty.width / ten.width, 2, 0.01);
    // Arial's digits are 0.556 of its size wide.
    EXPECT_NEAR(ten.width / PaperDotsPerInch * 72, 4 * 0.556 * 10, 0.2);
}

}  // namespace
}  // namespace korvet
