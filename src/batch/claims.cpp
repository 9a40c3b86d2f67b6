#include "batch/claims.h"

#include <algorithm>
#include <system_error>

#include "batch/arguments.h"
#include "platform/file_steps.h"

namespace korvet::batch {

namespace fs = std::filesystem;

void Claims::Claim(const std::string& path, const std::string& owner, std::size_t input) {
    std::error_code ignored;
    // A link to a file that is still to be made leads there all the same.
    fs::path whole = fs::weakly_canonical(FollowLinks(path), ignored);
    if (whole.empty()) {  // a name that can't be followed is told of where the file is opened
        whole = fs::absolute(path, ignored).lexically_normal();
    }
    if (fs::exists(whole, ignored)) {
        if (!fs::is_regular_file(whole, ignored)) {
            return;
        }
        whole = FirstNameOf(whole);
    }
    const auto [place, isNew] = claims_.try_emplace(whole.string(), owner, input);
    auto& [firstOwner, firstInput] = place->second;
    const bool areRead = firstInput == Reader && input == Reader;
    const bool areOfOne = firstInput == Reader || input == Reader || firstInput == input;
    if (!areRead && (firstOwner != owner || !areOfOne)) {
        throw UsageError("\"" + path + "\" cannot be " + firstOwner + " and " + owner +
                         "; {name} in the name of an output stands for the name of its input");
    }
    firstInput = input;
}

/// The first name under which a file with several names (hard links) has been claimed.
fs::path Claims::FirstNameOf(const fs::path& file) {
    std::error_code ignored;
    if (fs::hard_link_count(file, ignored) < 2) {
        return file;
    }
    const auto found = std::find_if(linked_.begin(), linked_.end(),
                                    [&](const auto& other) { return fs::equivalent(file, other, ignored); });
    return found != linked_.end() ? *found : linked_.emplace_back(file);
}

}  // namespace korvet::batch
