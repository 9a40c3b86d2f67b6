// Any bytes as settings.ini: read, and what was read written and read again.
#include <cstdlib>
#include <string>

#include "dialogs/options_file.h"
#include "tests/support/test_context.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace korvet;
    TestShell shell;
    shell.options.IniFileName = "settings.ini";
    shell.files.Write("settings.ini", std::string(reinterpret_cast<const char*>(data), size), Flush::No);
    try {
        ReadIniFile(shell.options, shell.files, shell.ui, '.');
    } catch (const std::runtime_error&) {
        return 0;
    }
    WriteIniFile(shell.options, shell.files, '.');
    const std::string written = shell.files.Read("settings.ini", std::string::npos);
    ReadIniFile(shell.options, shell.files, shell.ui, '.');
    WriteIniFile(shell.options, shell.files, '.');
    if (shell.files.Read("settings.ini", std::string::npos) != written) {
        std::abort();
    }
    return 0;
}
