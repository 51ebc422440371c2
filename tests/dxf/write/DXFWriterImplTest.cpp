// SPDX-License-Identifier: MIT
#include "tests/support/DxfDrawing.h"
#include "VelorExchange/foundation/ExportLog.h"

#include <cmath>

using namespace VelorExchange;
using namespace VelorExchange::dxf;
using VelorExchange::test::CDrawing;
using VelorExchange::test::CTestContext;

namespace {

std::string Report(const CExportLog& log)
{
    QString text;
    log.GetText(text);
    return text.left(text.lastIndexOf(QChar(u'\n'))).toStdString();
}

CPointDXF PointOn(const QString& layer)
{
    CPointDXF point;
    point.layer = layer;
    return point;
}

} // namespace

TEST(DXFWriterImpl, DeletingNullIsNothing)
{
    DeleteDXFWriter(nullptr);
}

TEST(DXFWriterImpl, ContextLearnsItsWriter)
{
    CTestContext context;
    const CDrawing drawing(1018, &context);
    EXPECT_EQ(context.writer, &*drawing);
    EXPECT_EQ(drawing->context, &context);
}

TEST(DXFWriterImpl, FreshWriterIs1018WithoutInit)
{
    CDrawing drawing;
    EXPECT_TRUE(drawing.Bytes().contains("$ACADVER\r\n  1\r\nAC1018\r\n"));
}

TEST(DXFWriterImpl, InitWith1015SelectsTheOlderVersion)
{
    CDrawing drawing(1015);
    EXPECT_TRUE(drawing.Bytes().contains("$ACADVER\r\n  1\r\nAC1015\r\n"));
}

TEST(DXFWriterImpl, InitWithAnyOtherNumberTakes1018)
{
    for (const int version : {0, -1, 1009, 1016, 1021, 2004}) {
        CDrawing drawing(1015);
        drawing->Init(version, nullptr);
        EXPECT_TRUE(drawing.Bytes().contains("AC1018\r\n")) << version;
    }
}

TEST(DXFWriterImpl, DefaultsTakeTheFirstEightHandles)
{
    CDrawing drawing;
    EXPECT_EQ(drawing->GetNextHandle(), 0xD0);
    EXPECT_EQ(drawing.Table("LAYER"),
              "5 c8\n100 AcDbSymbolTable\n"
              "0 LAYER\n5 c9\n100 AcDbSymbolTableRecord\n100 AcDbLayerTableRecord\n2 0\n70 0\n"
              "62 7\n6 CONTINUOUS\n390 F\n");
    EXPECT_EQ(drawing.Table("STYLE"),
              "5 ce\n100 AcDbSymbolTable\n"
              "0 STYLE\n5 cf\n100 AcDbSymbolTableRecord\n100 AcDbTextStyleTableRecord\n"
              "2 STANDARD\n70 0\n40 0.000000\n41 1.000000\n50 0.000000\n71 0\n42 2.500000\n3 txt\n"
              "4 \n");
}

TEST(DXFWriterImpl, DefaultLineTypesHaveNoDashes)
{
    CDrawing drawing;
    std::string expected = "5 ca\n100 AcDbSymbolTable\n";
    const char* const names[] = {"ByBlock", "ByLayer", "CONTINUOUS"};
    const char* const handles[] = {"cb", "cc", "cd"};
    for (int i = 0; i < 3; ++i) {
        expected += std::string("0 LTYPE\n5 ") + handles[i]
            + "\n100 AcDbSymbolTableRecord\n100 AcDbLinetypeTableRecord\n2 " + names[i]
            + "\n70 0\n3 " + names[i] + "\n72 65\n73 0\n40 0.000000\n";
    }
    EXPECT_EQ(drawing.Table("LTYPE"), expected);
}

TEST(DXFWriterImpl, LayerZeroIsCountedWhereInitHasALog)
{
    CExportLog log;
    log.SetOutputFile(QStringLiteral("a.dxf"));
    const CDrawing drawing(1018, nullptr, &log);
    EXPECT_NE(Report(log).find("слои - 1"), std::string::npos) << Report(log);
}

TEST(DXFWriterImpl, InitAgainGivesTheFileOfAFreshWriter)
{
    CDrawing fresh;
    fresh->AddPoint(PointOn(QStringLiteral("a")));
    CDrawing used;
    used->AddPoint(PointOn(QStringLiteral("b")));
    used->BeginBlock(QStringLiteral("block"), true, QString());
    used->EndBlock();
    CImageDXF image;
    image.name = QStringLiteral("image");
    used->AddImage(image);
    used.Bytes();
    used->Init(1018, nullptr);
    used->AddPoint(PointOn(QStringLiteral("a")));
    EXPECT_FALSE(used->HasBlock(QStringLiteral("block")));
    EXPECT_EQ(used.Bytes(), fresh.Bytes());
}

TEST(DXFWriterImpl, InitLeavesPrecisionAlone)
{
    const CDrawing drawing;
    drawing->SetPrecision(3);
    drawing->Init(1015, nullptr);
    EXPECT_EQ(drawing->GetPrecision(), 3);
}

TEST(DXFWriterImpl, PrecisionIsSixAtTheStart)
{
    const CDrawing drawing;
    EXPECT_EQ(drawing->GetPrecision(), 6);
    EXPECT_EQ(drawing->GetTolerance(), std::pow(0.1, 6));
}

TEST(DXFWriterImpl, PrecisionOfTwoHasItsOwnTolerance)
{
    const CDrawing drawing;
    drawing->SetPrecision(2);
    EXPECT_EQ(drawing->GetTolerance(), 0.010000000000000002);
    drawing->SetPrecision(4);
    EXPECT_EQ(drawing->GetTolerance(), std::pow(0.1, 4));
}

TEST(DXFWriterImpl, PrecisionCountsFromTheNextElementOn)
{
    CDrawing drawing;
    drawing->AddPoint(PointOn(QString()));
    drawing->SetPrecision(2);
    drawing->AddPoint(PointOn(QString()));
    EXPECT_EQ(test::ValuesOf(drawing.EntityTags(), 10),
              (std::vector<std::string>{"0.000000", "0.00"}));
}

TEST(DXFWriterImpl, AskingForTheNextHandleDoesNotTakeIt)
{
    const CDrawing drawing;
    const int handle = drawing->GetNextHandle();
    EXPECT_EQ(drawing->GetNextHandle(), handle);
    drawing->AddPoint(PointOn(QString()));
    EXPECT_EQ(drawing->GetNextHandle(), handle + 1);
}

TEST(DXFWriterImpl, HostMayUseTheWriterInsideACallback)
{
    class CNosyContext final : public IDXFWriter::IContext
    {
    public:
        CPoint2D TransformPoint(const CPoint2D& in) override
        {
            if (writer != nullptr && !isBusy) {
                isBusy = true;
                CPointDXF point;
                point.point = {1, 2, 3};
                writer->AddPoint(point);
                isBusy = false;
            }
            return in;
        }
        bool GetLineStyle(const QString&, CLineStyleDXF&) override { return false; }
        void CompleteTextStyle(CTextStyleDXF&) override { }
        double GetScale() override { return 1; }

        bool isBusy = false;
    };
    CNosyContext context;
    CDrawing drawing(1018, &context);
    CLineDXF line;
    EXPECT_TRUE(drawing->AddLine(line));
    const test::CTags tags = drawing.EntityTags();
    EXPECT_EQ(test::RecordsOf(tags, "POINT").size(), 2U);
    EXPECT_EQ(test::RecordsOf(tags, "LINE").size(), 1U);
}

TEST(DXFWriterImpl, MemoryDoesNotGrowWithTheNumberOfElements)
{
    CDrawing drawing;
    const auto resident = [] {
        QFile status(QStringLiteral("/proc/self/statm"));
        status.open(QIODevice::ReadOnly);
        return status.readAll().split(' ').value(1).toLongLong();
    };
    CLineDXF line;
    line.layer = QStringLiteral("roads");
    for (int i = 0; i < 2000; ++i) {
        drawing->AddLine(line);
    }
    const qint64 before = resident();
    if (before == 0) {
        GTEST_SKIP() << "no /proc here";
    }
    for (int i = 0; i < 50000; ++i) {
        drawing->AddLine(line); // about 8 MB of tags
    }
    EXPECT_LT(resident() - before, 256); // pages: 1 MiB
}
