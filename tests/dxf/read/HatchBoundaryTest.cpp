// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

namespace {

// What the host gets for a HATCH with these groups from the first path on.
std::string Paths(int count, const std::string& groups, const std::string& before = "")
{
    return Recorded(
        Entities(("0 HATCH\n" + before + "91 " + std::to_string(count) + "\n" + groups).c_str()));
}

std::string Path(const std::string& groups, const std::string& before = "")
{
    return Paths(1, groups + "75 0\n", before);
}

std::string Line(int x1, int y1, int x2, int y2)
{
    return "72 1\n10 " + std::to_string(x1) + "\n20 " + std::to_string(y1) + "\n11 "
        + std::to_string(x2) + "\n21 " + std::to_string(y2) + "\n";
}

const std::string kSquare =
    Line(0, 0, 4, 0) + Line(4, 0, 4, 4) + Line(4, 4, 0, 4) + Line(0, 4, 0, 0);
const std::string kSquareVertices = "[(0 0 0) (4 0 0) (4 4 0) (0 4 0) (0 0 0)]";
const std::string kArc = "72 2\n10 1\n20 2\n40 3\n50 30\n51 60\n73 1\n";
const std::string kEllipse = "72 3\n10 1\n20 2\n11 3\n21 4\n40 0.5\n50 30\n51 60\n73 1\n";
const std::string kSpline = "72 4\n94 3\n73 1\n74 0\n95 2\n96 1\n40 0\n40 1\n10 1\n20 2\n42 1\n"
                            "97 1\n11 3\n21 4\n12 1\n22 0\n13 0\n23 1\n";
const std::string kDown = "210 0\n220 0\n230 -1\n";
const std::string kAside = "210 1\n220 0\n230 0\n";

} // namespace

TEST(HatchBoundary, ReadsAPolylinePath)
{
    EXPECT_EQ(Path("92 2\n72 1\n73 0\n93 3\n10 1\n20 1\n42 0.5\n10 5\n20 1\n42 0\n10 5\n20 5\n"
                   "42 0.25\n97 0\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)^0.5 (5 1 0) (5 5 0)^0.25]}]]\n");
}

TEST(HatchBoundary, TakesZeroPastTheEndOfTheBulgesOfAPath)
{
    EXPECT_EQ(Path("92 2\n93 2\n10 1\n20 1\n42 0.5\n10 5\n20 1\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)^0.5 (5 1 0)]}]]\n");
}

TEST(HatchBoundary, TakesNoVerticesFromListsOfUnequalLength)
{
    EXPECT_EQ(Path("92 2\n73 1\n93 2\n10 1\n20 1\n10 5\n"), "Hatch loops=[[{LWPolyline}]]\n");
    EXPECT_EQ(Path("92 2\n73 1\n93 0\n"), "Hatch loops=[[{LWPolyline}]]\n");
}

TEST(HatchBoundary, TakesAllVerticesOfAPathWhateverItsCount)
{
    EXPECT_EQ(Path("92 2\n73 0\n93 2147483647\n10 1\n20 1\n10 5\n20 1\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0) (5 1 0)]}]]\n");
}

TEST(HatchBoundary, ConvertsVerticesOfAPathAndDropsTheirHeight)
{
    const std::string path = "92 2\n93 1\n10 3\n20 4\n";
    EXPECT_EQ(Path(path, kDown), "Hatch loops=[[{LWPolyline vertices=[(-3 4 0)]}]]\n");
    EXPECT_EQ(Path(path, kAside), "Hatch loops=[[{LWPolyline vertices=[(0 3 0)]}]]\n");
}

TEST(HatchBoundary, LetsTheLaterOfTwoEqualVerticesOfAPathStand)
{
    EXPECT_EQ(Path("92 2\n93 3\n10 1\n20 1\n42 1\n10 1\n20 1\n42 2\n10 5\n20 1\n42 3\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)^2 (5 1 0)^3]}]]\n");
}

TEST(HatchBoundary, ClosesAPolylinePath)
{
    const std::string vertices = "93 3\n10 1\n20 1\n10 5\n20 1\n10 5\n20 5\n";
    EXPECT_EQ(Path("92 2\n73 1\n" + vertices),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0) (5 1 0) (5 5 0) (1 1 0)]}]]\n");
    EXPECT_EQ(Path("92 2\n73 0\n" + vertices),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0) (5 1 0) (5 5 0)]}]]\n");
    EXPECT_EQ(Path("92 2\n" + vertices + "73 2\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0) (5 1 0) (5 5 0) (1 1 0)]}]]\n");
}

TEST(HatchBoundary, ClosesAtTheHeightOfTheFirstBulge)
{
    EXPECT_EQ(Path("92 2\n73 1\n93 2\n10 1\n20 1\n42 0.5\n10 5\n20 1\n42 0.25\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)^0.5 (5 1 0)^0.25 (1 1 0.5)]}]]\n");
}

TEST(HatchBoundary, ClosesACircleOfTwoBulges)
{
    EXPECT_EQ(Path("92 2\n73 1\n93 2\n10 1\n20 1\n42 1\n10 5\n20 1\n42 1\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)^1 (5 1 0)^1 (1 1 1)]}]]\n");
}

TEST(HatchBoundary, DoesNotCloseAPathThatEndsWhereItStarts)
{
    EXPECT_EQ(Path("92 2\n73 1\n93 3\n10 1\n20 1\n42 1\n10 5\n20 1\n10 1\n20 1\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)^1 (5 1 0) (1 1 0)]}]]\n");
    EXPECT_EQ(Path("92 2\n73 1\n93 1\n10 1\n20 1\n42 1\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)^1]}]]\n");
}

TEST(HatchBoundary, PutsAPolylinePathIntoItsLoopWhateverItsMarks)
{
    for (const char* flags : {"3", "6", "7", "10", "18", "27", "31"}) {
        EXPECT_EQ(Path(std::string("92 ") + flags + "\n93 1\n10 1\n20 1\n"),
                  "Hatch loops=[[{LWPolyline vertices=[(1 1 0)]}]]\n")
            << flags;
    }
}

TEST(HatchBoundary, ReadsOnBehindAGroupThatNoPolylinePathHas)
{
    EXPECT_EQ(Path("92 2\n5 9\n73 1\n10 1\n20 1\n10 5\n20 1\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0) (5 1 0) (1 1 0)]}]]\n");
}

TEST(HatchBoundary, JoinsLineEdgesToOnePolyline)
{
    EXPECT_EQ(Path("92 1\n93 4\n" + kSquare + "97 0\n"),
              "Hatch loops=[[{LWPolyline vertices=" + kSquareVertices + "}]]\n");
}

TEST(HatchBoundary, KeepsBothEndsOfLinesThatDoNotMeet)
{
    EXPECT_EQ(Path("92 1\n93 2\n" + Line(1, 1, 2, 2) + Line(3, 3, 4, 4)),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0) (2 2 0) (3 3 0) (4 4 0)]}]]\n");
}

TEST(HatchBoundary, ChainsLineEdgesBeyondTheirCount)
{
    EXPECT_EQ(Path("92 1\n93 1\n" + kSquare + "97 0\n"),
              "Hatch loops=[[{LWPolyline vertices=" + kSquareVertices + "}]]\n");
}

TEST(HatchBoundary, CountsEveryLineOfAChain)
{
    // Were the four lines one edge, the arc would be read too.
    EXPECT_EQ(Path("92 1\n93 4\n" + kSquare + kArc),
              "Hatch loops=[[{LWPolyline vertices=" + kSquareVertices + "}]]\n");
}

TEST(HatchBoundary, ConvertsLineEdgesAndDropsTheirHeight)
{
    EXPECT_EQ(Path("92 1\n93 1\n" + Line(1, 2, 3, 4), kDown),
              "Hatch loops=[[{LWPolyline vertices=[(-1 2 0) (-3 4 0)]}]]\n");
    EXPECT_EQ(Path("92 1\n93 1\n" + Line(1, 2, 3, 4), kAside),
              "Hatch loops=[[{LWPolyline vertices=[(0 1 0) (0 3 0)]}]]\n");
}

TEST(HatchBoundary, TakesTheFirstGroupOfALineOnlyIfItIsItsX)
{
    EXPECT_EQ(Path("92 1\n93 1\n72 1\n20 9\n10 1\n11 3\n21 4\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 0 0) (3 4 0)]}]]\n");
    EXPECT_EQ(Path("92 1\n93 2\n" + Line(1, 2, 3, 4) + "72 1\n21 9\n20 8\n10 7\n11 6\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 2 0) (3 4 0) (7 8 0) (6 9 0)]}]]\n");
}

TEST(HatchBoundary, TakesZerosForALineEdgeWithoutGroups)
{
    EXPECT_EQ(Path("92 1\n93 2\n" + Line(1, 2, 3, 4) + "72 1\n97 0\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 2 0) (3 4 0) (0 0 0)]}]]\n");
}

TEST(HatchBoundary, MakesNoEdgeOfLinesThatAreNotThere)
{
    EXPECT_EQ(Path("92 1\n93 1\n72 1\n97 0\n"), "Hatch loops=[[]]\n");
    EXPECT_EQ(Path("92 16\n93 1\n72 1\n97 0\n"), "Hatch loops=[[]]\n");
}

TEST(HatchBoundary, ReadsAnArc)
{
    EXPECT_EQ(Path("92 1\n93 1\n" + kArc),
              "Hatch loops=[[{Arc center=(1 2 0) radius=3 start=30 end=60}]]\n");
    EXPECT_EQ(Path("92 1\n93 1\n72 2\n40 3\n51 60\n73 0\n"),
              "Hatch loops=[[{Arc radius=3 end=60 ccw=false}]]\n");
    EXPECT_EQ(Path("92 1\n93 1\n72 2\n40 3\n"), "Hatch loops=[[{Arc radius=3 ccw=false}]]\n");
}

TEST(HatchBoundary, ConvertsTheCentreOfAnArc)
{
    EXPECT_EQ(Path("92 1\n93 1\n" + kArc, kDown),
              "Hatch loops=[[{Arc center=(-1 2 0) radius=3 start=30 end=60}]]\n");
    EXPECT_EQ(Path("92 1\n93 1\n" + kArc, kAside),
              "Hatch loops=[[{Arc center=(0 1 2) radius=3 start=30 end=60}]]\n");
}

TEST(HatchBoundary, ReadsAnEllipse)
{
    EXPECT_EQ(Path("92 1\n93 1\n" + kEllipse),
              "Hatch loops=[[{Ellipse center=(1 2 0) major=(3 4 0) ratio=0.5 start=30 end=60}]]\n");
    EXPECT_EQ(Path("92 1\n93 1\n72 3\n21 4\n73 0\n"),
              "Hatch loops=[[{Ellipse major=(0 4 0) ccw=false}]]\n");
}

TEST(HatchBoundary, ConvertsTheCentreAndTheAxisOfAnEllipse)
{
    EXPECT_EQ(Path("92 1\n93 1\n" + kEllipse, kAside),
              "Hatch loops=[[{Ellipse center=(0 1 2) major=(0 3 4) ratio=0.5 start=30 end=60}]]\n");
}

TEST(HatchBoundary, ReadsASpline)
{
    EXPECT_EQ(Path("92 1\n93 1\n" + kSpline),
              "Hatch loops=[[{Spline knots=[0 1] control=[(1 2 0)] fit=[(3 4 0)]}]]\n");
}

TEST(HatchBoundary, ConvertsControlPointsOfASplineAlone)
{
    EXPECT_EQ(Path("92 1\n93 1\n" + kSpline, kAside),
              "Hatch loops=[[{Spline knots=[0 1] control=[(0 1 2)] fit=[(3 4 0)]}]]\n");
}

TEST(HatchBoundary, LosesTheFirstGroupOfASpline)
{
    EXPECT_EQ(Path("92 1\n93 1\n72 4\n40 1\n40 2\n10 1\n20 2\n"),
              "Hatch loops=[[{Spline knots=[2] control=[(1 2 0)]}]]\n");
}

TEST(HatchBoundary, DropsPointsOfASplineFromListsOfUnequalLength)
{
    EXPECT_EQ(Path("92 1\n93 1\n72 4\n94 3\n40 1\n10 1\n20 2\n10 3\n11 5\n21 6\n"),
              "Hatch loops=[[{Spline knots=[1] fit=[(5 6 0)]}]]\n");
    EXPECT_EQ(Path("92 1\n93 1\n72 4\n94 3\n40 1\n10 1\n20 2\n11 5\n21 6\n21 7\n"),
              "Hatch loops=[[{Spline knots=[1] control=[(1 2 0)]}]]\n");
}

TEST(HatchBoundary, ReadsEdgesOfAllKindsInTheirOrder)
{
    EXPECT_EQ(
        Path("92 1\n93 5\n" + Line(1, 2, 3, 4) + kArc + Line(5, 6, 7, 8) + kEllipse + kSpline),
        "Hatch loops=[[{LWPolyline vertices=[(1 2 0) (3 4 0)]} "
        "{Arc center=(1 2 0) radius=3 start=30 end=60} "
        "{LWPolyline vertices=[(5 6 0) (7 8 0)]} "
        "{Ellipse center=(1 2 0) major=(3 4 0) ratio=0.5 start=30 end=60} "
        "{Spline knots=[0 1] control=[(1 2 0)] fit=[(3 4 0)]}]]\n");
}

TEST(HatchBoundary, ReadsNothingOfAnUnknownKindOfEdge)
{
    for (const char* kind : {"0", "5", "-1", "x", "2147483647", "-2147483648"}) {
        EXPECT_EQ(Path(std::string("92 1\n93 1\n72 ") + kind + "\n10 1\n20 2\n40 3\n"),
                  "Hatch loops=[[]]\n")
            << kind;
    }
    EXPECT_EQ(Path("92 1\n93 1\n10 1\n20 2\n"), "Hatch loops=[[]]\n");
}

TEST(HatchBoundary, ReadsNothingOfAnArcThatIsNotThere)
{
    EXPECT_EQ(Path("92 1\n93 2\n72 2\n97 0\n72 2\n"), "Hatch loops=[[]]\n");
    EXPECT_EQ(Path("92 1\n93 2\n72 3\n97 0\n72 3\n"), "Hatch loops=[[]]\n");
}

TEST(HatchBoundary, SkipsAGroupWhoseCodeContainsThatOfTheKind)
{
    EXPECT_EQ(Path("92 1\n93 1\n72 2\n172 7\n10 1\n20 2\n40 3\n73 1\n"),
              "Hatch loops=[[{Arc center=(1 2 0) radius=3}]]\n");
}

TEST(HatchBoundary, KeepsTheKindWhereNoNewOneIsTold)
{
    EXPECT_EQ(Path("92 1\n93 2\n72 2\n10 1\n20 2\n40 3\n73 1\n97 0\n97 0\n"),
              "Hatch loops=[[{Arc center=(1 2 0) radius=3}]]\n");
}

TEST(HatchBoundary, MakesAnEmptyLoopOfAPathWithoutEdges)
{
    EXPECT_EQ(Path("92 1\n93 0\n97 0\n"), "Hatch loops=[[]]\n");
    EXPECT_EQ(Path("92 1\n93 -5\n72 2\n10 1\n"), "Hatch loops=[[]]\n");
    EXPECT_EQ(Path("330 F1\n"), "Hatch loops=[[]]\n");
}

TEST(HatchBoundary, MarksTheLinesOfTextBoxesAndOutermostPaths)
{
    for (const char* flags : {"8", "16", "17", "24", "29"}) {
        EXPECT_EQ(Path(std::string("92 ") + flags + "\n93 4\n" + kSquare + "97 0\n"),
                  "Hatch marked=[" + kSquareVertices + "] loops=[[]]\n")
            << flags;
    }
    for (const char* flags : {"0", "1", "4", "5", "32", "37"}) {
        EXPECT_EQ(Path(std::string("92 ") + flags + "\n93 4\n" + kSquare + "97 0\n"),
                  "Hatch loops=[[{LWPolyline vertices=" + kSquareVertices + "}]]\n")
            << flags;
    }
}

TEST(HatchBoundary, DropsTheCurvesOfMarkedPaths)
{
    for (const char* flags : {"8", "16"}) {
        EXPECT_EQ(Path(std::string("92 ") + flags + "\n93 5\n" + Line(1, 2, 3, 4) + kArc + kEllipse
                       + kSpline + Line(5, 6, 7, 8)),
                  "Hatch marked=[[(1 2 0) (3 4 0)] [(5 6 0) (7 8 0)]] loops=[[]]\n");
    }
}

TEST(HatchBoundary, ReadsSeveralPaths)
{
    EXPECT_EQ(Paths(4,
                    "92 1\n93 1\n" + kArc + "97 1\n330 F1\n"
                        + "92 7\n73 0\n93 1\n10 1\n20 1\n97 0\n" + "92 16\n93 4\n" + kSquare
                        + "97 2\n330 F1\n330 F2\n" + "92 1\n93 1\n" + Line(1, 2, 3, 4)
                        + "97 0\n75 0\n52 45\n"),
              "Hatch marked=[" + kSquareVertices
                  + "] loops=[[{Arc center=(1 2 0) radius=3 start=30 end=60}] "
                    "[{LWPolyline vertices=[(1 1 0)]}] [] "
                    "[{LWPolyline vertices=[(1 2 0) (3 4 0)]}]] angle=45\n");
}

TEST(HatchBoundary, ForgetsTheFlagsAndTheCountOfThePathBefore)
{
    EXPECT_EQ(Paths(2, "92 16\n93 1\n" + Line(1, 2, 3, 4) + "97 0\n93 1\n" + kArc + "75 0\n"),
              "Hatch marked=[[(1 2 0) (3 4 0)]] "
              "loops=[[] [{Arc center=(1 2 0) radius=3 start=30 end=60}]]\n");
    EXPECT_EQ(Paths(2, "92 1\n93 1\n" + Line(1, 2, 3, 4) + "97 0\n92 1\n" + kArc + "75 0\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 2 0) (3 4 0)]}] []]\n");
}

TEST(HatchBoundary, TakesTheGroupInHandForAPathOfItsOwn)
{
    // The 97 that closes the only path is all there is of a second.
    EXPECT_EQ(Paths(5, "92 2\n93 1\n10 1\n20 1\n97 0\n75 0\n52 45\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)]}] []] angle=45\n");
}

TEST(HatchBoundary, LosesTheGroupInHandWhereAPathIsMissing)
{
    EXPECT_EQ(Paths(5, "92 2\n93 1\n10 1\n20 1\n52 45\n77 1\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)]}]] double=true\n");
}

TEST(HatchBoundary, EndsWithTheFileWhateverItsCountOfPaths)
{
    EXPECT_EQ(Paths(2147483647, "92 2\n93 1\n10 1\n20 1\n97 0\n75 0\n"),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)]}] []]\n");
    EXPECT_EQ(Paths(2147483647, "75 0\n"), "Hatch\n");
}

TEST(HatchBoundary, EndsWithTheFileWhateverItsCountOfEdges)
{
    const std::string many = "92 1\n93 2147483647\n";
    EXPECT_EQ(Path(many + kSquare),
              "Hatch loops=[[{LWPolyline vertices=" + kSquareVertices + "}]]\n");
    EXPECT_EQ(Path(many + kArc), "Hatch loops=[[{Arc center=(1 2 0) radius=3 start=30 end=60}]]\n");
    EXPECT_EQ(Path(many + kEllipse),
              "Hatch loops=[[{Ellipse center=(1 2 0) major=(3 4 0) ratio=0.5 start=30 end=60}]]\n");
    EXPECT_EQ(Path(many + "72 5\n10 1\n"), "Hatch loops=[[]]\n");
    EXPECT_EQ(Path(many + "97 0\n"), "Hatch loops=[[]]\n");
}

// Every pass takes the group in hand, those of other objects too, and the last group ends the hatch.
TEST(HatchBoundary, ReadsSplinesToTheEndOfTheFileForAHugeCount)
{
    EXPECT_EQ(Path("92 1\n93 2147483647\n" + kSpline + "0 POINT\n"),
              "Hatch loops=[[{Spline knots=[0 1] control=[(1 2 0)] fit=[(3 4 0)]} "
              "{Spline} {Spline} {Spline}]]\n");
}
