// The link to a drawing program as it is on Windows, by itself: what it says goes to the standard output.
//     automation_client.exe draw TRANSFERFILE | mesh | quit
#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/com_automation.h"
#include "window/auto_cad.h"

namespace {

using namespace korvet;

class Boxes final : public MessageBoxes {
  public:
    Answer Show(const MessageBox& message) override {
        std::puts(message.text.c_str());
        return Answer::Ok;
    }
};

class Files final : public FileStore {
  public:
    [[nodiscard]] bool Exists(const std::string& path) const override { return std::ifstream(path).good(); }
    [[nodiscard]] bool IsSameFile(const std::string&, const std::string&) const override { return false; }
    [[nodiscard]] std::string Read(const std::string& path, std::size_t) const override {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void WritePieces(const std::string&, const TextPieces&, Flush) override {}
    bool Create(const std::string&, const std::string&) override { return false; }
};

void ShowRow(const C3DPoints& row) {
    for (const C3DPoint& point : row) {
        std::printf("%g %g %g %d\n", point.x, point.y, point.z, point.Flag);
    }
}

int Run(const std::string& what, const std::string& path) {
    ComAutomation automation;
    Boxes boxes;
    Files files;
    COptions options;
    options.DXFTextLayer = "M\xC3\xA4nner";
    CAutoCAD link(&automation, boxes, files, options);
    if (link.ConnectToAcad()) {
        std::puts("not connected");
        return 1;
    }
    std::printf("version %d\n", link.Version);
    if (what == "quit") {
        std::vector<AutomationValue> none;
        link.AcadApp->Call("Quit", none, 0);
        return 0;
    }
    if (what == "mesh") {
        const Outcome outcome = link.GetAcadMeshObject();
        ShowRow(link.MeshList1);
        ShowRow(link.MeshList2);
        return outcome == Passed ? 0 : 1;
    }
    try {
        static_cast<void>(link.AcadDoc->Get("NoSuchMember"));
        std::puts("an unknown member was found");
    } catch (const AutomationError&) {
        std::puts("no such member");
    }
    return link.TransferTempFile(path) == Passed ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        return argc < 2 ? 2 : Run(argv[1], argc > 2 ? argv[2] : "");
    } catch (const std::exception& error) {
        std::puts(error.what());
        return 3;
    }
}
