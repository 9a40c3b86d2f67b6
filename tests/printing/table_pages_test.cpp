#include "printing/table_pages.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/recording_printers.h"

namespace korvet {
namespace {

using testing::ElementsAre;

class TablePages : public testing::Test {
  protected:
    TablePages() {
        printers.dotsPerInch = 72;  // a dot is a point; a line of 12 points is 14.4 dots high
        printers.margin = 0;
    }

    std::vector<std::shared_ptr<RecordingDevice>> Print(const std::string& text) {
        const auto job = printers.StartDoc(setup, "table", "");
        PrintLines(*job, text);
        job->EndDoc();
        return printers.documents.back().sheets;
    }

    RecordingPrinters printers;
    SheetSetup setup = {"PDF file", {9, "A4", 210, 297}, Portrait};
};

TEST_F(TablePages, TheFirstLineIsATitle) {
    const auto sheets = Print("Title\r\nfirst\r\n\r\nlast\r\n");
    ASSERT_EQ(sheets.size(), 1U);
    const auto texts = sheets[0]->Texts();
    EXPECT_THAT(sheets[0]->Strings(), ElementsAre(" Title", " first", " ", " last"));
    EXPECT_EQ(texts[0].font, (TextFont{-14, 0, FontFace::Arial, true}));
    EXPECT_EQ(texts[1].font, (TextFont{-12, 0, FontFace::CourierNew, false}));
    EXPECT_EQ(texts[0].points[0], (PixelPoint{14, 14}));  // 5 mm are 14.17 points
    EXPECT_EQ(texts[1].points[0], (PixelPoint{14, 31}));  // a title is 16.8 points high
    EXPECT_EQ(texts[2].points[0], (PixelPoint{14, 45}));
}

TEST_F(TablePages, ALineThatDoesNotFitBeginsTheNextSheet) {
    std::string text = "Title\r\n";
    for (int i = 1; i <= 120; ++i) {
        text += "row " + std::to_string(i) + "\r\n";
    }
    const auto sheets = Print(text);
    // 841.89 - 2 * 14.17 = 813.5 points; less the title's 16.8 there is room for 55 lines of 14.4, then 56.
    ASSERT_EQ(sheets.size(), 3U);
    EXPECT_EQ(sheets[0]->Strings().size(), 56U);
    EXPECT_EQ(sheets[1]->Strings().size(), 56U);
    EXPECT_EQ(sheets[1]->Strings().front(), " row 56");
    EXPECT_EQ(sheets[2]->Strings().size(), 9U);
    EXPECT_EQ(sheets[1]->Texts()[0].points[0], (PixelPoint{14, 14}));
    for (const auto& sheet : sheets) {
        for (const RecordingDevice::Call& line : sheet->Texts()) {
            EXPECT_LE(line.points[0].y + 14.4, 841.89 - 14);
        }
    }
}

}  // namespace
}  // namespace korvet
