// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

namespace {

std::string RecordedBrush(const QByteArray& clause)
{
    return RecordedObjects("Rect 1 2 3 4\n" + clause + '\n');
}

} // namespace

TEST(BrushClause, ReadsPatternAndBothColors)
{
    EXPECT_EQ(RecordedBrush("BRUSH (5,255,65280)"), "AddRect (1 2)(3 4) brush=5,#ff0000,#00ff00\n");
}

TEST(BrushClause, MissingBackgroundIsWhite)
{
    EXPECT_EQ(RecordedBrush("Brush (2,16777215)"), "AddRect (1 2)(3 4) brush=2,#ffffff,#ffffff\n");
    EXPECT_EQ(RecordedBrush("Brush (5,255,65280)\nBrush (5,255)"),
              "AddRect (1 2)(3 4) brush=5,#ff0000,#ffffff\n");
}
