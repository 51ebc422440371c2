// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/LineScanner_p.h"

#include <QTemporaryFile>

using namespace VelorExchange::mif;

namespace {

std::vector<QByteArray> Lines(const QByteArray& bytes)
{
    QTemporaryFile file;
    EXPECT_TRUE(file.open());
    file.write(bytes);
    file.seek(0);
    CLineScanner scanner;
    scanner.Start(file);
    std::vector<QByteArray> lines;
    CSpan line;
    while (scanner.Next(file, line)) {
        lines.emplace_back(line.begin, static_cast<int>(line.Size()));
    }
    EXPECT_EQ(scanner.Position(), bytes.size());
    EXPECT_TRUE(scanner.AtEnd(file));
    return lines;
}

using CLines = std::vector<QByteArray>;

} // namespace

TEST(LineScanner, CutsAtLineFeeds)
{
    EXPECT_EQ(Lines("a\r\n\nb\n"), (CLines{"a\r", "", "b"}));
}

TEST(LineScanner, LastLineNeedsNoLineFeed)
{
    EXPECT_EQ(Lines("a\nb"), (CLines{"a", "b"}));
    EXPECT_EQ(Lines(""), CLines());
}

TEST(LineScanner, CarriageReturnAloneEndsNoLine)
{
    EXPECT_EQ(Lines("a\rb\n"), CLines{"a\rb"});
}

TEST(LineScanner, LineIsCutAtItsFirstNul)
{
    EXPECT_EQ(Lines(QByteArray("ab\0cd\nef\0\n\0g\nh", 14)), (CLines{"ab", "ef", "", "h"}));
}

TEST(LineScanner, TellsWhetherALineFeedStandsBehindTheLine)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("a\nb\0\nc", 6);
    file.seek(0);
    CLineScanner scanner;
    scanner.Start(file);
    CSpan line;
    for (const bool hasLineFeed : {true, false, false}) {
        ASSERT_TRUE(scanner.Next(file, line));
        EXPECT_EQ(scanner.HasLineFeed(), hasLineFeed);
    }
}

TEST(LineScanner, LinesOfAllLengthsCrossTheBuffer)
{
    QByteArray bytes;
    CLines expected;
    for (int i = 0; i < 900; ++i) {
        expected.emplace_back(i * 7 % 2500, static_cast<char>('a' + i % 26));
        bytes += expected.back() + '\n';
    }
    ASSERT_GT(bytes.size(), 3 * 262144);
    EXPECT_EQ(Lines(bytes), expected);
}

TEST(LineScanner, LineMayBeLongerThanTheBuffer)
{
    const QByteArray line(10 * 1048576, 'x');
    EXPECT_EQ(Lines("a\n" + line + "\nb\n"), (CLines{"a", line, "b"}));
    EXPECT_EQ(Lines(line), CLines{line});
}

TEST(LineScanner, LastLineStaysValidAtTheEnd)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("first\nlast\n");
    file.seek(0);
    CLineScanner scanner;
    scanner.Start(file);
    CSpan line;
    ASSERT_TRUE(scanner.Next(file, line) && scanner.Next(file, line));
    ASSERT_FALSE(scanner.Next(file, line));
    EXPECT_EQ(QByteArray(line.begin, static_cast<int>(line.Size())), QByteArray("last"));
}

TEST(LineScanner, PositionIsThatOfTheNextLine)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    file.write("ab\ncd");
    file.seek(0);
    CLineScanner scanner;
    scanner.Start(file);
    CSpan line;
    EXPECT_EQ(scanner.Position(), 0);
    scanner.Next(file, line);
    EXPECT_EQ(scanner.Position(), 3);
    scanner.Next(file, line);
    EXPECT_EQ(scanner.Position(), 5);
}
