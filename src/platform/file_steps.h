// The steps of writing a file safely, each with the reason when it fails.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <system_error>

#include "core/file_store.h"

namespace korvet {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a file as the C library does; a call that a signal broke off is made again. Null with the reason in
/// errno.
OpenFile OpenStream(const std::filesystem::path& path, const char* mode);

/// An open file, or null, that keeps nothing back: what it has taken, the system has, and how much that is.
OpenFile Unbuffered(std::FILE* file);

/// What the system gave as the reason of the last failure.
std::error_code LastError();

/// Throws the FileError "PATH WHAT".
[[noreturn]] void RefuseFile(const std::string& path, const std::string& what);

/// Throws the FileError that says that `path` cannot be written, and why.
[[noreturn]] void CannotWrite(const std::string& path, std::error_code reason);
[[noreturn]] void CannotWrite(const std::string& path, const std::string& reason);

/// The same for a file that could not be made in a folder, which is named.
[[noreturn]] void CannotMakeFileIn(const std::string& path, const std::filesystem::path& folder,
                                   std::error_code reason);

/// Refuses a name that the system would cut short at a zero byte, and an empty one. Throws FileError.
void RequireFileName(const std::string& path);

/// The file that a path leads to through symbolic links, there or not. Throws FileError.
std::filesystem::path FollowLinks(const std::string& path);

/// Where a file is written.
struct WriteTarget {
    std::filesystem::path file;    ///< what the path leads to through symbolic links
    bool exists = false;           ///< it is there, and is to be replaced
    bool isStraight = false;       ///< no regular file (a device, a pipe): it is written straight through
    bool hasFurtherNames = false;  ///< hard links, which stay with the old contents
};

/// Throws FileError for what is no file name, a folder, a file that may not be written though its folder
/// would let it be replaced, and when the system does not tell.
WriteTarget TargetOf(const std::string& path);

/// Opens what is written straight through. Throws FileError.
OpenFile OpenStraight(const std::string& path);

/// Hands the text to the system whole, also after calls that a signal broke off.
std::error_code WriteWhole(std::FILE* file, std::string_view text);

/// Flushes the file if asked for, and closes it. The first step that fails is the last.
std::error_code FlushAndClose(OpenFile file, Flush flush);

/// Waits until the file is on the disk itself. A file system that knows no such thing is as good as done.
std::error_code FlushToDisk(std::FILE* file);

/// The same for the names in a folder: what was renamed there stays renamed after a power cut. A folder that
/// can't be looked into is left to the system.
std::error_code FlushFolder(const std::filesystem::path& folder);

/// Closes the file. What the system only now finds that it could not keep is an error.
std::error_code CloseFile(OpenFile file);

/// Gives `file` the owner, the group, the permissions and the extended attributes of the one that it is to
/// replace, as far as the system lets it.
void KeepAttributes(const std::filesystem::path& old, std::FILE* file);

}  // namespace korvet
