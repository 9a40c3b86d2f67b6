// Names of drawing layers.
#pragma once

#include <string_view>

namespace korvet {

/// What to say of a name that is none.
inline constexpr std::string_view NoLayerName =
    "A layer name cannot hold control characters nor any of < > / \\ \" : ; ? * | = `";

/// Whether other drawing programs take the UTF-8 text as the name of a layer: no control characters and none
/// of those that they use as marks. An empty text passes.
bool IsLayerName(std::string_view name);

}  // namespace korvet
