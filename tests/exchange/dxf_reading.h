// Reads a drawing file back, for tests: entities by their groups, and where the lines and arcs really run.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <numbers>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "core/points.h"

namespace korvet::dxf_reading {

/// The lines of a file, each ended by CR LF.
inline std::string CrLf(std::initializer_list<const char*> lines) {
    std::string text;
    for (const char* line : lines) {
        text += line;
        text += "\r\n";
    }
    return text;
}

/// The text of a list of points: "x y" or "x y flag" pairs separated by commas.
inline C3DPoints Points(const std::string& text) {
    C3DPoints list;
    std::istringstream items(text);
    for (std::string item; std::getline(items, item, ',');) {
        std::istringstream numbers(item);
        C3DPoint point;
        numbers >> point.x >> point.y >> point.Flag;
        list.Add(point);
    }
    return list;
}

/// Points as a surface holds them.
inline PointList List(const std::string& text) {
    return std::make_shared<C3DPoints>(Points(text));
}

struct Entity {
    std::string kind;
    std::vector<std::pair<int, std::string>> groups;  ///< without the kind
    std::vector<C3DPoint> vertices;                   ///< of a POLYLINE

    [[nodiscard]] std::string Word(int code) const {
        for (const auto& [c, value] : groups) {
            if (c == code) {
                return value;
            }
        }
        ADD_FAILURE() << kind << " has no group " << code;
        return "0";
    }
    [[nodiscard]] double Number(int code) const { return std::stod(Word(code)); }
    [[nodiscard]] std::string Layer() const { return Word(8); }
    [[nodiscard]] C3DPoint Point(int xCode) const {
        return {Number(xCode), Number(xCode + 10), Number(xCode + 20), 0};
    }
};

/// All entities in their order; VERTEX and SEQEND go into their POLYLINE. The frame of the file is tested.
inline std::vector<Entity> ReadEntities(const std::string& text) {
    std::vector<Entity> entities;
    std::istringstream lines(text);
    std::string code;
    std::string value;
    const auto next = [&] {
        if (!std::getline(lines, code) || !std::getline(lines, value)) {
            return false;
        }
        EXPECT_EQ(code.back(), '\r');
        EXPECT_EQ(value.back(), '\r');
        code.pop_back();
        value.pop_back();
        return true;
    };
    EXPECT_TRUE(next() && code == "0" && value == "SECTION");
    EXPECT_TRUE(next() && code == "2" && value == "ENTITIES");
    while (next() && !(code == "0" && value == "ENDSEC")) {
        if (code == "0") {
            entities.push_back({value, {}, {}});
        } else {
            entities.back().groups.emplace_back(std::stoi(code), value);
        }
    }
    EXPECT_TRUE(next() && code == "0" && value == "EOF");
    EXPECT_FALSE(next());

    std::vector<Entity> whole;
    for (Entity& entity : entities) {
        if (entity.kind == "VERTEX") {
            whole.back().vertices.push_back(entity.Point(10));
        } else if (entity.kind != "SEQEND") {
            whole.push_back(std::move(entity));
        }
    }
    return whole;
}

inline std::string Short(double value) {
    std::ostringstream text;
    text << std::round(value * 1000) / 1000 + 0.0;
    return text.str();
}

inline std::string Short(const C3DPoint& p) {
    return Short(p.x) + "," + Short(p.y);
}

/// An entity in one line, to 3 places: "LINE 0,0 10,0", "ARC 0,0 r5 0..90", "TEXT 12 at 5,0", "POLYLINE 0,0
/// 1,0".
inline std::string Describe(const Entity& e) {
    if (e.kind == "LINE") {
        return "LINE " + Short(e.Point(10)) + " " + Short(e.Point(11));
    }
    if (e.kind == "ARC") {
        return "ARC " + Short(e.Point(10)) + " r" + Short(e.Number(40)) + " " + Short(e.Number(50)) + ".." +
               Short(e.Number(51));
    }
    if (e.kind == "TEXT") {
        return "TEXT " + e.Word(1) + " at " + Short(e.Point(10));
    }
    std::string text = e.kind;
    for (const C3DPoint& p : e.vertices) {
        text += " " + Short(p);
    }
    return text;
}

inline std::vector<std::string> DescribeAll(const std::string& text) {
    std::vector<std::string> lines;
    for (const Entity& entity : ReadEntities(text)) {
        lines.push_back(Describe(entity));
    }
    return lines;
}

/// As DescribeAll, each line with the layer in front.
inline std::vector<std::string> DescribeByLayer(const std::string& text) {
    std::vector<std::string> lines;
    for (const Entity& entity : ReadEntities(text)) {
        lines.push_back(entity.Layer() + " " + Describe(entity));
    }
    return lines;
}

inline double Between(const C3DPoint& a, const C3DPoint& b) {
    return std::hypot(b.x - a.x, b.y - a.y);
}

inline double ToSegment(const C3DPoint& p, const C3DPoint& a, const C3DPoint& b) {
    const double dx = b.x - a.x;
    const double dy = b.y - a.y;
    const double square = dx * dx + dy * dy;
    const double along = square == 0 ? 0 : ((p.x - a.x) * dx + (p.y - a.y) * dy) / square;
    const double t = std::clamp(along, 0.0, 1.0);
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}

/// Where a LINE or an ARC really runs.
class Course {
  public:
    explicit Course(const Entity& e) : arc_(e.kind == "ARC"), a_(e.Point(10)) {
        if (arc_) {
            radius_ = e.Number(40);
            start_ = e.Number(50);
            sweep_ = std::fmod(e.Number(51) - start_ + 720, 360);
        } else {
            b_ = e.Point(11);
        }
    }

    [[nodiscard]] double Radius() const { return radius_; }

    /// Height of the arc over its chord; 0 of a line.
    [[nodiscard]] double Sagitta() const { return radius_ * (1 - std::cos(Radians(sweep_ / 2))); }

    [[nodiscard]] double Length() const { return arc_ ? radius_ * Radians(sweep_) : Between(a_, b_); }

    /// The point at part t of the way, 0 to 1.
    [[nodiscard]] C3DPoint At(double t) const {
        if (!arc_) {
            return {a_.x + t * (b_.x - a_.x), a_.y + t * (b_.y - a_.y), 0, 0};
        }
        const double angle = Radians(start_ + t * sweep_);
        return {a_.x + radius_ * std::cos(angle), a_.y + radius_ * std::sin(angle), 0, 0};
    }

    [[nodiscard]] double DistanceTo(const C3DPoint& p) const {
        if (!arc_) {
            return ToSegment(p, a_, b_);
        }
        const double angle = std::atan2(p.y - a_.y, p.x - a_.x) * 180 / std::numbers::pi;
        if (std::fmod(angle - start_ + 720, 360) <= sweep_) {
            return std::fabs(Between(a_, p) - radius_);
        }
        return std::min(Between(At(0), p), Between(At(1), p));
    }

  private:
    static double Radians(double degrees) { return degrees * std::numbers::pi / 180; }

    bool arc_;
    C3DPoint a_;
    C3DPoint b_;
    double radius_ = 0;
    double start_ = 0;
    double sweep_ = 0;
};

}  // namespace korvet::dxf_reading
