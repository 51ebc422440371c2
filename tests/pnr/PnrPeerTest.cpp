// SPDX-License-Identifier: MIT
#include "PnrWriting.h"

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

using namespace VelorExchange::pnr;

namespace {

QString RunOgrInfo(const QString& fileName)
{
    QProcess process;
    process.start(
        QStringLiteral("ogrinfo"),
        {QStringLiteral("-ro"), QStringLiteral("-al"), QStringLiteral("-geom=YES"), fileName});
    process.waitForFinished();
    return QString::fromUtf8(process.readAllStandardOutput());
}

#define SKIP_WITHOUT_GDAL()                                                                        \
    if (QStandardPaths::findExecutable(QStringLiteral("ogrinfo")).isEmpty()) {                     \
        GTEST_SKIP() << "gdal-bin is not installed";                                               \
    }

// The geometries that GDAL finds, numbers cut to whole ones, in any order.
QStringList Geometries(const QString& info)
{
    QStringList found;
    const QRegularExpression geometry(
        QStringLiteral("^  ((?:MULTI)?(?:POINT|LINESTRING|POLYGON)[ Z]*\\(.*)$"),
        QRegularExpression::MultilineOption);
    for (auto it = geometry.globalMatch(info); it.hasNext();) {
        found += it.next().captured(1);
    }
    found.sort();
    return found;
}

} // namespace

TEST(PnrPeer, GdalFindsTheObjectsThatWeWrite)
{
    SKIP_WITHOUT_GDAL();
    CPnrWriting::COptions options;
    options.params = {QStringLiteral("peer"), 10000, 0, 0, 1000, 1000};
    CPnrWriting writing(options);
    CLineObject line;
    line.code = 61310000;
    line.holders.push_back(Plan({{10, 20}, {30, 40}, {50, 45}}));
    line.semantics = {Attribute(9, 126, QStringLiteral("abc"), 3), Attribute(4, 8, 1.5)};
    writing->WriteLine(&line);
    CLineObject high;
    high.code = 61310001;
    high.holders.push_back(Space({{10, 20, 1}, {30, 40, 2}}));
    writing->WriteLine(&high);
    CSquareObject square;
    square.code = 44200000;
    square.holders.push_back(Plan({{0, 0}, {100, 0}, {100, 100}, {0, 0}}));
    square.holders.push_back(Plan({{40, 20}, {60, 20}, {60, 30}, {40, 20}}));
    writing->WriteSquare(&square);
    CPointObject point;
    point.image = std::make_unique<PnrPointImage>();
    point.holders.push_back(Plan({{70, 80}}));
    writing->WritePoint(&point);
    CTextObject text;
    text.text = QStringLiteral("words");
    text.holders.push_back(Plan({{71, 81}, {75, 81}}));
    writing->WriteText(&text);
    writing.Close();
    ASSERT_TRUE(writing.Closed());
    QFile::rename(writing.FileName(), writing.FileName() + QStringLiteral(".sxf"));
    const QString info = RunOgrInfo(writing.FileName() + QStringLiteral(".sxf"));
    // x counts to the north in the format, and GDAL turns the axes. It leaves out the hole, which it
    // only reads where bit 21 of a record's flags is clear; the form has it set in every record.
    EXPECT_EQ(Geometries(info).join(QLatin1Char('\n')).toStdString(),
              "MULTILINESTRING Z ((-1 -1 0,-1 1000 0,1000 1000 0,1000 -1 0,-1 -1 0))\n"
              "MULTILINESTRING Z ((20 10 0,40 30 0,45 50 0))\n"
              "MULTILINESTRING Z ((20 10 1,40 30 2))\n"
              "MULTILINESTRING Z ((81 71 0,81 75 0))\n"
              "MULTIPOINT Z ((80 70 0))\n"
              "POLYGON Z ((0 0 0,0 100 0,100 100 0,0 0 0))");
    for (const char* fact : {"using driver `SXF' successful", "SHEET_NAME=peer", "SCALE=1 : 10000",
                             "SC_9 (String) = abc", "SC_4 (Real) = 1.5", "TEXT (String) = words",
                             "CLCODE (Integer) = 61310000", "CLCODE (Integer) = 44200000"})
    {
        EXPECT_TRUE(info.contains(QLatin1String(fact))) << fact << '\n' << info.toStdString();
    }
}
