// Port: where the recovery copies of windows are kept, those of this run and what earlier ones have left.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace korvet {

/// What is larger is no recovery copy: it holds a parameter file and views.
inline constexpr std::size_t LargestCopy = std::size_t{512} << 20U;

class RecoveryStore {
  public:
    RecoveryStore() = default;
    RecoveryStore(const RecoveryStore&) = delete;
    RecoveryStore& operator=(const RecoveryStore&) = delete;
    virtual ~RecoveryStore() = default;

    /// Puts a copy of this run in the place of the one of that number, in one step. Throws FileError; the
    /// older one then stays.
    virtual void Keep(int number, const std::string& copy) = 0;

    /// Takes the copy of that number away, if there is one.
    virtual void Drop(int number) = 0;

    /// The copies of runs that have ended without taking them away. From here to ReleaseLeft no other copy of
    /// the program gets them; those of one that still runs are never among them. One that can't be read is
    /// empty.
    virtual std::vector<std::string> TakeLeft() = 0;

    /// Takes one of those away for good, by its place among them.
    virtual void DeleteLeft(std::size_t index) = 0;

    /// Leaves those that are still there to the next start.
    virtual void ReleaseLeft() = 0;
};

}  // namespace korvet
