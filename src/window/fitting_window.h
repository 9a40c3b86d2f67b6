// A fitting window: one fitting, one drawing area, one panel of parameter boxes. All windows are this one
// class driven by the table of their catalogue row.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/branch_options.h"
#include "core/fitting.h"
#include "core/imported_mesh.h"
#include "core/pattern_settings.h"
#include "display/object_display.h"
#include "display/view_point.h"
#include "exchange/kvt_file.h"
#include "form/catalogue_row.h"
#include "form/outcome.h"
#include "printing/print_frames.h"
#include "window/context.h"
#include "window/saved_state.h"
#include "window/window_model.h"

namespace korvet {

struct PrintersDialog;

/// Where an export goes.
enum class ExportMode : int { Dxf = 1, Plotter = 2, CadLink = 3 };

/// The buttons of btnImportMesh.
enum MeshSource : std::size_t { MeshOfDxf = 0, MeshOfCad = 1 };

/// The button of a mouse event; in a move, the one that is held.
enum class MouseButton : int { None = 0, Left = 1, Right = 2, Middle = 3 };

/// The mouse mode that is armed; the commands that arm one clear the others first.
struct MouseModes {
    bool panMode = false;
    bool zoomWindowMode = false;
    bool measureMode = false;
    bool labelMode = false;
    bool selectFramesMode = false;
    bool rotateMode = false;
    int dimensionMode = 0;   ///< above 0: a user dimension of that kind is being added
    bool mouseDown = false;  ///< the left button went down in the drawing area while the mode is armed
    float startX = 0;        ///< ends of the rubber band in the drawing plane
    float startY = 0;
    float currentX = 0;
    float currentY = 0;
};

/// The last view of the history as the wheel or a drag with the middle button has put it there: until another
/// one follows, the next move of the same run takes its place.
struct MovedView {
    enum class By : std::uint8_t { Wheel, MiddleButton };
    By by = By::Wheel;
    CViewPoint view;
    std::size_t count = 0;  ///< views there are with it
};

/// What a build makes of the boxes, as the fitting has it.
struct ModelAndPattern {
    CRuleSurfs model;
    CRuleSurfs pattern;
};

/// Which sheets of a fitting are printed.
struct SheetChoice {
    bool fit = false;                ///< the view on one sheet; else the pattern in full size
    std::vector<std::string> names;  ///< of the sheets in full size; all when there are none
};

class CFittingWindow {
  public:
    /// A window of a catalogue row whose table is built. `drawingArea` is where it draws; null: nowhere, its
    /// surfaces are made all the same.
    CFittingWindow(WindowContext& context, const CatalogueRow& row, DrawingDevice* drawingArea);

    // Commands of the main frame. Those that need a model refuse with message 76 when there is none.
    void SetCategory(const std::string& category);
    void UpdateOptions();
    void DimensionOptionsDialog();
    void RotatePattern();
    void PlaceLabel();
    void Settings();
    void Redraw();
    void ZoomExtents();
    void ZoomPrevious();
    void ZoomX(double factor);
    void ZoomWindow();
    void PanView();
    void MeasureDistance();
    void AddDimension(int kind);
    void RemoveDimension();
    void RemoveAllDimensions();
    void PrinterSetup();
    void PrintDrawing();
    void SelectPrintFrames();
    void SetupPrintFrames();

    /// Writes what the last display showed as a PDF on the printer's paper, for which PdfPrinter has to be
    /// the printer: a pattern in full size on its sheets, or the view on one.
    Outcome PrintToPdf(const std::string& path, const SheetChoice& choice);

    /// Exports what the last display showed. Refused when no file was written, after Cancel too.
    Outcome Export(const std::string& path, ExportMode mode);

    /// Writes the coordinate table of the pattern that is shown.
    Outcome WriteTable(const std::string& path);

    /// Refuses with message 76 when there is no model.
    Outcome RequireModel();

    /// Builds what is typed, in the view that is shown or in a first one. Refuses, after the message of the
    /// build, when there is no model then.
    Outcome RequireBuild();

    /// Updates, and unless that is cancelled writes the parameter file; the caption becomes its path.
    Outcome SaveFile(const std::string& path);

    /// Fills the window from a parameter file, shows it and zooms to it; the caption becomes its path.
    /// Refuses with message 109 when it could not be read or drawn, and the caption then stays. Sizes that a
    /// check refuses end with its message, and the load has passed.
    Outcome LoadFile(const std::string& path);

    /// Asks about saving, then closes. Refused when the user keeps the window open.
    Outcome CloseForm();

    // Events of the controls.
    void ChangeBox(std::size_t index, const std::string& text);
    void FocusBox(std::size_t index);
    void ChangeTextSize(const std::string& text);

    /// ChangeBox and ChangeTextSize by the user's own keys and pastes (WithoutPastedBlanks).
    void EditBox(std::size_t index, const std::string& text);
    void EditTextSize(const std::string& text);
    void ClickView(int button);
    void ClickPoint(std::size_t index);
    void ClickMore(std::size_t page);
    void ClickBack(std::size_t page);
    void SelectPattern(std::size_t index);

    /// A click on a button of optTopAngle, optBaseAngle or optFlushSide.
    void SelectOption(OptionGroup FittingOptions::*group, std::size_t index);
    void ClickPosition();
    void ClickImportMesh(std::size_t source);
    void PressKeyInDrawing();

    /// Ends whatever mode is armed, the removal of a dimension too, wherever the focus is. Nothing is built.
    void PressEscape();

    /// The mouse over the drawing area, at a point of the drawing plane. MouseDown gives true when the View
    /// menu is to pop up.
    [[nodiscard]] bool MouseDown(MouseButton button, float x, float y);
    void MouseMove(MouseButton button, float x, float y);
    void MouseUp(MouseButton button, float x, float y);

    /// The mouse has left the drawing area.
    void MouseLeave();

    /// Zooms by turns of the wheel, parts of one allowed and above 0 inwards, about a point of the drawing
    /// plane. Turns that follow each other within half a second of `milliseconds`, on any clock, make one
    /// view of the history. Nothing is built, no mode ends; nothing happens without a model and at the limits
    /// of the zoom.
    void TurnWheel(double turns, float x, float y, std::int64_t milliseconds);

    void Resize(const Place& scale);
    void Activate();

    /// The part of LoadFile before the first update: header to comments into controls, settings, display.
    /// Refuses with message 109; what was read before the fault stays.
    Outcome FillFromFile(const std::string& path);

    /// Checks every box in order and derives the fitting's properties and the text block. After the first
    /// refusal hasModel is false.
    Outcome BuildFitting();

    /// The number of sides in the box of the type that is shown; nothing where the section has none.
    [[nodiscard]] std::optional<int> TypedSides() const;

    /// Puts the settings into the fitting, as every display does.
    void ApplySettings();

    /// The one path by which anything is rebuilt or redrawn; nothing happens before the first view.
    void UpdateFitting();

    /// BuildFitting, and then the model and after it the pattern of the fitting, neither placed nor drawn.
    /// Nothing after a refusal or when the sizes lead to no shape, which is said.
    std::optional<ModelAndPattern> MakeModelAndPattern();

    void CancelMouseModes();

    /// What an empty drawing area says: what to do for a first picture. Empty from the first one on.
    [[nodiscard]] std::string Hint() const;

    [[nodiscard]] const CatalogueRow& Row() const { return *row_; }
    [[nodiscard]] const WindowTable& Table() const { return *row_->table; }
    [[nodiscard]] WindowContext& Context() const { return context_; }
    [[nodiscard]] FieldContext Fields();

    // State of the window, by the names of the system.
    WindowModel controls;
    CObjectDisplay display;
    PrintFrames printFrames;
    std::shared_ptr<CDimensions> dimensions;
    std::shared_ptr<CLabels> labels;  ///< the text block; null before the first build
    CPatternSettings settings;
    std::shared_ptr<CViewList> views;
    std::int16_t dtype = 0;
    std::int16_t miscellaneous = 0;
    std::int16_t noOfSides = 0;
    BranchOptions branch;
    ImportedMesh mesh;
    bool hasModel = false;
    bool edited = true;
    std::string category;
    std::string comment1;
    std::string comment2;
    bool diagonalsAllowed = true;
    MouseModes modes;
    bool removeDimensionMode = false;
    std::optional<WorldPoint> pointer;  ///< where the mouse is over the drawing plane
    bool labelSeen = false;
    bool closed = false;
    bool keepsInSight = false;  ///< in a window that is looked at, until its user's first zoom or pan: a view
                                ///< button ends with the extents where the picture does not hold the drawing
    std::optional<CNearestPoint> nearest1;  ///< points picked last for a measurement, dimension or rotation
    std::optional<CNearestPoint> nearest2;
    std::optional<FittingHandle> fitting;
    std::string statusString;  ///< line for the status bar, as it was last composed

    /// As it was last saved or loaded, or as a new one; nothing: all that it holds is yet to be saved.
    std::optional<SavedState> saved;
    std::optional<SavedState> refused;  ///< what the last build refused, if it did
    std::optional<KnownFile> knownFile;

  private:
    void InitialiseFitting();
    void RevealBox(const TextBox& box);
    Outcome RequireMesh();
    Outcome UpdateUnlessCancelled();
    void Rebuild();
    Outcome AddViewOfExtents();
    void BringIntoSight();
    Outcome CheckAllFields();
    Outcome CheckThicknesses();
    void AddTextBlock();
    void TakeNoOfSides();
    void ResetFieldColours();
    void RefuseBuild(const std::exception& error);
    void PrepareDisplay();
    void DevelopAndDisplay();
    void ShowWarnings(const std::vector<FittingWarning>& warnings);
    float DrawnTextSize();
    template <typename Step>
    bool RunMouseStep(Step step);
    Outcome RequirePatternForPaper();
    Outcome ComputeFrames();
    void HandOverFrames();
    Outcome CheckSheetCount();
    void PrintChosen(const PrintersDialog& dialog);
    void PrintSelectedFrames();
    void PrintTable();
    enum class Build : bool { AsShown, Anew };
    Outcome PrintFullSize(const std::vector<std::string>& names, const std::string& path, Build build);
    void ShowFramesAgain();
    Outcome PrintPages(const std::vector<std::string>& names, const std::string& path);
    [[nodiscard]] std::optional<CPrintPages> PagesOf(const std::vector<std::string>& names);
    Outcome PrintToFit(const std::string& path);
    template <typename Work>
    Outcome RunPrintJob(const std::string& path, Work work);
    void ClickFrames(float x, float y);
    void BeginMouseOperation(float x, float y);
    bool EndRubberBand();
    bool FinishMouseOperation(float x, float y);
    void FinishDrag();
    bool RemoveDimensionAt(float x, float y);
    void EndRemoval();
    void PanByRubberBand();
    void PanTo(float x, float y);
    void ShowMoved(MovedView::By by, bool sameRun, const std::function<CViewPoint()>& makeView);
    [[nodiscard]] bool LastIsMoved(MovedView::By by) const;
    void MeasureAt();
    void AddDimensionAt();
    void PlaceLabelAt(float x, float y);
    void RotateAt();

    WindowContext& context_;
    const CatalogueRow* row_;
    double goodTextSize_;  ///< for while the text size box holds no number
    std::optional<MovedView> moved_;
    std::optional<WorldPoint> panFrom_;  ///< the point of the drawing that the middle button holds
    std::int64_t lastTurn_ = 0;          ///< of the wheel, milliseconds
};

}  // namespace korvet
