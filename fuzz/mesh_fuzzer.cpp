// Any bytes as a drawing: its mesh read, unfolded, saved and opened again with the same points.
#include <cstdlib>
#include <string>

#include "tests/support/point_lists.h"
#include "tests/support/test_context.h"
#include "window/import_mesh.h"
#include "window/views.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace korvet;
    TestShell shell;
    shell.files.Write("in.dxf", std::string(reinterpret_cast<const char*>(data), size), Flush::No);
    const auto window = shell.Open("Imported Mesh");
    if (ReadMeshDXF(*window, "in.dxf") == Refused) {
        if (window->mesh.DXFMeshOK) {
            std::abort();
        }
        return 0;
    }
    const CRuleSurf& mesh = window->mesh.DXFMesh;
    if (mesh.List1->Count() < 2 || mesh.List1->Count() != mesh.List2->Count()) {
        std::abort();
    }
    window->ClickView(PatternButton);
    if (!window->hasModel) {
        return 0;
    }
    if (window->SaveFile("out.Kvt") == Refused) {
        std::abort();
    }
    const auto again = shell.Open("Imported Mesh");
    if (again->FillFromFile("out.Kvt") == Refused || !SamePoints(*mesh.List1, *again->mesh.DXFMesh.List1) ||
        !SamePoints(*mesh.List2, *again->mesh.DXFMesh.List2)) {
        std::abort();
    }
    return 0;
}
