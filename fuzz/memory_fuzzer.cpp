// Any bytes on the road of korvet-batch while the memory gives out once: the last two bytes tell at which of
// its requests. The run ends in order all the same, and every file that it leaves is whole.
#include <cstdint>
#include <cstdlib>
#include <new>
#include <string>

#include "fuzz/road.h"

namespace {

thread_local long requestsLeft = 0;  ///< until one fails; 0: none does

}  // namespace

// The program's own requests; what other libraries take from the C library is theirs.
void* operator new(std::size_t size) {
    if (requestsLeft > 0 && --requestsLeft == 0) {
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(size > 0 ? size : 1)) {
        return memory;
    }
    throw std::bad_alloc();
}

// The other of the library would not go with the deletes below.
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return std::malloc(size > 0 ? size : 1);
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace korvet::fuzz;
    static const Folder folder;
    constexpr std::size_t Tail = 2;
    if (size < Tail) {
        return 0;
    }
    const std::string bytes(reinterpret_cast<const char*>(data), size - Tail);
    folder.Put("in.Kvt", bytes);
    const std::vector<std::string> words = {
        folder.File("in.Kvt"),  "--json", folder.File("out.json"), "--dxf",
        folder.File("out.dxf"), "--save", folder.File("out.Kvt")};
    std::string text;
    requestsLeft = data[size - 2] + 256 * data[size - 1];
    const int status = RunInSilence(words, text);
    requestsLeft = 0;
    const std::string report = folder.Take("out.json");
    const std::string drawing = folder.Take("out.dxf");
    const std::string saved = folder.Take("out.Kvt");
    Require(!SaysByItself(text + report, "bad_alloc", bytes), "an error in no words of ours");
    Require(report.empty() || report.ends_with("}\n"), "half a report");
    Require(drawing.empty() || drawing.ends_with("EOF\r\n"), "half a drawing");
    Require(status != korvet::batch::Done || !(report.empty() || drawing.empty() || saved.empty()),
            "done, without an output");
    return 0;
}
