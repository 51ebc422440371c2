// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

#include <map>

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

template <class Record = CTextDXF>
Record TextOf(const QString& text)
{
    Record record;
    record.text = text;
    record.color = 256;
    return record;
}

std::string FirstValue(CDrawing& drawing, int code)
{
    return ValuesOf(drawing.EntityTags(), code).at(0);
}

constexpr double kHalfPi = 1.5707963267948966;

} // namespace

TEST(Texts, TextWritesAllItsGroups)
{
    CDrawing drawing;
    CTextDXF text = TextOf(QStringLiteral("Ёлка"));
    text.layer = QStringLiteral("a");
    text.position = {1, 2};
    text.height = 3;
    text.rotation = kHalfPi;
    text.style.name = QStringLiteral("b/c");
    text.style.widthFactor = 0.75;
    text.style.obliqueAngle = 0.25;
    EXPECT_TRUE(drawing->AddText(text));
    EXPECT_EQ(drawing.Entities(),
              "0 TEXT\n5 d2\n100 AcDbEntity\n8 a\n62 256\n100 AcDbText\n10 1.000000\n20 2.000000\n"
              "30 0.000000\n40 3.000000\n1 \xA8\xEB\xEA\xE0\n50 90.000000\n72 0\n11 1.000000\n"
              "21 2.000000\n31 0.000000\n41 0.750000\n51 0.250000\n7 b_c\n100 AcDbText\n73 0\n");
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "STYLE"), 2).back(), "b_c");
}

TEST(Texts, EmptyTextIsRefused)
{
    CDrawing drawing;
    EXPECT_FALSE(drawing->AddText(CTextDXF{}));
    EXPECT_FALSE(drawing->AddMText(CMTextDXF{}));
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(Texts, BlankTextIsNotEmptyAsGiven)
{
    CDrawing drawing;
    EXPECT_TRUE(drawing->AddText(TextOf(QStringLiteral("  "))));
    EXPECT_EQ(FirstValue(drawing, 1), "");
}

TEST(Texts, WhiteSpaceIsSimplified)
{
    CDrawing drawing;
    drawing->AddText(TextOf(QStringLiteral("  a \t b\r\nc  ")));
    EXPECT_EQ(FirstValue(drawing, 1), "a b c");
}

TEST(Texts, TextIsCutTo255Characters)
{
    CDrawing drawing;
    drawing->AddText(TextOf(QString(300, QChar(u'x'))));
    EXPECT_EQ(FirstValue(drawing, 1), std::string(255, 'x'));
}

TEST(Texts, TextIsSimplifiedBeforeItIsCut)
{
    CDrawing drawing;
    drawing->AddText(TextOf(QString(100, QChar(u' ')) + QString(250, QChar(u'x'))
                            + QString(100, QChar(u'\n')) + QString(100, QChar(u'y'))));
    EXPECT_EQ(FirstValue(drawing, 1), std::string(250, 'x') + " yyyy");
}

TEST(Texts, AttributeIsCutTo255CharactersLikewise)
{
    CDrawing drawing;
    drawing->AddAttribute(TextOf<CAttribDXF>(QString(256, QChar(u'x'))), true);
    EXPECT_EQ(FirstValue(drawing, 1), std::string(255, 'x'));
}

TEST(Texts, EveryAlignmentOfTextHasItsTwoGroups)
{
    constexpr int kHorizontal[] = {0, 1, 2, 0};
    constexpr int kVertical[] = {3, 2, 1, 0};
    CDrawing drawing;
    std::vector<std::string> horizontal;
    std::vector<std::string> vertical;
    CTextDXF text = TextOf(QStringLiteral("a"));
    for (int alignment = -4; alignment < 40; ++alignment) {
        text.alignment = alignment;
        drawing->AddText(text);
        horizontal.push_back(std::to_string(kHorizontal[alignment & 3]));
        vertical.push_back(std::to_string(kVertical[(alignment & 12) / 4]));
    }
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 72), horizontal);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 73), vertical);
}

TEST(Texts, TextStyleWithoutANameIsLeftOut)
{
    CDrawing drawing;
    CTextDXF text = TextOf(QStringLiteral("a"));
    text.style.name = QStringLiteral(" ");
    drawing->AddText(text);
    CMTextDXF mtext = TextOf<CMTextDXF>(QStringLiteral("a"));
    mtext.style.name.clear();
    drawing->AddMText(mtext);
    EXPECT_TRUE(ValuesOf(drawing.EntityTags(), 7).empty());
}

TEST(Texts, HeightsTakeTheScaleAndPositionsTheTransformation)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CTextDXF text = TextOf(QStringLiteral("a"));
    text.height = 3;
    drawing->AddText(text);
    CMTextDXF mtext = TextOf<CMTextDXF>(QStringLiteral("a"));
    mtext.height = 4;
    mtext.rectWidth = 5;
    drawing->AddMText(mtext);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 40),
              (std::vector<std::string>{"6.000000", "8.000000"}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 10),
              (std::vector<std::string>{"100.000000", "100.000000"}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 11),
              (std::vector<std::string>{"100.000000", "10.000000"}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 41).back(), "5.000000"); // the box width stays
}

TEST(Texts, AttributeWithValueIsAnAttrib)
{
    CDrawing drawing;
    CAttribDXF attribute = TextOf<CAttribDXF>(QStringLiteral("v"));
    attribute.tag = QStringLiteral("a?b");
    EXPECT_TRUE(drawing->AddAttribute(attribute, true));
    EXPECT_EQ(drawing.Entities(),
              "0 ATTRIB\n5 d0\n100 AcDbEntity\n8 0\n62 256\n100 AcDbText\n10 0.000000\n"
              "20 0.000000\n30 0.000000\n40 0.000000\n1 v\n50 0.000000\n72 0\n11 0.000000\n"
              "21 0.000000\n31 0.000000\n41 1.000000\n51 0.000000\n7 STANDARD\n"
              "100 AcDbAttribute\n2 a?b\n70 0\n");
}

TEST(Texts, AttributeWithoutValueIsADefinitionWithAPrompt)
{
    CDrawing drawing;
    CAttribDXF attribute = TextOf<CAttribDXF>(QStringLiteral("v"));
    attribute.tag = QStringLiteral("T");
    attribute.hidden = true;
    EXPECT_TRUE(drawing->AddAttribute(attribute, false));
    const std::string entities = drawing.Entities();
    EXPECT_EQ(entities.substr(0, 9), "0 ATTDEF\n");
    EXPECT_EQ(entities.substr(entities.find("7 STANDARD")),
              "7 STANDARD\n100 AcDbAttributeDefinition\n2 T\n3 T\n70 1\n");
}

TEST(Texts, AttributeWithoutTextIsWritten)
{
    CDrawing drawing;
    EXPECT_TRUE(drawing->AddAttribute(CAttribDXF{}, true));
    EXPECT_EQ(FirstValue(drawing, 1), "");
}

TEST(Texts, MTextWritesAllItsGroups)
{
    CDrawing drawing;
    CMTextDXF text = TextOf<CMTextDXF>(QStringLiteral("{\\fArial;a}  b"));
    text.layer = QStringLiteral("a");
    text.position = {1, 2};
    text.height = 3;
    text.rotation = kHalfPi;
    text.rectWidth = 4;
    text.style.name = QStringLiteral("b:c");
    EXPECT_TRUE(drawing->AddMText(text));
    EXPECT_EQ(drawing.Entities(),
              "0 MTEXT\n5 d2\n100 AcDbEntity\n8 a\n62 256\n100 AcDbMText\n10 1.000000\n"
              "20 2.000000\n30 0.000000\n40 3.000000\n41 4.000000\n71 7\n72 1\n"
              "1 {\\fArial;a}  b\n7 b_c\n11 0.000000\n21 10.000000\n31 0.000000\n");
}

TEST(Texts, EveryAlignmentOfMTextHasItsAttachment)
{
    const std::map<int, int> kAttachments = {{0, 1}, {1, 2}, {2, 3}, {4, 4},
                                             {5, 5}, {6, 6}, {9, 8}, {10, 9}};
    CDrawing drawing;
    std::vector<std::string> expected;
    CMTextDXF text = TextOf<CMTextDXF>(QStringLiteral("a"));
    for (int alignment = -3; alignment < 20; ++alignment) {
        text.alignment = alignment;
        drawing->AddMText(text);
        const auto found = kAttachments.find(alignment);
        expected.push_back(std::to_string(found == kAttachments.end() ? 7 : found->second));
    }
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 71), expected);
}

TEST(Texts, LongMTextComesInPieces)
{
    CDrawing drawing;
    drawing->AddMText(TextOf<CMTextDXF>(QString(250, QChar(u'a')) + QString(250, QChar(u'b'))
                                        + QString(100, QChar(u'c'))));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 3),
              (std::vector<std::string>{std::string(250, 'a'), std::string(250, 'b')}));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 1), std::vector<std::string>{std::string(100, 'c')});
}

TEST(Texts, MTextOfExactlyOnePieceHasNoFirstPart)
{
    CDrawing drawing;
    drawing->AddMText(TextOf<CMTextDXF>(QString(250, QChar(u'a'))));
    EXPECT_TRUE(ValuesOf(drawing.EntityTags(), 3).empty());
    drawing->AddMText(TextOf<CMTextDXF>(QString(500, QChar(u'a'))));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 3).size(), 1U);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 1).back().size(), 250U);
}

TEST(Texts, TextsAndMTextsAreCountedTogetherAndAttributesAreNot)
{
    CExportLog log;
    const CDrawing drawing(1018, nullptr, &log);
    drawing->AddText(TextOf(QStringLiteral("a")));
    drawing->AddMText(TextOf<CMTextDXF>(QStringLiteral("a")));
    drawing->AddAttribute(CAttribDXF{}, true);
    QString report;
    log.GetText(report);
    EXPECT_TRUE(report.contains(QStringLiteral("тексты - 2"))) << report.toStdString();
}
