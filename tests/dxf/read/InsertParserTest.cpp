// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

namespace {

// What the host gets for an INSERT with these groups and records behind it.
std::string Insert(const std::string& groups)
{
    return Recorded(Entities(("0 INSERT\n" + groups).c_str()));
}

} // namespace

TEST(InsertParser, ReadsAllFields)
{
    EXPECT_EQ(
        Insert("2 WELL\n8 Wells\n6 DASHED\n62 1\n10 1\n20 2\n30 3\n41 4\n42 5\n43 6\n50 90\n"),
        "Insert name=\"WELL\" layer=\"Wells\" point=(1 2 3) rotation=90 scaleX=4 scaleY=5 "
        "scaleZ=6 color=#0000FF style=\"DASHED\"\n");
}

TEST(InsertParser, ScalesByOneWhereItTellsNoScale)
{
    EXPECT_EQ(Insert("2 WELL\n"), "Insert name=\"WELL\"\n");
    EXPECT_EQ(Insert("41\n42\n43 x\n"), "Insert scaleX=0 scaleY=0 scaleZ=0\n");
}

TEST(InsertParser, PassesOverRowsAndColumns)
{
    EXPECT_EQ(Insert("2 WELL\n70 2\n71 3\n44 5\n45 6\n"), "Insert name=\"WELL\"\n");
}

TEST(InsertParser, ConvertsItsPoint)
{
    EXPECT_EQ(Insert("10 1\n20 2\n30 3\n210 0\n220 0\n230 -1\n"), "Insert point=(-1 2 -3)\n");
}

TEST(InsertParser, KeepsALineStyleByBlock)
{
    EXPECT_EQ(Insert("6 ByBlock\n"), "Insert style=\"ByBlock\"\n");
}

TEST(InsertParser, DropsInsertInPaperSpace)
{
    EXPECT_EQ(Insert("67 1\n2 WELL\n0 ATTRIB\n2 T\n0 SEQEND\n0 POINT\n"), "Point\n");
}

TEST(InsertParser, GoesIntoTheBlockInHand)
{
    EXPECT_EQ(Recorded(Block("0 INSERT\n62 0\n2 WELL\n0 ATTRIB\n62 0\n2 T\n0 SEQEND\n0 POINT\n")),
              "Block name=\"B\"\n  Insert name=\"WELL\" color=#FFFFFFFF "
              "attributes=[{Attrib color=#FFFFFFFF tag=\"T\"}]\n  Point\n");
}

TEST(InsertParser, ReadsAllFieldsOfAnAttribute)
{
    EXPECT_EQ(Insert("2 WELL\n0 ATTRIB\n2 DEPTH\n1 12.5 m\n7 ROMAN\n8 Notes\n62 1\n10 1\n20 2\n"
                     "30 3\n40 2.5\n41 0.8\n50 90\n51 180\n72 4\n0 SEQEND\n"),
              "Insert name=\"WELL\" attributes=[{Attrib text=\"12.5 m\" layer=\"Notes\" at=(1 2) "
              "height=2.5 rotation=1.5707963267948966 color=#0000FF align=4 style=\"ROMAN\" "
              "style.height=2.5 style.width=0.8 style.oblique=3.141592653589793 tag=\"DEPTH\"}]\n");
}

TEST(InsertParser, LeavesAbsentFieldsOfAnAttributeAtTheirDefaults)
{
    EXPECT_EQ(Insert("0 ATTRIB\n0 SEQEND\n"), "Insert attributes=[{Attrib}]\n");
    EXPECT_EQ(Insert("0 ATTRIB\n7\n41\n0 SEQEND\n"),
              "Insert attributes=[{Attrib style=\"\" style.width=0}]\n");
}

TEST(InsertParser, ReadsAttributesInTheirOrder)
{
    EXPECT_EQ(Insert("66 1\n0 ATTRIB\n2 A\n0 ATTRIB\n2 B\n0 SEQEND\n8 X\n0 ATTRIB\n2 C\n"),
              "Insert attributes=[{Attrib tag=\"A\"} {Attrib tag=\"B\"}]\n");
}

TEST(InsertParser, NeedsNoMarkForItsAttributes)
{
    EXPECT_EQ(Insert("66 0\n0 ATTRIB\n2 A\n0 SEQEND\n"),
              "Insert attributes=[{Attrib tag=\"A\"}]\n");
}

TEST(InsertParser, TakesNothingOfAnAttributeForTheInsert)
{
    EXPECT_EQ(Insert("2 WELL\n0 ATTRIB\n41 3\n42 4\n43 5\n6 DASHED\n0 SEQEND\n"),
              "Insert name=\"WELL\" attributes=[{Attrib style.width=3}]\n");
}

TEST(InsertParser, ConvertsAnAttributeByItsOwnExtrusion)
{
    EXPECT_EQ(Insert("10 1\n210 0\n220 0\n230 -1\n0 ATTRIB\n10 1\n20 2\n0 SEQEND\n"),
              "Insert point=(-1 0 0) attributes=[{Attrib at=(1 2)}]\n");
    EXPECT_EQ(Insert("10 1\n0 ATTRIB\n10 1\n20 2\n210 0\n220 0\n230 -1\n0 SEQEND\n"),
              "Insert point=(1 0 0) attributes=[{Attrib at=(-1 2)}]\n");
}

TEST(InsertParser, KeepsAttributesInPaperSpace)
{
    EXPECT_EQ(Insert("0 ATTRIB\n67 1\n2 A\n0 SEQEND\n"),
              "Insert attributes=[{Attrib tag=\"A\"}]\n");
}

TEST(InsertParser, NeverHidesAnAttribute)
{
    EXPECT_EQ(Insert("0 ATTRIB\n70 1\n2 A\n0 SEQEND\n"),
              "Insert attributes=[{Attrib tag=\"A\"}]\n");
}

TEST(InsertParser, ComparesTheNameOfAnAttributeExactly)
{
    EXPECT_EQ(Insert("2 WELL\n0 Attrib\n2 A\n0 SEQEND\n"), "Insert name=\"WELL\"\n");
}

TEST(InsertParser, ComparesTheNameOfAnAttributeWhateverItsCode)
{
    // The last group of the file stops the insert too, and here it is no group 0.
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 INSERT\n2 ATTRIB\n")),
              "Insert name=\"ATTRIB\" attributes=[{Attrib}]\n");
}

TEST(InsertParser, DeliversAnInsertThatTheEndOfTheFileCutsOff)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 INSERT\n2 WELL\n")),
              "Insert name=\"WELL\"\n");
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 INSERT\n2 WELL\n0 ATTRIB\n2 A\n")),
              "Insert name=\"WELL\" attributes=[{Attrib tag=\"A\"}]\n");
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 INSERT\n2 WELL\n0 ATTRIB\n")),
              "Insert name=\"WELL\" attributes=[{Attrib}]\n");
}

TEST(InsertParser, KeepsDefinitionsOfAttributesInBlocks)
{
    EXPECT_EQ(Recorded(Block("0 ATTDEF\n2 DEPTH\n1 0 m\n3 Depth?\n0 POINT\n")),
              "Block name=\"B\"\n  AttDef tag=\"DEPTH\" value=\"0 m\"\n  Point\n");
}

TEST(InsertParser, KeepsDefinitionsOfAttributesInPaperSpace)
{
    EXPECT_EQ(Recorded(Block("0 ATTDEF\n67 1\n2 DEPTH\n")),
              "Block name=\"B\"\n  AttDef tag=\"DEPTH\"\n");
}

TEST(InsertParser, DropsDefinitionsOfAttributesOutsideBlocks)
{
    EXPECT_EQ(Recorded(Entities("0 ATTDEF\n2 DEPTH\n1 0 m\n0 POINT\n")), "Point\n");
}
