// A parameter file with something in every section, as an object and as its lines.
#pragma once

#include <string>
#include <vector>

#include "core/constants.h"
#include "exchange/kvt_file.h"

namespace korvet {

using KvtLines = std::vector<std::string>;

inline std::string JoinedLines(const KvtLines& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += line + "\r\n";
    }
    return text;
}

inline KvtLines SplitLines(const std::string& text) {
    KvtLines lines;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = text.find("\r\n", at);
        lines.push_back(text.substr(at, end - at));
        at = end + 2;
    }
    return lines;
}

/// A file with something in every section.
inline CKvtFile FullFile() {
    CKvtFile file;
    file.FileName = "a.Kvt";
    file.Category = "Right Cone";
    file.Dtype = 1;
    file.ViewPoint = {true, 1.25, -3, 40, QuarterTurn, QuarterTurn};
    file.PatternSettings.Thickness = 1.2;
    file.PatternSettings.segs = 36;
    file.PatternSettings.JoinAngle = 12.5;
    file.PatternSettings.InOutMean = 2;
    file.PatternSettings.PositionString = "outside";
    file.PatternSettings.LapEnable = 7;
    file.PatternSettings.JoinType = 1;
    file.PatternSettings.LapSize0 = 5;
    file.PatternSettings.LapSize1 = 6.5;
    file.PatternSettings.LapSize2 = 7;
    file.PatternSettings.HalfPattern = true;
    file.Controls.txtParameter = {"300", "120.0", "1e2"};
    file.Controls.optPatternSelect = {true, false};
    file.RotationPoint = {1, 2, 0, 0};
    file.RotationAngle = 0.1;
    file.MovePoint1 = {1, 2, 0, 0};
    file.MovePoint2 = {3, 4, 0, 0};
    file.FrameRequested = true;
    file.LabelPoint = C3DPoint{10, -20, 0, 0};
    file.DimensionList.emplace().Add({1, 1, 2, 1, 25, 3});
    file.Comment1 = "first comment";
    return file;
}

inline const KvtLines FullFileLines = {"Korvet Development-3.3.3",
                                       "Right Cone",
                                       "1",
                                       "End Header",
                                       " ",
                                       "Start ViewPoint",
                                       "1.5707963267949",
                                       "1.5707963267949",
                                       "40",
                                       "-3",
                                       "1.25",
                                       "True",
                                       "End ViewPoint",
                                       " ",
                                       "Start Pattern Settings",
                                       "1.2",
                                       "36",
                                       "12.5",
                                       "False",
                                       "0",
                                       "True",
                                       "2",
                                       "200",
                                       "150",
                                       "No Border",
                                       " ",
                                       "7",
                                       "1",
                                       "5",
                                       "6.5",
                                       "7",
                                       "0",
                                       "False",
                                       "outside",
                                       "0",
                                       "False",
                                       "End Pattern Settings",
                                       " ",
                                       "Start Standard TextBoxes",
                                       "300",
                                       "120.0",
                                       "1e2",
                                       "End Standard TextBoxes",
                                       " ",
                                       "Start Angle Option Buttons",
                                       "End Angle Option Buttons",
                                       " ",
                                       "Start Pattern Select Option Buttons",
                                       "True",
                                       "False",
                                       "End Pattern Select Option Buttons",
                                       " ",
                                       "Start Flush Side Option Buttons",
                                       "End Flush Side Option Buttons",
                                       " ",
                                       "Start Rotation",
                                       "1",
                                       "2",
                                       "0",
                                       "0.1",
                                       "End Rotation",
                                       " ",
                                       "Start Move",
                                       "1",
                                       "2",
                                       "0",
                                       "3",
                                       "4",
                                       "0",
                                       "End Move",
                                       " ",
                                       "Start Requests",
                                       "False",
                                       "False",
                                       "False",
                                       "True",
                                       "False",
                                       "End Requests",
                                       "",
                                       "Start LabelPoint",
                                       "10",
                                       "-20",
                                       "0",
                                       "End LabelPoint",
                                       " ",
                                       "Start Dimensions",
                                       "3",
                                       "25",
                                       "1",
                                       "2",
                                       "1",
                                       "1",
                                       "End Dimensions",
                                       " ",
                                       "Start Comments",
                                       "first comment",
                                       "",
                                       "End Comments",
                                       " "};

/// A file object with room for the controls of FullFile.
inline CKvtFile Reader() {
    CKvtFile file;
    file.Controls.txtParameter.resize(3);
    file.Controls.optPatternSelect.resize(2);
    return file;
}

inline CKvtFile Parsed(const KvtLines& lines) {
    CKvtFile file = Reader();
    file.Parse(JoinedLines(lines), 24);
    return file;
}

/// FullFileLines with line `number` (from 1) replaced.
inline KvtLines WithLine(std::size_t number, const std::string& text) {
    KvtLines lines = FullFileLines;
    lines.at(number - 1) = text;
    return lines;
}

}  // namespace korvet
