// Drawing files as another program reads them: ezdxf opens, audits and measures what was written.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <numbers>
#include <sstream>
#include <string>

#include "exchange/dxf.h"
#include "tests/exchange/dxf_reading.h"

namespace korvet {
namespace {

using dxf_reading::List;

/// A flat right cone: arcs of the two radii over `turn` radians in n stations, every other one a rule
/// station.
CDXF Cone(double small, double large, double turn, int n) {
    CRuleSurf surface;
    surface.List1 = List("");
    surface.List2 = List("");
    for (int i = 0; i < n; ++i) {
        const double angle = turn * i / (n - 1);
        const std::int16_t flag = i % 2 == 0 ? RuleStation : PlainStation;
        surface.List1->Add({small * std::cos(angle), small * std::sin(angle), 0, flag});
        surface.List2->Add({large * std::cos(angle), large * std::sin(angle), 0, flag});
    }
    CDXF dxf;
    dxf.Pattern = true;
    dxf.CutLayer = "CUT";
    dxf.FoldLayer = "FOLD";
    dxf.TextLayer = "TEXT";
    dxf.DimensionLayer = "DIM";
    dxf.TextSize = 5;
    dxf.Decimals = 1;
    dxf.OutlinesRequested = true;
    dxf.BendLinesRequested = true;
    dxf.SurfaceList.Add(surface);
    return dxf;
}

/// A folder with files and what is expected of them, put before the reader.
class DxfReader : public testing::Test {
  protected:
    void SetUp() override {
        folder_ =
            std::filesystem::path(testing::TempDir()) /
            ("dxf_reader_" + std::string(testing::UnitTest::GetInstance()->current_test_info()->name()));
        std::filesystem::remove_all(folder_);
        std::filesystem::create_directories(folder_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    /// Puts a file there; `expected` is the inside of its JSON object.
    void Put(const std::string& name, const std::string& text, const std::string& expected) {
        std::ofstream(folder_ / name, std::ios::binary) << text;
        files_ += " " + (folder_ / name).string();
        expectations_ += (expectations_.empty() ? "\"" : ",\n\"") + name + "\": {" + expected + "}";
    }

    /// Runs the reader, which must end with `status`.
    void CheckEnds(int status) {
        std::ofstream(folder_ / "expected.json") << "{" << expectations_ << "}";
        const std::string command = std::string("/usr/bin/python3 ") + KORVET_SOURCE_DIR +
                                    "/tests/exchange/check_dxf.py --expect " +
                                    (folder_ / "expected.json").string() + files_ + " >" +
                                    (folder_ / "report").string() + " 2>" + (folder_ / "complaints").string();
        const int ended = WEXITSTATUS(std::system(command.c_str()));
        EXPECT_EQ(ended, status) << Complaints();
    }

    [[nodiscard]] std::string Complaints() const {
        std::ostringstream text;
        text << std::ifstream(folder_ / "complaints").rdbuf();
        return text.str();
    }

  private:
    std::filesystem::path folder_;
    std::string files_;
    std::string expectations_;
};

std::string Outline(double length, double tolerance) {
    std::ostringstream text;
    text.precision(15);
    text << R"("outline": )" << length << R"(, "tolerance": )" << tolerance;
    return text.str();
}

TEST_F(DxfReader, MeasuresTheOutlineThatThePatternHas) {
    // 25 stations, 24 segments: a half arc at either end and 11 whole ones on each edge, 11 inner rule
    // stations.
    const CDXF cone = Cone(200, 500, 2.4, 25);
    Put("arcs.dxf", cone.Text(),
        R"("counts": {"LINE": {"CUT": 2, "FOLD": 11}, "ARC": {"CUT": 26}}, )" +
            Outline(700 * 2.4 + 2 * 300, 1e-4));

    CDXF polylines = cone;
    polylines.PolyMode = PolylineEdges;
    Put("polylines.dxf", polylines.Text(),
        R"("counts": {"LINE": {"CUT": 2, "FOLD": 11}, "POLYLINE": {"CUT": 2}}, )" +
            Outline(700 * 24 * 2 * std::sin(0.05) + 2 * 300, 1e-4));

    CDXF model = cone;
    model.Pattern = false;
    model.AcadPolygonMesh = true;
    Put("model.dxf", model.Text(),
        R"("counts": {"LINE": {"CUT": 50, "FOLD": 11}, "MESH": {"FOLD": 1}}, )" +
            Outline(700 * 24 * 2 * std::sin(0.05) + 2 * 300, 1e-4));

    // An even count writes the last segment of each edge twice.
    Put("even.dxf", Cone(200, 500, 2.4, 24).Text(),
        R"("counts": {"LINE": {"CUT": 2, "FOLD": 11}, "ARC": {"CUT": 26}}, )" +
            Outline(700 * 2.4 * 24 / 23 + 2 * 300, 1e-4));

    CheckEnds(0);
}

TEST_F(DxfReader, MeasuresACutPipeToItsSineCurve) {
    // y = 100 sin(x / 100) over one wave is as long as an ellipse with the axes 100 and 100 sqrt(2):
    // 764.0395578 by the arithmetic-geometric mean. The chords of 97 stations are 0.043 short of it.
    CDXF dxf = Cone(1, 2, 1, 3);
    CRuleSurf& surface = dxf.SurfaceList.Item(1);
    surface.List1 = List("");
    surface.List2 = List("");
    for (int i = 0; i <= 96; ++i) {
        const double t = 2 * std::numbers::pi * i / 96;
        surface.List1->Add({100 * t, 100 * std::sin(t), 0, PlainStation});
        surface.List2->Add({100 * t, -200, 0, PlainStation});
    }
    Put("pipe.dxf", dxf.Text(), Outline(764.0395578 + 200 * std::numbers::pi + 2 * 200, 0.01));
    CheckEnds(0);
}

TEST_F(DxfReader, OpensEveryAnnotation) {
    CDXF dxf = Cone(200, 500, 2.4, 5);
    dxf.SurfaceList.Item(1).List1 = List("0 0 1,30 0 1,80 0 1");
    dxf.SurfaceList.Item(1).List2 = List("0 40 1,30 40 1,80 40 1");
    dxf.DimensionsRequested = dxf.TrueLengthsRequested = dxf.DiagonalsRequested = true;
    dxf.LabelRequested = dxf.CoordinatesRequested = dxf.FrameRequested = true;
    dxf.LabelPoint = C3DPoint{100, 0, 0, 0};
    dxf.LabelList.Add({"Cone\r\nfor \"A&B\" %%c 20 <1>"});
    dxf.LabelList.Add({""});
    dxf.DimensionList.Add({0, 1, 5, 1, 3, 1});
    Put("annotated.dxf", dxf.Text(),
        R"("counts": {"LINE": {"CUT": 6, "FOLD": 1, "DIM": 13}, "TEXT": {"TEXT": 27}}, )"
        R"("texts": ["89.4", "30", "30", "40", "50", "50", "40", "40", "50", "64", )"
        R"("Cone  for \"A&B\" %%c 20 <1>", "", )"
        R"("0", "0", "0", "30", "0", "80", "40", "0", "40", "30", "40", "80", "80", "40", "Area = 3200"])");
    CDXF empty = dxf;
    empty.SurfaceList = {};
    Put("empty.dxf", empty.Text(), R"("counts": {}, "texts": [], )" + Outline(0, 0));
    CheckEnds(0);
}

TEST_F(DxfReader, ReadsTextsAndLayersThatAreNotAscii) {
    CDXF dxf = Cone(200, 500, 2.4, 3);
    dxf.CutLayer = "Schnitt \u00fc";
    dxf.TextLayer = "\u6587\u5b57";
    dxf.LabelRequested = true;
    dxf.LabelPoint = C3DPoint{100, 0, 0, 0};
    for (const char* text : {"Gr\u00f6\u00dfe \u2300 300 \u2013 \u677f\u91d1", "\U0001F527 Zange",
                             "\\U+00FC, \\U+005CU+00FC", "C:\\Umformen"}) {
        dxf.LabelList.Add({text});
    }
    const std::string text = dxf.Text();
    EXPECT_TRUE(
        std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; }));
    Put("texts.dxf", text,
        R"("counts": {"LINE": {"Schnitt \u00fc": 2}, "ARC": {"Schnitt \u00fc": 4}, "TEXT": {"\u6587\u5b57": 4}}, )"
        R"("texts": ["Gr\u00f6\u00dfe \u2300 300 \u2013 \u677f\u91d1", "\ud83d\udd27 Zange", )"
        R"("\\U+00FC, \\U+005CU+00FC", "C:\\Umformen"])");
    CheckEnds(0);
}

TEST_F(DxfReader, ComplainsOfAFileThatIsNotAsExpected) {
    const std::string text = Cone(200, 500, 2.4, 25).Text();
    Put("short.dxf", text, Outline(700 * 2.4 + 2 * 300 + 0.01, 1e-4));
    Put("count.dxf", text, R"("counts": {"LINE": {"CUT": 2, "FOLD": 11}, "ARC": {"CUT": 25}})");
    Put("cut.dxf", text.substr(0, text.size() / 2), "");
    CheckEnds(1);
    for (const char* name : {"short.dxf: outline", "count.dxf: counts", "cut.dxf: "}) {
        EXPECT_NE(Complaints().find(name), std::string::npos) << name;
    }
}

}  // namespace
}  // namespace korvet
