// Between a fitting window and the contents of its parameter file.
#pragma once

#include "window/fitting_window.h"

namespace korvet {

/// All that a save of the window writes. Before the first view the view is the default one.
CKvtFile ParameterFileOf(const CFittingWindow& window);

/// A file with the controls and sections that the window has, to be read into.
CKvtFile EmptyFileOf(const CFittingWindow& window);

/// How texts get into the boxes: with the message for one that is no number, or as they stand and all red.
enum class Filling { AsTyped, AsItStands };

/// Fills boxes and option buttons as if the user had typed and clicked.
void FillControls(CFittingWindow& window, const KvtControls& kvt, Filling filling);

/// Takes everything over from a file but its view and its name, and shows the page of its type; nothing is
/// built. Throws ParameterFileError for a type that the window has not.
void TakeParameters(CFittingWindow& window, const CKvtFile& file, Filling filling);

/// The window as it stands counts as saved.
void CountAsSaved(CFittingWindow& window);

/// Whether a save would write anything, the view aside, that has not been saved or loaded, nor was there in
/// the new window.
bool HasChanges(const CFittingWindow& window);

/// What is compared for that.
SavedState StateOf(const CFittingWindow& window);

}  // namespace korvet
