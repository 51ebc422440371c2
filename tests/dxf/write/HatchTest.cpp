// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

constexpr double kHalfPi = 1.5707963267948966;
const std::vector<CPoint3D> kTriangle = {{0, 0, 0}, {3, 0, 0}, {0, 3, 0}};

CHatchDXF HatchOf(std::vector<CPoint3D> outline)
{
    CHatchDXF hatch;
    hatch.outline = std::move(outline);
    hatch.color = 256;
    return hatch;
}

std::vector<std::string> Values(CDrawing& drawing, int code)
{
    return ValuesOf(drawing.EntityTags(), code);
}

bool IsTaken(const std::vector<CPoint3D>& outline)
{
    const CDrawing drawing;
    const bool taken = drawing->AddHatch(HatchOf(outline));
    EXPECT_EQ(drawing->GetNextHandle(), taken ? 0xD1 : 0xD0);
    return taken;
}

} // namespace

TEST(Hatch, SolidHatchWritesAllItsGroups)
{
    CDrawing drawing;
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.layer = QStringLiteral("l");
    EXPECT_TRUE(drawing->AddHatch(hatch));
    EXPECT_EQ(drawing.Entities(),
              "0 HATCH\n5 d1\n100 AcDbEntity\n8 l\n62 256\n100 AcDbHatch\n"
              "10 0.000000\n20 0.000000\n30 0.000000\n210 0.000000\n220 0.000000\n230 1.000000\n"
              "2 SOLID\n70 1\n71 1\n91 1\n92 7\n72 0\n73 1\n93 3\n"
              "10 0.000000\n20 0.000000\n10 3.000000\n20 0.000000\n10 0.000000\n20 3.000000\n"
              "97 0\n75 0\n76 1\n47 1.000000\n98 0\n");
}

TEST(Hatch, PatternHangsOnTheMeanOfTheOutline)
{
    CDrawing drawing;
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.angle = kHalfPi;
    hatch.scale = 2;
    hatch.style.name = QStringLiteral("ANSI31");
    hatch.style.isDouble = true;
    CHatchLineDXF line;
    line.angle = 45;
    line.baseX = 10;
    line.baseY = 20;
    line.offsetX = -0.5;
    line.offsetY = 0.5;
    hatch.style.lines.push_back(line);
    line.dashes = {0.5, -0.25};
    hatch.style.lines.push_back(line);
    EXPECT_TRUE(drawing->AddHatch(hatch));
    const std::string entities = drawing.Entities();
    EXPECT_NE(entities.find("2 ANSI31\n70 0\n71 0\n91 1\n"), std::string::npos) << entities;
    EXPECT_EQ(entities.substr(entities.find("75 0")),
              "75 0\n76 0\n52 90.000000\n41 2.000000\n77 1\n78 2\n"
              "53 45.000000\n43 11.000000\n44 21.000000\n45 -0.500000\n46 0.500000\n79 0\n"
              "53 45.000000\n43 11.000000\n44 21.000000\n45 -0.500000\n46 0.500000\n79 2\n"
              "49 0.500000\n49 -0.250000\n47 1.000000\n98 0\n");
}

TEST(Hatch, WithoutAPatternNameIsRefused)
{
    CDrawing drawing;
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.style.name.clear();
    EXPECT_FALSE(drawing->AddHatch(hatch));
    EXPECT_EQ(drawing.Entities(), "");
}

TEST(Hatch, OutlineHasToEncloseSomething)
{
    EXPECT_FALSE(IsTaken({}));
    EXPECT_FALSE(IsTaken({{0, 0, 1}}));
    EXPECT_FALSE(IsTaken({{0, 0, 0}, {1, 0, 1}}));
    EXPECT_FALSE(IsTaken({{0, 0, 1}, {1, 0, 0}}));
    EXPECT_TRUE(IsTaken({{0, 0, 1}, {1, 0, 1}}));
    EXPECT_TRUE(IsTaken(kTriangle));
}

TEST(Hatch, OutlineThatShrinksToALineIsRefusedUnlessItHasBulges)
{
    EXPECT_FALSE(IsTaken({{0, 0, 0}, {1, 0, 0}, {1, 0, 0}}));
    EXPECT_FALSE(IsTaken({{0, 0, 0}, {1, 0, 0}, {0, 0, 0}}));
    EXPECT_TRUE(IsTaken({{0, 0, 1}, {1, 0, 1}, {0, 0, 0}}));
    EXPECT_TRUE(IsTaken({{0, 0, 1}, {0, 0, 1}, {0, 0, 1}})); // a single vertex is left
}

TEST(Hatch, BulgesTakeThePrecisionAndStandAtEveryVertex)
{
    CDrawing drawing;
    drawing->SetPrecision(3);
    drawing->AddHatch(HatchOf({{0, 0, 1}, {1, 0, 0}, {1, 1, 0}}));
    EXPECT_EQ(Values(drawing, 72), std::vector<std::string>{"1"});
    EXPECT_EQ(Values(drawing, 42), (std::vector<std::string>{"1.000", "0.000", "0.000"}));
}

TEST(Hatch, BulgeOfAVertexThatGoesStillCounts)
{
    CDrawing drawing;
    drawing->AddHatch(HatchOf({{0, 0, 0}, {0, 0, 0.5}, {1, 0, 0}, {1, 1, 0}}));
    EXPECT_EQ(Values(drawing, 72), std::vector<std::string>{"1"});
    EXPECT_EQ(Values(drawing, 93), std::vector<std::string>{"3"});
    EXPECT_EQ(Values(drawing, 42), (std::vector<std::string>{"0.000000", "0.000000", "0.000000"}));
}

TEST(Hatch, BulgeBelowTheLeastIsNone)
{
    CDrawing drawing;
    drawing->AddHatch(HatchOf({{0, 0, 0.00000000009}, {1, 0, 0}, {1, 1, 0}}));
    EXPECT_EQ(Values(drawing, 72), std::vector<std::string>{"0"});
    drawing->AddHatch(HatchOf({{0, 0, 0.0000000001}, {1, 0, 0}, {1, 1, 0}}));
    EXPECT_EQ(Values(drawing, 72), (std::vector<std::string>{"0", "1"}));
}

TEST(Hatch, VerticesTooNearTheLastKeptOneGo)
{
    CDrawing drawing;
    drawing->SetPrecision(1);
    // 0.1 is the tolerance: each is compared with the last one kept, and the last with the first.
    drawing->AddHatch(
        HatchOf({{0, 0, 0}, {0.06, 0, 0}, {0.12, 0, 0}, {5, 0, 0}, {5, 5, 0}, {0, 0.1, 0}}));
    EXPECT_EQ(Values(drawing, 93), std::vector<std::string>{"4"});
    EXPECT_EQ(Values(drawing, 10), (std::vector<std::string>{"0.0", "0.0", "0.1", "5.0", "5.0"}));
}

TEST(Hatch, VertexExactlyTheToleranceAwayGoesInEitherDirection)
{
    CDrawing drawing;
    drawing->SetPrecision(1);
    drawing->AddHatch(HatchOf({{0, 0, 0}, {0.1, 0, 0}, {5, 0, 0}, {5, 0.1, 0}, {5, 5, 0}}));
    EXPECT_EQ(Values(drawing, 10), (std::vector<std::string>{"0.0", "0.0", "5.0", "5.0"}));
    drawing->AddHatch(HatchOf({{0, 0, 0}, {0.11, 0, 0}, {5, 0, 0}, {5, 0.11, 0}, {5, 5, 0}}));
    EXPECT_EQ(Values(drawing, 93), (std::vector<std::string>{"3", "5"}));
}

TEST(Hatch, OutlineIsTransformedBeforeVerticesAreCompared)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    drawing->AddHatch(HatchOf(kTriangle));
    EXPECT_EQ(Values(drawing, 10),
              (std::vector<std::string>{"0.000000", "100.000000", "103.000000", "100.000000"}));
}

TEST(Hatch, PatternStandsAsStoredButForItsOrigin)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.scale = 3;
    CHatchLineDXF line;
    line.baseX = 10;
    line.baseY = 20;
    line.offsetX = -0.5;
    line.offsetY = 0.25;
    line.dashes = {0.75};
    hatch.style.lines = {line};
    drawing->AddHatch(hatch);
    const std::string entities = drawing.Entities();
    EXPECT_EQ(entities.substr(entities.find("41 ")),
              "41 3.000000\n77 0\n78 1\n53 0.000000\n43 111.000000\n44 221.000000\n"
              "45 -0.500000\n46 0.250000\n79 1\n49 0.750000\n47 1.000000\n98 0\n");
}

TEST(Hatch, HolesPassThroughTheContext)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.markedBoundaries = {{{1, 2, 0}, {2, 1, 0}}};
    drawing->AddHatch(hatch);
    EXPECT_EQ(Values(drawing, 10).at(4), "101.000000");
    EXPECT_EQ(Values(drawing, 20).at(4), "202.000000");
    EXPECT_EQ(Values(drawing, 93), (std::vector<std::string>{"3", "2"}));
}

TEST(Hatch, PatternNameHoldsNoLetterThatTheCodePageLacks)
{
    CDrawing drawing;
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.style.name = QStringLiteral("\u00E9/1");
    drawing->AddHatch(hatch);
    EXPECT_EQ(Values(drawing, 2), std::vector<std::string>{"_/1"});
}

TEST(Hatch, HolesFollowTheOutlineWithFlagsOfTheirOwn)
{
    CDrawing drawing;
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.markedBoundaries = {{{1, 1, 1}, {2, 1, 1}}, {{1, 1, 0}, {1, 2, 0}, {2, 1, 0}}};
    EXPECT_TRUE(drawing->AddHatch(hatch));
    EXPECT_EQ(Values(drawing, 91), std::vector<std::string>{"3"});
    EXPECT_EQ(Values(drawing, 92), (std::vector<std::string>{"7", "22", "22"}));
    EXPECT_EQ(Values(drawing, 72), (std::vector<std::string>{"0", "1", "0"}));
    EXPECT_EQ(Values(drawing, 93), (std::vector<std::string>{"3", "2", "3"}));
    EXPECT_EQ(Values(drawing, 97), (std::vector<std::string>{"0", "0", "0"}));
}

TEST(Hatch, CountKeepsAHoleThatIsLeftOut)
{
    CDrawing drawing;
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.markedBoundaries = {{{1, 1, 0}, {1, 1, 0}, {1, 1, 0}}, {}};
    EXPECT_TRUE(drawing->AddHatch(hatch));
    EXPECT_EQ(Values(drawing, 91), std::vector<std::string>{"3"});
    EXPECT_EQ(Values(drawing, 92), std::vector<std::string>{"7"});
}

TEST(Hatch, PatternNameIsCutTo34Characters)
{
    CDrawing drawing;
    CHatchDXF hatch = HatchOf(kTriangle);
    hatch.style.name = QString(40, QChar(u'x'));
    drawing->AddHatch(hatch);
    EXPECT_EQ(Values(drawing, 2), std::vector<std::string>{std::string(34, 'x')});
}

TEST(Hatch, HatchesAreCounted)
{
    CExportLog log;
    const CDrawing drawing(1018, nullptr, &log);
    drawing->AddHatch(HatchOf(kTriangle));
    drawing->AddHatch(HatchOf({}));
    QString report;
    log.GetText(report);
    EXPECT_TRUE(report.contains(QStringLiteral("штриховки - 1"))) << report.toStdString();
}
