// The message catalogue: every text that the program speaks, by number.
#pragma once

#include <string>
#include <string_view>

namespace korvet {

/// Numbers of the messages that the code asks for by name (those of fitting classes are in core/fitting.h).
/// Texts that end in a blank take a value behind them.
enum MessageId : int {
    MustBeLessThan = 5,
    MustBeGreaterThan = 8,
    NotAValidNumber = 9,
    MustBeAboveZero = 10,
    MustBeAtLeast = 12,
    MustBeAtMost = 13,
    CannotBeEqualTo = 15,
    NoRoomForThickness = 17,
    MustBeInteger = 18,
    HalfPatternText = 20,
    FullPatternText = 21,
    ThicknessText = 22,
    AxisMustBeSelected = 23,
    LapWithoutSize = 24,
    PatternMustBeSelected = 26,
    DimensionsBasedOn = 27,
    BranchTooLarge = 29,
    CycloneBranchTooLarge = 30,  ///< these four have no text: their box is shown empty
    CycloneSetInTooLarge = 31,
    CycloneSetInHoleTooLarge = 32,
    CycloneSetOnHoleTooLarge = 33,
    BranchThicknessText = 34,
    TrunkThicknessText = 35,
    SetInText = 38,
    SetOnText = 39,
    MeanToMeanText = 40,
    NoHelpForItem = 50,
    PatternViewOnly = 71,
    PositionLabel = 73,
    NotAtThisTime = 76,
    MaximumZoom = 81,
    ControlsCaption = 82,
    PatternCaption = 83,
    SelectDimensionForRemoval = 84,
    NoExtents = 85,
    FirstAndSecondPoint = 86,
    RotationReferencePoints = 87,
    SaveParameterFile = 100,
    NothingToSave = 101,
    SettingsCaption = 103,
    GlobalOptionsCaption = 104,
    DxfSaved = 105,
    ExportingPattern = 106,
    ExportingModel = 107,
    OpenElsewhere = 108,
    ErrorLoading = 109,
    NotAValidFile = 110,
    DxfProblem = 111,
    NoPrinterSettings = 113,
    NothingToPrint = 114,
    IniFileUpdated = 116,
    PrinterProblem = 117,
    NoPrinterAvailable = 118,
    NoCadDrawing = 140,
    PickInsertion = 141,
    TransferComplete = 142,
    Transferring = 143,
    UnsuitableDxf = 150,
    NoEntitiesSection = 151,
    NoSuitableMesh = 152,
    SuitableMesh = 153,
    SelectMesh = 155,
    MeshIsClosed = 156,
    MeshOnlyInModelSpace = 157
};

/// The text of message `id` in `language`. Only "English" has texts: any other language, and an id without a
/// text, gives the empty string.
std::string GetMessage(int id, std::string_view language);

}  // namespace korvet
