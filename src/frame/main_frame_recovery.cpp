// What the main frame does about recovery copies.
#include "core/constants.h"
#include "core/reason.h"
#include "frame/main_frame.h"
#include "window/saving.h"

namespace korvet {

/// A failure is told once: the disk that is full now will be full in two seconds.
Outcome CMainFrame::KeepCopies(bool canBeTold) {
    if (!recovery_) {
        return Passed;
    }
    try {
        recovery_->Keep(children_);
        return Passed;
    } catch (const std::exception& error) {
        if (!copiesFailed_ && canBeTold) {
            copiesFailed_ = true;
            ShowPlain(context_.ui, "What is typed cannot be kept for the case that the program ends badly",
                      ReasonOf(error));
        }
        return Refused;
    }
}

void CMainFrame::OfferCopies() {
    if (recoveryStore_ == nullptr || copiesOffered_) {
        return;
    }
    copiesOffered_ = true;
    Guarded([&] {
        const std::vector<LeftCopy> left = ReadLeft(recoveryStore_->TakeLeft());
        if (!left.empty()) {
            Offer(left);
        }
        recoveryStore_->ReleaseLeft();
    });
}

/// One that is damaged is named as such, so that the choice is about it too.
std::vector<CMainFrame::LeftCopy> CMainFrame::ReadLeft(const std::vector<std::string>& copies) {
    std::vector<LeftCopy> left;
    for (const std::string& bytes : copies) {
        LeftCopy& copy = left.emplace_back();
        try {
            copy.contents = RecoveryCopy::Parse(bytes);
            copy.name = NameOfCopy(*copy.contents);
        } catch (const ParameterFileError& error) {
            copy.contents.reset();
            copy.name = std::string("a window whose copy is damaged: ") + error.what();
        }
    }
    return left;
}

void CMainFrame::Offer(const std::vector<LeftCopy>& left) {
    RecoveryDialog dialog;
    dialog.caption = ProductTitle;
    for (const LeftCopy& copy : left) {
        dialog.windows.push_back(copy.name);
    }
    desktop_.RunModal(dialog);
    if (dialog.choice == RecoveryDialog::Choice::Later) {
        return;
    }
    std::vector<std::size_t> done;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (dialog.choice == RecoveryDialog::Choice::DeleteAll || Recover(left[i]) == Passed) {
            done.push_back(i);
        }
    }
    // What has been opened goes only when this run has copies of its own.
    if (dialog.choice == RecoveryDialog::Choice::DeleteAll || KeepCopies() == Passed) {
        for (const std::size_t index : done) {
            recoveryStore_->DeleteLeft(index);
        }
    }
}

/// Opens a window as it was. One that can't be is left where it is.
Outcome CMainFrame::Recover(const LeftCopy& copy) {
    if (!copy.contents) {
        return Refused;
    }
    pendingCategory_ = copy.contents->Category();
    CFittingWindow* const child = NewFitting(true);
    if (child == nullptr) {
        return Refused;
    }
    try {
        Restore(*child, *copy.contents);
        return Passed;
    } catch (const std::exception& error) {
        ShowLoadError(context_, copy.name, error);
        Remove(*child);
        return Refused;
    }
}

}  // namespace korvet
