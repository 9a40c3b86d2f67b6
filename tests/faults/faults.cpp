// libfaults: a library to be loaded before a program (LD_PRELOAD) that makes one of its calls to the system
// fail. The kernel traps the calls, so that those count too which the C library makes inside itself. The
// environment says what happens:
//   FAULT_FOLDER   only calls on what lies in this folder count, and writes to the standard output
//   FAULT_AT       number of the call, from 1; 0 or none lets all pass
//   FAULT_KIND     number of the error that the call ends in, "short" for half of what was to be written,
//                  "before" or "after" for the end of the program at that moment
//   FAULT_LOG      file for the names of the calls that count, a line each
#include <fcntl.h>
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <ucontext.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <cstring>

// The one place from which calls pass untrapped.
extern "C" long FaultsPass(long number, long a, long b, long c, long d, long e, long f);
extern "C" const char FaultsPassed;
asm(R"(
    .text
    .globl FaultsPass
    .hidden FaultsPass
    .type FaultsPass, @function
FaultsPass:
    mov %rdi, %rax
    mov %rsi, %rdi
    mov %rdx, %rsi
    mov %rcx, %rdx
    mov %r8, %r10
    mov %r9, %r8
    mov 8(%rsp), %r9
    syscall
    .globl FaultsPassed
    .hidden FaultsPassed
FaultsPassed:
    ret
    .size FaultsPass, . - FaultsPass
)");

namespace {

/// Where a call says what it works on.
enum class On { Path, PathBehindFolder, OpenFile };

struct Call {
    int number;
    const char* name;
    On on;
};

constexpr std::array Calls = {Call{SYS_open, "open", On::Path},
                              Call{SYS_openat, "open", On::PathBehindFolder},
                              Call{SYS_read, "read", On::OpenFile},
                              Call{SYS_write, "write", On::OpenFile},
                              Call{SYS_writev, "write", On::OpenFile},
                              Call{SYS_close, "close", On::OpenFile},
                              Call{SYS_fsync, "fsync", On::OpenFile},
                              Call{SYS_fdatasync, "fsync", On::OpenFile},
                              Call{SYS_rename, "rename", On::Path},
                              Call{SYS_renameat, "rename", On::PathBehindFolder},
                              Call{SYS_renameat2, "rename", On::PathBehindFolder},
                              Call{SYS_link, "link", On::Path},
                              Call{SYS_linkat, "link", On::PathBehindFolder},
                              Call{SYS_unlink, "unlink", On::Path},
                              Call{SYS_unlinkat, "unlink", On::PathBehindFolder},
                              Call{SYS_fchmod, "chmod", On::OpenFile},
                              Call{SYS_fchown, "chown", On::OpenFile},
                              Call{SYS_ftruncate, "truncate", On::OpenFile},
                              Call{SYS_flock, "lock", On::OpenFile},
                              Call{SYS_getdents64, "list", On::OpenFile},
                              Call{SYS_stat, "stat", On::Path},
                              Call{SYS_lstat, "stat", On::Path},
                              Call{SYS_newfstatat, "stat", On::PathBehindFolder},
                              Call{SYS_statx, "stat", On::PathBehindFolder}};

constexpr std::size_t LongestPath = 4096;
constexpr int StandardOutput = 1;

std::array<char, LongestPath> folder{};
long faultAt = 0;
int error = 0;
bool isShort = false;
bool endsBefore = false;
bool endsAfter = false;
int logFile = -1;
std::atomic<long> count = 0;

bool IsInFolder(const char* path) {
    return std::strncmp(path, folder.data(), std::strlen(folder.data())) == 0;
}

/// Whether an open file is one that counts.
bool Counts(int file) {
    if (file == StandardOutput) {
        return true;
    }
    std::array<char, LongestPath> name{};
    std::array<char, 32> link = {"/proc/self/fd/"};
    char* end = link.data() + std::strlen(link.data());
    for (int unit = 1000; unit > 0; unit /= 10) {
        if (file >= unit || unit == 1) {
            *end++ = static_cast<char>('0' + file / unit % 10);
        }
    }
    const long size = FaultsPass(SYS_readlink, reinterpret_cast<long>(link.data()),
                                 reinterpret_cast<long>(name.data()), LongestPath - 1, 0, 0, 0);
    return size > 0 && IsInFolder(name.data());
}

bool Counts(const Call& call, const greg_t* registers) {
    switch (call.on) {
        case On::Path:
            return IsInFolder(reinterpret_cast<const char*>(registers[REG_RDI]));
        case On::PathBehindFolder:
            return IsInFolder(reinterpret_cast<const char*>(registers[REG_RSI]));
        default:
            return Counts(static_cast<int>(registers[REG_RDI]));
    }
}

[[noreturn]] void End() {
    const long self = FaultsPass(SYS_getpid, 0, 0, 0, 0, 0, 0);
    while (true) {
        FaultsPass(SYS_kill, self, SIGKILL, 0, 0, 0, 0);
    }
}

long Pass(const Call& call, const greg_t* r) {
    return FaultsPass(call.number, r[REG_RDI], r[REG_RSI], r[REG_RDX], r[REG_R10], r[REG_R8], r[REG_R9]);
}

long Fail(const Call& call, greg_t* registers) {
    if (endsBefore) {
        End();
    }
    if (isShort) {
        if (call.number == SYS_write && registers[REG_RDX] > 1) {
            registers[REG_RDX] /= 2;
        }
        return Pass(call, registers);
    }
    if (endsAfter) {
        Pass(call, registers);
        End();
    }
    if (call.number == SYS_close) {
        Pass(call, registers);  // the system lets go of the file whatever it answers
    }
    return -error;
}

void Log(const char* name) {
    if (logFile != -1) {
        std::array<char, 16> line{};
        const std::size_t size = std::strlen(name);
        std::memcpy(line.data(), name, size);
        line[size] = '\n';
        FaultsPass(SYS_write, logFile, reinterpret_cast<long>(line.data()), static_cast<long>(size + 1), 0, 0,
                   0);
    }
}

void OnTrap(int /*signal*/, siginfo_t* info, void* context) {
    greg_t* const registers = static_cast<ucontext_t*>(context)->uc_mcontext.gregs;
    for (const Call& call : Calls) {
        if (call.number == info->si_syscall) {
            bool fails = false;
            if (Counts(call, registers)) {
                const bool isPrinted = call.number == SYS_write && registers[REG_RDI] == StandardOutput;
                Log(isPrinted ? "print" : call.name);
                fails = ++count == faultAt;
            }
            registers[REG_RAX] = fails ? Fail(call, registers) : Pass(call, registers);
            return;
        }
    }
}

void Trap() {
    constexpr std::size_t Head = 7;
    std::array<sock_filter, Head + Calls.size() + 2> filter{};
    const auto passed = reinterpret_cast<unsigned long>(&FaultsPassed);
    const auto load = [](std::size_t at) {
        return sock_filter{BPF_LD | BPF_W | BPF_ABS, 0, 0, static_cast<unsigned>(at)};
    };
    const auto jump = [](unsigned value, std::size_t equal, std::size_t other) {
        return sock_filter{BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned char>(equal),
                           static_cast<unsigned char>(other), value};
    };
    const std::size_t trap = filter.size() - 1;
    const std::size_t allow = filter.size() - 2;
    filter[0] = load(offsetof(seccomp_data, arch));
    filter[1] = jump(AUDIT_ARCH_X86_64, 0, allow - 2);
    filter[2] = load(offsetof(seccomp_data, instruction_pointer));
    filter[3] = jump(static_cast<unsigned>(passed), 0, 2);
    filter[4] = load(offsetof(seccomp_data, instruction_pointer) + 4);
    filter[5] = jump(static_cast<unsigned>(passed >> 32U), allow - 6, 0);
    filter[6] = load(offsetof(seccomp_data, nr));
    for (std::size_t i = 0; i < Calls.size(); ++i) {
        const std::size_t at = Head + i;
        filter[at] = jump(static_cast<unsigned>(Calls[i].number), trap - at - 1, 0);
    }
    filter[allow] = {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW};
    filter[trap] = {BPF_RET | BPF_K, 0, 0, SECCOMP_RET_TRAP};
    const sock_fprog program = {static_cast<unsigned short>(filter.size()), filter.data()};
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        ::prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &program) != 0) {
        std::abort();
    }
}

const char* Setting(const char* name) {
    const char* const value = std::getenv(name);
    return value != nullptr ? value : "";
}

[[gnu::constructor]] void Begin() {
    std::strncpy(folder.data(), Setting("FAULT_FOLDER"), LongestPath - 1);
    faultAt = std::atol(Setting("FAULT_AT"));
    const char* const kind = Setting("FAULT_KIND");
    error = std::atoi(kind);
    isShort = std::strcmp(kind, "short") == 0;
    endsBefore = std::strcmp(kind, "before") == 0;
    endsAfter = std::strcmp(kind, "after") == 0;
    logFile = ::open(Setting("FAULT_LOG"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    struct sigaction action {};
    action.sa_sigaction = OnTrap;
    action.sa_flags = SA_SIGINFO | SA_NODEFER | SA_RESTART;
    if (::sigaction(SIGSYS, &action, nullptr) != 0) {
        std::abort();
    }
    Trap();
}

}  // namespace
