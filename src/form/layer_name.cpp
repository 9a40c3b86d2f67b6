#include "form/layer_name.h"

#include <algorithm>

namespace korvet {
namespace {

/// What other programs put between names.
constexpr std::string_view Marks = "<>/\\\":;?*|=`";

/// Control characters are the bytes below the blank, the byte 7F, and the two bytes C2 80 to C2 9F.
bool IsControl(char before, char c) {
    const auto lead = static_cast<unsigned char>(before);
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F || (lead == 0xC2 && byte >= 0x80 && byte <= 0x9F);
}

}  // namespace

bool IsLayerName(std::string_view name) {
    char before = ' ';
    return std::none_of(name.begin(), name.end(), [&before](char c) {
        const bool isControl = IsControl(before, c);
        before = c;
        return isControl || Marks.find(c) != std::string_view::npos;
    });
}

}  // namespace korvet
