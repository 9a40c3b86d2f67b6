// The recovery copies on the disks of the machine.
#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "frame/recovery_store.h"
#include "platform/disk_files.h"

namespace korvet {

/// A folder with one in it for each run of the program, which a file that is held tells to be running. That
/// of a run is made with its first copy, and goes with the run.
class RecoveryFolder final : public RecoveryStore {
  public:
    explicit RecoveryFolder(std::string folder);
    ~RecoveryFolder() override;

    /// The place of the user's recovery copies on this machine.
    static std::string OfUser();

    void Keep(int number, const std::string& copy) override;
    void Drop(int number) override;
    std::vector<std::string> TakeLeft() override;
    void DeleteLeft(std::size_t index) override;
    void ReleaseLeft() override;

  private:
    /// A folder of a run and what holds it.
    struct Run {
        std::filesystem::path folder;
        std::shared_ptr<void> held;
    };

    void MakeOwnFolder();
    [[nodiscard]] std::filesystem::path CopyOf(int number) const;

    std::filesystem::path folder_;
    DiskFiles files_;
    Run own_;
    std::vector<Run> left_;
    std::vector<std::filesystem::path> leftCopies_;
};

}  // namespace korvet
