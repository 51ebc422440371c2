// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

constexpr double kHalfPi = 1.5707963267948966;

CImageDXF ImageOf(const char* name)
{
    CImageDXF image;
    image.name = QString::fromUtf8(name);
    image.filePath = QStringLiteral("a.tif");
    return image;
}

// The groups of the image from group 340 on.
std::string SecondHalf(CDrawing& drawing)
{
    const std::string entities = drawing.Entities();
    return entities.substr(entities.find("340 "));
}

std::string Flags(const char* path)
{
    CDrawing drawing;
    CImageDXF image = ImageOf("a");
    image.filePath = QString::fromUtf8(path);
    drawing->AddImage(image);
    return ValuesOf(drawing.EntityTags(), 70).at(0);
}

} // namespace

TEST(Image, EntityAndDefinitionPointAtEachOther)
{
    CDrawing drawing;
    CImageDXF image = ImageOf("a");
    image.layer = QStringLiteral("l");
    image.origin = {1, 2};
    image.scaleX = 0.5;
    image.scaleY = 0.25;
    image.widthPixels = 640;
    image.heightPixels = 480;
    image.rotation = kHalfPi;
    EXPECT_TRUE(drawing->AddImage(image));
    EXPECT_EQ(drawing.Entities(),
              "0 IMAGE\n5 d1\n100 AcDbEntity\n8 l\n100 AcDbRasterImage\n10 1.000000\n20 2.000000\n"
              "11 0.000000\n21 0.500000\n12 -0.250000\n22 0.000000\n340 d3\n360 d2\n70 3\n");
    const std::string objects = drawing.Section("OBJECTS");
    const auto start = objects.find("0 IMAGEDEF_REACTOR");
    EXPECT_EQ(objects.substr(start, objects.find("0 DICTIONARY\n5 17") - start),
              "0 IMAGEDEF_REACTOR\n5 d2\n100 AcDbRasterImageDefReactor\n330 d1\n"
              "0 IMAGEDEF\n5 d3\n102 {ACAD_REACTORS\n330 8f\n330 d2\n102 }\n"
              "100 AcDbRasterImageDef\n1 a.tif\n10 640.000000\n20 480.000000\n11 0.500000\n"
              "21 0.250000\n280 1\n");
}

TEST(Image, WithoutANameIsRefused)
{
    CDrawing drawing;
    EXPECT_FALSE(drawing->AddImage(CImageDXF{}));
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
}

TEST(Image, SizesTakeTheScale)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    drawing->AddImage(ImageOf("a"));
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 11), std::vector<std::string>{"2.000000"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 22), std::vector<std::string>{"2.000000"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 10), std::vector<std::string>{"100.000000"});
    const CTags definition = RecordsOf(ParseTags(drawing.Bytes()), "IMAGEDEF").at(0);
    EXPECT_EQ(ValuesOf(definition, 11), std::vector<std::string>{"2.000000"});
}

TEST(Image, TransparencyFollowsTheFileName)
{
    for (const char* path : {"a.png", "a.PNG", "a.gif", "a.GiF", "a.png.tif"}) {
        EXPECT_EQ(Flags(path), "11") << path;
    }
    for (const char* path : {"a.tif", "png", "a.jpg", ""}) {
        EXPECT_EQ(Flags(path), "3") << path;
    }
}

TEST(Image, OneClipPointIsNone)
{
    CDrawing drawing;
    CImageDXF image = ImageOf("a");
    image.clip = {{1, 2, 0}};
    drawing->AddImage(image);
    EXPECT_EQ(SecondHalf(drawing), "340 d2\n360 d1\n70 3\n");
}

TEST(Image, TwoClipPointsAreARectangle)
{
    CDrawing drawing;
    CImageDXF image = ImageOf("a");
    image.clip = {{1, 2, 0}, {3, 4, 0}};
    drawing->AddImage(image);
    EXPECT_EQ(SecondHalf(drawing),
              "340 d2\n360 d1\n70 7\n280 1\n71 1\n91 2\n14 1.000000\n24 2.000000\n14 3.000000\n"
              "24 4.000000\n");
}

TEST(Image, OpenClipOutlineIsClosed)
{
    CDrawing drawing;
    CImageDXF image = ImageOf("a");
    image.filePath = QStringLiteral("a.png");
    image.clip = {{1, 2, 0}, {3, 4, 0}, {5, 6, 0}};
    drawing->AddImage(image);
    EXPECT_EQ(SecondHalf(drawing),
              "340 d2\n360 d1\n70 15\n280 1\n71 2\n91 4\n14 1.000000\n24 2.000000\n14 3.000000\n"
              "24 4.000000\n14 5.000000\n24 6.000000\n14 1.000000\n24 2.000000\n");
}

TEST(Image, ClosedClipOutlineStaysAsItIs)
{
    CDrawing drawing;
    CImageDXF image = ImageOf("a");
    image.clip = {{1, 2, 0}, {3, 4, 0}, {1.00001, 2, 0}};
    drawing->AddImage(image);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 91), std::vector<std::string>{"3"});
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 14).size(), 3U);
}

TEST(Image, ClipIsNotTransformed)
{
    CTestContext context;
    CDrawing drawing(1018, &context);
    CImageDXF image = ImageOf("a");
    image.clip = {{1, 2, 0}, {3, 4, 0}};
    drawing->AddImage(image);
    EXPECT_EQ(ValuesOf(drawing.EntityTags(), 14),
              (std::vector<std::string>{"1.000000", "3.000000"}));
}

TEST(Image, LaterImageOfANameReplacesTheEarlierInTheDictionary)
{
    CDrawing drawing;
    drawing->AddImage(ImageOf("a"));
    drawing->AddImage(ImageOf("A"));
    const std::string objects = drawing.Section("OBJECTS");
    EXPECT_NE(objects.find("5 8f\n100 AcDbDictionary\n281 1\n3 a\n350 d5\n0 RASTERVARIABLES"),
              std::string::npos)
        << objects;
}

TEST(Image, NameHoldsNoLetterThatTheCodePageLacks)
{
    CDrawing drawing;
    drawing->AddImage(ImageOf("\xC3\xA9 a/b"));
    EXPECT_NE(drawing.Section("OBJECTS").find("\n3 _ a/b\n350 d2\n"), std::string::npos);
}

TEST(Image, SecondHalfLandsOutsideTheBlock)
{
    CDrawing drawing;
    drawing->BeginBlock(QStringLiteral("b"), false, QString());
    drawing->AddImage(ImageOf("a"));
    EXPECT_TRUE(drawing->IsInBlock());
    drawing->AddPoint(CPointDXF{});
    drawing->EndBlock();
    const CTags tags = ParseTags(drawing.UncheckedBytes());
    const std::string entities = AsText(SectionOf(tags, "ENTITIES"));
    EXPECT_EQ(entities.substr(0, entities.find("0 POINT")), "340 d3\n360 d2\n70 3\n");
    EXPECT_NE(entities.find("0 POINT"), std::string::npos);
    EXPECT_NE(entities.find("0 ENDBLK"), std::string::npos);
    EXPECT_EQ(RecordsOf(SectionOf(tags, "BLOCKS"), "IMAGE").size(), 1U);
}

TEST(Image, ImagesAreCounted)
{
    CExportLog log;
    const CDrawing drawing(1018, nullptr, &log);
    drawing->AddImage(ImageOf("a"));
    QString report;
    log.GetText(report);
    EXPECT_TRUE(report.contains(QStringLiteral("растровые подложки - 1"))) << report.toStdString();
}
