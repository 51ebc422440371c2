// SPDX-License-Identifier: MIT
// The colours that a conversion gives to elements.
#include "tests/tools/convert/DxfConversion.h"
#include "VelorExchange/dxf/write/Colour.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

const std::string kEnds = "10 1\n20 2\n11 3\n21 4\n";

std::string Line(const std::string& groups)
{
    return "0 LINE\n" + groups + kEnds;
}

// The colour groups of the lines in the result, a bar behind each line.
std::string ColoursOf(const QByteArray& source, int version = 1018)
{
    std::string colours;
    std::string records = RecordsOf(source, "LINE", version);
    for (std::size_t at = 0; at < records.size();) {
        const std::size_t end = records.find('\n', at) + 1;
        const std::string group = records.substr(at, end - 1 - at);
        if (group == "0 LINE") {
            colours += colours.empty() ? "" : "|";
        } else if (group.rfind("62 ", 0) == 0 || group.rfind("420 ", 0) == 0) {
            colours += colours.empty() || colours.back() == '|' ? group : ", " + group;
        }
        at = end;
    }
    return colours;
}

const std::string kRedLayer = "0 LAYER\n2 Red\n62 1\n";

} // namespace

TEST(DxfReplayColours, NumberComesOutAsItself)
{
    EXPECT_EQ(ColoursOf(WithEntities(Line("8 A\n62 3\n"))), "62 3, 420 65280");
    EXPECT_EQ(ColoursOf(WithEntities(Line("8 A\n62 3\n")), 1015), "62 3");
}

// Some colours stand in the table twice. White is 255 and becomes 7; 7 itself goes by layer.
TEST(DxfReplayColours, NumbersComeOutAsThemselvesOrAsTheFirstOfTheirColour)
{
    using VelorExchange::dxf::NumColACAD2RGB;
    std::string lines;
    std::string expected;
    for (int number = 1; number < 256; ++number) {
        int first = 1;
        while (NumColACAD2RGB(first) != NumColACAD2RGB(number)) {
            ++first;
        }
        lines += Line("8 A\n62 " + std::to_string(number) + '\n');
        expected += number > 1 ? "|62 " : "62 ";
        expected += std::to_string(number == 7 ? 256 : number == 255 ? 7 : first);
    }
    EXPECT_EQ(ColoursOf(WithEntities(lines), 1015), expected);
}

TEST(DxfReplayColours, TrueColourStays)
{
    EXPECT_EQ(ColoursOf(WithEntities(Line("8 A\n62 1\n420 1193046\n"))), "62 148, 420 1193046");
}

TEST(DxfReplayColours, Number7IsThatOfTheLayer)
{
    EXPECT_EQ(ColoursOf(WithEntities(Line("8 A\n62 7\n"))), "62 256");
    EXPECT_EQ(ColoursOf(WithEntities(Line("8 A\n62 7\n")), 1015), "62 256");
}

TEST(DxfReplayColours, WhiteLayerIsByLayer)
{
    EXPECT_EQ(ColoursOf(WithTables("0 LAYER\n2 A\n62 7\n", Line("8 A\n"))), "62 256");
}

TEST(DxfReplayColours, Number7OnAGreyLayerOfTheWriterIsWhite)
{
    EXPECT_EQ(ColoursOf(WithEntities(Line("8 Notes\n62 7\n") + Line("8 Dimensions\n62 7\n")), 1015),
              "62 7|62 7");
}

TEST(DxfReplayColours, ColourOfTheLayerIsWrittenOut)
{
    EXPECT_EQ(ColoursOf(WithTables(kRedLayer, Line("8 Red\n") + Line("8 red\n62 256\n")), 1015),
              "62 1|62 1");
}

TEST(DxfReplayColours, ByLayerAmongWhiteElementsCannotBeTold)
{
    EXPECT_EQ(
        ColoursOf(WithTables(kRedLayer, Line("8 Red\n62 7\n") + Line("8 Red\n62 256\n")), 1015),
        "62 256|62 256");
}

TEST(DxfReplayColours, ByBlockInABlockStays)
{
    EXPECT_EQ(ColoursOf(WithBlock(Line("8 A\n62 0\n"))), "62 0");
}

TEST(DxfReplayColours, ByBlockOutsideBlocksIsNumber7)
{
    EXPECT_EQ(ColoursOf(WithEntities(Line("8 A\n62 0\n"))), "62 256");
}

TEST(DxfReplayColours, ElementOfLayer0InABlockTakesTheColourOfItsInsert)
{
    EXPECT_EQ(ColoursOf(WithBlock(Line("8 0\n") + Line("8 0\n62 256\n"))), "62 0|62 0");
}

TEST(DxfReplayColours, ElementOfLayer0AmongWhiteOnesCannotBeTold)
{
    EXPECT_EQ(ColoursOf(WithBlock(Line("8 0\n") + Line("8 0\n62 7\n"))), "62 256|62 256");
}

TEST(DxfReplayColours, ElementOfAnotherLayerInABlockHasThatLayersColour)
{
    EXPECT_EQ(ColoursOf(Drawing(Section("TABLES", kRedLayer)
                                + Section("BLOCKS",
                                          "0 BLOCK\n2 B\n" + Line("8 Red\n")
                                              + Line("8 Red\n62 256\n") + "0 ENDBLK\n")),
                        1015),
              "62 1|62 1");
}

TEST(DxfReplayColours, TrueColoursThatTheWriterTakesForMarkersGoByLayer)
{
    EXPECT_EQ(ColoursOf(WithEntities(Line("8 A\n62 250\n420 0\n") + Line("8 A\n62 250\n420 256\n")
                                     + Line("8 A\n62 250\n420 65792\n"))),
              "62 256|62 256|62 256");
}

TEST(DxfReplayColours, TextsHatchesPointsAndInsertsHaveTheirColoursToo)
{
    const QByteArray drawing = WithBlock(
        "0 ATTDEF\n8 0\n62 5\n1 x\n2 T\n40 1\n",
        "0 POINT\n8 A\n62 1\n0 TEXT\n8 A\n62 2\n1 x\n40 1\n0 SOLID\n8 A\n62 3\n10 0\n20 0\n"
        "11 1\n21 0\n12 0\n22 1\n13 1\n23 1\n0 INSERT\n8 A\n62 4\n2 B\n66 1\n"
        "0 ATTRIB\n8 A\n62 6\n1 x\n2 T\n40 1\n0 SEQEND\n0 MTEXT\n8 A\n62 7\n1 x\n40 1\n");
    for (const auto& [kind, group] :
         {std::pair("POINT", "62 1\n"), std::pair("TEXT", "62 2\n"), std::pair("HATCH", "62 3\n"),
          std::pair("INSERT", "62 4\n"), std::pair("ATTDEF", "62 5\n"),
          std::pair("ATTRIB", "62 6\n"), std::pair("MTEXT", "62 256\n")})
    {
        EXPECT_NE(RecordsOf(drawing, kind, 1015).find(group), std::string::npos) << kind;
    }
}

} // namespace velorx::test
