// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

constexpr double kHalfPi = 1.5707963267948966;

// What the host's blocks add to the BLOCKS section.
std::string HostBlocks(const QByteArray& drawing)
{
    const std::string text = AsText(SectionOf(ParseTags(drawing), "BLOCKS"));
    const std::string last = "0 ENDBLK\n5 58\n330 55\n100 AcDbEntity\n8 0\n100 AcDbBlockEnd\n";
    return text.substr(text.find(last) + last.size());
}

// Kinds and names of the host's blocks in the file, e.g. "BLOCK a, POINT, ENDBLK".
std::string Outline(const QByteArray& drawing)
{
    std::string outline;
    std::string kind;
    const CTags tags = SectionOf(ParseTags(drawing), "BLOCKS");
    for (const CTag& tag : tags) {
        if (tag.code == 0) {
            kind = tag.value.toStdString();
            outline += (outline.empty() ? "" : ", ") + kind;
        } else if (tag.code == 2 && kind == "BLOCK") {
            outline += ' ' + tag.value.toStdString();
        } else if (tag.code == 10 && kind == "POINT") {
            outline += ' ' + tag.value.left(1).toStdString();
        }
    }
    const std::string last = "BLOCK *Paper_Space0, ENDBLK, ";
    const auto at = outline.find(last);
    return at == std::string::npos ? std::string() : outline.substr(at + last.size());
}

void Begin(IDXFWriter& writer, const char* name)
{
    EXPECT_TRUE(writer.BeginBlock(QString::fromUtf8(name), false, QString()));
}

void AddPointAt(IDXFWriter& writer, double x)
{
    CPointDXF point;
    point.point.x = x;
    writer.AddPoint(point);
}

CInsertDXF InsertOf(const char* name)
{
    CInsertDXF insert;
    insert.name = QString::fromUtf8(name);
    insert.color = 256;
    return insert;
}

} // namespace

TEST(Blocks, InsertWritesAllItsGroups)
{
    CDrawing drawing;
    CInsertDXF insert = InsertOf(" a/b ");
    insert.layer = QStringLiteral("l");
    insert.point = {1, 2, 3};
    insert.rotation = kHalfPi;
    insert.scaleX = 2;
    insert.scaleY = -1;
    insert.scaleZ = 5;
    EXPECT_TRUE(drawing->AddInsert(insert));
    EXPECT_EQ(drawing.Entities(),
              "0 INSERT\n5 d1\n100 AcDbEntity\n8 l\n62 256\n100 AcDbBlockReference\n6 CONTINUOUS\n"
              "2 a_b\n10 1.000000\n20 2.000000\n30 3.000000\n41 2.000000\n42 -1.000000\n"
              "50 270.000000\n");
}

TEST(Blocks, InsertWithoutARotationTurnsByAWholeCircle)
{
    CDrawing drawing;
    drawing->AddInsert(InsertOf("a"));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 50), std::vector<std::string>{"360.000000"});
}

TEST(Blocks, InsertWithoutABlockNameIsRefused)
{
    CDrawing drawing;
    EXPECT_FALSE(drawing->AddInsert(CInsertDXF{}));
    EXPECT_EQ(drawing.Entities(), "");
}

TEST(Blocks, InsertWithABlankBlockNameIsWrittenWithAnEmptyOne)
{
    CDrawing drawing;
    EXPECT_TRUE(drawing->AddInsert(InsertOf("  ")));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 2), std::vector<std::string>{""});
}

TEST(Blocks, ScaleOfOneWithinTheToleranceIsLeftOut)
{
    CDrawing drawing;
    drawing->SetPrecision(2);
    CInsertDXF insert = InsertOf("a");
    insert.scaleX = 1.009;
    insert.scaleY = 0.991;
    drawing->AddInsert(insert);
    insert.scaleX = 1.0101;
    insert.scaleY = 0.9899;
    drawing->AddInsert(insert);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 41), std::vector<std::string>{"1.01"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 42), std::vector<std::string>{"0.99"});
}

TEST(Blocks, ScaleThatDiffersByTheWholeToleranceIsWritten)
{
    CDrawing drawing;
    drawing->SetPrecision(0); // the tolerance is 1
    CInsertDXF insert = InsertOf("a");
    insert.scaleX = 2;
    insert.scaleY = 0;
    drawing->AddInsert(insert);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 41), std::vector<std::string>{"2"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 42), std::vector<std::string>{"0"});
}

TEST(Blocks, InsertAndItsAttributesPassThroughTheContext)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CInsertDXF insert = InsertOf("a");
    insert.point = {1, 2, 3};
    insert.scaleX = 4;
    CAttribDXF attribute;
    attribute.position = {5, 6};
    attribute.height = 7;
    insert.attributes = {attribute};
    drawing->AddInsert(insert);
    const CTags tags = drawing.EntityTags();
    EXPECT_EQ(ValuesOf(tags, 10), (std::vector<std::string>{"101.000000", "105.000000"}));
    EXPECT_EQ(ValuesOf(tags, 20), (std::vector<std::string>{"202.000000", "206.000000"}));
    EXPECT_EQ(ValuesOf(tags, 30), (std::vector<std::string>{"3.000000", "0.000000"}));
    EXPECT_EQ(ValuesOf(tags, 41), (std::vector<std::string>{"4.000000", "1.000000"}));
    EXPECT_EQ(ValuesOf(tags, 40), std::vector<std::string>{"14.000000"});
}

TEST(Blocks, InsertCarriesItsAttributesAndTheirEnd)
{
    CDrawing drawing;
    CInsertDXF insert = InsertOf("a");
    insert.layer = QStringLiteral("l");
    CAttribDXF attribute;
    attribute.tag = QStringLiteral("T");
    attribute.text = QStringLiteral("v");
    insert.attributes = {attribute, attribute};
    EXPECT_TRUE(drawing->AddInsert(insert));
    const CTags tags = drawing.EntityTags();
    EXPECT_EQ(ValuesOf(tags, 0),
              (std::vector<std::string>{"INSERT", "ATTRIB", "ATTRIB", "SEQEND"}));
    EXPECT_EQ(ValuesOf(tags, 66), std::vector<std::string>{"1"});
    EXPECT_EQ(AsText(RecordsOf(tags, "SEQEND").at(0)), "0 SEQEND\n5 d4\n100 AcDbEntity\n8 l\n");
}

TEST(Blocks, InsertIsCountedWithoutItsAttributes)
{
    CExportLog log;
    const CDrawing drawing(1018, nullptr, &log);
    CInsertDXF insert = InsertOf("a");
    insert.attributes.emplace_back();
    drawing->AddInsert(insert);
    QString report;
    log.GetText(report);
    EXPECT_TRUE(report.contains(QStringLiteral("блоки - 1"))) << report.toStdString();
    EXPECT_FALSE(report.contains(QStringLiteral("тексты"))) << report.toStdString();
}

TEST(Blocks, BlockHasItsFrame)
{
    CDrawing drawing;
    drawing->BeginBlock(QStringLiteral(" a/b "), false, QString());
    EXPECT_TRUE(drawing->IsInBlock());
    EXPECT_TRUE(drawing->EndBlock());
    EXPECT_FALSE(drawing->IsInBlock());
    EXPECT_EQ(HostBlocks(drawing.Bytes()),
              "0 BLOCK\n5 d0\n100 AcDbEntity\n8 0\n100 AcDbBlockBegin\n2 a_b\n70 2\n"
              "10 0.000000\n20 0.000000\n30 0.000000\n3 a_b\n1 \n"
              "0 ENDBLK\n5 d1\n100 AcDbEntity\n8 0\n100 AcDbBlockEnd\n");
}

TEST(Blocks, OutsideReferenceHasItsPath)
{
    CDrawing drawing;
    drawing->BeginBlock(QStringLiteral("a"), false, QStringLiteral("C:\\Карта.dwg"));
    drawing->EndBlock();
    const std::string blocks = HostBlocks(drawing.Bytes());
    EXPECT_NE(blocks.find("\n70 38\n"), std::string::npos);
    EXPECT_NE(blocks.find("\n1 C:\\\xCA\xE0\xF0\xF2\xE0.dwg\n"), std::string::npos);
}

TEST(Blocks, EndWithNoBlockOpenChangesNothing)
{
    CDrawing drawing;
    EXPECT_FALSE(drawing->EndBlock());
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
    drawing->AddPoint(CPointDXF{});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 0), std::vector<std::string>{"POINT"});
}

TEST(Blocks, ElementsGoToTheOpenBlockAndAfterwardsToTheEntities)
{
    CDrawing drawing;
    Begin(*drawing, "a");
    AddPointAt(*drawing, 1);
    drawing->EndBlock();
    AddPointAt(*drawing, 2);
    const QByteArray bytes = drawing.Bytes();
    EXPECT_EQ(Outline(bytes), "BLOCK a, POINT 1, ENDBLK");
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 10), std::vector<std::string>{"2.000000"});
}

TEST(Blocks, ByBlockColourHoldsForTheInnermostBlockAlone)
{
    CDrawing drawing;
    CPointDXF point;
    point.color = 256;
    drawing->BeginBlock(QStringLiteral("a"), true, QString());
    drawing->AddPoint(point);
    drawing->BeginBlock(QStringLiteral("b"), false, QString());
    drawing->AddPoint(point);
    drawing->EndBlock();
    drawing->AddPoint(point);
    drawing->EndBlock();
    drawing->AddPoint(point);
    const CTags tags = ParseTags(drawing.Bytes());
    const std::vector<CTags> points = RecordsOf(tags, "POINT");
    ASSERT_EQ(points.size(), 4U);
    EXPECT_EQ(ValuesOf(points[0], 62).at(0), "256"); // b comes first in the file
    EXPECT_EQ(ValuesOf(points[1], 62).at(0), "0");
    EXPECT_EQ(ValuesOf(points[2], 62).at(0), "0");
    EXPECT_EQ(ValuesOf(points[3], 62).at(0), "256");
}

TEST(Blocks, ByBlockColourWritesNoTrueColour)
{
    CDrawing drawing;
    drawing->BeginBlock(QStringLiteral("a"), true, QString());
    CPointDXF point;
    point.color = 0x0000FF;
    drawing->AddPoint(point);
    drawing->EndBlock();
    const CTags tags = RecordsOf(ParseTags(drawing.Bytes()), "POINT").at(0);
    EXPECT_EQ(ValuesOf(tags, 62).at(0), "0");
    EXPECT_TRUE(ValuesOf(tags, 420).empty());
}

TEST(Blocks, NestedBlockComesBeforeTheOneAroundIt)
{
    CDrawing drawing;
    Begin(*drawing, "a");
    AddPointAt(*drawing, 1);
    Begin(*drawing, "b");
    AddPointAt(*drawing, 2);
    drawing->EndBlock();
    EXPECT_TRUE(drawing->IsInBlock());
    AddPointAt(*drawing, 3);
    drawing->EndBlock();
    EXPECT_EQ(Outline(drawing.Bytes()),
              "BLOCK b, POINT 2, ENDBLK, BLOCK a, POINT 1, POINT 3, ENDBLK");
}

TEST(Blocks, BlocksOneAfterTheOtherStayInTheirOrder)
{
    CDrawing drawing;
    for (const char* name : {"b", "a"}) {
        Begin(*drawing, name);
        drawing->EndBlock();
    }
    EXPECT_EQ(Outline(drawing.Bytes()), "BLOCK b, ENDBLK, BLOCK a, ENDBLK");
}

TEST(Blocks, ClosedSiblingTakesWhatFollowsANestedBlock)
{
    // A open, B within it opened and closed, then C within A and D within C: what stands behind D, C's
    // own end included, goes to B's file.
    CDrawing drawing;
    Begin(*drawing, "A");
    Begin(*drawing, "B");
    drawing->EndBlock();
    Begin(*drawing, "C");
    AddPointAt(*drawing, 1);
    Begin(*drawing, "D");
    drawing->EndBlock();
    AddPointAt(*drawing, 2);
    drawing->EndBlock();
    drawing->EndBlock();
    EXPECT_EQ(
        Outline(drawing.UncheckedBytes()),
        "BLOCK D, ENDBLK, BLOCK C, POINT 1, BLOCK B, ENDBLK, POINT 2, ENDBLK, BLOCK A, ENDBLK");
}

TEST(Blocks, NameGivenTwiceKeepsOneRecord)
{
    CDrawing drawing;
    for (int i = 0; i < 2; ++i) {
        Begin(*drawing, "a");
        drawing->EndBlock();
    }
    EXPECT_EQ(RecordsOf(TableOf(ParseTags(drawing.Bytes()), "BLOCK_RECORD"), "BLOCK_RECORD").size(),
              4U);
}

TEST(Blocks, EmptyBlockNameIsWrittenAsGiven)
{
    CDrawing drawing;
    Begin(*drawing, "");
    drawing->EndBlock();
    EXPECT_TRUE(drawing->HasBlock(QString()));
    EXPECT_EQ(Outline(drawing.Bytes()), "BLOCK , ENDBLK");
}
