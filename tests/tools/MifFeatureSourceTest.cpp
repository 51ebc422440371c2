// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifFeatureSource.h"

#include "tests/support/FeatureRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/tools/RunVelorx.h"
#include "tools/velorx/features/FeatureTally.h"
#include "tools/velorx/HostCodec.h"

#include <gtest/gtest.h>

#include <QDate>

namespace velorx::test {

namespace {

constexpr char kNoColumns[] = "Version 450\nDelimiter \";\"\nColumns 0\nData\n\n";

class MifFeatureSource : public testing::Test
{
protected:
    // Reads the pair "map" of a table without columns.
    void Read(const std::string& objects) { ReadTable(kNoColumns + objects, ""); }

    void ReadTable(const std::string& table, const std::string& rows)
    {
        const std::string path = folder.Write("map.mif", table);
        folder.Write("map.mid", rows);
        problem = Run(path);
    }

    QString Run(const std::string& path)
    {
        CMifFeatureSource source(PathFromBytes(path), options);
        return source.Read(sink, tally);
    }

    std::string Report() const
    {
        CConversionReport report;
        tally.FillReport(report);
        return report.ToText().toStdString();
    }

    bool Reports(const std::string& part) const { return Report().find(part) != std::string::npos; }

    const VelorExchange::test::CLocaleCodec local{"windows-1251"};
    const CTemporaryFolder folder;
    SReadingOptions options;
    CFeatureRecorder sink;
    CFeatureTally tally;
    QString problem;
};

} // namespace

TEST_F(MifFeatureSource, NameOfThePairIsThatOfMapAndLayer)
{
    Read("Point 1 2\n");
    EXPECT_EQ(problem, "");
    ASSERT_EQ(sink.heads.size(), 1U);
    EXPECT_EQ(sink.heads[0].name, "map");
    ASSERT_EQ(sink.layers.size(), 1U);
    EXPECT_EQ(sink.layers[0].name, "map");
    EXPECT_EQ(sink.points.at(0).layer, "map");
    EXPECT_STREQ(sink.points.at(0).kind, "Point");
}

TEST_F(MifFeatureSource, PointsHaveTheirSymbols)
{
    Read("Point 1 2\nSymbol (35,255,18)\nPoint 3 4\nSymbol (65,255,18,\"MapInfo Symbols\",0,90)\n"
         "Multipoint 2\n5 6\n7 8\n");
    ASSERT_EQ(sink.points.size(), 4U);
    EXPECT_EQ(sink.points[0].position.x, 1);
    EXPECT_EQ(sink.points[0].symbol.shape, 35);
    EXPECT_EQ(sink.points[0].symbol.font, "");
    EXPECT_EQ(sink.points[0].symbol.color, 0xFF0000U);
    EXPECT_EQ(sink.points[0].symbol.size, 18);
    EXPECT_EQ(sink.points[1].symbol.font, "MapInfo Symbols");
    EXPECT_NEAR(sink.points[1].symbol.angle, 1.570796, 1e-6);
    EXPECT_EQ(sink.points[3].position.y, 8);
    EXPECT_EQ(sink.points[3].symbol.shape, 0);
    EXPECT_EQ(sink.points[3].symbol.size, 0);
}

TEST_F(MifFeatureSource, PictureOfAPointIsListed)
{
    Read("Point 1 2\nSymbol (\"pin.bmp\",255,18,1)\n");
    EXPECT_EQ(sink.points.at(0).symbol.shape, 0);
    EXPECT_TRUE(Reports("1  pictures of points (layers: map 1)")) << Report();
    EXPECT_TRUE(Reports("1  effects of symbols"));
}

TEST_F(MifFeatureSource, LinesHaveTheirPens)
{
    Read("Line 1 2 3 4\nPen (2,5,255)\nPline Multiple 2\n2\n1 1\n2 2\n3\n3 3\n4 4\n3 3\n");
    ASSERT_EQ(sink.lines.size(), 3U);
    EXPECT_EQ(sink.lines[0].points.size(), 2U);
    EXPECT_EQ(sink.lines[0].stroke.color, 0xFF0000U);
    EXPECT_EQ(sink.lines[0].stroke.lineType->name, "MIF 5");
    EXPECT_EQ(sink.lines[2].points.size(), 3U);
    CConversionReport report;
    tally.FillReport(report);
    EXPECT_EQ(report.kinds.at(0).name, "Pline");
    EXPECT_EQ(report.kinds[0].inDrawing, 3);
    EXPECT_EQ(report.kinds[0].written, 3);
}

TEST_F(MifFeatureSource, WhatLinesLoseIsListed)
{
    Read("Pline 1\n1 1\nPline 2\n1 1\n2 2\nPen (1,60,0)\nSmooth\n");
    EXPECT_EQ(sink.lines.size(), 1U);
    EXPECT_TRUE(Reports("1  lines of a single vertex or none"));
    EXPECT_TRUE(Reports("1  pen patterns that only tables have"));
    EXPECT_TRUE(Reports("1  smooth lines"));
}

TEST_F(MifFeatureSource, RingsOfOneRegionAreOneArea)
{
    Read("Region 2\n4\n2 2\n4 2\n4 4\n2 4\n5\n0 0\n10 0\n10 10\n0 10\n0 0\nBrush (2,255,255)\n");
    ASSERT_EQ(sink.areas.size(), 1U);
    ASSERT_EQ(sink.areas[0].rings.size(), 2U);
    EXPECT_EQ(sink.areas[0].rings[0].size(), 4U); // the outer one first, and open
    EXPECT_EQ(sink.areas[0].rings[0][0].x, 0);
    EXPECT_EQ(sink.areas[0].rings[1][0].x, 2);
    EXPECT_EQ(sink.areas[0].fill.kind, EFeatureFill::Solid);
    EXPECT_EQ(sink.areas[0].fill.color, 0xFF0000U);
}

TEST_F(MifFeatureSource, RegionsInOneAnotherStayApart)
{
    Read("Region 1\n4\n0 0\n10 0\n10 10\n0 10\nRegion 1\n4\n2 2\n4 2\n4 4\n2 4\n");
    ASSERT_EQ(sink.areas.size(), 2U);
    EXPECT_EQ(sink.areas[0].rings.size(), 1U);
    EXPECT_EQ(sink.areas[1].rings.size(), 1U);
}

TEST_F(MifFeatureSource, DrawingOrderIsThatOfTheTable)
{
    struct COrder final : IFeatureSink
    {
        std::string kinds;
        const char* Take(const SPointFeature& f) override { return Add(f); }
        const char* Take(const SLineFeature& f) override { return Add(f); }
        const char* Take(const SAreaFeature& f) override { return Add(f); }
        const char* Take(const STextFeature& f) override { return Add(f); }
        const char* Take(const SImageFeature& f) override { return Add(f); }
        const char* Add(const SFeature& feature)
        {
            kinds += feature.kind + std::string(" ");
            return "";
        }
    } order;
    const std::string path = folder.Write(
        "map.mif",
        std::string(kNoColumns)
            + "Region 1\n3\n0 0\n1 0\n1 1\nPoint 1 2\nRegion 1\n3\n0 0\n1 0\n1 1\nLine 1 2 3 4\n");
    CMifFeatureSource(PathFromBytes(path), options).Read(order, tally);
    EXPECT_EQ(order.kinds, "Region Point Region Pline ");
}

TEST_F(MifFeatureSource, RegionWithoutPenAndFillIsOutlinedInTheBrushColour)
{
    Read("Region 1\n3\n0 0\n1 0\n1 1\nPen (1,1,0)\nBrush (1,255)\n"
         "Region 1\n3\n0 0\n1 0\n1 1\nPen (1,1,0)\nBrush (2,255)\n");
    EXPECT_TRUE(sink.areas.at(0).stroke.isVisible);
    EXPECT_EQ(sink.areas[0].stroke.color, 0xFF0000U);
    EXPECT_FALSE(sink.areas.at(1).stroke.isVisible);
}

TEST_F(MifFeatureSource, WhatRegionsLoseIsListed)
{
    Read("Region 2\n3\n0 0\n1 1\n0 0\n3\n0 0\n1 0\n1 1\nBrush (15,0,0)\nCenter 3 3\n");
    ASSERT_EQ(sink.areas.size(), 1U);
    EXPECT_EQ(sink.areas[0].rings.size(), 1U);
    EXPECT_TRUE(Reports("1  rings of fewer than three vertices")) << Report();
    EXPECT_TRUE(Reports("1  brush patterns that only tables have"));
    EXPECT_TRUE(Reports("1  centres of areas"));
}

TEST_F(MifFeatureSource, ShapesBecomeLinesAndAreasByChords)
{
    options.chord = 0.001;
    Read("Arc 0 0 10 10 0 90\nEllipse 0 0 10 10\nRect 0 0 10 10\nRoundRect 0 0 10 10 4\n");
    EXPECT_EQ(sink.lines.size(), 1U);
    ASSERT_EQ(sink.areas.size(), 3U);
    EXPECT_STREQ(sink.areas[0].kind, "Ellipse");
    EXPECT_EQ(sink.areas[1].rings[0].size(), 4U);
    const std::size_t fine = sink.areas[0].rings[0].size();
    options.chord = 0.1;
    Read("Ellipse 0 0 10 10\n");
    EXPECT_LT(sink.areas[3].rings[0].size() * 5, fine);
}

TEST_F(MifFeatureSource, CurvesOfEndlessSizeAreLeftOutAndListed)
{
    Read("Ellipse -1 inf 1 1\nRoundrect 0 0 inf inf inf\nArc 0 0 1 1\n0 inf\nPoint 1 2\n");
    EXPECT_TRUE(sink.areas.empty());
    EXPECT_TRUE(sink.lines.empty());
    EXPECT_EQ(sink.points.size(), 1U);
    for (const char* kind : {"Ellipse", "RoundRect", "Arc"}) {
        EXPECT_TRUE(Reports("1  " + std::string(kind) + ", with a number that is none: left out"))
            << Report();
    }
}

TEST_F(MifFeatureSource, TextsHaveTheirPlaces)
{
    Read("Text\n\"two\\nlines\"\n1 2 31 12\nFont (\"Times New Roman\",1,0,255)\nAngle 30\n");
    ASSERT_EQ(sink.texts.size(), 1U);
    EXPECT_EQ(sink.texts[0].text, "two\nlines");
    EXPECT_EQ(sink.texts[0].position.x, 1);
    EXPECT_NEAR(sink.texts[0].height, 3.45, 1e-9);
    EXPECT_NEAR(sink.texts[0].rotation, 0.5236, 1e-4);
    EXPECT_EQ(sink.texts[0].font, "Times New Roman");
    EXPECT_TRUE(sink.texts[0].isBold);
}

TEST_F(MifFeatureSource, WhatTextsLoseIsListed)
{
    Read("Text\n\"a\"\n1 2 1 2\nFont (\"Arial\",256,0,255,65535)\nLabel Line Arrow 5 5\n");
    EXPECT_TRUE(Reports("1  effects of letters")) << Report();
    EXPECT_TRUE(Reports("1  backgrounds of texts"));
    EXPECT_TRUE(Reports("1  lines from texts"));
    EXPECT_TRUE(Reports("1  texts without a size"));
}

TEST_F(MifFeatureSource, AttributesKeepNamesAndTypes)
{
    ReadTable("Version 450\nDelimiter \";\"\nColumns 4\nA Char(9)\nB Integer\nC Decimal(9,3)\n"
              "D Logical\nData\nPoint 1 2\n",
              "\"x;y\";5;2.5;true\n");
    const auto& attributes = sink.points.at(0).attributes;
    ASSERT_NE(attributes, nullptr);
    ASSERT_EQ(attributes->size(), 4U);
    EXPECT_EQ((*attributes)[0].name, "A");
    EXPECT_EQ((*attributes)[0].value, QVariant(QString("x;y")));
    EXPECT_EQ((*attributes)[1].value, QVariant(5));
    EXPECT_EQ((*attributes)[2].value, QVariant(2.5));
    EXPECT_EQ((*attributes)[3].value, QVariant(true));
}

TEST_F(MifFeatureSource, EqualAttributesInARowAreShared)
{
    ReadTable("Version 450\nColumns 1\nA Integer\nData\nPoint 1 2\nPoint 3 4\nPoint 5 6\n",
              "7\n7\n8\n");
    ASSERT_EQ(sink.points.size(), 3U);
    EXPECT_EQ(sink.points[0].attributes, sink.points[1].attributes);
    EXPECT_NE(sink.points[1].attributes, sink.points[2].attributes);
}

TEST_F(MifFeatureSource, ColumnLayerTellsTheLayer)
{
    ReadTable("Version 450\nDelimiter \";\"\nColumns 2\nLayer Char(9)\nB Integer\nData\n"
              "Point 1 2\nPoint 3 4\nPoint 5 6\n",
              "\"Roads\";1\n;2\n\"Roads\";3\n");
    ASSERT_EQ(sink.points.size(), 3U);
    EXPECT_EQ(sink.points[0].layer, "Roads");
    EXPECT_EQ(sink.points[0].attributes->size(), 1U);
    EXPECT_EQ(sink.points[1].layer, "map");
    ASSERT_EQ(sink.layers.size(), 2U);
    EXPECT_EQ(sink.layers[1].name, "map");
}

TEST_F(MifFeatureSource, ColumnLayerOfNumbersIsAnAttribute)
{
    ReadTable("Version 450\nColumns 1\nLAYER Integer\nData\nPoint 1 2\n", "5\n");
    EXPECT_EQ(sink.points.at(0).layer, "map");
    EXPECT_EQ(sink.points.at(0).attributes->at(0).name, "LAYER");
}

TEST_F(MifFeatureSource, ColumnOfCodesTellsTheCode)
{
    ReadTable("Version 450\nColumns 1\nSXF_CODE Integer\nData\nPoint 1 2\n", "31410000\n");
    EXPECT_EQ(sink.points.at(0).code, 31410000);
    EXPECT_EQ(sink.points.at(0).attributes, nullptr);
}

TEST_F(MifFeatureSource, DatesThatAreNotReadAreLeftOutAndListed)
{
    ReadTable(
        "Version 450\nDelimiter \";\"\nColumns 3\nA Date\nB Date\nC Logical\nData\nPoint 1 2\n",
        "20240131;" + QDate(2020, 5, 17).toString(Qt::TextDate).toStdString() + ";T\n");
    ASSERT_EQ(sink.points.size(), 1U);
    const auto& attributes = *sink.points[0].attributes;
    ASSERT_EQ(attributes.size(), 2U);
    EXPECT_EQ(attributes[0].value, QVariant(QDate(2020, 5, 17)));
    EXPECT_TRUE(Reports("1  dates that are not in a form that is read")) << Report();
    EXPECT_TRUE(Reports("1  logical values that do not read"));
}

TEST_F(MifFeatureSource, TextIsReadInTheCodePage)
{
    ReadTable("Version 450\nCharset \"WindowsCyrillic\"\nColumns 1\nA Char(9)\nData\nPoint 1 2\n",
              "\"\xC4\xEE\xEC\"\n");
    EXPECT_EQ(sink.points.at(0).attributes->at(0).value.toString(), QString::fromUtf8("Дом"));
    EXPECT_FALSE(Reports("CharSet"));
}

TEST_F(MifFeatureSource, OtherCharacterSetAndCoordinateSystemAreTold)
{
    ReadTable(
        "Version 450\nCharset \"WindowsLatin1\"\nCoordSys Earth Projection 1, 104\nColumns 0\n"
        "Data\nPoint 1 2\n",
        "");
    EXPECT_TRUE(Reports("CharSet \"WindowsLatin1\"")) << Report();
    EXPECT_TRUE(Reports("--codepage windows-1252"));
    EXPECT_TRUE(Reports("Earth Projection 1, 104"));
}

TEST_F(MifFeatureSource, RowsOfNoObjectAreTold)
{
    ReadTable("Version 450\nColumns 1\nA Integer\nData\nNone\nPoint 1 2\n", "1\n2\n");
    EXPECT_TRUE(Reports("Rows of the .mid that belong to no object: 1")) << Report();
}

TEST_F(MifFeatureSource, MissingMidIsTold)
{
    const std::string path = folder.Write("map.mif", std::string(kNoColumns) + "Point 1 2\n");
    EXPECT_EQ(Run(path), "");
    EXPECT_EQ(sink.points.size(), 1U);
    EXPECT_TRUE(Reports("There is no .mid"));
}

TEST_F(MifFeatureSource, UpperCaseNamesAreRead)
{
    const std::string path = folder.Write("MAP.MIF", std::string(kNoColumns) + "Point 1 2\n");
    EXPECT_EQ(Run(path), "");
    EXPECT_EQ(sink.points.at(0).layer, "MAP");
}

TEST_F(MifFeatureSource, WhatCannotBeReadIsAnError)
{
    EXPECT_EQ(Run(folder.path + "/none.mif"), "it cannot be opened");
    EXPECT_EQ(Run(folder.Write("bad.mif", "Version 450\n")), "the header cannot be read");
    EXPECT_EQ(Run(folder.Write("neg.mif", std::string(kNoColumns) + "Pline -1\n1 1\n")),
              "the table tells a count that cannot be");
    folder.Write("both.mif", kNoColumns);
    EXPECT_TRUE(Run(folder.Write("both.MIF", kNoColumns)).startsWith("a table is read from"));
}

TEST_F(MifFeatureSource, ReadsAsOftenAsAsked)
{
    const std::string path = folder.Write("map.mif", std::string(kNoColumns) + "Point 1 2\n");
    CMifFeatureSource source(PathFromBytes(path), options);
    EXPECT_EQ(source.Read(sink, tally), "");
    EXPECT_EQ(source.Read(sink, tally), "");
    EXPECT_EQ(sink.points.size(), 2U);
    EXPECT_EQ(sink.layers.size(), 2U);
}

} // namespace velorx::test
