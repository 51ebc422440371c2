// SPDX-License-Identifier: MIT
#include "tests/support/TextFile.h"
#include "VelorExchange/dxf/write/StyleFiles.h"

#include <QElapsedTimer>

#include <cmath>

using namespace VelorExchange::dxf;
using VelorExchange::test::CTextFile;

namespace {

std::list<CHatchStyleDXF> Read(const QByteArray& bytes)
{
    const CTextFile file(bytes);
    std::list<CHatchStyleDXF> styles;
    const bool result = GetHatchStylesFromFile(file.Path(), styles);
    EXPECT_EQ(result, !styles.empty());
    return styles;
}

// The only line of the only pattern.
CHatchLineDXF ReadLine(const QByteArray& line)
{
    const std::list<CHatchStyleDXF> styles = Read("*a,b\n" + line);
    EXPECT_EQ(styles.size(), 1U);
    EXPECT_EQ(styles.front().lines.size(), 1U);
    return styles.front().lines.front();
}

bool IsTaken(const QByteArray& line)
{
    return !Read("*a,b\n" + line).empty();
}

} // namespace

TEST(HatchStyleFile, EmptyPathAndMissingFileGiveFalse)
{
    std::list<CHatchStyleDXF> styles(1);
    EXPECT_FALSE(GetHatchStylesFromFile(QString(), styles));
    EXPECT_FALSE(GetHatchStylesFromFile(QStringLiteral("/no/such/file.pat"), styles));
    EXPECT_EQ(styles.size(), 1U);
}

TEST(HatchStyleFile, EarlierElementsCountForTheResult)
{
    const CTextFile file("");
    std::list<CHatchStyleDXF> styles;
    EXPECT_FALSE(GetHatchStylesFromFile(file.Path(), styles));
    styles.resize(1);
    EXPECT_TRUE(GetHatchStylesFromFile(file.Path(), styles));
    EXPECT_EQ(styles.size(), 1U);
}

TEST(HatchStyleFile, PatternsFollowEachOther)
{
    const auto styles = Read("*one,first\n0,0,0,0,1\n45,0,0,0,1\n*two,second\n90,0,0,0,1\n");
    ASSERT_EQ(styles.size(), 2U);
    EXPECT_EQ(styles.front().name, QStringLiteral("one"));
    EXPECT_EQ(styles.front().lines.size(), 2U);
    EXPECT_EQ(styles.back().name, QStringLiteral("two"));
    EXPECT_EQ(styles.back().lines.size(), 1U);
    EXPECT_FALSE(styles.back().isDouble);
}

TEST(HatchStyleFile, DescriptionKeepsItsLineEnd)
{
    EXPECT_EQ(Read("*a, b, c\r\n0,0,0,0,1\n").front().description, QStringLiteral(" b, c\r\n"));
    EXPECT_EQ(Read("* a ,b\n0,0,0,0,1\n").front().name, QStringLiteral(" a "));
}

TEST(HatchStyleFile, HeadWithoutACommaIsNameAndDescription)
{
    const auto styles = Read("*abc\n0,0,0,0,1\n");
    EXPECT_EQ(styles.front().name, QStringLiteral("abc\n"));
    EXPECT_EQ(styles.front().description, QStringLiteral("abc\n"));
}

TEST(HatchStyleFile, HeadWithoutLinesAddsNoStyle)
{
    const auto styles = Read("*a,b\n*c,d\n0,0,0,0,1\n*e,f\n");
    ASSERT_EQ(styles.size(), 1U);
    EXPECT_EQ(styles.front().name, QStringLiteral("c"));
}

TEST(HatchStyleFile, LinesAheadOfTheFirstHeadBelongToSolid)
{
    const auto styles = Read("0,0,0,0,1\n*a,b\n0,0,0,0,1\n");
    ASSERT_EQ(styles.size(), 2U);
    EXPECT_EQ(styles.front().name, QStringLiteral("SOLID"));
}

TEST(HatchStyleFile, CommentIsPassedOverInTheFirstColumnAlone)
{
    EXPECT_EQ(Read("*a,b\n;0,0,0,0,1\n0,0,0,0,1\n").front().lines.size(), 1U);
    EXPECT_EQ(Read("*a,b\n ;0,0,0,0,1,2\n0,0,0,0,1\n").front().lines.size(), 2U);
}

TEST(HatchStyleFile, OffsetsAreTurnedByTheAngle)
{
    const CHatchLineDXF line = ReadLine("45, 0,0, 0,.125");
    EXPECT_EQ(line.angle, 45);
    EXPECT_TRUE(line.dashes.empty());
    EXPECT_NEAR(line.offsetX, -0.0884, 0.0001);
    EXPECT_NEAR(line.offsetY, 0.0884, 0.0001);
    const double angle = 45 * 3.141592653589793 / 180;
    EXPECT_EQ(line.offsetX, std::cos(angle) * 0 - std::sin(angle) * .125);
    EXPECT_EQ(line.offsetY, std::cos(angle) * .125 + std::sin(angle) * 0);
}

TEST(HatchStyleFile, BaseIsNotTurned)
{
    const CHatchLineDXF line = ReadLine("90, 1,2, 3,4");
    EXPECT_EQ(line.baseX, 1);
    EXPECT_EQ(line.baseY, 2);
    EXPECT_NEAR(line.offsetX, -4, 1e-12);
    EXPECT_NEAR(line.offsetY, 3, 1e-12);
}

TEST(HatchStyleFile, DashesFollowTheOffsets)
{
    EXPECT_EQ(ReadLine("0,0,0,0,1,.5,-.25,0\r\n").dashes, (std::vector<double>{.5, -.25, 0}));
}

TEST(HatchStyleFile, DashesOfOneLineDoNotReachTheNext)
{
    const auto styles = Read("*a,b\n0,0,0,0,1,.5,-.25\n0,0,0,0,1\n");
    EXPECT_EQ(styles.front().lines.at(0).dashes.size(), 2U);
    EXPECT_TRUE(styles.front().lines.at(1).dashes.empty());
}

TEST(HatchStyleFile, LineWithTooFewNumbersIsIgnored)
{
    EXPECT_FALSE(IsTaken("0, 0,0"));
    EXPECT_FALSE(IsTaken("0,0,0,1")); // the fourth stands behind the last comma
    EXPECT_TRUE(IsTaken("0,0,0,1,"));
    EXPECT_FALSE(IsTaken(""));
    EXPECT_FALSE(IsTaken("\n"));
}

TEST(HatchStyleFile, MissingYOffsetIsTheBaseY)
{
    const CHatchLineDXF line = ReadLine("0, 1,2, 3,x");
    EXPECT_EQ(line.offsetX, 3);
    EXPECT_EQ(line.offsetY, 2);
}

TEST(HatchStyleFile, TokenThatIsNoNumberIsDroppedWithoutAGap)
{
    const CHatchLineDXF line = ReadLine("0,x,1,,2,3,4,y,5,z");
    EXPECT_EQ(line.baseX, 1);
    EXPECT_EQ(line.baseY, 2);
    EXPECT_EQ(line.offsetX, 3);
    EXPECT_EQ(line.offsetY, 4);
    EXPECT_EQ(line.dashes, std::vector<double>{5});
}

TEST(HatchStyleFile, TextGoesThroughTheLocalCodec)
{
    QTextCodec* const before = QTextCodec::codecForLocale();
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("windows-1251"));
    EXPECT_EQ(Read("*\xE4\xEE\xEC,b\n0,0,0,0,1\n").front().name, QStringLiteral("дом"));
    QTextCodec::setCodecForLocale(before);
}

TEST(HatchStyleFile, FileCutAnywhereIsRead)
{
    const QByteArray whole = "*a,b\n45, 0,0, 0,.125,.5,-.25\n;c\n*d\n0,1,2,3,4\n";
    for (int size = 0; size <= whole.size(); ++size) {
        EXPECT_LE(Read(whole.left(size)).size(), 2U);
    }
}

TEST(HatchStyleFile, ManyPatternsAndOneEndlessLineTakeLinearTime)
{
    constexpr int kMany = 300000; // few enough for sanitizers on a busy machine
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(Read(QByteArray("*a,b\n0,0,0,0,1\n").repeated(kMany)).size(), std::size_t{kMany});
    EXPECT_EQ(ReadLine("0,0,0,0,1," + QByteArray("1,").repeated(kMany)).dashes.size(),
              std::size_t{kMany});
    EXPECT_LT(timer.elapsed(), 30000);
}
