// SPDX-License-Identifier: MIT
#include "tests/support/DxfRecorder.h"

#include <stdexcept>

using namespace VelorExchange::test;
using namespace VelorExchange::dxf;

namespace {

QByteArray Blocks(const std::string& blocks)
{
    return Tags("0 SECTION\n2 BLOCKS\n") + Tags(blocks.c_str());
}

const QByteArray kEnd = Tags("0 ENDSEC\n0 EOF\n");

} // namespace

TEST(BlocksSection, DeliversEachBlockAtItsEnd)
{
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n8 0\n2 A\n70 2\n10 5\n20 6\n30 7\n3 Other\n0 POINT\n10 1\n"
                              "0 LINE\n10 2\n0 ENDBLK\n8 0\n0 BLOCK\n2 B\n0 ENDBLK\n")
                       + kEnd),
              "Block name=\"A\"\n  Point point=(1 0 0)\n  Line start=(2 0 0)\nBlock name=\"B\"\n");
}

TEST(BlocksSection, DeliversABlockWithoutAName)
{
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n0 POINT\n0 ENDBLK\n") + kEnd), "Block\n  Point\n");
}

TEST(BlocksSection, DeliversTheBlocksOfTheSpaces)
{
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 *Model_Space\n0 ENDBLK\n"
                              "0 BLOCK\n67 1\n2 *Paper_Space\n0 POINT\n67 1\n0 ENDBLK\n67 1\n")
                       + kEnd),
              "Block name=\"*Model_Space\"\nBlock name=\"*Paper_Space\"\n");
}

TEST(BlocksSection, KeepsEveryKindOfEntityInFileOrder)
{
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 ELLIPSE\n40 1\n0 CIRCLE\n40 1\n0 SOLID\n"
                              "0 3DFACE\n0 XLINE\n0 RAY\n0 ENDBLK\n")
                       + kEnd),
              "Block name=\"A\"\n  Ellipse ratio=1\n  Arc radius=1\n  Solid points=[(0 0 0)]\n"
              "  3DFace corners=[(0 0 0) (0 0 0) (0 0 0) (0 0 0)]\n  XLine\n  Ray\n");
}

TEST(BlocksSection, TakesNamesOfMarksInAnyCase)
{
    EXPECT_EQ(Recorded(Blocks("0 Block\n2 A\n0 EndBlk\n0 EndSec\n") + Entities("0 POINT\n")),
              "Block name=\"A\"\nPoint\n");
}

TEST(BlocksSection, PassesOverWhatStandsBetweenBlocks)
{
    EXPECT_EQ(
        Recorded(Blocks("0 POINT\n10 1\n0 BLOCK\n2 A\n0 ENDBLK\n0 LINE\n10 2\n0 ENDBLK\n") + kEnd),
        "Block name=\"A\"\n");
}

TEST(BlocksSection, PassesOverABlockInsideABlock)
{
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 BLOCK\n2 B\n0 POINT\n0 ENDBLK\n0 LINE\n0 ENDBLK\n")
                       + kEnd),
              "Block name=\"A\"\n  Point\n");
}

TEST(BlocksSection, OpenBlockSwallowsEntities)
{
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 POINT\n0 ENDSEC\n") + Entities("0 LINE\n")), "");
}

TEST(BlocksSection, OpenBlockGoesWithTheNextOne)
{
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 POINT\n0 ENDSEC\n")
                       + Blocks("0 BLOCK\n2 B\n0 LINE\n0 ENDBLK\n0 ENDSEC\n")
                       + Entities("0 LINE\n")),
              "Block name=\"B\"\n  Line\nLine\n");
}

TEST(BlocksSection, OpenBlockIsDeliveredByALaterEndOfBlock)
{
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 POINT\n0 ENDSEC\n") + Blocks("0 ENDBLK\n0 ENDSEC\n")
                       + Entities("0 LINE\n")),
              "Block name=\"A\"\n  Point\nLine\n");
}

TEST(BlocksSection, FailsWhereTheFileEndsInsideABlock)
{
    for (const char* tail :
         {"0 BLOCK\n", "0 BLOCK\n2 A\n", "0 BLOCK\n2 A\n0 POINT\n", "0 BLOCK\n2 A\n0 POINT\n10 1\n",
          "0 BLOCK\n2 A\n0 UNKNOWN\n", "0 BLOCK\n2 A\n0 EOF\n"})
    {
        EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 Z\n0 ENDBLK\n") + Tags(tail)),
                  "Block name=\"Z\"\nfalse\n")
            << tail;
    }
}

TEST(BlocksSection, SucceedsWhereTheFileEndsBetweenBlocks)
{
    EXPECT_EQ(Recorded(Blocks("")), "");
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 ENDBLK\n")), "Block name=\"A\"\n");
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 ENDBLK\n8 0\n")), "Block name=\"A\"\n");
}

TEST(BlocksSection, FailsAtAnEmptyCodeInsideABlock)
{
    const QByteArray empty("\r\n\r\n");
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 XYZ\n") + empty + Tags("0 ENDBLK\n") + kEnd),
              "false\n");
}

TEST(BlocksSection, EndsAtAnEmptyCodeBetweenBlocks)
{
    const QByteArray empty("\r\n\r\n");
    EXPECT_EQ(Recorded(Blocks("0 BLOCK\n2 A\n0 ENDBLK\n0 XYZ\n") + empty
                       + Tags("0 BLOCK\n2 B\n0 ENDBLK\n") + Entities("0 POINT\n")),
              "Block name=\"A\"\nPoint\n");
}

TEST(BlocksSection, SkipsBlocksThatTheHostRefuses)
{
    CDxfRecorder host;
    host.refused = {2};
    EXPECT_TRUE(ReadBytes(
        Blocks("0 BLOCK\n2 A\n0 POINT\n0 ENDBLK\n0 ENDSEC\n") + Entities("0 INSERT\n2 A\n"), host));
    EXPECT_EQ(host.text, "Insert name=\"A\"\n");
}

TEST(BlocksSection, LetsExceptionsOfTheHostThrough)
{
    class CThrowing final : public IDXFReader
    {
    public:
        bool OnBlock(const CBlockDXF&) override { throw std::runtime_error("host"); }
    };
    CThrowing host;
    EXPECT_THROW(ReadBytes(Blocks("0 BLOCK\n2 A\n0 POINT\n0 ENDBLK\n") + kEnd, host),
                 std::runtime_error);
}

TEST(BlocksSection, ManyOpenBlocksAreNotKept)
{
    std::string blocks;
    for (int i = 0; i < 20000; ++i) {
        blocks += "0 BLOCK\n2 A\n0 ENDSEC\n0 SECTION\n2 BLOCKS\n";
    }
    EXPECT_EQ(Recorded(Blocks(blocks)), "");
}

TEST(BlocksSection, ManyNestedBlocksAreOne)
{
    std::string blocks;
    for (int i = 0; i < 20000; ++i) {
        blocks += "0 BLOCK\n2 A\n";
    }
    EXPECT_EQ(Recorded(Blocks(blocks)), "false\n");
    EXPECT_EQ(Recorded(Blocks(blocks + "0 ENDBLK\n0 ENDSEC\n")), "Block name=\"A\"\n");
}
