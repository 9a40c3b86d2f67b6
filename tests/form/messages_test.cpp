#include "form/messages.h"

#include <gtest/gtest.h>

#include <cstdint>

#include "core/fitting.h"

namespace korvet {
namespace {

std::string English(int id) {
    return GetMessage(id, "English");
}

TEST(Messages, ReadToTheLetter) {
    EXPECT_EQ(English(1), "DXF created");
    EXPECT_EQ(English(2), "Korvet Development");
    EXPECT_EQ(English(4), " ");
    EXPECT_EQ(English(17), "This dimension must be increased to allow for material thickness");
    EXPECT_EQ(English(24), "A lap join has been requested but no 'Lap Size' is specified");
    EXPECT_EQ(English(52), "Unable to initializing printer settings");
    EXPECT_EQ(English(87),
              "Press left mouse button down at first rotation reference point and release at second point");
    EXPECT_EQ(English(111), "A problem has occured creating the DXF file");
    EXPECT_EQ(English(113), "No printer were settings retrieved!");
    EXPECT_EQ(English(140), "Could not locate an active AutoCAD 2000 drawing.");
    EXPECT_EQ(English(152), "No suitable mesh found.  (see Help for more information)");
    EXPECT_EQ(English(157),
              "The 3D polygon mesh cannot be transfered to a drawing layout, only to model space");
}

TEST(Messages, BreakLinesWithCarriageReturnAndLineFeed) {
    EXPECT_EQ(English(29),
              "\r\n Either the branch pipe diameter or the offset distance is too large. "
              "\r\n This may also be due to the values for material thickness and Set-In/Set-On.");
    EXPECT_EQ(English(116), "\r\n The Settings.ini file is being updated.");
}

TEST(Messages, ThatTakeAValueEndInABlank) {
    for (const int id : {3, 5, 8, 12, 13, 14, 15, 16, 22, 27, 34, 35, 105, 110, 150}) {
        ASSERT_FALSE(English(id).empty()) << id;
        EXPECT_EQ(English(id).back(), ' ') << id;
    }
}

TEST(Messages, TheWholeCatalogueIsUnchanged) {
    // Number, letters and order of all texts, counted once from the printed catalogue: the sum moves with any
    // letter, so that a slip of the hand in the table shows.
    int count = 0;
    std::size_t letters = 0;
    std::uint64_t sum = 0xcbf29ce484222325U;
    for (int id = -10; id <= 1000; ++id) {
        const std::string text = English(id);
        if (text.empty()) {
            continue;
        }
        ++count;
        letters += text.size();
        for (const char c : std::to_string(id) + "=" + text + "\n") {
            sum = (sum ^ static_cast<unsigned char>(c)) * 0x100000001b3U;
        }
    }
    EXPECT_EQ(count, 83);
    EXPECT_EQ(letters, 2734U);
    EXPECT_EQ(sum, 0x3f3b0c998c86187aU);
}

TEST(Messages, NumbersWithoutATextAreEmpty) {
    for (const int id : {-1, 0, 30, 36, 41, 69, 82, 88, 112, 115, 119, 139, 144, 158, 100000}) {
        EXPECT_EQ(English(id), "") << id;
    }
}

TEST(Messages, OnlyEnglishHasTexts) {
    for (const char* language : {"French", "Italian", "German", "english", "", "English "}) {
        EXPECT_EQ(GetMessage(9, language), "") << language;
        EXPECT_EQ(GetMessage(2, language), "") << language;
    }
}

TEST(Messages, TheNamesStandForTheirNumbers) {
    EXPECT_EQ(English(MustBeLessThan), "This dimension must be less than ");
    EXPECT_EQ(English(MustBeGreaterThan), "This dimension must be greater than ");
    EXPECT_EQ(English(NotAValidNumber), "Not a valid number");
    EXPECT_EQ(English(MustBeAboveZero), "This dimension must be greater than 0");
    EXPECT_EQ(English(MustBeAtLeast), "This dimension must be equal to or greater than ");
    EXPECT_EQ(English(MustBeAtMost), "This dimension must be equal to or less than ");
    EXPECT_EQ(English(CannotBeEqualTo), "This dimension cannot be equal to ");
    EXPECT_EQ(English(MustBeInteger), "This dimension must be an integer (whole number)");
    EXPECT_EQ(English(HalfPatternNotApplicable), "Half pattern not applicable to this item");
    EXPECT_EQ(English(SeamLapTooLarge), "Lap join along seam may be too large");
    EXPECT_EQ(English(TopLapTooLarge), "Top lap is too large");
    EXPECT_EQ(English(PatternViewOnly), "This option is only available in pattern view");
    EXPECT_EQ(English(NotAtThisTime), "Operation cannot be carried out at this time");
    EXPECT_EQ(English(ControlsCaption), "");
    EXPECT_EQ(English(SaveParameterFile), "Save parameter file");
    EXPECT_EQ(English(GlobalOptionsCaption), "Global Options");
    EXPECT_EQ(English(NotAValidFile), "Not a valid ");
}

}  // namespace
}  // namespace korvet
