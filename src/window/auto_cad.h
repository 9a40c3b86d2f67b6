// The link to a running drawing program: patterns are drawn into its drawing, meshes are fetched from there.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

#include "core/rule_surf.h"
#include "exchange/transfer_file.h"
#include "window/automation.h"
#include "window/context.h"

namespace korvet {

class CAutoCAD {
  public:
    /// `automation` may be null: there is no other program then. Everything must outlive the link.
    CAutoCAD(Automation* automation, MessageBoxes& boxes, const FileStore& files, const COptions& options)
        : automation_(automation), boxes_(boxes), files_(files), options_(options) {}

    bool AcadConnected = false;
    int Version = 0;                            ///< of the running program
    std::shared_ptr<AutomationObject> AcadApp;  ///< the application
    std::shared_ptr<AutomationObject> AcadDoc;  ///< its active drawing
    C3DPoints MeshList1;                        ///< the rows of the mesh that was fetched last
    C3DPoints MeshList2;

    /// Attaches to the program that runs; none is started. Refused, without a word, when there is none or it
    /// has no drawing.
    Outcome ConnectToAcad();

    // These need a connection, and throw AutomationError when the program fails them: its drawing stays as it
    // is so far.

    /// Draws the entities of a transfer file into the active drawing, at a point that the user picks there.
    /// Nothing is done without the file. Refused when the user picks no point; throws FileError and
    /// TransferError too.
    Outcome TransferTempFile(const std::string& transferFile);

    /// Has the user select a mesh in the drawing, and takes its rows into the lists. Refused, after a message
    /// where there is one for it, when that is no open mesh of two rows.
    Outcome GetAcadMeshObject();

    // One entity each, on a layer of the drawing. Lengths are in the drawing's unit, angles radians.

    void DrawLine(const C3DPoint& a, const C3DPoint& b, const std::string& layer);
    void DrawArc(const C3DPoint& centre, double radius, double start, double end, const std::string& layer);
    void DrawText(const std::string& text, const C3DPoint& point, double angle, double size,
                  int justification, const std::string& layer);
    void DrawPolyLine(const C3DPoints& list, const std::string& layer);

    /// Of m rows by n points. Only model space takes a mesh: for a layout message 157 is shown instead.
    void DrawPolygonMesh(const C3DPoints& list, std::size_t m, std::size_t n, const std::string& layer);

    /// Adds a layer unless the drawing has one of that name, but for blanks around it.
    void MakeLayer(const std::string& name);

    /// Lets go of the program, which goes on.
    void CloseAcad();

  private:
    using Object = std::shared_ptr<AutomationObject>;

    Outcome PickInsertionPoint();
    void PrepareDrawing();
    void Replay(const std::vector<TransferEntity>& entities);
    [[nodiscard]] C3DPoint Placed(const C3DPoint& point) const;
    [[nodiscard]] bool InModelSpace() const;
    [[nodiscard]] Object Space() const;
    Outcome CheckMesh(AutomationObject& mesh, std::size_t& columns);
    void ReadMeshCoordinates(AutomationObject& mesh, std::size_t columns);

    [[nodiscard]] std::string Message(int id) const { return GetMessage(id, options_.Language); }
    Outcome Ask(int message);

    Automation* automation_;
    MessageBoxes& boxes_;
    const FileStore& files_;
    const COptions& options_;
    C3DPoint insertion_;
};

/// Connects the program's one link anew; message 140 when there is no drawing to be reached.
Outcome ConnectGlobalAcad(WindowContext& context);

/// Draws the transfer file by the link that ConnectGlobalAcad has made. Refused, which has been said unless
/// the user has done so, when not all of it was drawn.
Outcome TransferToAcad(WindowContext& context);

/// A mesh from the drawing that is open there: message 153 and its surface, or nothing after messages that
/// say why.
std::optional<CRuleSurf> MeshFromAcad(WindowContext& context);

}  // namespace korvet
