// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;

namespace {

// What the host gets for a HATCH with these groups.
std::string Hatch(const std::string& groups)
{
    return Recorded(Entities(("0 HATCH\n" + groups).c_str()));
}

const std::string kTriangle = "92 2\n72 0\n73 0\n93 3\n10 1\n20 1\n10 5\n20 1\n10 5\n20 5\n97 0\n";
const std::string kTriangleLoop = "loops=[[{LWPolyline vertices=[(1 1 0) (5 1 0) (5 5 0)]}]]";

} // namespace

TEST(HatchParser, ReadsAllFields)
{
    EXPECT_EQ(Hatch("8 Roads\n62 1\n10 0\n20 0\n30 7\n210 0\n220 0\n230 1\n2 ANSI31\n70 0\n71 0\n"
                    "91 1\n"
                    + kTriangle + "75 1\n76 1\n52 45\n41 2\n77 1\n78 0\n98 0\n"),
              "Hatch layer=\"Roads\" loops=[[{LWPolyline vertices=[(1 1 0) (5 1 0) (5 5 0)]}]] "
              "color=#0000FF angle=45 style=\"ANSI31\" double=true elevation=7\n");
}

TEST(HatchParser, LeavesAbsentFieldsAtTheirDefaults)
{
    EXPECT_EQ(Hatch(""), "Hatch\n");
    EXPECT_EQ(Hatch("2\n77 2\n"), "Hatch style=\"\"\n");
}

TEST(HatchParser, DeliversAHatchWithoutPaths)
{
    EXPECT_EQ(Hatch("8 A\n91 0\n75 1\n0 POINT\n"), "Hatch layer=\"A\"\nPoint\n");
    EXPECT_EQ(Hatch("8 A\n91 0\n0 POINT\n"), "Hatch layer=\"A\"\nPoint\n");
    EXPECT_EQ(Hatch("8 A\n91 -3\n75 1\n0 POINT\n"), "Hatch layer=\"A\"\nPoint\n");
}

TEST(HatchParser, DropsHatchInPaperSpace)
{
    EXPECT_EQ(Hatch("67 1\n91 1\n" + kTriangle + "0 POINT\n"), "Point\n");
    EXPECT_EQ(Hatch("91 1\n" + kTriangle + "67 1\n0 POINT\n"), "Point\n");
    EXPECT_EQ(Recorded(Block(("0 HATCH\n67 1\n91 1\n" + kTriangle + "0 POINT\n").c_str())),
              "Block name=\"B\"\n  Point\n");
}

TEST(HatchParser, GoesIntoTheBlockInHand)
{
    EXPECT_EQ(Recorded(Block(("0 HATCH\n62 0\n91 1\n" + kTriangle + "0 POINT\n").c_str())),
              "Block name=\"B\"\n  Hatch " + kTriangleLoop + " color=#FFFFFFFF\n  Point\n");
}

TEST(HatchParser, TakesGroupsBeforeAndBehindThePaths)
{
    EXPECT_EQ(Hatch("2 A\n52 30\n91 1\n" + kTriangle + "8 L\n77 1\n"),
              "Hatch layer=\"L\" " + kTriangleLoop + " angle=30 style=\"A\" double=true\n");
}

TEST(HatchParser, JoinsGroupsThatComeTwice)
{
    EXPECT_EQ(Hatch("2 A\n52 30\n62 1\n67 1\n30 5\n91 0\n2 B\n52 30\n62 1\n67 1\n30 5\n"),
              "Hatch style=\"A;B\"\n");
}

TEST(HatchParser, ReadsNeitherPatternNorSeedsNorGradient)
{
    EXPECT_EQ(Hatch("91 0\n78 1\n53 45\n43 1\n44 2\n45 3\n46 4\n79 1\n49 0.5\n98 1\n10 8\n20 9\n"
                    "450 1\n453 2\n463 0\n421 255\n470 LINEAR\n"),
              "Hatch\n");
}

TEST(HatchParser, ReadsPathsOfASecondCountToo)
{
    EXPECT_EQ(
        Hatch("91 1\n92 2\n93 1\n10 1\n20 1\n75 0\n91 1\n92 2\n93 1\n10 2\n20 2\n75 0\n"),
        "Hatch loops=[[{LWPolyline vertices=[(1 1 0)]}] [{LWPolyline vertices=[(2 2 0)]}]]\n");
}

TEST(HatchParser, TakesTheExtrusionThatStandsBeforeThePaths)
{
    const std::string down = "210 0\n220 0\n230 -1\n";
    const std::string path = "91 1\n92 2\n93 1\n10 1\n20 1\n75 0\n";
    EXPECT_EQ(Hatch(down + path), "Hatch loops=[[{LWPolyline vertices=[(-1 1 0)]}]]\n");
    EXPECT_EQ(Hatch(path + down), "Hatch loops=[[{LWPolyline vertices=[(1 1 0)]}]]\n");
}

TEST(HatchParser, HasItsOwnGroupsForEachHatch)
{
    EXPECT_EQ(Hatch("8 A\n52 30\n2 X\n91 1\n" + kTriangle + "75 0\n0 HATCH\n91 0\n75 0\n"),
              "Hatch layer=\"A\" " + kTriangleLoop + " angle=30 style=\"X\"\nHatch\n");
}

TEST(HatchParser, DropsAHatchThatTheEndOfTheFileCutsOff)
{
    EXPECT_EQ(
        Recorded(Tags(
            ("0 SECTION\n2 ENTITIES\n0 POINT\n0 HATCH\n91 1\n" + kTriangle + "75 0\n").c_str())),
        "Point\n");
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 HATCH\n")), "");
}

TEST(HatchParser, DeliversAHatchWhoseEndIsTheLastGroup)
{
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 HATCH\n8 A\n91 0\n0 POINT\n")),
              "Hatch layer=\"A\"\nPoint\n");
    // Here it is the paths that read it.
    EXPECT_EQ(Recorded(Tags("0 SECTION\n2 ENTITIES\n0 HATCH\n91 1\n92 2\n93 1\n10 1\n20 1\n"
                            "0 ENDSEC\n")),
              "Hatch loops=[[{LWPolyline vertices=[(1 1 0)]}]]\n");
}

// Wherever the file ends, the reader does, and no part of a hatch is taken for a whole one.
TEST(HatchParser, EndsWhereverTheFileEnds)
{
    const std::string hatch = "0 HATCH\n8 A\n91 3\n" + kTriangle
        + "92 1\n93 4\n72 1\n10 0\n20 0\n11 4\n21 0\n72 2\n10 4\n20 1\n40 1\n50 0\n51 90\n73 1\n"
          "72 3\n10 4\n20 1\n11 1\n21 0\n40 0.5\n50 0\n51 90\n73 1\n72 4\n94 3\n73 0\n74 0\n95 1\n"
          "96 1\n40 0\n10 1\n20 1\n97 0\n92 16\n93 1\n72 1\n10 0\n20 0\n11 4\n21 0\n97 0\n75 0\n";
    const QByteArray start = Tags("0 SECTION\n2 ENTITIES\n");
    const QByteArray bytes = Tags(hatch.c_str(), "\n");
    for (int size = 0; size <= bytes.size(); ++size) {
        const QByteArray cut = start + bytes.left(size);
        EXPECT_EQ(Recorded(cut), "") << size;
        EXPECT_EQ(Recorded(Tags("0 SECTION\n2 BLOCKS\n0 BLOCK\n") + bytes.left(size)), "false\n");
    }
    EXPECT_EQ(Recorded(start + bytes + Tags("0 ENDSEC\n")).substr(0, 16), "Hatch layer=\"A\" ");
}
