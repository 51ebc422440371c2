// SPDX-License-Identifier: MIT
#include "tests/support/MifRecorder.h"

using namespace VelorExchange::test;

namespace {

std::string RecordedClauses(const QByteArray& clauses)
{
    return RecordedObjects("Text \"t\"\n0 0 1 1\n" + clauses);
}

const std::string kBare = "AddText <t> (0 0)(1 1)";

} // namespace

TEST(TextParser, ValueStandsOnItsLineOrTheNext)
{
    EXPECT_EQ(RecordedObjects("Text \"some words\"\n1 2 3 4\n"),
              "AddText <some words> (1 2)(3 4)\n");
    EXPECT_EQ(RecordedObjects("Text\n  \"some words\"\n1 2 3 4\n"),
              "AddText <some words> (1 2)(3 4)\n");
}

TEST(TextParser, ApostropheEndsTheValueBehindTheKeywordOnly)
{
    EXPECT_EQ(RecordedObjects("Text \"it's\"\n0 0 1 1\n"), "AddText <it> (0 0)(1 1)\n");
    EXPECT_EQ(RecordedObjects("Text\n\"it's\"\n0 0 1 1\n"), "AddText <it's> (0 0)(1 1)\n");
}

TEST(TextParser, QuotesOnTheNextLineTakeTheSpaceAroundThem)
{
    EXPECT_EQ(RecordedObjects("Text\n\" a \"\" b \"\n0 0 1 1\n"), "AddText <ab> (0 0)(1 1)\n");
    EXPECT_EQ(RecordedObjects("Text\nno quotes  at all\n0 0 1 1\n"),
              "AddText <no quotes  at all> (0 0)(1 1)\n");
}

TEST(TextParser, DoubledQuoteBehindTheKeywordEndsTheValue)
{
    EXPECT_EQ(RecordedObjects("Text \"a\"\"b\"\n0 0 1 1\n"), "AddText <a> (0 0)(1 1)\n");
}

TEST(TextParser, EmptyValueDropsIt)
{
    EXPECT_EQ(RecordedObjects("Text \"\"\n0 0 1 1\n"), "");
    EXPECT_EQ(RecordedObjects("Text\n\"\"\n0 0 1 1\n"), "AddText <> (0 0)(1 1)\n");
}

TEST(TextParser, CornersNeedFourNumbers)
{
    EXPECT_EQ(RecordedObjects("Text \"a\"\n0 0 1\n"), "");
    EXPECT_EQ(RecordedObjects("Text \"a\"\n"), "");
}

TEST(TextParser, FourWordsBehindTheKeywordAreNotItsCorners)
{
    EXPECT_EQ(RecordedObjects("Text \"a b\" 1 2 3 4\n"), "");
    EXPECT_EQ(RecordedObjects("Text\n1 2 3 4\n"), "");
}

TEST(TextParser, AngleIsInDegreesAndZeroLeavesIt)
{
    EXPECT_EQ(RecordedClauses("Angle 180\n"), kBare + " angle=3.141592653589793\n");
    EXPECT_EQ(RecordedClauses("Angle 180\nAngle 0\n"), kBare + " angle=3.141592653589793\n");
    EXPECT_EQ(RecordedClauses("Angle 90\nAngle 180\n"), kBare + " angle=3.141592653589793\n");
}

TEST(TextParser, SpacingIsTheNumber)
{
    EXPECT_EQ(RecordedClauses("Spacing 1.5\n"), kBare + " spacing=1.5\n");
}

TEST(TextParser, JustifyKnowsThreeWordsAndTheLastStands)
{
    EXPECT_EQ(RecordedClauses("Justify Center\n"), kBare + " justify=1\n");
    EXPECT_EQ(RecordedClauses("JUSTIFY RIGHT\n"), kBare + " justify=2\n");
    EXPECT_EQ(RecordedClauses("Justify Right\nJustify Left\n"), kBare + "\n");
    EXPECT_EQ(RecordedClauses("Justify Right\nJustify Middle\n"), kBare + " justify=2\n");
    EXPECT_EQ(RecordedClauses("Justify Left Center\n"), kBare + "\n");
    EXPECT_EQ(RecordedClauses("Justify Right Left\n"), kBare + " justify=2\n");
}

TEST(TextParser, LabelHasAPointAndPerhapsAnArrow)
{
    EXPECT_EQ(RecordedClauses("Label Line Simple 7 8\n"), kBare + " label=(7 8)\n");
    EXPECT_EQ(RecordedClauses("Label Line Arrow 7 8\n"), kBare + " arrow=1 label=(7 8)\n");
    EXPECT_EQ(RecordedClauses("Label Line 7 8\n"), "");
}

TEST(TextParser, ClausesStandInAnyOrder)
{
    EXPECT_EQ(RecordedClauses("Label Line Simple 7 8\nJustify Right\nSpacing 2\nAngle 180\n"
                              "Font (\"F\",1,0,255)\nPoint 1 2\n"),
              kBare
                  + " angle=3.141592653589793 spacing=2 font=F,1,0,#ff0000,#ffffff justify=2"
                    " label=(7 8)\nAddPoint (1 2)\n");
}

TEST(TextParser, ClausesAreTriedInTheirOrder)
{
    EXPECT_EQ(RecordedClauses("Angle 180 Font (\"F\",1,0,255)\n"),
              kBare + " font=F,1,0,#ff0000,#ffffff\n");
    EXPECT_EQ(RecordedClauses("Spacing 180 Angle\n"), kBare + " angle=3.141592653589793\n");
    EXPECT_EQ(RecordedClauses("Justify 2 Right Spacing\n"), kBare + " spacing=2\n");
    EXPECT_EQ(RecordedClauses("Label Line Right 7 8 Justify\n"), kBare + " justify=2\n");
}

TEST(TextParser, PenEndsTheClauses)
{
    EXPECT_EQ(RecordedClauses("Pen (1,2,0)\nAngle 180\n"), kBare + "\n");
}
