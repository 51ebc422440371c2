// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfLineTypes.h"

#include <gtest/gtest.h>

namespace velorx::test {

namespace {

using namespace VelorExchange::dxf;
using boost::variant2::get;

const CDxfGroupList kGas = {{3, "Gas ---G---"}, {49, "1.5"},  {74, "0"},     {49, "-0.5"},
                            {74, "3"},          {75, "0"},    {340, "2a"},   {46, "0.1"},
                            {50, "90"},         {44, "-0.1"}, {45, "-0.05"}, {9, "G"},
                            {49, "-0.5"},       {74, "0"}};

// Fails where there is anything but dashes.
std::vector<double> DashesOf(const CLineStyleDXF& style)
{
    std::vector<double> dashes;
    for (const CLineElementDXF& element : style.pattern) {
        dashes.push_back(get<double>(element));
    }
    return dashes;
}

} // namespace

TEST(DxfLineTypes, KeepsDashesAndDescription)
{
    CDxfLineTypes lineTypes;
    lineTypes.Add("Dash", {{3, "__ __"}, {49, "1"}, {49, "-0.5"}, {49, "0"}});
    const CLineStyleDXF* style = lineTypes.Find("DASH");
    ASSERT_NE(style, nullptr);
    EXPECT_EQ(style->name, "Dash");
    EXPECT_EQ(style->description, "__ __");
    EXPECT_EQ(DashesOf(*style), (std::vector<double>{1.0, -0.5, 0.0}));
    EXPECT_EQ(lineTypes.WithSymbols(), 0);
}

TEST(DxfLineTypes, KeepsLettersBehindTheirDash)
{
    CDxfLineTypes lineTypes;
    lineTypes.Add("Gas", kGas);
    EXPECT_EQ(lineTypes.NameStyles({{"2A", "Plan"}}, {}), 0);
    EXPECT_EQ(lineTypes.WithSymbols(), 1);
    const auto& pattern = lineTypes.Find("gas")->pattern;
    ASSERT_EQ(pattern.size(), 4U);
    const auto& text = get<CLineTextDXF>(pattern[2]);
    EXPECT_TRUE(text.absolute);
    EXPECT_EQ(text.rotation, 90);
    EXPECT_EQ(text.scale, 0.1);
    EXPECT_EQ(text.offsetX, -0.1);
    EXPECT_EQ(text.offsetY, -0.05);
    EXPECT_EQ(text.text, "G");
    EXPECT_EQ(text.style, "Plan");
    EXPECT_EQ(get<double>(pattern[3]), -0.5);
}

TEST(DxfLineTypes, KeepsShapesWithTheirFile)
{
    CDxfLineTypes lineTypes;
    lineTypes.Add("Fence", {{49, "1"}, {74, "4"}, {75, "131"}, {340, "2A"}, {46, "2"}});
    EXPECT_EQ(lineTypes.NameStyles({}, {{"2A", "ltypeshp.shx"}}), 0);
    const auto& shape = get<CLineShapeDXF>(lineTypes.Find("Fence")->pattern.at(1));
    EXPECT_FALSE(shape.absolute);
    EXPECT_EQ(shape.number, 131);
    EXPECT_EQ(shape.scale, 2);
    EXPECT_EQ(shape.style, "ltypeshp.shx");
}

TEST(DxfLineTypes, LettersOfNoStyleAreDropped)
{
    CDxfLineTypes lineTypes;
    lineTypes.Add("Gas", kGas);
    EXPECT_EQ(lineTypes.NameStyles({{"2B", "Plan"}}, {{"2A", "shapes are another matter"}}), 1);
    EXPECT_EQ(DashesOf(*lineTypes.Find("Gas")), (std::vector<double>{1.5, -0.5, -0.5}));
}

TEST(DxfLineTypes, FirstOfANameCounts)
{
    CDxfLineTypes lineTypes;
    lineTypes.Add("A", {{49, "1"}});
    lineTypes.Add("a", {{49, "2"}});
    EXPECT_EQ(get<double>(lineTypes.Find("A")->pattern.at(0)), 1);
    EXPECT_EQ(lineTypes.Find("B"), nullptr);
}

TEST(DxfLineTypes, NumbersThatAreNoneAreZero)
{
    CDxfLineTypes lineTypes;
    lineTypes.Add("A", {{49, "nan"}, {49, "inf"}, {49, "x"}});
    EXPECT_EQ(DashesOf(*lineTypes.Find("A")), (std::vector<double>{0.0, 0.0, 0.0}));
}

} // namespace velorx::test
