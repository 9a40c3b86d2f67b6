#include "frame/catalogue.h"

#include <algorithm>

#include "fittings/windows.h"

namespace korvet {

const std::array<CatalogueRow, CatalogueSize> Catalogue = {{
    {"Right Cone", "frmRightCone1", "CRightCone", 2100, AllLaps, &frmRightCone1},
    {"Segmented Bend", "frmSegBendParallel", "CSegBendParallel", 2160, SeamLapOnly, &frmSegBendParallel},
    {"Right Cylinder", "frmRightCylinder", "CRightCylinder", 2150, AllLaps, &frmRightCylinder},
    {"Branch", "frmBranch", "CBranch", 2170, AllLaps, &frmBranch},
    {"Rectangle (Radius) to Round", "frmRectRound2", "CTransition", 2180, SeamLapOnly, &frmRectRound2},
    {"Pipe to Cone", "frmPipeToCone", "CPipeToCone", 2190, AllLaps, &frmPipeToCone},
    {"Rectangle to Rectangle", "frmRectToRect", "CRectToRect", 2200, NoLaps, &frmRectToRect},
    {"Offset Cone", "frmOffsetCone", "COffsetCone", 2220, AllLaps, &frmOffsetCone},
    {"Truncated Right Cone", "frmRightCone2", "CRightCone", 2210, AllLaps, &frmRightCone2},
    {"Breech", "frmBreech", "CBreech", 2230, SeamLapOnly, &frmBreech},
    {"Reducing Breech", "frmBreechReducing", "CBreechReducing", 2240, SeamLapOnly, &frmBreechReducing},
    {"Offset Cylinder", "frmOffsetCylinder", "CRoundToRound", 2250, AllLaps, &frmOffsetCylinder},
    {"Pyramid", "frmPyramid", "CPyramid", 2260, AllLaps, &frmPyramid},
    {"Reducing Elbow", "frmElbowReducing", "CElbowReducing", 2270, SeamLapOnly, &frmElbowReducing},
    {"Round to Round", "frmRoundToRound", "CRoundToRound", 2280, AllLaps, &frmRoundToRound},
    {"Auger", "frmAuger", "CAuger", 2290, NoLaps, &frmAuger},
    {"Rectangle to Ellipse", "frmRectEllipse", "CTransition", 2300, SeamLapOnly, &frmRectEllipse},
    {"Prism", "frmPrism", "CPrism", 2310, AllLaps, &frmPrism},
    {"Elbow", "frmElbow", "CElbow", 2320, SeamLapOnly, &frmElbow},
    {"Rectangle to Round", "frmRectRound1", "CTransition", 2330, SeamLapOnly, &frmRectRound1},
    {"Tapered Bend", "FrmSegBendTapered", "CSegBendTapered", 2340, SeamLapOnly, &FrmSegBendTapered},
    {"Cone to Pipe Elbow", "frmElbowPipeCone1", "CElbowPipeToCone", 2350, SeamLapOnly, &frmElbowPipeCone1},
    {"Pipe to Cone Elbow", "frmElbowPipeCone2", "CElbowPipeToCone", 2360, SeamLapOnly, &frmElbowPipeCone2},
    {"Cyclone (Cylinder)", "frmCyclone1", "CBranch", 2370, SeamLapOnly, &frmCyclone1},
    {"Cyclone (Cone)", "frmCyclone2", "CPipeToCone", 2380, SeamLapOnly, &frmCyclone2},
    {"Rectangle to Rectangle (folded)", "frmRectToRectRad", "CTransition", 2390, AllLaps, &frmRectToRectRad},
    {"Oval to Oval", "frmOvalToOval", "CTransition", 2400, AllLaps, &frmOvalToOval},
    {"Oval Segmented Bend", "frmSegBendOval", "CSegBendParallelOval", 2410, SeamLapOnly, &frmSegBendOval},
    {"Oval Right Cylinder", "frmOvalRightCylinder", "CRightCylinderOval", 2420, AllLaps,
     &frmOvalRightCylinder},
    {"Oval Elbow", "frmElbowOval", "CElbowOval", 2430, SeamLapOnly, &frmElbowOval},
    {"Reducing Breech - Two Piece - Angle Top", "frmBreechTwoPieceAngleTop", "CBreechReducing2Prt", 2440,
     SeamLapOnly, &frmBreechTwoPieceAngleTop},
    {"Reducing Breech - Two Piece - Parallel Top", "frmBreechTwoPieceParallelTop", "CBreechReducing2Prt",
     2450, SeamLapOnly, &frmBreechTwoPieceParallelTop},
    {"Imported Mesh", "frmImportMesh", "CImportMesh", 2460, NoLaps, &frmImportMesh},
    {"Elliptical Hole", "frmEllipticalHole", "CBaffle", 2480, AllLaps, &frmEllipticalHole},
    {"Pipe to Bend", "frmPipeToBend", "CPipeToBend", 2470, AllLaps, &frmPipeToBend},
    {"Mitre Elbow", "frmMitreElbow", "CMitreElbow", 0, AllLaps, &frmMitreElbow, true},
    {"Rectangular Tee", "frmRectTee", "CRectTee", 0, AllLaps, &frmRectTee, true},
    {"Bends", "frmBends", "CBends", 2100, AllLaps, &frmBends, true},
    {"Murok Mitre", "frmMurokMitre", "CMurokMitre", 0, NoLaps, &frmMurokMitre, true},
}};

const std::array<int, CatalogueSize> DisplayOrder = {0,  8,  7,  14, 2,  11, 19, 4,  16, 6,  25, 26, 28,
                                                     12, 17, 18, 29, 22, 21, 13, 1,  27, 20, 3,  9,  10,
                                                     30, 31, 5,  23, 15, 32, 33, 34, 37, 24, 35, 36, 38};

const CatalogueRow* FindCategory(std::string_view category) {
    const auto* const found = std::find_if(Catalogue.begin(), Catalogue.end(),
                                           [&](const CatalogueRow& row) { return row.category == category; });
    return found == Catalogue.end() ? nullptr : found;
}

}  // namespace korvet
