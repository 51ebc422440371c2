// SPDX-License-Identifier: MIT
#include "VelorExchange/Pnr.h"

#include <random>
#include <type_traits>

using namespace VelorExchange::pnr;
using VelorExchange::CPoint2D;
using VelorExchange::CPoint3D;

namespace {

std::unique_ptr<CVertexHolder2D> In2D(std::vector<CPoint2D> vertices)
{
    auto holder = std::make_unique<CVertexHolder2D>();
    holder->vertices = std::move(vertices);
    return holder;
}

std::unique_ptr<CVertexHolder3D> In3D(std::vector<CPoint3D> vertices)
{
    auto holder = std::make_unique<CVertexHolder3D>();
    holder->vertices = std::move(vertices);
    return holder;
}

// UniteBounds the plain way.
template <class Vertices>
void PlainUnite(const Vertices& vertices, double side, QRectF& bounds)
{
    for (const auto& v : vertices) {
        const QRectF one(v.x - 1, v.y - 1, side, side);
        bounds = bounds.width() <= 0 || bounds.height() <= 0 ? one : bounds.united(one);
    }
}

} // namespace

TEST(VertexHolder, TellsCountAndDimension)
{
    const auto in2D = In2D({{1, 2}, {3, 4}});
    const auto in3D = In3D({{1, 2, 3}});
    const CAbstractVertexHolder* holders[] = {in2D.get(), in3D.get()};
    EXPECT_EQ(holders[0]->Count(), 2U);
    EXPECT_TRUE(holders[0]->Is2D());
    EXPECT_EQ(holders[1]->Count(), 1U);
    EXPECT_FALSE(holders[1]->Is2D());
    EXPECT_NE(dynamic_cast<const CVertexHolderT<CPoint2D>*>(holders[0]), nullptr);
}

TEST(Objects, StartWithTheirDefaults)
{
    const CLineObject line;
    EXPECT_EQ(line.code, 0);
    EXPECT_EQ(line.layer, QStringLiteral("SYSTEM"));
    EXPECT_TRUE(line.codeText.isEmpty());
    EXPECT_FALSE(line.hasImage);
    EXPECT_EQ(line.image, nullptr);
    EXPECT_EQ(CSquareObject().image, nullptr);
    EXPECT_EQ(CPointObject().image, nullptr);
    EXPECT_TRUE(CTextObject().hasOwnImage);
}

TEST(Objects, SemanticStartsWithoutTypeAndValue)
{
    const PnrSemantic semantic;
    EXPECT_EQ(semantic.semanticType, -1);
    EXPECT_EQ(semantic.dataType, -1);
    EXPECT_EQ(semantic.scale, 0);
    EXPECT_FALSE(semantic.value.isValid());
}

TEST(Objects, PointImageStartsAsASmallRing)
{
    const PnrPointImage image;
    EXPECT_EQ(image.recordSize, 152);
    EXPECT_EQ(image.count, 1);
    EXPECT_EQ(image.size, 8000);
    EXPECT_EQ(image.posH, 0);
    EXPECT_EQ(image.posV, 0);
    EXPECT_EQ(image.color, 0);
    std::array<quint8, 128> ring{};
    ring[0] = 0x60;
    ring[4] = 0x90;
    ring[8] = 0x90;
    ring[12] = 0x60;
    EXPECT_EQ(image.bits, ring);
}

TEST(Objects, TextImageStartsWithItsDefaults)
{
    const PnrTextImage image;
    EXPECT_EQ(image.color, 0U);
    EXPECT_EQ(image.bColor, 0xFFFFFFFF);
    EXPECT_EQ(image.sColor, 0xFFFFFFFF);
    EXPECT_EQ(image.height, 1800U);
    EXPECT_EQ(image.weight, 200);
    EXPECT_EQ(image.align, 24);
    EXPECT_EQ(image.wide + image.horizontal + image.italic + image.uline + image.xline, 0);
    EXPECT_EQ(
        image.reserved1 + image.reserved2 + image.reserved3 + image.reserved4 + image.reserved5, 0);
    EXPECT_EQ(image.charset, 204);
    EXPECT_EQ(image.fontName, QStringLiteral("Arial"));
}

TEST(IsValid, LineAndAreaNeedADrawingOrACode)
{
    CLineObject line;
    EXPECT_FALSE(line.IsValid());
    line.code = -5;
    EXPECT_TRUE(line.IsValid());
    line.code = 0;
    line.image = std::make_unique<PnrLineImage>();
    EXPECT_TRUE(line.IsValid());
    CSquareObject square;
    EXPECT_FALSE(square.IsValid());
    square.code = 1;
    EXPECT_TRUE(square.IsValid());
    square.code = 0;
    square.image = std::make_unique<PnrSquareImage>();
    EXPECT_TRUE(square.IsValid());
}

TEST(IsValid, PointWithADrawingNeedsExactlyOneContour)
{
    CPointObject point;
    point.image = std::make_unique<PnrPointImage>();
    EXPECT_FALSE(point.IsValid());
    point.holders.push_back(In2D({{1, 2}}));
    EXPECT_TRUE(point.IsValid());
    point.holders.push_back(In2D({{3, 4}}));
    EXPECT_FALSE(point.IsValid());
}

TEST(IsValid, PointWithACodeNeedsNoContour)
{
    CPointObject point;
    point.holders.push_back(In2D({{1, 2}}));
    EXPECT_FALSE(point.IsValid());
    point.holders.clear();
    point.code = 7;
    EXPECT_TRUE(point.IsValid());
}

TEST(IsValid, TextNeedsExactlyOneContourInThePlan)
{
    CTextObject text;
    text.code = 7;
    EXPECT_FALSE(text.IsValid());
    text.holders.push_back(In2D({{1, 2}}));
    EXPECT_TRUE(text.IsValid());
    text.holders.push_back(In2D({{1, 2}}));
    EXPECT_FALSE(text.IsValid());
    text.holders.clear();
    text.holders.push_back(In3D({{1, 2, 3}}));
    EXPECT_FALSE(text.IsValid());
}

TEST(UniteBounds, TakesAVertexInThePlanAsAUnitSquare)
{
    CLineObject line;
    line.holders.push_back(In2D({{10, 20}}));
    QRectF bounds;
    line.UniteBounds(bounds);
    EXPECT_EQ(bounds, QRectF(9, 19, 1, 1));
}

TEST(UniteBounds, TakesAVertexInSpaceAsATwoByTwoSquare)
{
    CLineObject line;
    line.holders.push_back(In3D({{10, 20, 1e6}}));
    QRectF bounds;
    line.UniteBounds(bounds);
    EXPECT_EQ(bounds, QRectF(9, 19, 2, 2));
}

TEST(UniteBounds, ReplacesBoundsWithoutExtent)
{
    CPointObject point;
    point.holders.push_back(In2D({{10, 20}}));
    for (const QRectF& start : {QRectF(0, 0, 0, 5), QRectF(0, 0, 5, 0), QRectF(0, 0, -1, 5)}) {
        QRectF bounds = start;
        point.UniteBounds(bounds);
        EXPECT_EQ(bounds, QRectF(9, 19, 1, 1));
    }
}

TEST(UniteBounds, GrowsBoundsOverAllContours)
{
    CSquareObject square;
    square.holders.push_back(In2D({{10, 20}, {30, 20}}));
    square.holders.push_back(In3D({{0, 40, 0}}));
    QRectF bounds(12, 12, 2, 2);
    square.UniteBounds(bounds);
    EXPECT_EQ(bounds, QRectF(-1, 12, 31, 29));
}

TEST(UniteBounds, RoundsJustAsTheRectanglesOfQt)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> coordinate(-1e7, 1e7);
    for (int round = 0; round < 200; ++round) {
        std::vector<CPoint2D> plan;
        std::vector<CPoint3D> space;
        for (int i = 0; i < 50; ++i) {
            plan.push_back({coordinate(random), coordinate(random)});
            space.push_back({coordinate(random), coordinate(random), 0});
        }
        QRectF expected(0.1, 0.2, round % 2, round % 3);
        QRectF bounds = expected;
        PlainUnite(plan, 1, expected);
        PlainUnite(space, 2, expected);
        CLineObject line;
        line.holders.push_back(In2D(plan));
        line.holders.push_back(In3D(space));
        line.UniteBounds(bounds);
        ASSERT_EQ(bounds.x(), expected.x());
        ASSERT_EQ(bounds.y(), expected.y());
        ASSERT_EQ(bounds.width(), expected.width());
        ASSERT_EQ(bounds.height(), expected.height());
    }
}
