// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/dxf/write/Templates_p.h"

using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

CImageDXF ImageCalled(const char* name)
{
    CImageDXF image;
    image.name = QString::fromUtf8(name);
    return image;
}

void AddEmptyBlock(IDXFWriter& writer, const char* name)
{
    writer.BeginBlock(QString::fromUtf8(name), false, QString());
    writer.EndBlock();
}

std::string SeedOf(const QByteArray& drawing)
{
    return ValuesOf(SectionOf(ParseTags(drawing), "HEADER"), 5).back();
}

// Everything the writer itself puts between the templates of an empty drawing.
QByteArray EmptyDrawing(int version)
{
    const CTemplates& templates = TemplatesOf(version);
    const auto piece = [](std::string_view text) {
        return QByteArray(text.data(), static_cast<int>(text.size()));
    };
    const auto tags = [](QByteArray text) { return text.replace("|", "\r\n"); };
    const auto lineType = [](const char* handle, const QByteArray& name) {
        return QByteArray("0|LTYPE|5|") + handle
            + "|100|AcDbSymbolTableRecord|100|AcDbLinetypeTableRecord|2|" + name + "|70|0|3|" + name
            + "|72|65|73|0|40|0.000000|";
    };
    return tags("0|SECTION|2|HEADER|") + piece(templates.header)
        + tags("9|$HANDSEED|5|d0|0|ENDSEC|0|SECTION|") + piece(templates.classes)
        + tags("0|ENDSEC|0|SECTION|2|TABLES|") + piece(templates.viewports)
        + tags("0|TABLE|2|LTYPE|5|ca|100|AcDbSymbolTable|" + lineType("cb", "ByBlock")
               + lineType("cc", "ByLayer") + lineType("cd", "CONTINUOUS") + "0|ENDTAB|")
        + tags("0|TABLE|2|LAYER|5|c8|100|AcDbSymbolTable|0|LAYER|5|c9|100|AcDbSymbolTableRecord|"
               "100|AcDbLayerTableRecord|2|0|70|0|62|7|6|CONTINUOUS|390|F|0|ENDTAB|")
        + tags("0|TABLE|2|STYLE|5|ce|100|AcDbSymbolTable|0|STYLE|5|cf|100|AcDbSymbolTableRecord|"
               "100|AcDbTextStyleTableRecord|2|STANDARD|70|0|40|0.000000|41|1.000000|50|0.000000|"
               "71|0|42|2.500000|3|txt|4||0|ENDTAB|")
        + piece(templates.tables) + tags("0|ENDTAB|0|ENDSEC|0|SECTION|") + piece(templates.blocks)
        + tags("0|ENDSEC|0|SECTION|2|ENTITIES|0|ENDSEC|0|SECTION|") + piece(templates.objects)
        + tags("0|DICTIONARY|5|17|100|AcDbDictionary|3|STANDARD|350|18|"
               "0|DICTIONARY|5|8f|100|AcDbDictionary|281|1|0|ENDSEC|0|EOF|");
}

} // namespace

TEST(Rewrite, EmptyDrawingIsTheTemplatesAndTheDefaults)
{
    CDrawing old(1015);
    EXPECT_EQ(old.Bytes(), EmptyDrawing(1015));
    CDrawing present(1018);
    EXPECT_EQ(present.Bytes(), EmptyDrawing(1018));
}

TEST(Rewrite, EmptyDrawingHasItsKnownSize)
{
    EXPECT_EQ(CDrawing(1015).Bytes().size(), 16117);
    EXPECT_EQ(CDrawing(1018).Bytes().size(), 14749);
}

TEST(Rewrite, ImagesAddTwoClassesTo1018WithTheirCount)
{
    CDrawing drawing(1018);
    const std::string base = drawing.Section("CLASSES");
    drawing->AddImage(ImageCalled("a"));
    drawing->AddImage(ImageCalled("b"));
    EXPECT_EQ(drawing.Section("CLASSES"),
              base
                  + "0 CLASS\n1 IMAGE\n2 AcDbRasterImage\n3 ISM\n90 127\n91 2\n280 0\n281 1\n"
                    "0 CLASS\n1 RASTERVARIABLES\n2 AcDbRasterVariables\n3 ISM\n90 0\n91 1\n280 0\n"
                    "281 0\n");
}

TEST(Rewrite, ImageClassesOf1015HaveNoCount)
{
    CDrawing drawing(1015);
    const std::string base = drawing.Section("CLASSES");
    drawing->AddImage(ImageCalled("a"));
    EXPECT_EQ(
        drawing.Section("CLASSES"),
        base
            + "0 CLASS\n1 IMAGE\n2 AcDbRasterImage\n3 ISM\n90 127\n280 0\n281 1\n"
              "0 CLASS\n1 RASTERVARIABLES\n2 AcDbRasterVariables\n3 ISM\n90 0\n280 0\n281 0\n");
}

TEST(Rewrite, ImageVariablesAndDictionaryFollowTheImages)
{
    for (const int version : {1015, 1018}) {
        CDrawing drawing(version);
        drawing->AddImage(ImageCalled("b"));
        drawing->AddImage(ImageCalled("a"));
        const std::string objects = drawing.Section("OBJECTS");
        EXPECT_EQ(objects.substr(objects.find("0 DICTIONARY\n5 8f")),
                  "0 DICTIONARY\n5 8f\n100 AcDbDictionary\n281 1\n3 a\n350 d5\n3 b\n350 d2\n"
                  "0 RASTERVARIABLES\n5 8e\n102 {ACAD_REACTORS\n330 C\n102 }\n"
                  "100 AcDbRasterVariables\n90 0\n70 0\n71 1\n72 1\n");
    }
}

TEST(Rewrite, BlockRecordsComeInTheOrderOfTheirNamesWithNewHandles)
{
    CDrawing drawing;
    AddEmptyBlock(*drawing, "b");
    AddEmptyBlock(*drawing, "a 1");
    const std::string records = drawing.Table("BLOCK_RECORD");
    EXPECT_EQ(records.substr(records.find("0 BLOCK_RECORD\n5 d")),
              "0 BLOCK_RECORD\n5 d4\n100 AcDbSymbolTableRecord\n100 AcDbBlockTableRecord\n2 a 1\n"
              "340 0\n"
              "0 BLOCK_RECORD\n5 d5\n100 AcDbSymbolTableRecord\n100 AcDbBlockTableRecord\n2 b\n"
              "340 0\n");
}

TEST(Rewrite, SeedCountsTheBlockRecordsToCome)
{
    CDrawing drawing;
    AddEmptyBlock(*drawing, "a");
    AddEmptyBlock(*drawing, "b");
    ASSERT_EQ(drawing->GetNextHandle(), 0xD4);
    EXPECT_EQ(SeedOf(drawing.Bytes()), "d6");
    EXPECT_EQ(drawing->GetNextHandle(), 0xD6);
}

TEST(Rewrite, SecondFileHasAHigherSeedOnlyWithBlocks)
{
    CDrawing plain;
    EXPECT_EQ(SeedOf(plain.Bytes()), "d0");
    EXPECT_EQ(SeedOf(plain.Bytes()), "d0");
    CDrawing blocks;
    AddEmptyBlock(*blocks, "a");
    EXPECT_EQ(SeedOf(blocks.Bytes()), "d3");
    EXPECT_EQ(SeedOf(blocks.Bytes()), "d4");
}

TEST(Rewrite, SecondFileWithoutBlocksIsTheSame)
{
    CDrawing drawing;
    drawing->AddPoint(CPointDXF{});
    const QByteArray first = drawing.Bytes();
    EXPECT_EQ(drawing.Bytes(), first);
}

TEST(Rewrite, LaterElementsFollowEarlierOnes)
{
    CDrawing drawing;
    drawing->AddPoint(CPointDXF{});
    drawing.Bytes();
    drawing->AddLine(CLineDXF{});
    drawing.Bytes();
    drawing->AddPoint(CPointDXF{});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 0),
              (std::vector<std::string>{"POINT", "LINE", "POINT"}));
}

TEST(Rewrite, TablesGrowAfterARewriteToo)
{
    CDrawing drawing;
    drawing->AddLayer(QStringLiteral("a"), true, false);
    drawing.Bytes();
    drawing->AddLayer(QStringLiteral("b"), true, false);
    EXPECT_EQ(ValuesOf(TableOf(ParseTags(drawing.Bytes()), "LAYER"), 2),
              (std::vector<std::string>{"0", "a", "b"}));
}

TEST(Rewrite, WithinABlockItLeavesTheTargetAtTheEntities)
{
    CDrawing drawing;
    drawing->BeginBlock(QStringLiteral("a"), false, QString());
    drawing->AddLine(CLineDXF{});
    drawing.UncheckedBytes();
    EXPECT_TRUE(drawing->IsInBlock());
    drawing->AddPoint(CPointDXF{});
    const CTags tags = ParseTags(drawing.UncheckedBytes());
    EXPECT_EQ(ValuesOf(SectionOf(tags, "ENTITIES"), 0), std::vector<std::string>{"POINT"});
}

TEST(Rewrite, ExistingFileIsReplaced)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.dxf"));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(100000, 'x'));
    file.close();
    CDrawing drawing;
    drawing->Rewrite(path);
    EXPECT_EQ(file.size(), drawing.Bytes().size());
}

TEST(Rewrite, ElementsOverManyBuffersArriveInOrder)
{
    CDrawing drawing;
    CPointDXF point;
    for (int i = 0; i < 30000; ++i) {
        point.point.x = i;
        drawing->AddPoint(point);
    }
    const std::vector<std::string> xs = ValuesOf(drawing.EntityTags(), 10);
    ASSERT_EQ(xs.size(), 30000U);
    for (int i = 0; i < 30000; ++i) {
        ASSERT_EQ(xs[static_cast<std::size_t>(i)], std::to_string(i) + ".000000");
    }
}
