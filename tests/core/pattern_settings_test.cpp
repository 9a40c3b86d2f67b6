#include "core/pattern_settings.h"

#include <gtest/gtest.h>

#include "core/thick_compensator.h"

namespace korvet {
namespace {

TEST(PatternSettings, StartAsAFullButtJoinedMeanPattern) {
    const CPatternSettings settings;
    EXPECT_EQ(settings.LapSize0, 0);
    EXPECT_EQ(settings.LapSize1, 0);
    EXPECT_EQ(settings.LapSize2, 0);
    EXPECT_EQ(settings.LapEnable, 0);
    EXPECT_EQ(settings.JoinType, 0);
    EXPECT_EQ(settings.JoinAngle, 0);
    EXPECT_EQ(settings.InOutMean, 0);
    EXPECT_EQ(settings.PositionString, "mean");
    EXPECT_EQ(settings.NoOfSides, 0);
    EXPECT_EQ(settings.segs, 24);
    EXPECT_EQ(settings.TemplateType, 0);
    EXPECT_FALSE(settings.HalfPattern);
    EXPECT_FALSE(settings.HalfPatternDisable);
    EXPECT_FALSE(settings.MaterialDisable);
    EXPECT_FALSE(settings.BranchMaterialEnable);
    EXPECT_FALSE(settings.TemplateTypeEnabled);
    EXPECT_FALSE(settings.KerfEnabled);
    EXPECT_FALSE(settings.JoinAngleDisable);
}

TEST(PatternSettings, LapMasksNameTheLapsBitByBit) {
    EXPECT_EQ(NoLaps, 0);
    EXPECT_EQ(SeamLapOnly, 2);
    EXPECT_EQ(AllLaps, 1 + 2 + 4);
}

TEST(PositionWord, NamesTheSideOfTheMaterial) {
    EXPECT_STREQ(PositionWord(MeanDimension), "mean");
    EXPECT_STREQ(PositionWord(InsideDimension), "inside");
    EXPECT_STREQ(PositionWord(OutsideDimension), "outside");
}

TEST(StatusString, ReadsSegmentsThicknessAndAngle) {
    CPatternSettings settings;
    EXPECT_EQ(StatusString(settings, '.'), " Segments = 24 | Thickness = 0 | Join Angle = 0");
    settings.segs = 48;
    settings.Thickness = 1.5;
    settings.JoinAngle = 22.5;
    EXPECT_EQ(StatusString(settings, '.'), " Segments = 48 | Thickness = 1.5 | Join Angle = 22.5");
    EXPECT_EQ(StatusString(settings, ','), " Segments = 48 | Thickness = 1,5 | Join Angle = 22,5");
}

}  // namespace
}  // namespace korvet
