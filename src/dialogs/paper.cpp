#include "dialogs/paper.h"

namespace korvet {
namespace {

constexpr Place OrientationFrame = {0, 0, 1700, 1700};
constexpr int ShortSide = 1000;
constexpr int LongSide = 1300;
constexpr int CentreX = 850;
constexpr int BelowCentre = 50;

}  // namespace

SheetPicture PictureOfSheet(std::int16_t orientation) {
    const bool portrait = orientation == Portrait;
    const int width = portrait ? ShortSide : LongSide;
    const int height = portrait ? LongSide : ShortSide;
    const int centreY = OrientationFrame.height / 2 + BelowCentre;
    return {OrientationFrame,
            {CentreX - width / 2, centreY - height / 2, width, height},
            {(width - ShortSide) / 2, (height - ShortSide) / 2, ShortSide, ShortSide}};
}

}  // namespace korvet
