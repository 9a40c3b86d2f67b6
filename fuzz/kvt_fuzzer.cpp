// Any bytes as a parameter file: opened in the window of its category, built, exported and saved again. What
// was saved must load to the same file.
#include <cstdlib>
#include <string>

#include "frame/catalogue.h"
#include "frame/new_fitting.h"
#include "tests/support/test_context.h"

namespace {

using namespace korvet;

/// More segments only take more time: the reader's own limit is tested elsewhere.
constexpr int MostSegs = 500;

void LoadAndSave(const std::string& text, const std::string& category) {
    TestShell shell;
    AcceptExports(shell.ui);
    const auto window = NewFitting(shell.context, category, nullptr);
    shell.files.Write("in.Kvt", text, Flush::No);
    if (window->FillFromFile("in.Kvt") == Refused || window->settings.segs > MostSegs) {
        return;
    }
    window->UpdateFitting();
    window->ZoomExtents();
    (void)window->Export("out.dxf", ExportMode::Dxf);
    if (window->SaveFile("out.Kvt") == Refused) {
        return;
    }
    const std::string saved = shell.files.Read("out.Kvt", std::string::npos);
    const auto again = NewFitting(shell.context, category, nullptr);
    if (again->FillFromFile("out.Kvt") == Refused) {
        std::abort();
    }
    again->UpdateFitting();
    if (again->hasModel && again->SaveFile("again.Kvt") == Passed &&
        shell.files.Read("again.Kvt", std::string::npos) != saved) {
        std::abort();
    }
}

/// The category of a file, if its fitting is built.
std::string CategoryOf(const std::string& text) {
    CKvtFile file;
    try {
        file.ParseHeader(text);
    } catch (const ParameterFileError&) {
    }
    const CatalogueRow* row = FindCategory(file.Category);
    return row != nullptr ? file.Category : "Right Cone";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    LoadAndSave(text, CategoryOf(text));
    return 0;
}
