// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Colour.h"

#include "VelorExchange/dxf/write/ColourTable_p.h"

#include <ostream>

using VelorExchange::dxf::kColourTable;
using VelorExchange::dxf::NumColACAD2RGB;
using VelorExchange::dxf::RGB2NumColACAD;

namespace {

unsigned long Packed(unsigned long red, unsigned long green, unsigned long blue)
{
    return red | green << 8U | blue << 16U;
}

struct CRow
{
    int index;
    unsigned long red;
    unsigned long green;
    unsigned long blue;
};

std::ostream& operator<<(std::ostream& out, const CRow& row)
{
    return out << "index " << row.index;
}

} // namespace

class ColourTable : public testing::TestWithParam<CRow>
{
};

TEST_P(ColourTable, HasTellingRow)
{
    const CRow row = GetParam();
    EXPECT_EQ(NumColACAD2RGB(row.index), Packed(row.red, row.green, row.blue));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ColourTable,
    testing::Values(CRow{0, 0, 0, 0}, CRow{1, 255, 0, 0}, CRow{2, 255, 255, 0}, CRow{3, 0, 255, 0},
                    CRow{4, 0, 255, 255}, CRow{5, 0, 0, 255}, CRow{6, 255, 0, 255},
                    CRow{8, 128, 128, 128}, CRow{9, 192, 192, 192}, CRow{10, 255, 0, 0},
                    CRow{11, 255, 127, 127}, CRow{12, 204, 0, 0}, CRow{13, 204, 102, 102},
                    CRow{18, 76, 0, 0}, CRow{19, 76, 38, 38}, CRow{20, 255, 63, 0},
                    CRow{21, 255, 159, 127}, CRow{30, 255, 127, 0}, CRow{50, 255, 255, 0},
                    CRow{62, 153, 204, 0}, CRow{90, 0, 255, 0}, CRow{130, 0, 255, 255},
                    CRow{170, 0, 0, 255}, CRow{210, 255, 0, 255}, CRow{240, 255, 0, 63},
                    CRow{249, 76, 38, 47}, CRow{250, 51, 51, 51}, CRow{251, 91, 91, 91},
                    CRow{252, 132, 132, 132}, CRow{253, 173, 173, 173}, CRow{254, 214, 214, 214},
                    CRow{255, 255, 255, 255}));

TEST(Colour, IndexSevenIsBlackThoughTheTableHasWhite)
{
    EXPECT_EQ(NumColACAD2RGB(7), 0UL);
    EXPECT_EQ(kColourTable[7].red, 255);
}

TEST(Colour, IndexOutsideTheTableIsBlack)
{
    for (const int index : {-1, -7, 256, 257, 2147483647, -2147483647 - 1}) {
        EXPECT_EQ(NumColACAD2RGB(index), 0UL) << index;
    }
}

TEST(Colour, BlackIsTheDarkestGrey)
{
    EXPECT_EQ(RGB2NumColACAD(0), 250);
}

TEST(Colour, MarkersPassUnchanged)
{
    EXPECT_EQ(RGB2NumColACAD(256), 256);
    EXPECT_EQ(RGB2NumColACAD(257), 257);
}

TEST(Colour, TiesGoToTheLowerIndex)
{
    EXPECT_EQ(RGB2NumColACAD(Packed(255, 0, 0)), 1);
    EXPECT_EQ(RGB2NumColACAD(16777215), 7);
    EXPECT_EQ(RGB2NumColACAD(Packed(128, 128, 128)), 8);
    EXPECT_EQ(RGB2NumColACAD(Packed(192, 192, 192)), 9);
}

TEST(Colour, HighByteIsLeftOutOfDistancesOnly)
{
    EXPECT_EQ(RGB2NumColACAD(0xFFFFFFFFUL), 7);
    EXPECT_EQ(RGB2NumColACAD(static_cast<unsigned long>(-1)), 7);
    // The markers are compared whole, so these are a black and two very dark greens.
    EXPECT_NE(RGB2NumColACAD(0x01000100UL), 256);
    EXPECT_NE(RGB2NumColACAD(0x01000101UL), 257);
}

TEST(Colour, EveryIndexComesBackAsAnEquallyColouredOne)
{
    for (int index = 1; index < 256; ++index) {
        const unsigned long rgb = NumColACAD2RGB(index);
        const int back = RGB2NumColACAD(rgb);
        if (rgb != 0) {
            EXPECT_LE(back, index);
            EXPECT_EQ(back == 7 ? 16777215UL : NumColACAD2RGB(back), rgb) << index;
        }
    }
}

TEST(Colour, GreyComesBackAndBlackDoesNot)
{
    EXPECT_EQ(RGB2NumColACAD(NumColACAD2RGB(250)), 250);
    EXPECT_EQ(NumColACAD2RGB(RGB2NumColACAD(0)), Packed(51, 51, 51));
}
