// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

constexpr double kPi = 3.141592653589793;

// What the host gets for an MTEXT with these groups.
std::string MText(const std::string& groups)
{
    return Recorded(Entities(("0 MTEXT\n" + groups).c_str()));
}

// The rotation of an MTEXT with these groups, or -1 if none came.
double RotationOf(const std::string& groups)
{
    class CHost final : public IDXFReader
    {
    public:
        double rotation = -1;
        bool OnMText(const CMTextDXF& text) override
        {
            rotation = text.rotation;
            return true;
        }
    };
    CHost host;
    ReadBytes(Entities(("0 MTEXT\n" + groups).c_str()), host);
    return host.rotation;
}

} // namespace

TEST(MTextParser, ReadsAllFields)
{
    EXPECT_EQ(MText("1 Well 7\n7 ROMAN\n8 Wells\n62 1\n10 1\n20 2\n30 3\n40 2.5\n41 60\n71 5\n"
                    "11 0\n21 1\n"),
              "MText text=\"Well 7\" layer=\"Wells\" at=(1 2) height=2.5 "
              "rotation=1.5707963267948966 color=#0000FF align=5 style=\"ROMAN\" rectWidth=60\n");
}

TEST(MTextParser, JoinsPiecesWithASemicolonAtEachSeam)
{
    EXPECT_EQ(MText("3 ab\n3 cd\n1 ef\n11 0\n21 -1\n"),
              "MText text=\"ab;cdef\" rotation=" + Shortest(RotationOf("11 0\n21 -1\n")) + "\n");
    EXPECT_NE(MText("1 ef\n3 ab\n").find("text=\"abef\""), std::string::npos);
    EXPECT_NE(MText("3 ab\n").find("text=\"ab\""), std::string::npos);
}

TEST(MTextParser, KeepsFormattingCodes)
{
    EXPECT_NE(MText("1 {\\fArial|b0;A}\\PB\n").find("text=\"{\\fArial|b0;A}\\PB\""),
              std::string::npos);
}

TEST(MTextParser, TurnsByItsDirection)
{
    EXPECT_EQ(RotationOf("11 1\n21 0\n"), 0);
    EXPECT_EQ(RotationOf("11 25\n21 0\n"), 0);
    EXPECT_NEAR(RotationOf("11 1\n21 1\n"), kPi / 4, 1e-14);
    EXPECT_NEAR(RotationOf("11 0\n21 1\n"), kPi / 2, 1e-14);
    EXPECT_NEAR(RotationOf("11 -1\n21 1\n"), 3 * kPi / 4, 1e-14);
    EXPECT_NEAR(RotationOf("11 -1\n21 0\n"), kPi, 1e-14);
    EXPECT_NEAR(RotationOf("11 -1\n21 -1\n"), 5 * kPi / 4, 1e-14);
    EXPECT_NEAR(RotationOf("11 0\n21 -1\n"), 3 * kPi / 2, 1e-14);
    EXPECT_NEAR(RotationOf("11 1\n21 -1\n"), 7 * kPi / 4, 1e-14);
}

TEST(MTextParser, TakesAVerySmallAngleForNone)
{
    EXPECT_EQ(RotationOf("11 1\n21 9e-9\n"), 0);
    EXPECT_EQ(RotationOf("11 1\n21 -9e-9\n"), 0);
    EXPECT_NEAR(RotationOf("11 1\n21 1e-7\n"), 1e-7, 1e-15);
    EXPECT_NEAR(RotationOf("11 1\n21 -1e-7\n"), 2 * kPi - 1e-7, 1e-14);
}

TEST(MTextParser, PointsAlongTheXAxisWithoutADirection)
{
    EXPECT_EQ(RotationOf("1 ab\n"), 0);
}

TEST(MTextParser, TakesOneForAnAbsentXAlone)
{
    EXPECT_NEAR(RotationOf("21 1\n"), kPi / 4, 1e-14);
    EXPECT_NEAR(RotationOf("11 -1\n"), kPi, 1e-14);
}

TEST(MTextParser, TurnsADirectionOfNoLengthByThreeQuarters)
{
    EXPECT_NEAR(RotationOf("11 0\n21 0\n"), 3 * kPi / 2, 1e-14);
}

TEST(MTextParser, PassesOverTheAngle)
{
    EXPECT_EQ(RotationOf("50 90\n"), 0);
}

TEST(MTextParser, TakesTheDirectionAsItStands)
{
    EXPECT_NEAR(RotationOf("11 0\n21 1\n210 0\n220 0\n230 -1\n"), kPi / 2, 1e-14);
}

TEST(MTextParser, ConvertsItsPosition)
{
    EXPECT_EQ(MText("10 1\n20 2\n30 3\n11 0\n21 1\n210 0\n220 0\n230 -1\n"),
              "MText at=(-1 2) rotation=1.5707963267948966\n");
}

TEST(MTextParser, DropsTextInPaperSpace)
{
    EXPECT_EQ(MText("67 1\n1 ab\n0 POINT\n"), "Point\n");
}

TEST(MTextParser, GoesIntoTheBlockInHand)
{
    EXPECT_EQ(Recorded(Block("0 MTEXT\n62 0\n7\n11 0\n21 1\n")),
              "Block name=\"B\"\n  MText rotation=1.5707963267948966 color=#FFFFFFFF style=\"\"\n");
}

TEST(MTextParser, HasNoRelativeWidthAndNoSlant)
{
    EXPECT_EQ(MText("41 5\n51 90\n72 3\n11 0\n21 1\n"),
              "MText rotation=1.5707963267948966 rectWidth=5\n");
}
