#include "platform/replacing_file.h"

#include <utility>

namespace korvet {

ReplacingFile::ReplacingFile(std::string path, PlaceEvents events)
    : path_(std::move(path)), events_(std::move(events)), target_(TargetOf(path_)) {
    if (target_.isStraight) {
        straight_ = OpenStraight(path_);
        return;
    }
    const std::filesystem::path folder = target_.file.parent_path();
    events_.onFolder(folder);
    temporary_.emplace(path_, folder);
    if (target_.exists) {
        KeepAttributes(target_.file, temporary_->Stream());
    }
}

void ReplacingFile::Append(std::string_view text) {
    if (const auto error = WriteWhole(straight_ ? straight_.get() : temporary_->Stream(), text)) {
        CannotWrite(path_, error);
    }
}

void ReplacingFile::Place(Flush flush) {
    const std::error_code error =
        straight_ ? CloseFile(std::move(straight_)) : temporary_->Replace(target_.file, flush);
    if (error) {
        CannotWrite(path_, error);
    }
    if (target_.hasFurtherNames) {
        events_.onPartedNames(path_);
    }
}

}  // namespace korvet
