// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

namespace {

std::string RecordedFont(const QByteArray& clause)
{
    return RecordedObjects("Text \"t\"\n0 0 1 1\n" + clause + '\n');
}

const std::string kBare = "AddText <t> (0 0)(1 1)";

} // namespace

TEST(FontClause, NameLosesItsBlanks)
{
    EXPECT_EQ(RecordedFont("Font (\"Times New Roman\", 3, 12.5, 255)"),
              kBare + " font=TimesNewRoman,3,12.5,#ff0000,#ffffff\n");
}

TEST(FontClause, FifthPartIsTheBackgroundUnlessZero)
{
    EXPECT_EQ(RecordedFont("Font (\"A\",0,0,0,65280)"), kBare + " font=A,0,0,#000000,#00ff00\n");
    EXPECT_EQ(RecordedFont("Font (\"A\",0,0,0,0)"), kBare + " font=A,0,0,#000000,#ffffff\n");
    EXPECT_EQ(RecordedFont("Font (\"A\",0,0,0,65280,1)"), kBare + " font=A,0,0,#000000,#ffffff\n");
}

TEST(FontClause, FewerThanFourPartsHaveNoEffect)
{
    EXPECT_EQ(RecordedFont("Font (\"A\",1,0)"), kBare + "\n");
    EXPECT_EQ(RecordedFont("Font (\"\",1,0,255)"), kBare + "\n");
}

TEST(FontClause, EmptyNameShiftsTheOthers)
{
    EXPECT_EQ(RecordedFont("Font (\"\",1,2,3,4)"), kBare + " font=1,2,3,#040000,#ffffff\n");
}

TEST(FontClause, StyleBeyondSixteenBitsIsZero)
{
    EXPECT_EQ(RecordedFont("Font (\"A\",32768,0,255)"), kBare + " font=A,0,0,#ff0000,#ffffff\n");
    EXPECT_EQ(RecordedFont("Font (\"A\",-32768,0,255)"),
              kBare + " font=A,-32768,0,#ff0000,#ffffff\n");
}

TEST(FontClause, WithoutBracketsTheObjectIsDropped)
{
    EXPECT_EQ(RecordedFont("Font"), "");
}
