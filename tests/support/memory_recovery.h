// A store of recovery copies in memory, for tests.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/file_store.h"
#include "frame/recovery_store.h"

namespace korvet {

class MemoryRecovery final : public RecoveryStore {
  public:
    std::map<int, std::string> own;  ///< by number
    std::vector<std::string> left;   ///< of earlier runs
    bool full = false;               ///< Keep throws and changes nothing
    bool holdsLeft = false;
    int writes = 0;

    void Keep(int number, const std::string& copy) override {
        if (full) {
            throw FileError("the disk is full");
        }
        own[number] = copy;
        ++writes;
    }
    void Drop(int number) override { own.erase(number); }
    std::vector<std::string> TakeLeft() override {
        holdsLeft = true;
        gone_.assign(left.size(), false);
        return left;
    }
    void DeleteLeft(std::size_t index) override { gone_.at(index) = true; }
    void ReleaseLeft() override {
        holdsLeft = false;
        std::vector<std::string> still;
        for (std::size_t i = 0; i < left.size(); ++i) {
            if (!gone_.at(i)) {
                still.push_back(left[i]);
            }
        }
        left = still;
    }

  private:
    std::vector<bool> gone_;
};

}  // namespace korvet
