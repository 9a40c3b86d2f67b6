// Right cylinders written down for tests: radius 60, 200 high.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/math_module.h"
#include "fittings/pipes/right_cylinder.h"
#include "tests/support/near.h"

namespace korvet {

/// With square ends.
inline CRightCylinder Pipe(int segs = 12) {
    CRightCylinder pipe;
    pipe.BaseRad = 60;
    pipe.CPHeight1 = 200;
    pipe.inputs.segs = segs;
    return pipe;
}

inline CRightCylinder TiltedPipe() {
    CRightCylinder pipe = Pipe();
    pipe.inputs.Dtype = TiltedEnds;
    pipe.CPAngle1 = DegToRad(30);
    pipe.CPAngle2 = DegToRad(20);
    pipe.CPHeight2 = 40;
    return pipe;
}

inline CRightCylinder Roof(std::int16_t type, double offset) {
    CRightCylinder pipe = Pipe();
    pipe.inputs.Dtype = type;
    pipe.CPAngle1 = DegToRad(35);
    pipe.CPAngle3 = DegToRad(25);
    pipe.Offset = offset;
    pipe.CPHeight2 = 10;
    return pipe;
}

inline const C3DPoints& Top(const CRightCylinder& pipe) {
    return *pipe.results.ModelSurface.List1;
}

inline const C3DPoints& Bottom(const CRightCylinder& pipe) {
    return *pipe.results.ModelSurface.List2;
}

inline void ExpectOnPipe(const C3DPoint& point) {
    EXPECT_NEAR(std::hypot(point.x, point.y), 60, Near);
}

inline std::vector<std::size_t> StationsFlagged(const C3DPoints& edge, StationFlag flag) {
    std::vector<std::size_t> stations;
    for (std::size_t i = 1; i <= edge.Count(); ++i) {
        if (edge.Item(i).Flag == flag) {
            stations.push_back(i);
        }
    }
    return stations;
}

}  // namespace korvet
