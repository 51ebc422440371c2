// SPDX-License-Identifier: MIT
#include "tests/support/TextFile.h"
#include "VelorExchange/dxf/write/StyleFiles.h"

#include <QElapsedTimer>

using namespace VelorExchange::dxf;
using VelorExchange::test::CTextFile;

namespace {

std::list<CMLineStyleDXF> Read(const QByteArray& bytes)
{
    const CTextFile file(bytes);
    std::list<CMLineStyleDXF> styles;
    const bool result = GetMLineStylesFromFile(file.Path(), styles);
    EXPECT_EQ(result, !styles.empty());
    return styles;
}

constexpr double kHalfPi = 1.5707963267948966;

} // namespace

TEST(MLineStyleFile, EmptyPathAndMissingFileGiveFalse)
{
    std::list<CMLineStyleDXF> styles(1);
    EXPECT_FALSE(GetMLineStylesFromFile(QString(), styles));
    EXPECT_FALSE(GetMLineStylesFromFile(QStringLiteral("/no/such/file.mln"), styles));
}

TEST(MLineStyleFile, EarlierElementsCountForTheResult)
{
    const CTextFile file("");
    std::list<CMLineStyleDXF> styles(1);
    EXPECT_TRUE(GetMLineStylesFromFile(file.Path(), styles));
}

TEST(MLineStyleFile, StyleKeepsItsTagsAsTheBody)
{
    const auto styles = Read("MLSTYLE\r\n  2\r\nWALL\r\n 70\r\n272\r\n  3\r\n two lines \r\n 51\r\n"
                             "90.0\r\n 52\r\n45\r\n 49\r\n0.5\r\n  6\r\nBYLAYER\r\n 49\r\n-0.5\r\n"
                             "  6\r\nDASHED\r\n  0\r\nEOF\r\n");
    ASSERT_EQ(styles.size(), 1U);
    const CMLineStyleDXF& style = styles.front();
    EXPECT_EQ(style.name, QStringLiteral("WALL"));
    EXPECT_EQ(
        style.body,
        QStringLiteral("2\nWALL\n70\n272\n3\ntwo lines\n51\n90.0\n52\n45\n49\n0.5\n6\nBYLAYER\n"
                       "49\n-0.5\n6\nDASHED\n"));
    EXPECT_EQ(style.offsets, (std::vector<double>{0.5, -0.5}));
    EXPECT_EQ(style.lineTypes,
              (std::vector<QString>{QStringLiteral("BYLAYER"), QStringLiteral("DASHED")}));
    EXPECT_EQ(style.startAngle, 90.0 * 3.141592653589793 / 180);
    EXPECT_EQ(style.endAngle, 45.0 * 3.141592653589793 / 180);
    EXPECT_TRUE(style.colors.empty());
}

TEST(MLineStyleFile, AnglesAreRightOnesByDefault)
{
    const auto styles = Read("2\na\n49\n1\n51\nx\n52\n\n");
    EXPECT_EQ(styles.front().startAngle, kHalfPi);
    EXPECT_EQ(styles.front().endAngle, kHalfPi);
}

TEST(MLineStyleFile, WordOpensTheNextStyleWhateverItsCase)
{
    const auto styles = Read("mlstyle\n2\na\n49\n1\nMlStyle\n2\nb\n49\n2\n");
    ASSERT_EQ(styles.size(), 2U);
    EXPECT_EQ(styles.back().name, QStringLiteral("b"));
    EXPECT_EQ(styles.back().body, QStringLiteral("2\nb\n49\n2\n"));
}

TEST(MLineStyleFile, CodeOfZeroEndsAStyle)
{
    const auto styles = Read("0\nMLSTYLE\n2\na\n49\n1\n0\nMLSTYLE\n2\nb\n49\n2\n0\n");
    ASSERT_EQ(styles.size(), 2U);
    EXPECT_EQ(styles.front().body, QStringLiteral("2\na\n49\n1\n"));
    EXPECT_EQ(styles.back().body, QStringLiteral("2\nb\n49\n2\n"));
}

TEST(MLineStyleFile, OtherValueOfZeroGoesIntoTheNewBody)
{
    const auto styles = Read("0\nOTHER\n2\na\n49\n1\n");
    EXPECT_EQ(styles.front().body, QStringLiteral("0\nOTHER\n2\na\n49\n1\n"));
}

TEST(MLineStyleFile, WordInsteadOfAValueEndsTheStyle)
{
    const auto styles = Read("2\na\n49\n1\n3\nMLSTYLE\n2\nb\n49\n2\n");
    ASSERT_EQ(styles.size(), 2U);
    EXPECT_EQ(styles.front().body, QStringLiteral("2\na\n49\n1\n"));
}

TEST(MLineStyleFile, StyleWithoutANameOrAnOffsetIsNotStored)
{
    EXPECT_TRUE(Read("2\na\n70\n0\n").empty());
    EXPECT_TRUE(Read("49\n1\n").empty());
    EXPECT_TRUE(Read("2\n\n49\n1\n").empty());
}

TEST(MLineStyleFile, OffsetThatIsNoNumberIsLeftOutOfTheOffsetsAlone)
{
    const auto styles = Read("2\na\n49\nx\n49\n1\n");
    EXPECT_EQ(styles.front().offsets, std::vector<double>{1});
    EXPECT_EQ(styles.front().body, QStringLiteral("2\na\n49\nx\n49\n1\n"));
}

TEST(MLineStyleFile, CodeThatIsNoNumberEndsReading)
{
    const auto styles = Read("2\na\n49\n1\nend\n2\nb\n");
    ASSERT_EQ(styles.size(), 1U);
    EXPECT_EQ(styles.front().name, QStringLiteral("a"));
    EXPECT_TRUE(Read("2\na\n\n49\n1\n").empty()); // an empty line is no number either
}

TEST(MLineStyleFile, CodeOfMinusOneIsNotPending)
{
    const auto styles = Read("2\na\n-1\n49\n1\n");
    EXPECT_EQ(styles.front().offsets, std::vector<double>{1});
    EXPECT_EQ(styles.front().body, QStringLiteral("2\na\n49\n1\n"));
}

TEST(MLineStyleFile, ValueWithAPlaceMarkStaysAsItIs)
{
    EXPECT_EQ(Read("2\na%2%1\n49\n1\n").front().body, QStringLiteral("2\na%2%1\n49\n1\n"));
}

TEST(MLineStyleFile, LaterNameStands)
{
    EXPECT_EQ(Read("2\na\n2\nb\n49\n1\n").front().name, QStringLiteral("b"));
}

TEST(MLineStyleFile, FileCutAnywhereIsRead)
{
    const QByteArray whole = "MLSTYLE\n2\na\n49\n1\n0\nMLSTYLE\n2\nb\n49\n2\n";
    for (int size = 0; size <= whole.size(); ++size) {
        EXPECT_LE(Read(whole.left(size)).size(), 2U);
    }
}

TEST(MLineStyleFile, ManyStylesAndOneEndlessStyleTakeLinearTime)
{
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(Read(QByteArray("MLSTYLE\n2\na\n49\n1\n").repeated(100000)).size(), 100000U);
    const auto styles =
        Read("2\n" + QByteArray(1000000, 'x') + '\n' + QByteArray("49\n1\n").repeated(300000));
    EXPECT_EQ(styles.front().name.size(), 1000000);
    EXPECT_EQ(styles.front().offsets.size(), 300000U);
    EXPECT_LT(timer.elapsed(), 30000);
}
