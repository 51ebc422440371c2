// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

// The last record of a table, from behind the subclass markers.
std::string LastRecord(CDrawing& drawing, const char* table)
{
    const std::vector<CTags> records = RecordsOf(TableOf(ParseTags(drawing.Bytes()), table), table);
    CTags last = records.back();
    last.erase(last.begin(), last.begin() + 4);
    return AsText(last);
}

std::size_t RecordCount(CDrawing& drawing, const char* table)
{
    return RecordsOf(TableOf(ParseTags(drawing.Bytes()), table), table).size();
}

CTextStyleDXF StyleCalled(const char* name)
{
    CTextStyleDXF style;
    style.name = QString::fromUtf8(name);
    return style;
}

} // namespace

TEST(Tables, LayerIsFiledUnderItsSafeName)
{
    CDrawing drawing;
    drawing->AddLayer(QStringLiteral(" Road;1 "), true, false);
    EXPECT_EQ(LastRecord(drawing, "LAYER"), "2 Road_1\n70 0\n62 7\n6 CONTINUOUS\n390 F\n");
}

TEST(Tables, DefpointsIsFiledUnderAnotherName)
{
    CDrawing drawing;
    drawing->AddLayer(QStringLiteral("defpoints"), true, false);
    drawing->AddLayer(QStringLiteral("DEFPOINTS_1"), true, false);
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LAYER"), 2),
              (std::vector<std::string>{"0", "defpoints_1", "DEFPOINTS_1"}));
}

TEST(Tables, EmptyLayerNameIsLayerZero)
{
    CDrawing drawing;
    EXPECT_EQ(drawing->AddLayer(QString(), true, false), 0xC9);
    EXPECT_EQ(drawing->AddLayer(QStringLiteral("  "), true, false), 0xC9);
    EXPECT_EQ(RecordCount(drawing, "LAYER"), 1U);
}

TEST(Tables, LayerFlagsTellHiddenAndLocked)
{
    CDrawing drawing;
    drawing->AddLayer(QStringLiteral("a"), false, false);
    drawing->AddLayer(QStringLiteral("b"), true, true);
    drawing->AddLayer(QStringLiteral("c"), false, true);
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LAYER"), 70),
              (std::vector<std::string>{"0", "1", "4", "5"}));
}

TEST(Tables, NoteLayersHaveAColourOfTheirOwn)
{
    CDrawing drawing;
    for (const char* name : {"Dimensions", "Notes", "notes", "DIMENSIONS", "Notes1"}) {
        drawing->AddLayer(QString::fromUtf8(name), true, false);
    }
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LAYER"), 62),
              (std::vector<std::string>{"7", "8", "8", "7", "7", "7"}));
}

TEST(Tables, NoteLayersAreTestedOnTheirSafeNames)
{
    CDrawing drawing;
    drawing->AddLayer(QStringLiteral(" Notes "), true, false);
    EXPECT_EQ(LastRecord(drawing, "LAYER"), "2 Notes\n70 0\n62 8\n6 CONTINUOUS\n390 F\n");
}

TEST(Tables, SecondLayerOfANameChangesNothing)
{
    CDrawing drawing;
    const int first = drawing->AddLayer(QStringLiteral("a"), true, false);
    const int next = drawing->GetNextHandle();
    EXPECT_EQ(drawing->AddLayer(QStringLiteral("a"), false, true), first);
    EXPECT_EQ(drawing->AddLayer(QStringLiteral("  a"), false, true), first);
    EXPECT_EQ(drawing->GetNextHandle(), next);
    EXPECT_EQ(LastRecord(drawing, "LAYER"), "2 a\n70 0\n62 7\n6 CONTINUOUS\n390 F\n");
}

TEST(Tables, LineBreakInANameDoesNotEndItsLine)
{
    CDrawing drawing;
    CLineDXF line;
    line.layer = QStringLiteral("a\nb");
    line.lineStyle.name = QStringLiteral("c\r\nd");
    drawing->AddLine(line);
    CTextDXF text;
    text.text = QStringLiteral("t");
    text.style.name = QStringLiteral("e\nf");
    drawing->AddText(text);
    const CTags tags = ParseTags(drawing.Bytes());
    EXPECT_EQ(ValuesOf(TableOf(tags, "LAYER"), 2).back(), "a b");
    EXPECT_EQ(ValuesOf(TableOf(tags, "LTYPE"), 2).back(), "c  d");
    EXPECT_EQ(ValuesOf(TableOf(tags, "STYLE"), 2).back(), "e f");
}

TEST(Tables, LayersThatDifferByCaseAreTwo)
{
    CDrawing drawing;
    EXPECT_NE(drawing->AddLayer(QStringLiteral("a"), true, false),
              drawing->AddLayer(QStringLiteral("A"), true, false));
    EXPECT_EQ(RecordCount(drawing, "LAYER"), 3U);
}

TEST(Tables, LayerHandleIsThatOfItsRecord)
{
    CDrawing drawing;
    const int next = drawing->GetNextHandle();
    EXPECT_EQ(drawing->AddLayer(QStringLiteral("a"), true, false), next);
    EXPECT_EQ(drawing->GetNextHandle(), next + 1);
}

TEST(Tables, LayersAreCountedAlsoWithinABlock)
{
    CExportLog log;
    CDrawing drawing(1018, nullptr, &log);
    drawing->BeginBlock(QStringLiteral("b"), false, QString());
    drawing->AddLayer(QStringLiteral("a"), true, false);
    drawing->AddLayer(QStringLiteral("a"), true, false);
    drawing->EndBlock();
    QString report;
    log.GetText(report);
    EXPECT_TRUE(report.contains(QStringLiteral("слои - 2"))) << report.toStdString();
}

TEST(Tables, LayerNameOf300LettersStays)
{
    CDrawing drawing;
    const QString name(300, QChar(u'я'));
    drawing->AddLayer(name, true, false);
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LAYER"), 2)[1],
              std::string(300, '\xFF'));
}

TEST(Tables, TextStyleWritesAllItsFields)
{
    CDrawing drawing;
    CTextStyleDXF style = StyleCalled("a/b");
    style.fontFile = QStringLiteral("font.shx");
    style.faceName = QStringLiteral("Arial");
    style.bold = true;
    style.italic = true;
    style.widthFactor = 0.75;
    style.obliqueAngle = 0.25;
    style.height = 3;
    EXPECT_EQ(drawing->AddTextStyle(style, false), 0xD0);
    EXPECT_EQ(LastRecord(drawing, "STYLE"),
              "2 a_b\n70 0\n40 3.000000\n41 0.750000\n50 0.250000\n71 0\n42 2.500000\n3 font.shx\n"
              "4 \n1001 ACAD\n1000 Arial\n1071 50331648\n");
}

TEST(Tables, TextStyleFlagsOfAFaceAddUp)
{
    CDrawing drawing;
    CTextStyleDXF style = StyleCalled("a");
    style.faceName = QStringLiteral("Arial");
    drawing->AddTextStyle(style, false);
    style.name = QStringLiteral("b");
    style.bold = true;
    drawing->AddTextStyle(style, false);
    style.name = QStringLiteral("c");
    style.bold = false;
    style.italic = true;
    drawing->AddTextStyle(style, false);
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "STYLE"), 1071),
              (std::vector<std::string>{"0", "33554432", "16777216"}));
}

TEST(Tables, TextStyleHeightsTakeTheContextsScale)
{
    CTestContext context;
    context.scale = 4;
    CDrawing drawing(1018, &context);
    CTextStyleDXF style = StyleCalled("a");
    style.height = 3;
    style.widthFactor = 0.5;
    drawing->AddTextStyle(style, false);
    EXPECT_EQ(LastRecord(drawing, "STYLE"),
              "2 a\n70 0\n40 12.000000\n41 0.500000\n50 0.000000\n71 0\n42 10.000000\n3 txt\n4 \n");
}

TEST(Tables, ShapeFileHasNoNameInItsRecord)
{
    CDrawing drawing;
    CTextStyleDXF style = StyleCalled("shapes.shx");
    style.fontFile = QStringLiteral("shapes.shx");
    drawing->AddTextStyle(style, true);
    EXPECT_EQ(LastRecord(drawing, "STYLE"),
              "2 \n70 1\n40 0.000000\n41 1.000000\n50 0.000000\n71 0\n42 2.500000\n3 shapes.shx\n"
              "4 \n");
}

TEST(Tables, TextStyleWithoutANameIsNone)
{
    CDrawing drawing;
    EXPECT_EQ(drawing->AddTextStyle(StyleCalled(""), false), -1);
    EXPECT_EQ(drawing->AddTextStyle(StyleCalled("  "), true), -1);
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
    EXPECT_EQ(RecordCount(drawing, "STYLE"), 1U);
}

TEST(Tables, SecondTextStyleOfANameChangesNothing)
{
    CDrawing drawing;
    const int first = drawing->AddTextStyle(StyleCalled("a"), false);
    EXPECT_EQ(drawing->AddTextStyle(StyleCalled("a"), true), first);
    EXPECT_EQ(RecordCount(drawing, "STYLE"), 2U);
}

TEST(Tables, BlockIsKnownByItsSafeNameOnceBegun)
{
    CDrawing drawing;
    EXPECT_FALSE(drawing->HasBlock(QStringLiteral("a/b")));
    drawing->BeginBlock(QStringLiteral("a/b"), false, QString());
    EXPECT_TRUE(drawing->HasBlock(QStringLiteral(" a_b ")));
    EXPECT_TRUE(drawing->HasBlock(QStringLiteral("a?b")));
    EXPECT_FALSE(drawing->HasBlock(QStringLiteral("A_B")));
    drawing->EndBlock();
}

TEST(Tables, ImageNameIsTakenAsGivenWhileFree)
{
    const CDrawing drawing;
    EXPECT_EQ(drawing->MakeImageName(QStringLiteral("a")), QStringLiteral("a"));
    EXPECT_EQ(drawing->MakeImageName(QString()), QStringLiteral("NoName"));
}

TEST(Tables, ImageNameCountsUpOverNamesThatDifferByCase)
{
    const CDrawing drawing;
    CImageDXF image;
    for (const char* name : {"a", "A_1"}) {
        image.name = QString::fromUtf8(name);
        drawing->AddImage(image);
    }
    EXPECT_EQ(drawing->MakeImageName(QStringLiteral("A")), QStringLiteral("A_2"));
}

TEST(Tables, ImageNamesForAnEmptyNameGoOnWithoutTheWord)
{
    const CDrawing drawing;
    CImageDXF image;
    image.name = drawing->MakeImageName(QString());
    drawing->AddImage(image);
    image.name = drawing->MakeImageName(QString());
    EXPECT_EQ(image.name, QStringLiteral("_1"));
    drawing->AddImage(image);
    EXPECT_EQ(drawing->MakeImageName(QString()), QStringLiteral("_2"));
}

TEST(Tables, ImageNameHoldsNoLetterThatTheCodePageLacks)
{
    const CDrawing drawing;
    EXPECT_EQ(drawing->MakeImageName(QStringLiteral("é")), QStringLiteral("_"));
    CImageDXF image;
    image.name = QStringLiteral("ü");
    drawing->AddImage(image);
    EXPECT_EQ(drawing->MakeImageName(QStringLiteral("é")), QStringLiteral("__1"));
}

TEST(Tables, ImageNameWithAPlaceMarkStaysAsItIs)
{
    const CDrawing drawing;
    CImageDXF image;
    image.name = QStringLiteral("a%2");
    drawing->AddImage(image);
    EXPECT_EQ(drawing->MakeImageName(image.name), QStringLiteral("a%2_1"));
}
