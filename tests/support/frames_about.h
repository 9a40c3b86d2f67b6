// Print frames laid over a pattern, for tests.
#pragma once

#include "printing/print_frames.h"

namespace korvet {

/// The frame about a pattern, as BuildExtentFrame gives it.
inline C3DPoints ExtentFrameOf(const Bounds& extents) {
    C3DPoints frame;
    for (const auto& [x, y] : {std::pair{extents.minX, extents.minY},
                               {extents.maxX, extents.minY},
                               {extents.maxX, extents.maxY},
                               {extents.minX, extents.maxY},
                               {extents.minX, extents.minY}}) {
        frame.Add({x, y, 0, PlainStation});
    }
    return frame;
}

/// Frames of that length and width about a pattern of these extents, in millimetres.
inline PrintFrames FramesAbout(const Bounds& extents, double length, double width) {
    PrintFrames frames;
    frames.PrintFrameLength = length;
    frames.PrintFrameWidth = width;
    frames.Lay(ExtentFrameOf(extents));
    return frames;
}

}  // namespace korvet
