#include "window/import_mesh.h"

#include "core/text_encoding.h"
#include "exchange/mesh_dxf.h"
#include "window/auto_cad.h"

namespace korvet {
namespace {

/// What the file has of a mesh; the error of the disk as the fault when it can't be read.
DxfMesh ReadDrawing(const FileStore& files, const std::string& path) {
    try {
        DxfMesh mesh = ReadDxfMesh(files.Read(path, LargestDrawing));
        mesh.fault = path + ": " + mesh.fault;
        return mesh;
    } catch (const FileError& error) {
        return {.hasEntities = true, .surface = {}, .fault = error.what()};  // nobody knows what it has
    }
}

}  // namespace

Outcome ReadMeshDXF(CFittingWindow& window, const std::string& path) {
    const WindowContext& context = window.Context();
    const DxfMesh read = ReadDrawing(context.files, path);
    if (!read.hasEntities) {
        ShowPlain(context.ui, context.Message(UnsuitableDxf) + context.Message(NoEntitiesSection));
    }
    if (!read.surface) {
        ShowPlain(context.ui, context.Message(NoSuitableMesh), Printable(read.fault));
        return Refused;
    }
    window.mesh = {.DXFMeshOK = true, .FileName = path, .DXFMesh = *read.surface};
    window.edited = true;
    return Passed;
}

/// There is nothing to show of a window whose mesh has not come yet.
Outcome CFittingWindow::RequireMesh() {
    if (Table().sampleMesh == nullptr || mesh.DXFMeshOK) {
        return Passed;
    }
    ShowUserError(context_.ui, context_.Message(NotAtThisTime));
    return Refused;
}

/// A new mesh takes the place of the old one in the drawing too.
void CFittingWindow::ClickImportMesh(std::size_t source) {
    if (source == MeshOfCad) {
        const auto fetched = MeshFromAcad(context_);
        mesh.DXFMeshOK = fetched.has_value();  // without one there is nothing that was asked for
        if (fetched) {
            mesh = {.DXFMeshOK = true, .FileName = {}, .DXFMesh = *fetched};
            edited = true;
        }
        UpdateFitting();
        return;
    }
    const auto path = context_.ui.ChooseFile({"Import Mesh", "Drawing eXchange File (*.DXF)|*.DXF"});
    if (path && ReadMeshDXF(*this, *path) == Passed) {
        ShowPlain(context_.ui, context_.Message(SuitableMesh));
        UpdateFitting();
    }
}

}  // namespace korvet
