// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifFeatureTarget.h"

#include "tests/support/FeatureRecorder.h"
#include "tests/support/LocaleCodec.h"
#include "tests/tools/RunVelorx.h"
#include "tools/velorx/features/MifFeatureSource.h"
#include "tools/velorx/HostCodec.h"
#include "VelorExchange/foundation/FileError.h"

#include <gtest/gtest.h>

#include <QDate>

#include <cmath>
#include <filesystem>
#include <set>

namespace velorx::test {

namespace {

template <class TFeature>
TFeature InLayer(const char* layer)
{
    TFeature feature;
    feature.kind = "X";
    feature.layer = QString::fromUtf8(layer);
    return feature;
}

SPointFeature Point(const char* layer, double x = 1, double y = 2)
{
    auto point = InLayer<SPointFeature>(layer);
    point.position = {x, y, 0};
    return point;
}

CFeatureLine Square(double left, double bottom, double size)
{
    return {{left, bottom, 0},
            {left + size, bottom, 0},
            {left + size, bottom + size, 0},
            {left, bottom + size, 0}};
}

CFeatureAttributes Attributes(std::vector<SFeatureAttribute> attributes)
{
    return std::make_shared<const std::vector<SFeatureAttribute>>(std::move(attributes));
}

class MifFeatureTarget : public testing::Test
{
protected:
    MifFeatureTarget() { SetCodePage("windows-1251"); }

    // A pair `name` in the folder of the test.
    CMifFeatureTarget& MakePair(const std::string& name = "out.mif")
    {
        return Make(folder.Write(name, ""), name);
    }

    CMifFeatureTarget& MakeFolder()
    {
        std::filesystem::create_directory(folder.path + "/tables");
        return Make(folder.path + "/tables", "tables");
    }

    CMifFeatureTarget& Make(const std::string& path, const std::string& name)
    {
        STargetOptions options;
        options.path = PathFromBytes(path);
        options.name = QString::fromStdString(name);
        options.precision = 2;
        target = std::make_unique<CMifFeatureTarget>(options, tally);
        return *target;
    }

    std::string File(const std::string& name) const { return ReadFile(folder.path + "/" + name); }
    bool Holds(const std::string& file, const std::string& part) const
    {
        return File(file).find(part) != std::string::npos;
    }

    // What the pair is when read again.
    const CFeatureRecorder& ReadBack(const std::string& name = "out.mif")
    {
        recorder = std::make_unique<CFeatureRecorder>();
        CFeatureTally ignored;
        CMifFeatureSource source(PathFromBytes(folder.path + "/" + name), {});
        EXPECT_EQ(source.Read(*recorder, ignored), "");
        return *recorder;
    }

    std::string Report() const
    {
        CConversionReport report;
        tally.FillReport(report);
        return report.ToText().toStdString();
    }
    bool Reports(const std::string& part) const { return Report().find(part) != std::string::npos; }

    std::set<std::string> Names(const std::string& below = "") const
    {
        std::set<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder.path + below)) {
            names.insert(entry.path().filename().string());
        }
        return names;
    }

    const VelorExchange::test::CLocaleCodec local{"windows-1251"};
    const CTemporaryFolder folder;
    CFeatureTally tally;
    std::unique_ptr<CMifFeatureTarget> target;
    std::unique_ptr<CFeatureRecorder> recorder;
};

} // namespace

// ---- Files and layers ---------------------------------------------------------------------------

TEST_F(MifFeatureTarget, PairLiesUnderTheNameThatWasGiven)
{
    MakePair().Take(Point("out"));
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(Names(), (std::set<std::string>{"out.mif", "out.mid"}));
    EXPECT_TRUE(Holds("out.mif", "POINT 1.00 2.00\n"));
}

TEST_F(MifFeatureTarget, MidIsSpelledLikeTheMif)
{
    MakePair("OUT.MIF").Take(Point("OUT"));
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(Names(), (std::set<std::string>{"OUT.MIF", "OUT.MID"}));
}

TEST_F(MifFeatureTarget, SeveralLayersStandInAColumn)
{
    MakePair().Take(Point("Roads"));
    target->Take(Point("Houses"));
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 1\nLAYER CHAR(80)\n"));
    EXPECT_EQ(File("out.mid"), "\"Roads\"\n\"Houses\"\n");
    EXPECT_EQ(ReadBack().points.at(1).layer, "Houses");
}

TEST_F(MifFeatureTarget, OneLayerThatIsCalledLikePairOrSourceNeedsNoColumn)
{
    MakePair().Take(Point("out"));
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 1\nTEXT CHAR(80)\n"));
    EXPECT_EQ(File("out.mid"), "\n");
    MakePair().TakeHead({"source"});
    auto point = Point("source");
    point.attributes = Attributes({{"A", 5}});
    target->Take(point);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 1\nA INTEGER\n"));
    EXPECT_EQ(File("out.mid"), "5\n");
}

TEST_F(MifFeatureTarget, OneLayerOfAnotherNameKeepsIt)
{
    MakePair().TakeHead({"source"});
    target->Take(Point("Roads"));
    target->Finish();
    EXPECT_EQ(File("out.mid"), "\"Roads\"\n");
}

TEST_F(MifFeatureTarget, FolderHoldsAPairOfEachLayer)
{
    MakeFolder().Take(Point("Roads"));
    auto house = Point("Дома");
    house.attributes = Attributes({{"N", 5}});
    target->Take(house);
    target->Finish();
    EXPECT_EQ(Names("/tables"),
              (std::set<std::string>{"Roads.mif", "Roads.mid", "Дома.mif", "Дома.mid"}));
    EXPECT_EQ(File("tables/Roads.mid"), "\n");
    EXPECT_EQ(File("tables/Дома.mid"), "5\n");
    EXPECT_EQ(ReadBack("tables/Дома.mif").points.at(0).layer, QString::fromUtf8("Дома"));
}

TEST_F(MifFeatureTarget, LayersThatAreNoFileNamesStayInTheFolder)
{
    MakeFolder();
    for (const char* layer : {"../x", "a/b", "A:b", "con", "", "/tmp/y", "..", "a\\b"}) {
        target->Take(Point(layer));
    }
    EXPECT_EQ(target->Finish(), "");
    EXPECT_EQ(
        Names("/tables"),
        (std::set<std::string>{"_.._x.mif", "_.._x.mid", "a_b.mif", "a_b.mid", "A_b_1.mif",
                               "A_b_1.mid", "_con.mif", "_con.mid", "_.mif", "_.mid", "_tmp_y.mif",
                               "_tmp_y.mid", "__1.mif", "__1.mid", "a_b_2.mif", "a_b_2.mid"}));
    EXPECT_EQ(Names(), (std::set<std::string>{"tables"}));
    EXPECT_TRUE(Reports("The layer ../x is in the table _.._x")) << Report();
    EXPECT_FALSE(std::filesystem::exists("/tmp/y.mif"));
}

TEST_F(MifFeatureTarget, EmptyMapMakesAnEmptyTable)
{
    MakePair();
    EXPECT_EQ(target->Finish(), "");
    EXPECT_TRUE(Holds("out.mif", "DATA\n"));
    EXPECT_EQ(File("out.mid"), "");
    EXPECT_TRUE(ReadBack().points.empty());
    EXPECT_TRUE(Reports("There is nothing that a table could hold"));
    EXPECT_EQ(MakeFolder().Finish(), "");
    EXPECT_TRUE(Names("/tables").empty());
}

TEST_F(MifFeatureTarget, LayersWithoutObjectsAndHiddenOnesAreListed)
{
    MakePair().TakeLayer({"empty"});
    target->TakeLayer({"out", false});
    target->Take(Point("out"));
    target->Finish();
    EXPECT_TRUE(Reports("1  layers without objects (layers: empty 1)")) << Report();
    EXPECT_TRUE(Reports("1  hidden layers are shown (layers: out 1)"));
}

TEST_F(MifFeatureTarget, LogCountsObjectsOfEachTable)
{
    MakeFolder().Take(Point("Roads"));
    target->Take(Point("Roads"));
    target->Finish();
    const QString log = target->Log();
    EXPECT_TRUE(log.contains("Roads.MIF")) << log.toStdString();
    EXPECT_TRUE(log.contains(QString::fromUtf8("точки")));
}

TEST_F(MifFeatureTarget, FolderThatCannotBeWrittenIsAFileError)
{
    MakeFolder().Take(Point("Roads"));
    std::filesystem::remove(folder.path + "/tables");
    EXPECT_THROW(target->Finish(), VelorExchange::FileError);
}

TEST_F(MifFeatureTarget, BoundsHoldAllLayersAndAreNeverEmpty)
{
    MakeFolder().Take(Point("A", 10, 20));
    target->Finish();
    EXPECT_TRUE(Holds("tables/A.mif", "Bounds (9.50, 20.50) (10.50, 19.50)\n"))
        << File("tables/A.mif");
    MakeFolder().Take(Point("A", 10, 20));
    target->Take(Point("B", 110, 220));
    target->Finish();
    EXPECT_TRUE(Holds("tables/A.mif", "Bounds (10.00, 220.00) (110.00, 20.00)\n"));
}

// ---- Attributes ---------------------------------------------------------------------------------

TEST_F(MifFeatureTarget, AttributesComeBack)
{
    auto point = Point("out");
    point.attributes = Attributes({{"A", QString::fromUtf8("Дом; 5")},
                                   {"B", 7},
                                   {"C", QVariant::fromValue<short>(8)},
                                   {"D", 0.123456789},
                                   {"E", QVariant::fromValue(0.5F)},
                                   {"F", QDate(2024, 2, 29)},
                                   {"G", true}});
    MakePair().Take(point);
    target->Take(Point("out"));
    target->Finish();
    const CFeatureRecorder& back = ReadBack();
    ASSERT_EQ(back.points.size(), 2U);
    const auto& attributes = *back.points[0].attributes;
    ASSERT_EQ(attributes.size(), 7U);
    for (std::size_t i = 0; i < 5; ++i) {
        EXPECT_EQ(attributes[i].name, point.attributes->at(i).name);
        EXPECT_EQ(attributes[i].value.userType(), point.attributes->at(i).value.userType());
        EXPECT_EQ(attributes[i].value, point.attributes->at(i).value);
    }
    EXPECT_EQ(attributes[5].value, QVariant(QString("2024-02-29")));
    EXPECT_EQ(attributes[6].value, QVariant(QString("true")));
    EXPECT_EQ(back.points[1].attributes, nullptr);
}

TEST_F(MifFeatureTarget, HeaderTellsWidthsAndDecimals)
{
    auto point = Point("out");
    point.attributes = Attributes({{"A", QString(200, 'x')}, {"B", 0.123456789}});
    MakePair().Take(point);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 2\nA CHAR(200)\nB DECIMAL(20,9)\n"));
}

TEST_F(MifFeatureTarget, ChangedAttributesAreListed)
{
    auto point = Point("out");
    point.attributes = Attributes({{"A", QString(300, 'x')},
                                   {"two words", QString("two\nlines")},
                                   {"C", QString::fromUtf8("街")},
                                   {"D", std::nan("")}});
    MakePair().Take(point);
    target->Take(point);
    target->Finish();
    EXPECT_TRUE(Reports("2  attributes were cut to 254 letters")) << Report();
    EXPECT_TRUE(Reports("2  attributes lost their line breaks"));
    EXPECT_TRUE(Reports("2  attributes have letters that the code page lacks"));
    EXPECT_TRUE(Reports("2  attributes that are no numbers"));
    EXPECT_TRUE(Reports("\nThe attribute two words is in the column two_words\n"));
}

TEST_F(MifFeatureTarget, ClassifierCodeHasAColumn)
{
    auto point = Point("out");
    point.code = 31410000;
    MakePair().Take(point);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "Columns 1\nSXF_CODE INTEGER\n"));
    EXPECT_EQ(ReadBack().points.at(0).code, 31410000);
}

// ---- Objects ------------------------------------------------------------------------------------

TEST_F(MifFeatureTarget, PlainPointIsASmallCircleOfItsColour)
{
    auto point = Point("out");
    point.symbol.color = 0x0000FF;
    EXPECT_STREQ(MakePair().Take(point), "Point");
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "POINT 1.00 2.00\nSYMBOL (34, 16711680, 4)\n"));
}

TEST_F(MifFeatureTarget, SymbolsKeepNumberFontSizeAndAngle)
{
    auto point = Point("out");
    point.symbol = {0x0000FF, 65, "MapInfo Symbols", 18, 1.5707963267948966};
    MakePair().Take(point);
    point.symbol.font.clear();
    point.symbol.size = 1000;
    target->Take(point);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "SYMBOL (65, 16711680, 18, \"MapInfo Symbols\", 0, 90.00)\n"));
    EXPECT_TRUE(Holds("out.mif", "SYMBOL (65, 16711680, 240)\n"));
    EXPECT_TRUE(Reports("1  symbols of the standard set lost their angle"));
    EXPECT_TRUE(Reports("1  symbols were too large"));
}

TEST_F(MifFeatureTarget, LinesKeepTheirStrokes)
{
    auto line = InLayer<SLineFeature>("out");
    line.points = {{1, 2, 0}, {3, 4, 0}};
    line.stroke.color = 0x0000FF;
    line.stroke.width = 25.4 / 72;
    EXPECT_STREQ(MakePair().Take(line), "Pline");
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "PLINE\n2\n1.00 2.00\n3.00 4.00\nPEN (20, 2, 16711680)\n"));
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTarget, WhatLinesLoseIsListed)
{
    auto line = InLayer<SLineFeature>("out");
    line.points = {{1, 2, 0}};
    EXPECT_EQ(MakePair().Take(line), nullptr);
    line.points = {{1, 2, 3}, {3, 4, 5}};
    line.is3D = true;
    line.stroke.width = 100;
    line.stroke.planWidth = 2;
    auto type = std::make_shared<SFeatureLineType>();
    type->dashes = {1, -1};
    line.stroke.lineType = type;
    target->Take(line);
    target->Finish();
    EXPECT_TRUE(Reports("1  lines of a single vertex or none (layers: out 1)")) << Report();
    EXPECT_TRUE(Reports("1  objects lost their heights"));
    EXPECT_TRUE(Reports("1  lines are wider than any pen"));
    EXPECT_TRUE(Reports("1  widths of wide polylines"));
    EXPECT_TRUE(Reports("1  line types became the nearest pattern"));
}

TEST_F(MifFeatureTarget, AreaIsARegion)
{
    auto area = InLayer<SAreaFeature>("out");
    area.rings = {Square(0, 0, 10)};
    area.stroke.isVisible = false;
    area.fill.kind = EFeatureFill::Solid;
    area.fill.color = 0x0000FF;
    EXPECT_STREQ(MakePair().Take(area), "Region");
    target->Finish();
    EXPECT_TRUE(Holds("out.mif",
                      "REGION 1\n4\n0.00 0.00\n10.00 0.00\n10.00 10.00\n0.00 10.00\n"
                      "PEN (1, 1, 0)\nBRUSH (2, 16711680, 16777215)\n"));
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTarget, OutlineOfAnAreaHasItsPen)
{
    auto area = InLayer<SAreaFeature>("out");
    area.rings = {Square(0, 0, 10)};
    area.stroke.color = 0x0000FF;
    area.stroke.width = 25.4 / 72;
    MakePair().Take(area);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "PEN (20, 2, 16711680)\nBRUSH (1, 0, 16777215)\n"));
    const CFeatureRecorder& back = ReadBack();
    EXPECT_TRUE(back.areas.at(0).stroke.isVisible);
    EXPECT_EQ(back.areas[0].stroke.color, 0x0000FFU);
    EXPECT_EQ(back.areas[0].fill.kind, EFeatureFill::None);
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTarget, HolesAndPartsAreRingsOfOneRegion)
{
    auto area = InLayer<SAreaFeature>("out");
    area.rings = {Square(0, 0, 10), Square(20, 0, 5), Square(2, 2, 6), Square(4, 4, 1)};
    area.fill.kind = EFeatureFill::Solid;
    area.stroke.isVisible = false;
    area.attributes = Attributes({{"A", 7}});
    MakePair().Take(area);
    target->Take(Point("out"));
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "REGION 4\n4\n0.00 0.00\n"));
    EXPECT_TRUE(Holds("out.mif", "\n4\n20.00 0.00\n"));
    EXPECT_EQ(File("out.mid"), "7\n\n");
    const CFeatureRecorder& back = ReadBack();
    ASSERT_EQ(back.areas.size(), 1U);
    EXPECT_EQ(back.areas[0].rings.size(), 4U);
    EXPECT_EQ(back.points.size(), 1U);
    EXPECT_TRUE(Reports("Nothing was lost or changed")) << Report();
}

TEST_F(MifFeatureTarget, DetailsGoToTheObjectsOfTheirTable)
{
    MakeFolder();
    for (const char* layer : {"A", "B", "A"}) {
        auto area = InLayer<SAreaFeature>(layer);
        area.rings = {Square(0, 0, 10)};
        area.stroke.color = layer[0] == 'A' ? 0x0000FF : 0x00FF00;
        target->Take(Point(layer));
        target->Take(area);
    }
    target->Finish();
    EXPECT_EQ(ReadBack("tables/A.mif").areas.at(0).stroke.color, 0x0000FFU);
    EXPECT_EQ(ReadBack("tables/A.mif").areas.at(1).stroke.color, 0x0000FFU);
    EXPECT_EQ(ReadBack("tables/B.mif").areas.at(0).stroke.color, 0x00FF00U);
}

TEST_F(MifFeatureTarget, WhatAreasLoseIsListed)
{
    auto area = InLayer<SAreaFeature>("out");
    area.rings = {{{0, 0, 0}, {1, 1, 0}}};
    EXPECT_EQ(MakePair().Take(area), nullptr);
    area.rings = {Square(0, 0, 10)};
    area.fill.kind = EFeatureFill::Pattern;
    area.stroke.planWidth = 1;
    target->Take(area);
    target->Finish();
    EXPECT_TRUE(Reports("1  areas of fewer than three vertices")) << Report();
    EXPECT_TRUE(Reports("1  hatch patterns became the nearest pattern"));
    EXPECT_TRUE(Reports("1  widths of wide polylines"));
}

TEST_F(MifFeatureTarget, TextsKeepPlaceSizeAndFont)
{
    auto text = InLayer<STextFeature>("out");
    text.text = QString::fromUtf8("две\nстроки");
    text.position = {10, 20, 0};
    text.height = 2;
    text.rotation = 0.5;
    text.vertical = EFeatureVertical::Bottom;
    text.font = "Courier New";
    text.isBold = true;
    text.color = 0x0000FF;
    EXPECT_STREQ(MakePair().Take(text), "Text");
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "\\n"));
    EXPECT_TRUE(Holds("out.mif", "FONT (\"Courier New\", 1, 0, 16711680)\nAngle 28.65\n"));
    const CFeatureRecorder& back = ReadBack();
    ASSERT_EQ(back.texts.size(), 1U);
    EXPECT_EQ(back.texts[0].text, text.text);
    EXPECT_NEAR(back.texts[0].height, 2, 0.01);
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTarget, TextsKeepTheirAlignment)
{
    auto text = InLayer<STextFeature>("out");
    text.text = "Map";
    text.position = {10, 20, 0};
    text.height = 2;
    text.align = EFeatureAlign::Right;
    MakePair().Take(text);
    text.align = EFeatureAlign::Centre;
    target->Take(text);
    target->Finish();
    EXPECT_TRUE(Holds("out.mif", "FONT (\"Arial\", 0, 0, 0)\nJustify Right\n"));
    const CFeatureRecorder& back = ReadBack();
    EXPECT_EQ(back.texts.at(0).align, EFeatureAlign::Right);
    EXPECT_NEAR(back.texts[0].position.x, 10, 0.01);
    EXPECT_EQ(back.texts.at(1).align, EFeatureAlign::Centre);
    EXPECT_NEAR(back.texts[1].position.x, 10, 0.01);
    EXPECT_TRUE(Reports("Nothing was lost or changed"));
}

TEST_F(MifFeatureTarget, WhatTextsLoseIsListed)
{
    auto text = InLayer<STextFeature>("out");
    text.height = 1;
    EXPECT_EQ(MakePair().Take(text), nullptr);
    text.text = QString::fromUtf8("C:\\new 街");
    text.slant = 0.1;
    text.columnWidth = 1;
    target->Take(text);
    text.rotation = std::nan("");
    EXPECT_EQ(target->Take(text), nullptr);
    target->Finish();
    for (const char* loss :
         {"1  texts without letters", "1  widths and slants", "1  texts that are broken",
          "1  texts with the characters \\n", "1  texts have letters that the code page lacks",
          "1  texts with an angle"})
    {
        EXPECT_TRUE(Reports(loss)) << loss << Report();
    }
}

TEST_F(MifFeatureTarget, ImagesAreListed)
{
    EXPECT_EQ(MakePair().Take(InLayer<SImageFeature>("Air")), nullptr);
    EXPECT_TRUE(Reports("1  images (layers: Air 1)"));
}

TEST_F(MifFeatureTarget, CoordinatesBeyondAllMapsAreListedAndLeftOut)
{
    MakePair().Take(Point("out"));
    for (const double x : {std::nan(""), HUGE_VAL, 1e300}) {
        EXPECT_EQ(target->Take(Point("out", x)), nullptr);
        auto line = InLayer<SLineFeature>("out");
        line.points = {{1, 2, 0}, {x, 4, 0}};
        EXPECT_EQ(target->Take(line), nullptr);
        auto area = InLayer<SAreaFeature>("out");
        area.rings = {{{1, 2, 0}, {x, 4, 0}, {2, 2, 0}}};
        EXPECT_EQ(target->Take(area), nullptr);
        auto text = InLayer<STextFeature>("out");
        text.text = "x";
        text.position.x = x;
        EXPECT_EQ(target->Take(text), nullptr);
    }
    EXPECT_EQ(target->Finish(), "");
    EXPECT_TRUE(Reports("12  objects with coordinates that are no numbers")) << Report();
    EXPECT_EQ(ReadBack().points.size(), 1U);
}

TEST_F(MifFeatureTarget, OtherCodePageThanTheHeadersIsTold)
{
    SetCodePage("UTF-8");
    MakePair().Take(Point("Дома"));
    target->Finish();
    EXPECT_TRUE(Holds("out.mid", "\"Дома\"\n"));
    EXPECT_TRUE(Reports("The text of the tables is in UTF-8")) << Report();
}

} // namespace velorx::test
