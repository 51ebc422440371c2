// SPDX-License-Identifier: MIT
#include "VelorExchange/MIF.h"

#include <type_traits>

using namespace VelorExchange;
using namespace VelorExchange::mif;

static_assert(std::is_aggregate_v<CArcMIF> && std::is_aggregate_v<CRegionMIF>);
static_assert(Char == 1 && Integer == 2 && Smallint == 3 && Decimal == 4 && Float == 5);
static_assert(Date == 6 && Logical == 7 && sizeof(ColumnType) == 4);

namespace {

template <class Record>
void ExpectUsualPen()
{
    const Record record;
    EXPECT_EQ(record.pen.width, 1);
    EXPECT_EQ(record.pen.pattern, 2);
    EXPECT_EQ(record.pen.color, 0U);
}

template <class Record>
void ExpectBrush(int pattern)
{
    const Record record;
    EXPECT_EQ(record.brush.pattern, pattern);
    EXPECT_EQ(record.brush.backColor, 0xFFFFFFU);
    EXPECT_EQ(record.brush.foreColor, 0U);
}

} // namespace

TEST(Records, PensAreThinAndSolid)
{
    ExpectUsualPen<CArcMIF>();
    ExpectUsualPen<CRectMIF>();
    ExpectUsualPen<CRoundRectMIF>();
    ExpectUsualPen<CPolylineMIF>();
    ExpectUsualPen<CRegionMIF>();
}

TEST(Records, RectanglesAreFilledAndRegionsAreNot)
{
    ExpectBrush<CRectMIF>(2);
    ExpectBrush<CRoundRectMIF>(2);
    ExpectBrush<CRegionMIF>(1);
}

TEST(Records, SymbolHasSizeTwelve)
{
    const CPointMIF point;
    EXPECT_EQ(point.symbol.shape, 0);
    EXPECT_TRUE(point.symbol.font.isEmpty());
    EXPECT_EQ(point.symbol.size, 12);
    EXPECT_EQ(point.symbol.angle, 0.0);
}

TEST(Records, TextIsArialAndLeft)
{
    const CTextMIF text;
    EXPECT_EQ(text.font.name, QStringLiteral("Arial"));
    EXPECT_EQ(text.font.size, 0.0);
    EXPECT_EQ(text.font.backColor, 0U);
    EXPECT_EQ(text.justify, 0);
    EXPECT_EQ(text.labelArrow, 0);
}

TEST(Records, FieldsStandInTheOrderTold)
{
    const CArcMIF arc{{}, {1, 2}, {3, 4}, 5, 6, {7, 8, 9}};
    EXPECT_EQ(arc.endAngle, 6);
    const CRoundRectMIF rect{{}, {1, 2}, {3, 4}, {7, 8, 9}, {1, 2, 3}, 5};
    EXPECT_EQ(rect.brush.backColor, 2U);
    const CRegionMIF region{{}, {{1, 2}}, {4, 5, 6}, {7, 8, 9}, {10, 11}};
    EXPECT_EQ(region.brush.foreColor, 6U);
    EXPECT_EQ(region.pen.color, 9U);
    const CTextMIF text{{}, QStringLiteral("t"), {1, 2}, {3, 4}, 5, 6, CFontMIF(), 2, 1, {8, 9}};
    EXPECT_EQ(text.spacing, 6);
    EXPECT_EQ(text.labelPoint.y, 9);
    const CSymbolMIF symbol{1, QStringLiteral("f"), 2, 3, 4, 5.0};
    EXPECT_EQ(symbol.style, 4);
    const CFontMIF font{QStringLiteral("f"), 2, 3, 4, 5.0};
    EXPECT_EQ(font.backColor, 4U);
}
