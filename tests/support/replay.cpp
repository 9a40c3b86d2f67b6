// replay FILE...: hands each file to the fuzz target that it is linked with, so that what was once found
// stays mended on every compiler.
#include <cstdint>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
    if (argc < 2) {
        std::cerr << "there is nothing to replay\n";
        return EXIT_FAILURE;
    }
    for (int i = 1; i < argc; ++i) {
        std::ifstream file(argv[i], std::ios::binary);
        const std::string bytes{std::istreambuf_iterator<char>(file), {}};
        std::cerr << argv[i] << std::endl;
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    return EXIT_SUCCESS;
}
