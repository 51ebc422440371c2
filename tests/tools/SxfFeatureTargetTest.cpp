// SPDX-License-Identifier: MIT
#include "tests/tools/SxfMaps.h"
#include "tools/velorx/features/FeatureFormats.h"
#include "tools/velorx/features/FeatureTally.h"
#include "VelorExchange/foundation/FileError.h"

#include <QDate>
#include <QDir>
#include <QFile>

namespace velorx::test {

namespace {

/// Maps written from features.
class SxfFeatureTarget : public CSxfMaps
{
protected:
    SxfFeatureTarget() { Begin("SXF"); }

    void Begin(const char* family, int scale = 0)
    {
        STargetOptions options;
        options.path = Write(QByteArray(), "target");
        options.name = QStringLiteral("map.out");
        options.scale = scale;
        tally = CFeatureTally();
        target = MakeFeatureTarget(family, options, tally);
        target->TakeHead({QStringLiteral("Map"), 2000});
    }

    /// What the map holds in the end, without its frame.
    std::string Finish()
    {
        EXPECT_EQ(target->Finish(), QString());
        std::string log = ReadFile(folder.filePath(QStringLiteral("target")));
        const std::size_t frame = log.find("frame\n");
        EXPECT_NE(frame, std::string::npos);
        return log.replace(frame, 6, "");
    }

    CConversionReport Report() const
    {
        CConversionReport report;
        tally.FillReport(report);
        return report;
    }

    CFeatureTally tally;
    std::unique_ptr<IFeatureTarget> target;
};

template <class TFeature>
TFeature Feature(int code = 0)
{
    TFeature feature;
    feature.kind = "kind";
    feature.layer = QStringLiteral("SYSTEM");
    feature.code = code;
    return feature;
}

SLineFeature Line(int code = 0)
{
    auto line = Feature<SLineFeature>(code);
    line.points = {{10, 1, 0}, {20, 2, 0}};
    return line;
}

SAreaFeature Area(int code = 0)
{
    auto area = Feature<SAreaFeature>(code);
    area.rings = {{{0, 0, 0}, {9, 0, 0}, {9, 5, 0}}};
    area.fill.kind = EFeatureFill::Solid;
    area.stroke.isVisible = false;
    return area;
}

STextFeature Text(int code = 0)
{
    auto text = Feature<STextFeature>(code);
    text.text = QStringLiteral("word");
    text.position = {20, 10, 0};
    text.height = 5;
    return text;
}

void Put(SFeature& feature, const char* name, const QVariant& value)
{
    auto attributes = std::make_shared<std::vector<SFeatureAttribute>>(
        feature.attributes ? *feature.attributes : std::vector<SFeatureAttribute>());
    attributes->push_back({QString::fromUtf8(name), value});
    feature.attributes = attributes;
}

} // namespace

TEST_F(SxfFeatureTarget, LineHasNorthAheadOfEastAndADrawing)
{
    SLineFeature line = Line();
    line.stroke.color = 0xFF00;
    line.stroke.width = 0.25;
    EXPECT_STREQ(target->Take(line), "Line");
    line.is3D = true;
    line.points[1].z = 7;
    line.stroke.planWidth = 2;
    EXPECT_STREQ(target->Take(line), "Line");
    EXPECT_EQ(Finish(),
              "line 0 SYSTEM color 65280 thickness 250 | (1 10) (2 20)\n"
              "line 0 SYSTEM color 65280 thickness 1000 | (1 10 0) (2 20 7)\n");
    EXPECT_EQ(Losses(Report()), "");
}

TEST_F(SxfFeatureTarget, ObjectWithACodeIsLeftToTheClassifier)
{
    target->Take(Line(7));
    SLineFeature red = Line(7);
    red.stroke.color = 255;
    target->Take(red);
    EXPECT_EQ(Finish(), "line 7 SYSTEM | (1 10) (2 20)\nline 7 SYSTEM | (1 10) (2 20)\n");
    EXPECT_EQ(Losses(Report()), "1 objects are drawn as the classifier tells and not as here\n");
}

TEST_F(SxfFeatureTarget, AreaClosesItsRings)
{
    SAreaFeature area = Area();
    area.fill.color = 6;
    area.rings.push_back({{6, 1, 0}, {7, 1, 0}, {7, 2, 0}});
    EXPECT_STREQ(target->Take(area), "Area");
    EXPECT_EQ(Finish(),
              "area 0 SYSTEM color 6 | (0 0) (0 9) (5 9) (0 0) | (1 6) (1 7) (2 7) (1 6)\n");
    EXPECT_EQ(Losses(Report()), "");
}

TEST_F(SxfFeatureTarget, OutlinesBesideEachOtherAreAreasOfTheirOwn)
{
    SAreaFeature area = Area(7);
    area.rings.push_back({{20, 0, 0}, {29, 0, 0}, {29, 9, 0}});
    EXPECT_STREQ(target->Take(area), "Area");
    EXPECT_EQ(Finish(),
              "area 7 SYSTEM | (0 0) (0 9) (5 9) (0 0)\n"
              "area 7 SYSTEM | (0 20) (0 29) (9 29) (0 20)\n");
    EXPECT_EQ(Losses(Report()),
              "2 objects are drawn as the classifier tells and not as here\n"
              "1 further outlines of areas became areas of their own\n");
}

TEST_F(SxfFeatureTarget, OutlineFollowsItsAreaAsALine)
{
    SAreaFeature area = Area();
    area.rings.push_back({{6, 1, 0}, {7, 1, 0}, {7, 2, 0}});
    area.fill.color = 1;
    area.stroke = SFeatureStroke();
    area.stroke.color = 2;
    area.stroke.width = 0.5;
    Put(area, "9", QStringLiteral("x"));
    EXPECT_STREQ(target->Take(area), "Area");
    const std::string rings = " | (0 0) (0 9) (5 9) (0 0) | (1 6) (1 7) (2 7) (1 6)";
    EXPECT_EQ(Finish(),
              "area 0 SYSTEM color 1" + rings + " ; 9:126=x\nline 0 SYSTEM color 2 thickness 500"
                  + rings + "\n");
    EXPECT_EQ(Losses(Report()), "1 outlines of areas became lines behind them\n");
}

TEST_F(SxfFeatureTarget, AreaWithoutAFillHasNoColour)
{
    SAreaFeature area = Area();
    area.fill.kind = EFeatureFill::None;
    target->Take(area);
    EXPECT_EQ(Finish(), "area 0 SYSTEM color -1 | (0 0) (0 9) (5 9) (0 0)\n");
    EXPECT_EQ(Losses(Report()), "");
}

TEST_F(SxfFeatureTarget, PatternsBecomeSolidFills)
{
    SAreaFeature area = Area();
    area.fill.kind = EFeatureFill::Pattern;
    area.fill.color = 6;
    target->Take(area);
    EXPECT_EQ(Finish(), "area 0 SYSTEM color 6 | (0 0) (0 9) (5 9) (0 0)\n");
    EXPECT_EQ(Losses(Report()), "1 patterns of areas became solid fills\n");
}

TEST_F(SxfFeatureTarget, PointHasARingOfItsSize)
{
    auto point = Feature<SPointFeature>();
    point.position = {10, 1, 5};
    point.symbol.color = 255;
    EXPECT_STREQ(target->Take(point), "Point");
    point.is3D = true;
    point.symbol.size = 72.0 / 25.4;
    point.symbol.shape = 35;
    EXPECT_STREQ(target->Take(point), "Point");
    EXPECT_EQ(Finish(),
              "point 0 SYSTEM color 255 size 8000 bits 6000000090000000 | (1 10)\n"
              "point 0 SYSTEM color 255 size 8000 bits 6000000090000000 | (1 10 5)\n");
    EXPECT_EQ(Losses(Report()), "1 marks of points became small rings\n");
}

TEST_F(SxfFeatureTarget, DashesAreListed)
{
    SLineFeature line = Line();
    line.stroke.lineType =
        std::make_shared<SFeatureLineType>(SFeatureLineType{QStringLiteral("DASHED"), {1, -1}});
    target->Take(line);
    Finish();
    EXPECT_EQ(Losses(Report()), "1 dashed lines became solid\n");
}

TEST_F(SxfFeatureTarget, HiddenAndLockedLayersAreListed)
{
    target->TakeLayer({QStringLiteral("A"), false, true});
    target->TakeLayer({QStringLiteral("B"), true, false});
    EXPECT_EQ(Losses(Report()), "1 hidden layers are shown\n1 locked layers are open to changes\n");
    EXPECT_EQ(Report().losses[0].layers[0].first, "A");
}

TEST_F(SxfFeatureTarget, PicturesAreListed)
{
    auto image = Feature<SImageFeature>();
    EXPECT_EQ(target->Take(image), nullptr);
    EXPECT_EQ(Losses(Report()), "1 pictures\n");
    EXPECT_EQ(Report().losses[0].layers[0].first, "SYSTEM");
}

// ---- Texts ---------------------------------------------------------------------------------------

TEST_F(SxfFeatureTarget, TextStandsOnALineOfItsLength)
{
    STextFeature text = Text();
    text.color = 9;
    text.font = QStringLiteral("Times New");
    EXPECT_STREQ(target->Take(text), "Text");
    text.rotation = 1.5707963267948966;
    text.align = EFeatureAlign::Right;
    text.vertical = EFeatureVertical::Bottom;
    EXPECT_STREQ(target->Take(text), "Text");
    EXPECT_EQ(Finish(),
              "text 0 SYSTEM 'word' 20 color 9 height 2500 font Times New | (10 20) (10 32)\n"
              "text 0 SYSTEM 'word' 30 color 9 height 2500 font Times New | (-2 20) (10 20)\n");
    EXPECT_EQ(Losses(Report()), "");
}

TEST_F(SxfFeatureTarget, TextsHaveTheScaleOfTheOptions)
{
    Begin("SXF", 500);
    target->Take(Text());
    EXPECT_NE(Finish().find(" height 10000 "), std::string::npos);
    EXPECT_EQ(ReadSxfHeader(folder.filePath(QStringLiteral("target"))).scale, 500);
}

TEST_F(SxfFeatureTarget, LinesOfATextStayInBothForms)
{
    STextFeature text = Text();
    text.text = QStringLiteral("a\nbcd\ne");
    target->Take(text);
    EXPECT_EQ(Finish(),
              "text 0 SYSTEM 'a\\nbcd\\ne' 20 color 0 height 2500 font Arial | (10 20) (10 29)\n");
    Begin("SXF text");
    target->Take(text);
    text.code = 7;
    target->Take(text);
    EXPECT_EQ(Finish(),
              "text 0 SYSTEM 'a' 20 'bcd' 20 'e' 20 color 0 height 2500 font Arial"
              " | (10 20) (10 29)\n"
              "text 7 SYSTEM 'a' 20 'bcd' 20 'e' 20 | (10 20) (10 29)\n");
}

TEST_F(SxfFeatureTarget, WhatTextsLoseIsListed)
{
    STextFeature text = Text();
    text.is3D = true;
    text.position.z = 5;
    text.widthFactor = 0.8;
    text.columnWidth = 30;
    target->Take(text);
    Finish();
    EXPECT_EQ(Losses(Report()),
              "1 texts lost the width or the slant of their letters\n"
              "1 texts lost the width at which their lines are broken\n"
              "1 texts lost their height above zero\n");
}

// ---- Attributes and layers -----------------------------------------------------------------------

TEST_F(SxfFeatureTarget, NamesWithACodeKeepIt)
{
    SLineFeature line = Line(7);
    for (const char* name : {"S_9", "SC_10", "11", "S_9_2", "s_65535"}) {
        Put(line, name, QStringLiteral("x"));
    }
    target->Take(line);
    EXPECT_EQ(Finish(),
              "line 7 SYSTEM | (1 10) (2 20) ; 9:126=x ; 10:126=x ; 11:126=x ; 9:126=x ; "
              "65535:126=x\n");
}

TEST_F(SxfFeatureTarget, OtherNamesGetCodesOfTheirOwn)
{
    for (const char* name : {"OWNER", "S_70000", "OWNER"}) {
        SLineFeature line = Line(7);
        Put(line, name, QStringLiteral("x"));
        target->Take(line);
    }
    const std::string shape = "line 7 SYSTEM | (1 10) (2 20) ; ";
    EXPECT_EQ(Finish(),
              shape + "60001:126=x\n" + shape + "60002:126=x\n" + shape + "60001:126=x\n");
    ASSERT_EQ(Report().remarks.size(), 2U);
    EXPECT_EQ(Report().remarks[0], "The attribute OWNER has the code 60001 on the map.");
}

TEST_F(SxfFeatureTarget, ColumnCodeIsTheClassifierCode)
{
    SLineFeature line = Line();
    Put(line, "Code", 44200000);
    target->Take(line);
    line = Line();
    Put(line, "CODE", QStringLiteral("44200001"));
    target->Take(line);
    line = Line();
    Put(line, "CODE", QStringLiteral("none"));
    target->Take(line);
    EXPECT_EQ(Finish(),
              "line 44200000 SYSTEM | (1 10) (2 20)\nline 44200001 SYSTEM | (1 10) (2 20)\n"
              "line 0 SYSTEM color 0 thickness 0 | (1 10) (2 20) ; 60001:126=none\n");
}

TEST_F(SxfFeatureTarget, EveryTypeOfValueIsWritten)
{
    SLineFeature line = Line(7);
    Put(line, "1", true);
    Put(line, "2", QVariant::fromValue<short>(-300));
    Put(line, "3", 70000);
    Put(line, "4", QVariant::fromValue(0.1F));
    Put(line, "5", 0.5);
    Put(line, "6", QDate(2024, 2, 29));
    Put(line, "7", QStringLiteral("Ж"));
    Put(line, "8", QVariant(QVariant::Date));
    Put(line, "9", Q_INT64_C(5000000000));
    Put(line, "10", QVariant());
    Put(line, "11", qInf());
    target->Take(line);
    EXPECT_EQ(Finish(),
              "line 7 SYSTEM | (1 10) (2 20) ; 1:1=1 ; 2:2=-300 ; 3:4=70000 ; 4:8=0.1 ; 5:8=0.5"
              " ; 6:126=20240229 ; 7:126=Ж ; 8:126= ; 9:8=5e+09\n");
    EXPECT_EQ(Losses(Report()), "1 attributes that are not finite numbers\n");
}

TEST_F(SxfFeatureTarget, LayerComesWholeThroughBothForms)
{
    for (const char* family : {"SXF", "SXF text"}) {
        Begin(family);
        for (const int code : {0, 7}) {
            SLineFeature line = Line(code);
            line.layer = QStringLiteral("a b");
            target->Take(line);
        }
        const std::string log = Finish();
        EXPECT_EQ(log.find("line 0 a b "), 0U) << log;
        EXPECT_NE(log.find("line 7 a b "), std::string::npos) << log;
    }
}

// ---- The map -------------------------------------------------------------------------------------

TEST_F(SxfFeatureTarget, IsAUserMapWithTheNameOfTheSource)
{
    Begin("SXF text");
    target->Take(Line());
    Finish();
    const SSxfHeader header = ReadSxfHeader(folder.filePath(QStringLiteral("target")));
    EXPECT_TRUE(header.isUserMap);
    EXPECT_EQ(header.name, "Map");
    EXPECT_EQ(header.scale, 2000);
}

TEST_F(SxfFeatureTarget, CountsInTheExportReport)
{
    target->Take(Line());
    Finish();
    EXPECT_TRUE(target->Log().contains(QStringLiteral("  map.out\n")))
        << target->Log().toStdString();
    EXPECT_TRUE(target->Log().contains(QStringLiteral("линейные объекты - 1")));
}

TEST_F(SxfFeatureTarget, MapOfNothingIsAProblem)
{
    EXPECT_EQ(target->Finish().toStdString(), "there is nothing in it that a map could hold");
}

TEST_F(SxfFeatureTarget, TargetThatCannotBeWrittenThrows)
{
    target->Take(Line());
    ASSERT_TRUE(QFile::remove(folder.filePath(QStringLiteral("target"))));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("target")));
    EXPECT_THROW(target->Finish(), VelorExchange::FileError);
}

} // namespace velorx::test
