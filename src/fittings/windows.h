// The tables of all fitting windows, for the catalogue. A table is defined beside its fitting once it is
// built.
#pragma once

#include "form/window_table.h"

namespace korvet {

extern const WindowTable frmRightCone1;
extern const WindowTable frmSegBendParallel;
extern const WindowTable frmRightCylinder;
extern const WindowTable frmBranch;
extern const WindowTable frmRectRound2;
extern const WindowTable frmPipeToCone;
extern const WindowTable frmRectToRect;
extern const WindowTable frmOffsetCone;
extern const WindowTable frmRightCone2;
extern const WindowTable frmBreech;
extern const WindowTable frmBreechReducing;
extern const WindowTable frmOffsetCylinder;
extern const WindowTable frmPyramid;
extern const WindowTable frmElbowReducing;
extern const WindowTable frmRoundToRound;
extern const WindowTable frmAuger;
extern const WindowTable frmRectEllipse;
extern const WindowTable frmPrism;
extern const WindowTable frmElbow;
extern const WindowTable frmRectRound1;
extern const WindowTable FrmSegBendTapered;
extern const WindowTable frmElbowPipeCone1;
extern const WindowTable frmElbowPipeCone2;
extern const WindowTable frmCyclone1;
extern const WindowTable frmCyclone2;
extern const WindowTable frmRectToRectRad;
extern const WindowTable frmOvalToOval;
extern const WindowTable frmSegBendOval;
extern const WindowTable frmOvalRightCylinder;
extern const WindowTable frmElbowOval;
extern const WindowTable frmBreechTwoPieceAngleTop;
extern const WindowTable frmBreechTwoPieceParallelTop;
extern const WindowTable frmImportMesh;
extern const WindowTable frmEllipticalHole;
extern const WindowTable frmPipeToBend;
extern const WindowTable frmMitreElbow;
extern const WindowTable frmRectTee;
extern const WindowTable frmBends;
extern const WindowTable frmMurokMitre;

}  // namespace korvet
