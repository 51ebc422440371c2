// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfMLineStyle.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

using VelorExchange::dxf::CMLineStyleDXF;

CMLineStyleDXF Made(const CMLineStyleGroups& groups, double scale = 1.0)
{
    return MakeMLineStyle(QStringLiteral("Road"), groups, scale,
                          [](const QString& name) { return name.toUpper(); });
}

const CMLineStyleGroups kRoad = {{70, "16"},  {3, "A road"}, {62, "256"}, {51, "45.0"},
                                 {52, "90"},  {71, "2"},     {49, "2"},   {62, "1"},
                                 {6, "dash"}, {49, "-0.5"},  {62, "2"},   {6, "dot"}};

} // namespace

TEST(DxfMLineStyle, BodyHoldsTheNameAndAllGroups)
{
    EXPECT_EQ(
        Made(kRoad).body.toStdString(),
        "2\r\nRoad\r\n70\r\n16\r\n3\r\nA road\r\n62\r\n256\r\n51\r\n45.0\r\n52\r\n90\r\n71\r\n2\r\n"
        "49\r\n2\r\n62\r\n1\r\n6\r\nDASH\r\n49\r\n-0.5\r\n62\r\n2\r\n6\r\nDOT\r\n");
}

TEST(DxfMLineStyle, FieldsSayWhatTheBodySays)
{
    const CMLineStyleDXF style = Made(kRoad);
    EXPECT_EQ(style.name, "Road");
    EXPECT_EQ(style.offsets, (std::vector<double>{2, -0.5}));
    EXPECT_EQ(style.lineTypes, (std::vector<QString>{"DASH", "DOT"}));
    EXPECT_NEAR(style.startAngle, 0.7853981633974483, 1e-15);
    EXPECT_NEAR(style.endAngle, 1.5707963267948966, 1e-15);
}

TEST(DxfMLineStyle, ScaleGoesIntoTheOffsets)
{
    const CMLineStyleDXF style = Made(kRoad, 10);
    EXPECT_EQ(style.offsets, (std::vector<double>{20, -5}));
    EXPECT_TRUE(style.body.contains("49\r\n20\r\n"));
    EXPECT_TRUE(style.body.contains("49\r\n-5\r\n"));
}

TEST(DxfMLineStyle, StyleWithoutLinesHasTwo)
{
    const CMLineStyleDXF style = Made({{70, "0"}}, 4);
    EXPECT_EQ(style.offsets, (std::vector<double>{2, -2}));
    EXPECT_EQ(style.lineTypes, (std::vector<QString>{"BYLAYER", "BYLAYER"}));
}

} // namespace velorx::test
