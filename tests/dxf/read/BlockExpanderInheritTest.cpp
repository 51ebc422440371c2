// SPDX-License-Identifier: MIT
// What the entities of a block take from the insert, and inserts inside a block.
#include "tests/dxf/read/BlockExpanderTest.h"

#include <cmath>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

double NestedRotation(double outer, double inner)
{
    return Last(Insert(inner, 1, 1), Insert(outer, 1, 1)).insert.rotation;
}

} // namespace

TEST(BlockExpander, LetsAFaceInheritItsColourAlone)
{
    C3DFaceDXF face;
    face.color = kByBlock;
    face.lineStyle.name = QStringLiteral("BYBLOCK");
    EXPECT_EQ(Expanded(face, Quarter()),
              "3DFace color=#123456 style=\"BYBLOCK\" "
              "corners=[(10 20 30) (10 20 30) (10 20 30) (10 20 30)]\n");
}

TEST(BlockExpander, ComposesANestedInsert)
{
    EXPECT_EQ(Quartered("0 INSERT\n2 N\n8 L\n62 0\n6 BYBLOCK\n10 1\n20 2\n30 3\n41 5\n42 6\n43 7\n"
                        "50 10\n"),
              "Insert name=\"N\" layer=\"L\" point=(4 22 42) rotation=100 scaleX=10 scaleY=18 "
              "scaleZ=7 color=#123456 style=\"DASHED\"\n");
}

TEST(BlockExpander, KeepsTheAttributesOfANestedInsert)
{
    EXPECT_EQ(Quartered("0 INSERT\n2 N\n0 ATTRIB\n62 0\n2 T\n10 1\n20 2\n40 2\n50 90\n0 SEQEND\n"),
              "Insert name=\"N\" point=(10 20 30) rotation=90 scaleX=2 scaleY=3 "
              "attributes=[{Attrib at=(1 2) height=2 rotation=1.5707963267948966 color=#FFFFFFFF "
              "style.height=2 tag=\"T\"}]\n");
}

TEST(BlockExpander, ReducesTheRotationOfANestedInsert)
{
    EXPECT_EQ(NestedRotation(100, 300), 40);
    EXPECT_EQ(NestedRotation(60, 300), 360);
    EXPECT_EQ(NestedRotation(420, 300), 360);
    EXPECT_EQ(NestedRotation(500, 600), 20);
    EXPECT_EQ(NestedRotation(-300, -100), -400);
}

TEST(BlockExpander, ReducesARotationAsIfByOneTurnAtATime)
{
    for (double rotation : {360.5, 719.9999999999999, 720.0000000000001, 1e5 / 3, 123456.789}) {
        double expected = rotation;
        while (expected > 360.0) {
            expected -= 360.0;
        }
        EXPECT_EQ(NestedRotation(0, rotation), expected) << rotation;
    }
}

TEST(BlockExpander, EndsForAnyRotation)
{
    EXPECT_GT(NestedRotation(0, 1e300), 0);
    EXPECT_LE(NestedRotation(0, 1e300), 360);
    EXPECT_EQ(NestedRotation(0, -1e300), -1e300);
    EXPECT_EQ(NestedRotation(0, kInfinity), kInfinity);
    EXPECT_EQ(NestedRotation(0, -kInfinity), -kInfinity);
    EXPECT_TRUE(std::isnan(NestedRotation(0, kNaN)));
}

TEST(BlockExpander, KeepsColoursOfTheirOwn)
{
    EXPECT_EQ(Quartered("0 LINE\n62 1\n0 ARC\n62 1\n0 INSERT\n62 1\n2 N\n"),
              "Line color=#0000FF start=(10 20 30) end=(10 20 30)\n"
              "Arc color=#0000FF center=(10 20 30) start=90 end=90\n"
              "Insert name=\"N\" point=(10 20 30) rotation=90 scaleX=2 scaleY=3 color=#0000FF\n");
}

TEST(BlockExpander, LeavesAColourByBlockToTheOuterInsert)
{
    CInsertDXF insert;
    insert.color = kByBlock;
    EXPECT_EQ(Replayed("0 POINT\n62 0\n", insert), "Point color=#FFFFFFFF\n");
    EXPECT_EQ(Replayed("0 INSERT\n62 0\n", insert), "Insert color=#FFFFFFFF\n");
}

TEST(BlockExpander, NeverReplacesALayer)
{
    CInsertDXF insert;
    insert.layer = QStringLiteral("L");
    EXPECT_EQ(Replayed("0 LINE\n8 0\n0 INSERT\n8 0\n", insert),
              "Line layer=\"0\"\nInsert layer=\"0\"\n");
}

TEST(BlockExpander, InheritsTheNameAloneOfALineStyle)
{
    CInsertDXF insert;
    insert.lineStyle = {{1.0, -1.0}, QStringLiteral("DASHED"), QStringLiteral("of the insert")};
    CLineDXF line;
    for (const char* name : {"BYBLOCK", "ByBlock", "byblock"}) {
        line.lineStyle = {{2.0}, QString::fromLatin1(name), QStringLiteral("of the line")};
        const CLineStyleDXF style = Last(line, insert).line.lineStyle;
        EXPECT_EQ(style.name, QStringLiteral("DASHED"));
        EXPECT_EQ(style.description, QStringLiteral("of the line"));
        EXPECT_EQ(style.pattern.size(), 1U);
    }
    line.lineStyle.name = QStringLiteral("DOT");
    EXPECT_EQ(Last(line, insert).line.lineStyle.name, QStringLiteral("DOT"));
}

TEST(BlockExpander, InheritsTheWholeLineStyleOfAnInsert)
{
    CInsertDXF insert;
    insert.lineStyle = {{1.0, -1.0}, QStringLiteral("DASHED"), QStringLiteral("of the insert")};
    CInsertDXF nested;
    nested.lineStyle = {{2.0}, QStringLiteral("ByBlock"), QStringLiteral("of the nested one")};
    const CLineStyleDXF style = Last(nested, insert).insert.lineStyle;
    EXPECT_EQ(style.name, QStringLiteral("DASHED"));
    EXPECT_EQ(style.description, QStringLiteral("of the insert"));
    EXPECT_EQ(style.pattern.size(), 2U);
    nested.lineStyle.name = QStringLiteral("DOT");
    EXPECT_EQ(Last(nested, insert).insert.lineStyle.pattern.size(), 1U);
}
