#include "form/layer_name.h"

#include <gtest/gtest.h>

#include <string>

namespace korvet {
namespace {

TEST(LayerName, MarksAndControlCharactersMakeNone) {
    for (const char mark : std::string("<>/\\\":;?*|=`\x01\x1f\x7f\n\t")) {
        EXPECT_FALSE(IsLayerName(std::string("Cut") + mark + "Layer")) << mark;
    }
    EXPECT_FALSE(IsLayerName(std::string("a\0b", 3)));
    EXPECT_FALSE(IsLayerName("a\xC2\x85"));
}

TEST(LayerName, EverythingElseMayStandInOne) {
    for (const char* name :
         {"CutLayer", "Cut Layer 2", "Schnitt-\xC3\xBC_$", "\xC2\xA0", "\xE5\x88\x87", "a.b,c(d)"}) {
        EXPECT_TRUE(IsLayerName(name)) << name;
    }
}

}  // namespace
}  // namespace korvet
