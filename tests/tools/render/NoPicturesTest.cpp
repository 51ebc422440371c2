// SPDX-License-Identifier: MIT
#include "tools/velorx/render/Picture.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(NoPictures, SaysThatThisBuildMakesNone)
{
    CConversionReport report;
    EXPECT_EQ(
        WhyNoPictures(),
        "this build of velorx makes no pictures, since Qt's SVG module was missing when it was "
        "built");
    EXPECT_EQ(DrawPicture({}, report), WhyNoPictures());
}

} // namespace velorx::test
