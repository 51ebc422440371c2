// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

namespace {

std::string RecordedPen(const QByteArray& clause)
{
    return RecordedObjects("Line 1 2 3 4\n" + clause + '\n');
}

} // namespace

TEST(PenClause, ReadsWidthPatternAndColor)
{
    EXPECT_EQ(RecordedPen("pEN(2,59,1193046)"), "AddPolyline (1 2)(3 4) pen=2,59,#563412\n");
}

TEST(PenClause, ColorLosesItsTopByte)
{
    EXPECT_EQ(RecordedPen("Pen (1,2,305419896)"), "AddPolyline (1 2)(3 4) pen=1,2,#785634\n");
    EXPECT_EQ(RecordedPen("Pen (1,2,-1)"), "AddPolyline (1 2)(3 4) pen=1,2,#ffffff\n");
}

TEST(PenClause, BlanksDoNotSeparateNumbers)
{
    EXPECT_EQ(RecordedPen("Pen ( 2 , 5 , 255 )"), "AddPolyline (1 2)(3 4) pen=2,5,#ff0000\n");
    EXPECT_EQ(RecordedPen("Pen (2 5 255)"), "");
}

TEST(PenClause, NumbersPassThroughUnchecked)
{
    EXPECT_EQ(RecordedPen("Pen (-1,1000,x)"), "AddPolyline (1 2)(3 4) pen=-1,1000,#000000\n");
}
