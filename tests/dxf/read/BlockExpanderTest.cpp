// SPDX-License-Identifier: MIT
#include "tests/dxf/read/BlockExpanderTest.h"

#include "VelorExchange/dxf/read/BlockExpander_p.h"

#include <algorithm>
#include <stdexcept>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

std::string Arc(const CInsertDXF& insert)
{
    return Replayed("0 ARC\n40 5\n50 10\n51 20\n", insert);
}

} // namespace

TEST(BlockExpander, CallsNothingForAnEmptyBlock)
{
    EXPECT_EQ(Replayed("", Quarter()), "");
}

TEST(BlockExpander, ReplaysEntitiesInTheirOrder)
{
    EXPECT_EQ(Replayed("0 POINT\n10 1\n0 LINE\n10 2\n0 POINT\n10 3\n", CInsertDXF()),
              "Point point=(1 0 0)\nLine start=(2 0 0)\nPoint point=(3 0 0)\n");
}

TEST(BlockExpander, ScalesMovesAndTurnsAPoint)
{
    CInsertDXF insert = Insert(90, 2, 2);
    insert.point = {5, 6, 0};
    EXPECT_EQ(Replayed("0 POINT\n10 1\n", insert), "Point point=(5 8 0)\n");
    insert.rotation = 0;
    EXPECT_EQ(Replayed("0 POINT\n10 1\n20 -1\n30 1\n", insert), "Point point=(7 4 1)\n");
}

TEST(BlockExpander, AddsTheInsertionPointBeforeItTurns)
{
    CInsertDXF insert = Insert(90, 1, 1);
    insert.point = {1e16, 5, 0};
    // 0.25 is lost beside 1e16 in the first sum, and so does not come out along Y.
    EXPECT_EQ(Replayed("0 POINT\n10 0.25\n", insert), "Point point=(1e+16 5 0)\n");
}

TEST(BlockExpander, MovesPoint)
{
    EXPECT_EQ(Quartered("0 POINT\n8 L\n62 0\n39 5\n10 1\n20 2\n30 3\n"),
              "Point layer=\"L\" color=#123456 point=(4 22 42) thickness=5\n");
}

TEST(BlockExpander, MovesLine)
{
    EXPECT_EQ(Quartered("0 LINE\n8 L\n62 0\n6 BYBLOCK\n370 25\n10 1\n20 2\n30 3\n11 2\n21 1\n"),
              "Line layer=\"L\" color=#123456 weight=25 style=\"DASHED\" start=(4 22 42) "
              "end=(7 24 30)\n");
}

TEST(BlockExpander, MovesTheDirectionOfAnXLineLikeAPoint)
{
    EXPECT_EQ(Quartered("0 XLINE\n62 0\n6 BYBLOCK\n10 1\n20 2\n30 3\n11 2\n21 1\n"),
              "XLine color=#123456 style=\"DASHED\" origin=(4 22) z=3 direction=(7 24)\n");
}

TEST(BlockExpander, MovesArc)
{
    EXPECT_EQ(Quartered("0 ARC\n62 0\n6 BYBLOCK\n10 1\n20 2\n30 3\n40 5\n50 10\n51 20\n"),
              "Arc color=#123456 style=\"DASHED\" center=(4 22 42) radius=10 start=100 end=110\n");
}

TEST(BlockExpander, ScalesTheRadiusOfAnArcByXWithoutItsSign)
{
    EXPECT_EQ(Arc(Insert(0, 3, 2)), "Arc radius=15 start=10 end=20\n");
    EXPECT_EQ(Arc(Insert(0, -3, -2)), "Arc radius=15 start=190 end=200\n");
}

TEST(BlockExpander, TurnsTheAnglesOfAMirroredArc)
{
    EXPECT_EQ(Arc(Insert(30, 1, 1)), "Arc radius=5 start=40 end=50\n");
    EXPECT_EQ(Arc(Insert(30, 1, -1)), "Arc radius=5 start=-50 end=-40\n");
    EXPECT_EQ(Arc(Insert(30, -1, 1)), "Arc radius=5 start=130 end=140\n");
    EXPECT_EQ(Arc(Insert(30, -1, -1)), "Arc radius=5 start=220 end=230\n");
}

TEST(BlockExpander, TakesAScaleOfZeroForNotMirrored)
{
    EXPECT_EQ(Arc(Insert(0, 0, 1)), "Arc start=10 end=20\n");
    EXPECT_EQ(Arc(Insert(0, 0, -1)), "Arc start=-80 end=-70\n");
    EXPECT_EQ(Arc(Insert(0, -1, 0)), "Arc radius=5 start=100 end=110\n");
}

TEST(BlockExpander, LeavesAnglesInNoRange)
{
    EXPECT_EQ(Arc(Insert(700, 1, 1)), "Arc radius=5 start=710 end=720\n");
    EXPECT_EQ(Arc(Insert(-700, 1, 1)), "Arc radius=5 start=-690 end=-680\n");
}

TEST(BlockExpander, MovesSpline)
{
    EXPECT_EQ(
        Quartered("0 SPLINE\n62 0\n6 BYBLOCK\n40 0\n40 1\n10 1\n20 2\n30 3\n11 2\n21 1\n31 0\n"),
        "Spline color=#123456 style=\"DASHED\" knots=[0 1] control=[(4 22 42)] "
        "fit=[(7 24 30)]\n");
}

TEST(BlockExpander, MovesLWPolyline)
{
    EXPECT_EQ(Quartered("0 LWPOLYLINE\n62 0\n6 BYBLOCK\n90 2\n43 1\n38 7\n10 1\n20 2\n42 0.5\n"
                        "10 2\n20 1\n"),
              "LWPolyline color=#123456 style=\"DASHED\" vertices=[(4 22 30)^0.5 (7 24 30)] "
              "width=1 elevation=7\n");
}

TEST(BlockExpander, MovesPolyline)
{
    EXPECT_EQ(Quartered("0 POLYLINE\n62 0\n6 BYBLOCK\n40 1\n70 9\n0 VERTEX\n10 1\n20 2\n30 3\n"
                        "42 0.5\n0 VERTEX\n10 2\n20 1\n0 SEQEND\n"),
              "Polyline color=#123456 style=\"DASHED\" vertices=[(4 22 42)^0.5 (7 24 30)] width=1 "
              "closed=true\n");
}

TEST(BlockExpander, KeepsTheSignOfAMirroredBulge)
{
    EXPECT_EQ(Replayed("0 LWPOLYLINE\n90 1\n43 1\n10 1\n20 2\n42 0.5\n", Insert(0, -1, 1)),
              "LWPolyline vertices=[(-1 2 0)^0.5] width=1\n");
}

TEST(BlockExpander, KeepsVerticesThatComeToCoincide)
{
    EXPECT_EQ(Replayed("0 LWPOLYLINE\n90 2\n43 1\n10 1\n20 2\n10 3\n20 4\n", Insert(0, 0, 0)),
              "LWPolyline vertices=[(0 0 0) (0 0 0)] width=1\n");
}

TEST(BlockExpander, MovesText)
{
    EXPECT_EQ(Quartered("0 TEXT\n62 0\n1 ab\n10 1\n20 2\n40 2.5\n41 0.8\n50 90\n51 180\n72 1\n"),
              "Text text=\"ab\" at=(4 22) height=5 rotation=3.141592653589793 color=#123456 "
              "align=1 style.height=0.8 style.oblique=3.141592653589793\n");
}

TEST(BlockExpander, MovesMText)
{
    EXPECT_EQ(Quartered("0 MTEXT\n62 0\n1 ab\n10 1\n20 2\n40 2.5\n41 60\n11 0\n21 1\n71 1\n"),
              "MText text=\"ab\" at=(4 22) height=5 rotation=3.141592653589793 color=#123456 "
              "align=1 rectWidth=120\n");
}

TEST(BlockExpander, ScalesTextByXWithItsSign)
{
    EXPECT_EQ(Replayed("0 TEXT\n40 2\n0 MTEXT\n40 2\n41 6\n11 0\n21 1\n", Insert(0, -3, 5)),
              "Text height=-6\nMText height=-6 rotation=1.5707963267948966 rectWidth=-18\n");
}

TEST(BlockExpander, MovesSolidInThePlan)
{
    CSolidDXF solid;
    solid.layer = QStringLiteral("L");
    solid.color = kByBlock;
    solid.points = {{1, 2, 3}, {2, 1, 0}};
    EXPECT_EQ(Expanded(solid, Quarter()),
              "Solid layer=\"L\" color=#123456 points=[(4 22 3) (7 24 0)]\n");
}

TEST(BlockExpander, MovesFace)
{
    EXPECT_EQ(Quartered("0 3DFACE\n62 0\n10 1\n20 2\n30 3\n11 2\n21 1\n31 0\n12 1\n22 2\n32 3\n"
                        "13 2\n23 1\n33 0\n"),
              "3DFace color=#123456 corners=[(4 22 42) (7 24 30) (4 22 42) (7 24 30)]\n");
}

TEST(BlockExpander, MovesRay)
{
    EXPECT_EQ(Quartered("0 RAY\n62 0\n6 BYBLOCK\n10 1\n20 2\n11 1\n21 -1\n"),
              "Ray color=#123456 style=\"DASHED\" origin=(4 22 30) direction=(3 2 0)\n");
}

TEST(BlockExpander, DropsTheHeightOfTheDirectionOfARay)
{
    CRayDXF ray;
    ray.origin = {1, 2, 3};
    ray.direction = {1, -1, 5};
    EXPECT_EQ(Expanded(ray, Quarter()), "Ray origin=(4 22 42) direction=(3 2 0)\n");
}

TEST(BlockExpander, MovesMLineWithoutInheriting)
{
    EXPECT_EQ(Quartered("0 MLINE\n8 L\n62 0\n370 25\n2 WALL\n72 2\n11 1\n21 2\n31 3\n12 1\n22 1\n"
                        "32 2\n13 -1\n23 -1\n33 1\n11 2\n21 1\n31 0\n12 1\n22 1\n32 0\n13 1\n23 1\n"
                        "33 0\n"),
              "MLine layer=\"L\" color=#FFFFFFFF weight=25 mstyle=\"WALL\" "
              "vertices=[(4 22 42) (7 24 30)] "
              "segments=[(-3 2 8)/(3 -2 4) (-3 2 0)/(-3 2 0)]\n");
}

TEST(BlockExpander, JoinsVerticesOfAnMLineAndKeepsItsSegments)
{
    EXPECT_EQ(Replayed("0 MLINE\n2\n72 2\n11 1\n21 2\n31 0\n12 1\n22 0\n32 0\n13 0\n23 1\n33 0\n"
                       "11 1\n21 7\n31 0\n12 2\n22 0\n32 0\n13 0\n23 1\n33 0\n",
                       Insert(0, 1, 0)),
              "MLine vertices=[(1 0 0)] segments=[(1 0 0)/(0 0 0) (2 0 0)/(0 0 0)]\n");
}

TEST(BlockExpander, MovesTheEdgesOfAHatch)
{
    EXPECT_EQ(Quartered("0 HATCH\n8 L\n62 0\n2 ANSI31\n30 7\n91 1\n92 1\n93 3\n"
                        "72 1\n10 1\n20 2\n11 2\n21 1\n"
                        "72 2\n10 1\n20 2\n40 5\n50 10\n51 20\n73 0\n"
                        "72 4\n94 1\n40 0\n10 1\n20 2\n11 2\n21 1\n97 1\n75 0\n52 45\n77 1\n"),
              "Hatch layer=\"L\" loops=[[{LWPolyline vertices=[(4 22 30) (7 24 30)]} "
              "{Arc center=(4 22 30) radius=10 start=100 end=110 ccw=false} "
              "{Spline knots=[0] control=[(4 22 30)] fit=[(7 24 30)]}]] "
              "color=#123456 angle=45 style=\"ANSI31\" double=true elevation=7\n");
}

TEST(BlockExpander, DropsAnEllipseEdgeOfAHatch)
{
    EXPECT_EQ(Quartered("0 HATCH\n62 1\n91 2\n92 1\n93 2\n72 3\n10 1\n11 1\n40 1\n73 1\n"
                        "72 1\n10 1\n20 2\n11 2\n21 1\n97 0\n"
                        "92 1\n93 1\n72 3\n10 1\n11 1\n40 1\n73 1\n97 0\n75 0\n"),
              "Hatch loops=[[{LWPolyline vertices=[(4 22 30) (7 24 30)]}] []] color=#0000FF\n");
}

TEST(BlockExpander, KeepsTheMarkedBoundariesOfAHatchWhereTheyAre)
{
    EXPECT_EQ(Quartered("0 HATCH\n91 1\n92 16\n93 1\n72 1\n10 1\n20 2\n11 2\n21 1\n97 0\n75 0\n"),
              "Hatch marked=[[(1 2 0) (2 1 0)]] loops=[[]]\n");
}

TEST(BlockExpander, TurnsTheAnglesOfAMirroredHatch)
{
    EXPECT_EQ(Replayed("0 HATCH\n91 1\n92 1\n93 1\n72 2\n40 5\n50 10\n51 20\n73 1\n97 0\n75 0\n",
                       Insert(30, 1, -1)),
              "Hatch loops=[[{Arc radius=5 start=-50 end=-40}]]\n");
}

TEST(BlockExpander, DeliversNeitherImagesNorDefinitionsNorEllipses)
{
    EXPECT_EQ(Quartered("0 ELLIPSE\n40 1\n0 ATTDEF\n2 T\n0 POINT\n62 1\n"),
              "Point color=#0000FF point=(10 20 30)\n");
    EXPECT_EQ(Expanded(CImageDXF(), Quarter()), "");
}

TEST(BlockExpander, MirrorsNoArcByAScaleThatIsNoNumber)
{
    CArcDXF arc;
    arc.startAngle = 10;
    arc.endAngle = 20;
    for (const CInsertDXF& insert : {Insert(0, kNaN, 1), Insert(0, kNaN, -1), Insert(0, -1, kNaN),
                                     Insert(0, 1, kNaN), Insert(0, kNaN, kNaN)})
    {
        EXPECT_EQ(Last(arc, insert).arc.startAngle, 10);
        EXPECT_EQ(Last(arc, insert).arc.endAngle, 20);
    }
}

TEST(BlockExpander, EndsForNumbersThatAreNotFinite)
{
    const char* const entities =
        "0 POINT\n10 nan\n20 inf\n0 LINE\n10 inf\n11 -inf\n0 ARC\n40 nan\n50 inf\n51 nan\n"
        "0 LWPOLYLINE\n90 2\n70 1\n10 nan\n20 nan\n10 inf\n20 1\n42 nan\n"
        "0 MLINE\n72 2\n11 nan\n21 inf\n31 1\n0 INSERT\n50 inf\n41 nan\n10 inf\n"
        "0 HATCH\n91 1\n92 2\n73 1\n93 2\n10 nan\n20 1\n10 inf\n20 2\n75 0\n0 MTEXT\n11 nan\n21 "
        "inf\n";
    for (double value : {kNaN, kInfinity, -kInfinity, 1e308, -0.0}) {
        CInsertDXF insert = Insert(value, value, value);
        insert.point = {value, value, value};
        const std::string text = Replayed(entities, insert);
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 8) << text;
    }
}

TEST(BlockExpander, LetsExceptionsOfTheHostThrough)
{
    class CThrowing final : public IDXFReader
    {
    public:
        bool OnHatch(const CHatchDXF&) override { throw std::runtime_error("host"); }
    };
    CBlockDXF block;
    block.entities.emplace_back(CHatchDXF());
    CThrowing host;
    EXPECT_THROW(ParseBlock(block, CInsertDXF(), &host), std::runtime_error);
}

TEST(BlockExpander, CollectsLoopsOfAHatch)
{
    class CCollector final : public HatchReaderWrapper
    {
    public:
        using HatchReaderWrapper::HatchReaderWrapper;
    };
    CHatchDXF hatch;
    CCollector collector(&hatch);
    EXPECT_TRUE(collector.OnArc(CArcDXF()));
    EXPECT_TRUE(collector.OnSpline(CSplineDXF()));
    EXPECT_TRUE(collector.OnLine(CLineDXF()));
    EXPECT_TRUE(collector.OnEllipse(CEllipseDXF()));
    EXPECT_TRUE(collector.OnLWPolyline(CLWPolylineDXF()));
    EXPECT_EQ(collector.GetProgress(), nullptr);
    EXPECT_TRUE(hatch.loops.empty());
    collector.NextLoop();
    collector.NextLoop();
    ASSERT_EQ(hatch.loops.size(), 2U);
    ASSERT_EQ(hatch.loops[0].size(), 3U);
    EXPECT_EQ(hatch.loops[0][0].index(), 0U);
    EXPECT_EQ(hatch.loops[0][1].index(), 1U);
    EXPECT_EQ(hatch.loops[0][2].index(), 2U);
    EXPECT_TRUE(hatch.loops[1].empty());
}
