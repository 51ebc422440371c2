// SPDX-License-Identifier: MIT
#include "tools/velorx/formats/DxfMender.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QString>

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
    EXPECT_EQ(Mended(Drawing("0 DICTIONARY, 101 x, 40 7")), Drawing("0 DICTIONARY, 101 x, 40 7"));
}

TEST(DxfMender, TakesThePlaneOffPointsInThePlan)
{
    EXPECT_EQ(Mended(Drawing("0 POINT, 10 5, 210 0, 220 0, 230 -1, 8 A")),
              Drawing("0 POINT, 10 5, 8 A"));
    EXPECT_EQ(Mended(Drawing("0 SPLINE, 210 0.5, 220 0, 230 0.7, 10 5")),
              Drawing("0 SPLINE, 10 5"));
}

TEST(DxfMender, TurnsArcsOfEllipsesOver)
{
    EXPECT_EQ(Mended(Drawing("0 ELLIPSE, 10 5, 210 0, 220 0, 230 -1, 41 1, 42 2")),
              Drawing("0 ELLIPSE, 10 5, 41 4.2831853071795862, 42 5.2831853071795862"));
    EXPECT_EQ(Mended(Drawing("0 ELLIPSE, 210 0, 220 0, 230 1, 41 1, 42 2")),
              Drawing("0 ELLIPSE, 41 1, 42 2"));
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
              Drawing("0 INSERT, 2 B, 230 -1, 41 -1, 0 LINE, 8 A"));
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

} // namespace velorx::test
