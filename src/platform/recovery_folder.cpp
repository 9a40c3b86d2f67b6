#include "platform/recovery_folder.h"

#include <QDir>
#include <QStandardPaths>
#include <algorithm>
#include <chrono>
#include <system_error>
#include <utility>

#include "core/constants.h"
#include "platform/held_file.h"

namespace korvet {
namespace {

namespace fs = std::filesystem;

constexpr const char* HeldName = "running";
constexpr const char* CopyEnding = ".recovery";

/// Takes an empty folder of a run away, and stays silent about one that is not.
void RemoveIfEmpty(const fs::path& folder) {
    std::error_code error;
    const bool onlyHeld = std::all_of(fs::directory_iterator(folder, error), fs::directory_iterator(),
                                      [](const auto& entry) { return entry.path().filename() == HeldName; });
    if (!error && onlyHeld) {
        fs::remove(folder / HeldName, error);
        fs::remove(folder, error);
    }
}

std::vector<fs::path> Entries(const fs::path& folder) {
    std::error_code ignored;
    std::vector<fs::path> entries;
    for (const auto& entry : fs::directory_iterator(folder, ignored)) {
        entries.push_back(entry.path());
    }
    std::sort(entries.begin(), entries.end());
    return entries;
}

}  // namespace

RecoveryFolder::RecoveryFolder(std::string folder) : folder_(std::move(folder)) {}

RecoveryFolder::~RecoveryFolder() {
    if (own_.held) {
        RemoveIfEmpty(own_.folder);
    }
}

std::string RecoveryFolder::OfUser() {
#ifdef _WIN32
    const QString state = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
#else
    const QString given = qEnvironmentVariable("XDG_STATE_HOME");
    const QString state =
        QDir::isAbsolutePath(given) ? given : QDir::homePath() + QStringLiteral("/.local/state");
#endif
    return (state + QStringLiteral("/")).toStdString() + std::string(ProductTitle) + "/recovery";
}

fs::path RecoveryFolder::CopyOf(int number) const {
    return own_.folder / (std::to_string(number) + CopyEnding);
}

/// Another start may take an empty folder away before it is held: then there is another name.
void RecoveryFolder::MakeOwnFolder() {
    constexpr int MostNames = 100;
    std::error_code error;
    fs::create_directories(folder_, error);
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    for (int attempt = 0; attempt < MostNames && !error; ++attempt) {
        const fs::path folder = folder_ / ("run-" + std::to_string(ticks + attempt));
        if (fs::create_directory(folder, error)) {
            own_ = {folder, HoldFile((folder / HeldName).string())};
            if (own_.held) {
                return;
            }
        }
    }
    throw FileError(folder_.string() + " cannot be written" + (error ? ": " + error.message() : ""));
}

void RecoveryFolder::Keep(int number, const std::string& copy) {
    if (!own_.held) {
        MakeOwnFolder();
    }
    files_.Write(CopyOf(number).string(), copy, Flush::Yes);
}

void RecoveryFolder::Drop(int number) {
    if (own_.held) {
        std::error_code ignored;
        fs::remove(CopyOf(number), ignored);
    }
}

std::vector<std::string> RecoveryFolder::TakeLeft() {
    std::vector<std::string> copies;
    for (const fs::path& folder : Entries(folder_)) {
        std::error_code ignored;
        if (!fs::exists(folder / HeldName, ignored)) {
            // Of a run that was killed while it was made, or that makes it just now and then takes another.
            if (fs::is_directory(folder, ignored)) {
                fs::remove(folder, ignored);  // only if it is empty
            }
            continue;
        }
        std::shared_ptr<void> held = HoldFile((folder / HeldName).string());
        if (!held) {
            continue;  // that run goes on
        }
        left_.push_back({folder, held});
        for (const fs::path& file : Entries(folder)) {
            if (file.extension() == CopyEnding) {
                leftCopies_.push_back(file);
            }
        }
    }
    for (const fs::path& file : leftCopies_) {
        std::string& copy = copies.emplace_back();
        try {
            copy = files_.Read(file.string(), LargestCopy);
        } catch (const FileError&) {
            copy.clear();
        }
    }
    return copies;
}

void RecoveryFolder::DeleteLeft(std::size_t index) {
    std::error_code ignored;
    fs::remove(leftCopies_.at(index), ignored);
}

void RecoveryFolder::ReleaseLeft() {
    for (const Run& run : left_) {
        const std::vector<fs::path> entries = Entries(run.folder);
        const bool wanted = std::any_of(entries.begin(), entries.end(),
                                        [](const fs::path& file) { return file.extension() == CopyEnding; });
        if (!wanted) {
            std::error_code ignored;
            fs::remove_all(run.folder, ignored);  // with what a save that was killed has left
        }
    }
    left_.clear();
    leftCopies_.clear();
}

}  // namespace korvet
