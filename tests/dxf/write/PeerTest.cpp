// SPDX-License-Identifier: MIT
// Independent programs judge what is written, where they are installed.
#include "tests/support/DxfDrawing.h"
#include "tests/support/DxfSample.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#ifdef VELOREXCHANGE_HAS_DXFLIB
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#endif

#include <map>

using namespace VelorExchange::dxf;
using namespace VelorExchange::test;

namespace {

// A drawing in a file of its own.
class CDrawingFile
{
public:
    explicit CDrawingFile(const QByteArray& drawing)
    {
        QFile file(Path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(drawing);
    }
    QString Path() const { return folder.filePath(QStringLiteral("drawing.dxf")); }

private:
    QTemporaryDir folder;
};

QByteArray Empty(int version)
{
    return CDrawing(version).Bytes();
}

QByteArray Everything(int version)
{
    CDrawing drawing(version);
    DrawEverything(*drawing);
    return drawing.Bytes();
}

// The size of a picture stands in its definition alone, and ezdxf looks for it in an entity that has
// no clip outline: it can't read such a drawing at all.
QByteArray EverythingButPlainImages(int version)
{
    QByteArray drawing = Everything(version);
    const QByteArray start = "0\r\nIMAGE\r\n5\r\n";
    const int first = drawing.indexOf(start);
    return drawing.remove(first, drawing.indexOf(start, first + 1) - first);
}

struct COutput
{
    int code = -1;
    std::string text;
};

COutput RunProgram(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    process.waitForFinished(120000);
    return {process.exitCode(), process.readAll().toStdString()};
}

// What ogrinfo prints about a drawing.
std::string WithGdal(const QByteArray& drawing)
{
    const CDrawingFile file(drawing);
    const COutput output = RunProgram(QStringLiteral("ogrinfo"),
                                      {QStringLiteral("-ro"), QStringLiteral("-al"), file.Path()});
    EXPECT_EQ(output.code, 0) << output.text;
    EXPECT_EQ(output.text.find("ERROR"), std::string::npos) << output.text;
    return output.text;
}

// What ezdxf finds, remarks first.
COutput WithEzdxf(const QByteArray& drawing)
{
    const CDrawingFile file(drawing);
    return RunProgram(QStringLiteral("/usr/bin/python3"),
                      {QStringLiteral(VELOREXCHANGE_AUDIT), file.Path()});
}

bool IsMissing(const char* program)
{
    return QStandardPaths::findExecutable(QString::fromLatin1(program)).isEmpty();
}

int CountOf(const std::string& text, const std::string& part)
{
    int count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
        ++count;
    }
    return count;
}

// Remarks that the fixed texts bring: ezdxf compares handles as texts, so that 8f is not 8F, and two
// dictionaries have no owner. 8E has no target without images, or is written 8e.
std::string FixedRemarks(int version)
{
    std::string remarks = "fix Fixed invalid owner handle in DICTIONARY(#)\n"
                          "fix Removed entry \"ACAD_IMAGE_DICT\" with invalid handle in "
                          "DICTIONARY(#)\n";
    if (version == 1018) {
        remarks += "fix Removed entry \"ACAD_IMAGE_VARS\" with invalid handle in DICTIONARY(#)\n";
    }
    return remarks;
}

class Peer : public testing::TestWithParam<int>
{
};

} // namespace

TEST_P(Peer, GdalOpensTheEmptyDrawingWithoutAWarning)
{
    if (IsMissing("ogrinfo")) {
        GTEST_SKIP() << "ogrinfo is not installed";
    }
    const std::string text = WithGdal(Empty(GetParam()));
    EXPECT_EQ(text.find("Warning"), std::string::npos) << text;
    EXPECT_NE(text.find("Feature Count: 0"), std::string::npos) << text;
}

TEST_P(Peer, GdalReadsEveryKindItKnows)
{
    if (IsMissing("ogrinfo")) {
        GTEST_SKIP() << "ogrinfo is not installed";
    }
    const std::string text = WithGdal(Everything(GetParam()));
    // It leaves out construction lines, multilines and pictures, and expands inserts.
    EXPECT_EQ(CountOf(text, "OGRFeature(entities)"), 18) << text;
    EXPECT_NE(text.find("Layer (String) = Дороги_главные"), std::string::npos) << text;
    EXPECT_NE(text.find("POINT Z (-7.25 8.5 120.75)"), std::string::npos) << text;
    EXPECT_NE(text.find("LINESTRING Z (0 0 1.5,100.125 -50.0625 0)"), std::string::npos) << text;
    EXPECT_NE(text.find("Text (String) = Улица Ленина, № 1"), std::string::npos) << text;
}

TEST_P(Peer, EzdxfRemarksOnTheEmptyDrawingFollowFromTheFixedTexts)
{
    const COutput output = WithEzdxf(Empty(GetParam()));
    if (output.code == 77) {
        GTEST_SKIP() << "ezdxf is not installed";
    }
    EXPECT_EQ(output.code, 0) << output.text;
    EXPECT_EQ(output.text.substr(0, output.text.find("layer")), FixedRemarks(GetParam()));
}

TEST_P(Peer, EzdxfReadsEveryKindAndItsAuditFindsNoError)
{
    const COutput output = WithEzdxf(EverythingButPlainImages(GetParam()));
    if (output.code == 77) {
        GTEST_SKIP() << "ezdxf is not installed";
    }
    EXPECT_EQ(output.code, 0) << output.text;
    EXPECT_EQ(output.text.find("error"), std::string::npos) << output.text;
    const std::string expected = FixedRemarks(GetParam())
        + "fix Fixed invalid owner handle in MLINESTYLE(#)\n"
          "fix Fixed invalid owner handle in IMAGEDEF(#)\n"
          "fix Fixed invalid owner handle in IMAGEDEF(#)\n"
          "count 3DFACE 1\ncount ARC 2\ncount ATTDEF 1\ncount HATCH 2\ncount IMAGE 1\n"
          "count INSERT 1\ncount LINE 1\ncount LWPOLYLINE 2\ncount MLINE 1\ncount MTEXT 2\n"
          "count POINT 1\ncount POLYLINE 1\ncount SPLINE 1\ncount TEXT 1\ncount XLINE 1\n";
    EXPECT_EQ(output.text.substr(0, output.text.find("layer")), expected);
    EXPECT_NE(output.text.find("layer Дороги_главные\n"), std::string::npos) << output.text;
    EXPECT_NE(output.text.find("text Улица Ленина, № 1\n"), std::string::npos) << output.text;
    EXPECT_NE(output.text.find("point -7.25 8.5 120.75\n"), std::string::npos) << output.text;
}

#ifdef VELOREXCHANGE_HAS_DXFLIB

namespace {

class CDxflibCounter final : public DL_CreationAdapter
{
public:
    void addLine(const DL_LineData&) override { ++counts["LINE"]; }
    void addPoint(const DL_PointData& point) override
    {
        ++counts["POINT"];
        height = point.z;
    }
    void addArc(const DL_ArcData&) override { ++counts["ARC"]; }
    void addXLine(const DL_XLineData&) override { ++counts["XLINE"]; }
    void addSpline(const DL_SplineData&) override { ++counts["SPLINE"]; }
    void add3dFace(const DL_3dFaceData&) override { ++counts["3DFACE"]; }
    void addPolyline(const DL_PolylineData&) override { ++counts["POLYLINE"]; }
    void addText(const DL_TextData& text) override
    {
        ++counts["TEXT"];
        lettering = text.text;
    }
    void addMText(const DL_MTextData&) override { ++counts["MTEXT"]; }
    void addInsert(const DL_InsertData&) override { ++counts["INSERT"]; }
    void addHatch(const DL_HatchData&) override { ++counts["HATCH"]; }
    void addImage(const DL_ImageData&) override { ++counts["IMAGE"]; }
    void addBlock(const DL_BlockData&) override { ++counts["BLOCK"]; }
    void addLayer(const DL_LayerData& layer) override
    {
        ++counts["LAYER"];
        layers += layer.name + '\n';
    }

    std::map<std::string, int> counts;
    std::string layers;
    std::string lettering;
    double height = 0;
};

} // namespace

TEST_P(Peer, DxflibReadsEveryKindItKnows)
{
    const CDrawingFile file(Everything(GetParam()));
    CDxflibCounter counter;
    DL_Dxf dxf;
    EXPECT_TRUE(dxf.in(file.Path().toStdString(), &counter));
    const std::map<std::string, int> expected = {
        {"LINE", 1},   {"POINT", 2},    {"ARC", 3},   {"XLINE", 1}, {"SPLINE", 1},
        {"3DFACE", 1}, {"POLYLINE", 3}, {"TEXT", 1},  {"MTEXT", 2}, {"INSERT", 2},
        {"HATCH", 2},  {"IMAGE", 2},    {"BLOCK", 6}, {"LAYER", 17}};
    EXPECT_EQ(counter.counts, expected);
    EXPECT_EQ(counter.height, 120.75);
    EXPECT_NE(counter.layers.find("\xC4\xEE\xF0\xEE\xE3\xE8_"), std::string::npos);
    EXPECT_EQ(counter.lettering.substr(0, 5), "\xD3\xEB\xE8\xF6\xE0");
}

TEST_P(Peer, DxflibReadsTheEmptyDrawing)
{
    const CDrawingFile file(Empty(GetParam()));
    CDxflibCounter counter;
    DL_Dxf dxf;
    EXPECT_TRUE(dxf.in(file.Path().toStdString(), &counter));
    EXPECT_EQ(counter.counts, (std::map<std::string, int>{{"BLOCK", 3}, {"LAYER", 1}}));
}

#else

TEST(PeerDxflib, ReadsEveryKindItKnows)
{
    GTEST_SKIP() << "dxflib is not installed";
}

#endif

INSTANTIATE_TEST_SUITE_P(Versions, Peer, testing::Values(1015, 1018));
