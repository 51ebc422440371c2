// SPDX-License-Identifier: MIT
// GDAL and this library read what the other writes.
#include "tests/support/MifRecorder.h"
#include "tests/support/MifWriting.h"
#include "VelorExchange/mif/Read.h"

#include <QProcess>
#include <QStandardPaths>

using namespace VelorExchange;
using namespace VelorExchange::mif;
using namespace VelorExchange::test;

namespace {

bool HasGdal()
{
    return !QStandardPaths::findExecutable(QStringLiteral("ogrinfo")).isEmpty()
        && !QStandardPaths::findExecutable(QStringLiteral("ogr2ogr")).isEmpty();
}

QByteArray RunProgram(const char* program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(QLatin1String(program), arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 0) << program;
    return process.readAll();
}

// What GDAL tells of the layer "a".
std::string Info(const CMifWriting& writing)
{
    writing.Rewrite();
    return RunProgram("ogrinfo", {QStringLiteral("-al"), writing.Name("a.MIF")}).toStdString();
}

void ExpectHolds(const std::string& text, const std::string& part)
{
    EXPECT_NE(text.find(part), std::string::npos) << part << "\nis not in\n" << text;
}

} // namespace

#define SKIP_WITHOUT_GDAL()                                                                        \
    if (!HasGdal()) {                                                                              \
        GTEST_SKIP() << "ogrinfo and ogr2ogr (gdal-bin) are not installed";                        \
    }

TEST(Peer, GdalReadsEveryKindOfObject)
{
    SKIP_WITHOUT_GDAL();
    CMifWriting writing;
    writing->AddPoint({{}, {1, 2}, {34, QString(), 0, 12, 0, 0}}, kLayer);
    writing->AddPoint({{}, {3, 4}, {65, QStringLiteral("Arial"), 255, 12, 0, 1}}, kLayer);
    writing->AddPolyline({{}, {{1, 2}, {3.5, 4}, {5, 6.25}}, {2, 5, 255}, false}, kLayer);
    writing->AddRegion({{}, {{0, 0}, {4, 0}, {4, 3}, {0, 0}}, {2, 0, 255}, {}, {}}, kLayer);
    CTextMIF text;
    text.text = QStringLiteral("say \"a\"");
    text.corner1 = {1, 1};
    text.corner2 = {5, 2};
    text.angle = 0.5;
    writing->AddText(text, kLayer);
    const std::string info = Info(writing);
    ExpectHolds(info, "Feature Count: 5");
    ExpectHolds(info, "POINT (1 2)");
    ExpectHolds(info, "POINT (3 4)");
    ExpectHolds(info, "LINESTRING (1 2,3.5 4.0,5.0 6.25)");
    ExpectHolds(info, "POLYGON ((0 0,4 0,4 3,0 0))");
    ExpectHolds(info, "mapinfo-sym-34");
}

TEST(Peer, GdalReadsAttributesAndCyrillic)
{
    SKIP_WITHOUT_GDAL();
    const CLocalCodec local("windows-1251");
    CMifWriting writing;
    CPointMIF point;
    point.AddAttribute({QStringLiteral("Улица"), Char}, QStringLiteral("Садовая; 5"));
    point.AddAttribute({QStringLiteral("n"), Integer}, -7);
    point.AddAttribute({QStringLiteral("s"), Smallint}, static_cast<short>(8));
    point.AddAttribute({QStringLiteral("d"), Decimal}, 2.5);
    point.AddAttribute({QStringLiteral("f"), Float}, 0.25F);
    writing->AddPoint(point, kLayer);
    const std::string info = Info(writing);
    ExpectHolds(info, "Улица (String) = Садовая; 5");
    ExpectHolds(info, "n (Integer) = -7");
    ExpectHolds(info, "s (Integer) = 8");
    ExpectHolds(info, "d (Real) = 2.5");
    ExpectHolds(info, "f (Real) = 0.25");
}

TEST(Peer, GdalReadsTheBounds)
{
    SKIP_WITHOUT_GDAL();
    CMifWriting writing;
    writing->AddPolyline({{}, {{-10, 20}, {30, -40}}, {}, false}, kLayer);
    ExpectHolds(Info(writing), "Extent: (-10.000000, -40.000000) - (30.000000, 20.000000)");
}

TEST(Peer, WhatGdalWritesIsRead)
{
    SKIP_WITHOUT_GDAL();
    const CLocalCodec local("windows-1251");
    const QTemporaryDir folder;
    QFile table(folder.filePath(QStringLiteral("in.csv")));
    ASSERT_TRUE(table.open(QIODevice::WriteOnly));
    table.write("WKT,name,n,d\n"
                "POINT (1 2),Дом,1,1.5\n"
                "\"LINESTRING (1 2,3 4.5)\",\"a \"\"b\"\"; c\",2,2.5\n"
                "\"POLYGON ((0 0,4 0,4 3,0 0),(1 1,2 1,2 1.5,1 1))\",,3,\n"
                "\"MULTILINESTRING ((1 2,3 4),(5 6,7 8))\",x,4,4.5\n");
    table.close();
    const QString target = folder.filePath(QStringLiteral("out.mif"));
    RunProgram("ogr2ogr",
               {QStringLiteral("-f"), QStringLiteral("MapInfo File"), QStringLiteral("-dsco"),
                QStringLiteral("FORMAT=MIF"), QStringLiteral("-lco"),
                QStringLiteral("ENCODING=CP1251"), QStringLiteral("-oo"),
                QStringLiteral("AUTODETECT_TYPE=YES"), QStringLiteral("-oo"),
                QStringLiteral("KEEP_GEOM_COLUMNS=NO"), target, table.fileName()});
    CMifRecorder recorder;
    ASSERT_TRUE(Read(folder.filePath(QStringLiteral("out")), &recorder));
    ExpectHolds(recorder.text, "AddPoint (1 2)");
    ExpectHolds(recorder.text, "[name=QString:Дом] [n=int:1] [d=float:1.5]");
    // A real of no told width is a Float of the table. The quotes of a value vanish, and the rings of a hole come as regions of their own.
    ExpectHolds(recorder.text, "AddPolyline (1 2)(3 4.5)");
    ExpectHolds(recorder.text, "[name=QString:a b; c] [n=int:2] [d=float:2.5]");
    EXPECT_EQ(recorder.counts["AddRegion"], 2);
    EXPECT_EQ(recorder.counts["AddPolyline"], 3);
    EXPECT_EQ(recorder.counts["AddPoint"], 1);
}
