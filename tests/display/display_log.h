// Surfaces and readable call lists for the tests of the display.
#pragma once

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

#include "core/display_colors.h"
#include "core/rule_surf.h"
#include "display/world_window.h"
#include "tests/support/canned_fitting.h"
#include "tests/support/recording_device.h"

namespace korvet {

inline PointList Points(std::initializer_list<C3DPoint> points) {
    auto list = std::make_shared<C3DPoints>();
    for (const C3DPoint& point : points) {
        list->Add(point);
    }
    return list;
}

/// For a picture of 400 by 200 pixels.
inline constexpr WorldWindow OnePixelToAUnit = {0, 200, 400, -200};

/// A flat sheet, 30 wide and 40 high, with its lower left corner at (x, y); all four corners are stations.
inline CRuleSurf Sheet(double x = 0, double y = 0) {
    CRuleSurf sheet;
    sheet.List1 = Points({{x, y + 40, 0, RuleStation}, {x + 30, y + 40, 0, RuleStation}});
    sheet.List2 = Points({{x, y, 0, RuleStation}, {x + 30, y, 0, RuleStation}});
    return sheet;
}

/// The calls as text, one each: "cut 10,20 30,20", "fold ...", "mark ...", "dotted ...", "text A1", "clear".
/// Meant for the screen, where the colour says what a line means.
inline std::vector<std::string> LogOf(const RecordingDevice& device) {
    std::vector<std::string> log;
    for (const RecordingDevice::Call& call : device.calls) {
        std::string entry;
        switch (call.kind) {
            case RecordingDevice::Kind::Cls:
                entry = "clear";
                break;
            case RecordingDevice::Kind::TextOut:
                entry = "text " + call.text;
                break;
            case RecordingDevice::Kind::Polyline: {
                const DisplayColors colors;
                entry = call.pen.Style == DrawStyle::Dotted                  ? "dotted"
                        : call.pen.ForeColor == colors.DisplayCutColor       ? "cut"
                        : call.pen.ForeColor == colors.DisplayFoldColor      ? "fold"
                        : call.pen.ForeColor == colors.DisplayDimensionColor ? "mark"
                                                                             : "other";
                for (const PixelPoint& point : call.points) {
                    entry += " " + std::to_string(point.x) + "," + std::to_string(point.y);
                }
                break;
            }
        }
        log.push_back(entry);
    }
    return log;
}

}  // namespace korvet
