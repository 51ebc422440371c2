// SPDX-License-Identifier: MIT
#include "VelorExchange/DXF.h"

#include <type_traits>

using namespace VelorExchange;
using namespace VelorExchange::dxf;

namespace {

constexpr double kPi = 3.141592653589793;

template <std::size_t Index, class Variant>
using Kind = std::decay_t<decltype(boost::variant2::get<Index>(std::declval<Variant&>()))>;

struct CSilentHost final : IDXFReader
{
};

} // namespace

TEST(Records, HeadHasItsDefaults)
{
    const CEntityDXF head;
    EXPECT_EQ(head.layer, QString());
    EXPECT_EQ(head.color, 0U);
    EXPECT_EQ(head.lineWeight, 0.0);
    EXPECT_EQ(head.lineStyle.name, QStringLiteral("CONTINUOUS"));
    EXPECT_TRUE(head.lineStyle.pattern.empty());
}

TEST(Records, LayerHasItsDefaults)
{
    const CLayerDXF layer;
    EXPECT_EQ(layer.lineType, QStringLiteral("CONTINUOUS"));
    EXPECT_EQ(layer.color, 0U);
    EXPECT_EQ(layer.lineWeight, 0);
    EXPECT_TRUE(layer.visible);
    EXPECT_TRUE(layer.unlocked);
}

TEST(Records, TextStyleHasItsDefaults)
{
    const CTextStyleDXF style;
    EXPECT_EQ(style.name, QStringLiteral("STANDARD"));
    EXPECT_EQ(style.fontFile, QStringLiteral("txt"));
    EXPECT_EQ(style.widthFactor, 1.0);
    EXPECT_EQ(style.height, 0.0);
    EXPECT_EQ(style.obliqueAngle, 0.0);
    EXPECT_FALSE(style.bold || style.italic);
}

TEST(Records, AnglesHaveTheirDefaults)
{
    EXPECT_EQ(CArcDXF().startAngle, 0.0);
    EXPECT_EQ(CArcDXF().endAngle, 2 * kPi);
    EXPECT_TRUE(CArcDXF().counterClockwise);
    EXPECT_EQ(CEllipseDXF().endParameter, 2 * kPi);
    EXPECT_TRUE(CEllipseDXF().counterClockwise);
    EXPECT_EQ(CMLineStyleDXF().startAngle, kPi / 2);
    EXPECT_EQ(CMLineStyleDXF().endAngle, kPi / 2);
}

TEST(Records, TextImageInsertAndHatchHaveTheirDefaults)
{
    EXPECT_EQ(CTextDXF().alignment, 12);
    EXPECT_EQ(CImageDXF().scaleX, 1.0);
    EXPECT_EQ(CImageDXF().scaleY, 1.0);
    EXPECT_EQ(CInsertDXF().scaleX, 1.0);
    EXPECT_EQ(CInsertDXF().scaleY, 1.0);
    EXPECT_EQ(CInsertDXF().scaleZ, 1.0);
    EXPECT_EQ(CHatchDXF().scale, 1.0);
    EXPECT_EQ(CHatchDXF().style.name, QStringLiteral("SOLID"));
    EXPECT_FALSE(CHatchDXF().style.isDouble);
    EXPECT_FALSE(CAttribDXF().hidden);
    EXPECT_EQ(CHeaderDXF().version, 1009);
}

TEST(Records, StyleElementsHaveTheirDefaults)
{
    EXPECT_FALSE(CLineTextDXF().absolute);
    EXPECT_EQ(CLineTextDXF().scale, 1.0);
    EXPECT_FALSE(CLineShapeDXF().absolute);
    EXPECT_EQ(CLineShapeDXF().scale, 1.0);
    EXPECT_EQ(CLineShapeDXF().number, 0);
}

TEST(Records, EntityVariantKeepsItsOrder)
{
    using V = CEntityVariantDXF;
    static_assert(boost::variant2::variant_size<V>::value == 18);
    static_assert(std::is_same_v<Kind<0, V>, CPointDXF> && std::is_same_v<Kind<1, V>, CLineDXF>);
    static_assert(std::is_same_v<Kind<2, V>, CXLineDXF> && std::is_same_v<Kind<3, V>, CArcDXF>);
    static_assert(
        std::is_same_v<Kind<4, V>, CSplineDXF> && std::is_same_v<Kind<5, V>, CLWPolylineDXF>);
    static_assert(std::is_same_v<Kind<6, V>, CPolylineDXF> && std::is_same_v<Kind<7, V>, CTextDXF>);
    static_assert(std::is_same_v<Kind<8, V>, CMTextDXF> && std::is_same_v<Kind<9, V>, CSolidDXF>);
    static_assert(
        std::is_same_v<Kind<10, V>, CHatchDXF> && std::is_same_v<Kind<11, V>, C3DFaceDXF>);
    static_assert(std::is_same_v<Kind<12, V>, CImageDXF> && std::is_same_v<Kind<13, V>, CRayDXF>);
    static_assert(
        std::is_same_v<Kind<14, V>, CMLineDXF> && std::is_same_v<Kind<15, V>, CAttDefDXF>);
    static_assert(
        std::is_same_v<Kind<16, V>, CInsertDXF> && std::is_same_v<Kind<17, V>, CEllipseDXF>);
    EXPECT_EQ(V(CEllipseDXF()).index(), 17U);
}

TEST(Records, HatchEdgeAndLineElementKeepTheirOrder)
{
    EXPECT_EQ(CHatchEdgeDXF(CArcDXF()).index(), 0U);
    EXPECT_EQ(CHatchEdgeDXF(CSplineDXF()).index(), 1U);
    EXPECT_EQ(CHatchEdgeDXF(CLWPolylineDXF()).index(), 2U);
    EXPECT_EQ(CHatchEdgeDXF(CEllipseDXF()).index(), 3U);
    EXPECT_EQ(CLineElementDXF(1.0).index(), 0U);
    EXPECT_EQ(CLineElementDXF(CLineTextDXF()).index(), 1U);
    EXPECT_EQ(CLineElementDXF(CLineShapeDXF()).index(), 2U);
}

TEST(Records, ReaderNeedsNoOverride)
{
    CSilentHost host;
    IDXFReader& reader = host;
    EXPECT_TRUE(reader.OnSection(1));
    EXPECT_TRUE(reader.OnHatch(CHatchDXF()));
    EXPECT_TRUE(reader.OnHeader(CHeaderDXF()));
    EXPECT_EQ(reader.GetProgress(), nullptr);
}
