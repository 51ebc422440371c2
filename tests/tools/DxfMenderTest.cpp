// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfMender.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QTemporaryFile>

namespace velorx::test {

namespace {

// Groups stand as "code value" with ", " between them.
QByteArray Drawing(const char* groups, const char* lineEnd = "\n")
{
    QByteArray text;
    for (const QString& group : QString::fromUtf8(groups).split(QStringLiteral(", "))) {
        const int blank = group.indexOf(' ');
        text += group.left(blank).toUtf8() + lineEnd + group.mid(blank + 1).toUtf8() + lineEnd;
    }
    return text;
}

QByteArray Mended(const QByteArray& drawing)
{
    QByteArray copy = drawing;
    QBuffer source(&copy);
    QBuffer target;
    EXPECT_TRUE(source.open(QIODevice::ReadOnly));
    EXPECT_TRUE(target.open(QIODevice::WriteOnly));
    EXPECT_TRUE(CDxfMender(source, target).Run());
    return target.data();
}

} // namespace

TEST(DxfMender, CopiesWhatIsRightByteForByte)
{
    const QByteArray drawing =
        "  0\r\nSECTION\r\n  2\r\nENTITIES\r\n999\r\n a comment \r\n  0\r\nLINE\r\n 42\r\n1.50\r\n"
        "210\r\n0\r\n230\r\n-1\r\nno code\r\nx\r\n  0\r\nEOF";
    EXPECT_EQ(Mended(drawing), drawing);
    EXPECT_EQ(Mended(""), "");
    EXPECT_EQ(Mended("0"), "0");
}

TEST(DxfMender, LeavesObjectsInTextsOut)
{
    EXPECT_EQ(Mended(Drawing("0 MTEXT, 10 5, 40 2, 101 Embedded Object, 10 1, 40 7, 0 LINE, 10 3")),
              Drawing("0 MTEXT, 10 5, 40 2, 0 LINE, 10 3"));
    EXPECT_EQ(Mended("0\nMTEXT\n101\nEmbedded Object\n10\n1"), "0\nMTEXT\n");
    EXPECT_EQ(Mended(Drawing("0 DICTIONARY, 101 x, 40 7")), Drawing("0 DICTIONARY, 101 x, 40 7"));
}

TEST(DxfMender, TakesLinesThatEndInACarriageReturn)
{
    EXPECT_EQ(
        Mended(Drawing("0 MTEXT, 40 2, 101 Embedded Object, 40 7, 0 POINT, 230 -1, 0 EOF", "\r")),
        Drawing("0 MTEXT, 40 2, 0 POINT, 0 EOF", "\r"));
    EXPECT_EQ(Mended("0\r\nINSERT\r230\n-1\r\n0\rEOF"), "0\r\nINSERT\r41\r\n-1\r230\n-1\r\n0\rEOF");
}

TEST(DxfMender, TakesCodesAsTheReaderDoes)
{
    EXPECT_EQ(Mended("  0 \nPOINT\n\t230\n-1\n  0\nEOF\n"), "  0 \nPOINT\n  0\nEOF\n");
    const QByteArray other = "0\nPOINT\n0230\n-1\n+230\n-1\n00\nLINE\n230\n";
    EXPECT_EQ(Mended(other + "-1\n"), other.left(other.size() - 4));
}

TEST(DxfMender, TakesNoWordOfATextForAGroup)
{
    const QByteArray text =
        Drawing("0 MTEXT, 3 101, 3 0, 1 POINT, 999 0, 0 POINT, 1 230, 1 -1, 0 EOF");
    EXPECT_EQ(Mended(text), text);
}

// The rest of a line of more than 999 bytes is the next line to the reader.
TEST(DxfMender, KeepsInStepWithTheReaderInLongLines)
{
    const QByteArray rest = QByteArray(999, 'x') + "0\n";
    EXPECT_EQ(Mended("0\nLINE\n1\n" + rest + "POINT\n230\n-1\n0\nEOF\n"),
              "0\nLINE\n1\n" + rest + "POINT\n0\nEOF\n");
    const QByteArray longText = QByteArray(3000000, 'x') + "\n";
    EXPECT_EQ(Mended("0\nLINE\n1\n" + longText), "0\nLINE\n1\n" + longText);
}

TEST(DxfMender, TakesThePlaneOffPointsInThePlan)
{
    EXPECT_EQ(Mended(Drawing("0 POINT, 10 5, 210 0, 220 0, 230 -1, 8 A")),
              Drawing("0 POINT, 10 5, 8 A"));
    EXPECT_EQ(Mended(Drawing("0 SPLINE, 210 0.5, 220 0, 230 0.7, 10 5")),
              Drawing("0 SPLINE, 10 5"));
}

TEST(DxfMender, TakesThePlaneOffPolylinesInSpaceAlone)
{
    EXPECT_EQ(Mended(Drawing("0 POLYLINE, 70 8, 230 -1, 0 VERTEX, 42 1, 0 SEQEND, "
                             "0 POLYLINE, 70 16, 230 -1, 0 POLYLINE, 70 1, 230 -1")),
              Drawing("0 POLYLINE, 70 8, 0 VERTEX, 42 1, 0 SEQEND, 0 POLYLINE, 70 16, "
                      "0 POLYLINE, 70 1, 230 -1"));
}

TEST(DxfMender, TurnsTextsByTheirAngle)
{
    EXPECT_EQ(Mended(Drawing("0 MTEXT, 1 x, 50 180")),
              Drawing("0 MTEXT, 11 -1, 21 1.2246467991473532e-16, 1 x"));
    EXPECT_EQ(Mended(Drawing("0 MTEXT, 50 90, 11 1, 21 0")), Drawing("0 MTEXT, 50 90, 11 1, 21 0"));
    EXPECT_EQ(Mended(Drawing("0 MTEXT, 50 0")), Drawing("0 MTEXT, 50 0"));
}

TEST(DxfMender, TextsSeenFromBehindRunTheOtherWayFromTheirOtherSide)
{
    EXPECT_EQ(Mended(Drawing("0 MTEXT, 10 5, 71 4, 11 -1, 21 0.5, 230 -1")),
              Drawing("0 MTEXT, 10 5, 71 6, 11 1, 21 -0.5"));
    EXPECT_EQ(Mended(Drawing("0 MTEXT, 10 5, 71 8, 230 -1")),
              Drawing("0 MTEXT, 11 -1, 21 0, 10 5, 71 8"));
    EXPECT_EQ(Mended(Drawing("0 MTEXT, 10 5, 230 -1")),
              Drawing("0 MTEXT, 71 3, 11 -1, 21 0, 10 5"));
    EXPECT_EQ(Mended(Drawing("0 MTEXT, 71 -2147483648, 230 -1")),
              Drawing("0 MTEXT, 11 -1, 21 0, 71 3"));
}

TEST(DxfMender, TextsThatStandAtTheirTopMoveToTheirBaseLine)
{
    EXPECT_EQ(Mended(Drawing("0 TEXT, 10 5, 20 6, 40 2, 11 5, 21 6, 73 3")),
              Drawing("0 TEXT, 10 5, 20 4, 40 2, 11 5, 21 6, 73 3"));
    EXPECT_EQ(Mended(Drawing("0 TEXT, 10 5, 20 6, 40 2, 11 5, 21 6, 73 2")),
              Drawing("0 TEXT, 10 5, 20 5, 40 2, 11 5, 21 6, 73 2"));
    EXPECT_EQ(Mended(Drawing("0 ATTRIB, 10 5, 20 6, 40 10, 11 5, 21 6, 74 1, 101 x, 74 3")),
              Drawing("0 ATTRIB, 10 5, 20 9, 40 10, 11 5, 21 6, 74 1"));
}

TEST(DxfMender, TextsThatStandAtTheirBaseLineStayThere)
{
    for (const char* text :
         {"0 TEXT, 10 5, 20 4, 40 2, 11 5, 21 6, 73 3",
          "0 TEXT, 10 5, 20 6, 40 2, 11 5, 21 6, 73 0",
          "0 TEXT, 10 5, 20 6, 40 2, 11 5, 21 6, 73 7", "0 TEXT, 10 5, 20 6, 40 2, 73 3"})
    {
        EXPECT_EQ(Mended(Drawing(text)), Drawing(text));
    }
}

TEST(DxfMender, TurnsArcsOfEllipsesOver)
{
    EXPECT_EQ(Mended(Drawing("0 ELLIPSE, 10 5, 210 0, 220 0, 230 -1, 41 1, 42 2")),
              Drawing("0 ELLIPSE, 10 5, 41 4.2831853071795862, 42 5.2831853071795862"));
    EXPECT_EQ(Mended(Drawing("0 ELLIPSE, 210 0, 220 0, 230 1, 41 1, 42 2")),
              Drawing("0 ELLIPSE, 41 1, 42 2"));
}

TEST(DxfMender, TurnsArcsOfEllipsesWithoutAStartOver)
{
    EXPECT_EQ(Mended(Drawing("0 ELLIPSE, 230 -1, 42 2")),
              Drawing("0 ELLIPSE, 41 4.2831853071795862, 42 6.2831853071795862"));
}

TEST(DxfMender, PlaneThatIsLevelButForTheLastDigitsIsLevel)
{
    EXPECT_EQ(Mended(Drawing("0 LWPOLYLINE, 42 1, 210 1e-8, 220 -1e-8, 230 -1")),
              Drawing("0 LWPOLYLINE, 42 -1, 210 1e-8, 220 -1e-8, 230 -1"));
}

TEST(DxfMender, TurnsBulgesOver)
{
    EXPECT_EQ(
        Mended(Drawing("0 LWPOLYLINE, 42 0.50, 42 -1, 42 +2, 210 0, 220 0, 230 -1.0", "\r\n")),
        Drawing("0 LWPOLYLINE, 42 -0.50, 42 1, 42 -2, 210 0, 220 0, 230 -1.0", "\r\n"));
    EXPECT_EQ(Mended(Drawing("0 LWPOLYLINE, 42 0.50, 230 1")),
              Drawing("0 LWPOLYLINE, 42 0.50, 230 1"));
}

TEST(DxfMender, TurnsBulgesOfVerticesOver)
{
    EXPECT_EQ(Mended(Drawing("0 POLYLINE, 230 -1, 0 VERTEX, 42 1, 0 VERTEX, 42 2, 0 SEQEND, "
                             "0 POLYLINE, 230 1, 0 VERTEX, 42 1")),
              Drawing("0 POLYLINE, 230 -1, 0 VERTEX, 42 -1, 0 VERTEX, 42 -2, 0 SEQEND, "
                      "0 POLYLINE, 230 1, 0 VERTEX, 42 1"));
}

TEST(DxfMender, MirrorsInserts)
{
    EXPECT_EQ(Mended(Drawing("0 INSERT, 2 B, 41 2, 50 30, 230 -1")),
              Drawing("0 INSERT, 2 B, 41 -2, 50 -30, 230 -1"));
    EXPECT_EQ(Mended(Drawing("0 INSERT, 2 B, 230 -1, 0 LINE, 8 A")),
              Drawing("0 INSERT, 41 -1, 2 B, 230 -1, 0 LINE, 8 A"));
}

TEST(DxfMender, TurnsBoundariesOfHatchesOver)
{
    EXPECT_EQ(Mended(Drawing("0 HATCH, 210 0, 220 0, 230 -1, 91 3, 92 2, 72 1, 73 1, 10 1, 42 0.5, "
                             "92 1, 72 2, 40 1, 50 10, 51 20, 73 1, 72 3, 50 10, 51 20, 73 0, "
                             "72 4, 73 1, 42 3, 75 0, 50 10, 42 7")),
              Drawing("0 HATCH, 210 0, 220 0, 230 -1, 91 3, 92 2, 72 1, 73 1, 10 1, 42 -0.5, "
                      "92 1, 72 2, 40 1, 50 190, 51 200, 73 0, 72 3, 50 10, 51 20, 73 1, "
                      "72 4, 73 1, 42 3, 75 0, 50 10, 42 7"));
}

TEST(DxfMender, NumbersBeyondAllBoundsInHatchesAreNoEdges)
{
    EXPECT_EQ(Mended(Drawing("0 HATCH, 230 -1, 92 1e300, 72 nan, 50 10, 73 1")),
              Drawing("0 HATCH, 230 -1, 92 1e300, 72 nan, 50 10, 73 1"));
}

TEST(DxfMender, FacesOfMeshesAreNoVertices)
{
    EXPECT_EQ(Mended(Drawing("0 POLYLINE, 70 64, 0 VERTEX, 70 192, 10 5, 0 VERTEX, 70 128, 71 1, "
                             "0 SEQEND, 0 POLYLINE, 70 0, 0 VERTEX, 70 128, 10 5")),
              Drawing("0 POLYLINE, 70 64, 0 VERTEX, 70 192, 10 5, 0 SEQEND, "
                      "0 POLYLINE, 70 0, 0 VERTEX, 70 128, 10 5"));
}

TEST(DxfMender, TracesBecomeSolids)
{
    EXPECT_EQ(Mended(Drawing("0 Trace, 8 A, 10 5, 0 LINE, 8 A")),
              Drawing("0 SOLID, 8 A, 10 5, 0 LINE, 8 A"));
}

TEST(DxfMender, LeadersBecomeLinesWithAnArrowHeadOfTheirStyle)
{
    EXPECT_EQ(
        Mended(Drawing("0 DIMSTYLE, 2 Plan, 40 2, 41 3, 0 LEADER, 5 4F, 8 A, 62 1, 3 PLAN, 71 1, "
                       "76 2, 10 5, 20 6, 30 7, 10 17, 20 6, 30 7, 1001 ACAD, 1000 x, 0 EOF")),
        Drawing("0 DIMSTYLE, 2 Plan, 40 2, 41 3, "
                "0 LWPOLYLINE, 8 A, 62 1, 90 2, 38 7, 10 5, 20 6, 10 17, 20 6, "
                "0 SOLID, 8 A, 62 1, 10 5, 20 6, 11 11, 21 7, 12 11, 22 5, 13 11, 23 5, 0 EOF"));
}

TEST(DxfMender, CurvedLeadersBecomeSplines)
{
    EXPECT_EQ(
        Mended(Drawing("0 LEADER, 8 A, 71 0, 72 1, 10 5, 20 6, 30 7, 10 17, 20 6, 30 8", "\r\n")),
        Drawing("0 SPLINE, 8 A, 11 5, 21 6, 31 7, 11 17, 21 6, 31 8", "\r\n"));
}

TEST(DxfMender, LeaderThatTheEndOfTheFileCutsOffKeepsItsLinesApart)
{
    EXPECT_EQ(Mended("0\nLEADER\n71\n1\n10\n5\n8\nA"),
              "0\nLWPOLYLINE\n8\nA\n90\n1\n38\n0\n10\n5\n20\n0\n");
}

TEST(DxfMender, CopyHasNoNameThatCouldStayBehind)
{
    const QTemporaryDir folder;
    const QByteArray before = qgetenv("TMPDIR");
    QFile drawing(folder.filePath("a.dxf"));
    ASSERT_TRUE(drawing.open(QIODevice::WriteOnly));
    drawing.write(Drawing("0 POINT, 10 5, 230 -1"));
    drawing.close();
    ASSERT_TRUE(QDir(folder.path()).mkdir("temporary"));
    qputenv("TMPDIR", QFile::encodeName(folder.filePath("temporary")));
    QTemporaryFile copy;
    QFile mended(Mend(drawing.fileName(), copy));
    before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before);
    ASSERT_TRUE(mended.open(QIODevice::ReadOnly));
    EXPECT_EQ(mended.readAll(), Drawing("0 POINT, 10 5"));
    EXPECT_TRUE(QDir(folder.filePath("temporary")).isEmpty());
}

} // namespace velorx::test
