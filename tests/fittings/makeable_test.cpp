// What sizes must still give that pass every check.
#include "fittings/makeable.h"

#include <gtest/gtest.h>

#include "core/checked.h"

namespace korvet {
namespace {

TEST(Makeable, NeedsAWall) {
    EXPECT_THROW(RequireWall(0), ArithmeticError);
    EXPECT_NO_THROW(RequireWall(1e-9));
}

}  // namespace
}  // namespace korvet
