// SPDX-License-Identifier: MIT
#include "tools/velorx/check/TextLines.h"

#include <gtest/gtest.h>

#include <QBuffer>

#include <string>
#include <vector>

namespace velorx::test {

namespace {

// "number@byte:text", one for each line.
std::vector<std::string> LinesOf(const QByteArray& content, ELineEnd end)
{
    QBuffer buffer;
    buffer.setData(content);
    buffer.open(QIODevice::ReadOnly);
    CTextLines lines(buffer, end);
    std::vector<std::string> found;
    while (lines.Next()) {
        found.push_back(std::to_string(lines.Line()) + '@' + std::to_string(lines.Byte()) + ':'
                        + std::string(lines.Text()));
    }
    return found;
}

using Strings = std::vector<std::string>;

} // namespace

TEST(TextLines, NumbersLinesAndTheirBytes)
{
    EXPECT_EQ(LinesOf("a\nbc\n\nd", ELineEnd::Feed), Strings({"1@0:a", "2@2:bc", "3@5:", "4@6:d"}));
}

TEST(TextLines, AReturnAheadOfAFeedBelongsToTheEnd)
{
    EXPECT_EQ(LinesOf("a\r\nb\r\n", ELineEnd::Feed), Strings({"1@0:a", "2@3:b"}));
    EXPECT_EQ(LinesOf("a\r\nb\r\n", ELineEnd::Any), Strings({"1@0:a", "2@3:b"}));
}

TEST(TextLines, AReturnAloneEndsALineOnlyWhereAnyEndDoes)
{
    EXPECT_EQ(LinesOf("a\rb\n\rc", ELineEnd::Any), Strings({"1@0:a", "2@2:b", "3@4:", "4@5:c"}));
    EXPECT_EQ(LinesOf("a\rb\n", ELineEnd::Feed), Strings({"1@0:a\rb"}));
}

TEST(TextLines, AnEmptyFileHasNoLines)
{
    EXPECT_EQ(LinesOf("", ELineEnd::Any), Strings());
}

TEST(TextLines, LinesOfAnyLengthKeepTheirNumberAndPlace)
{
    for (const int length : {262143, 262144, 262145, 1048575, 1048576, 1048577, 5000000}) {
        QBuffer buffer;
        buffer.setData(QByteArray(length, 'x') + "\nend\r\n" + QByteArray(length, 'y'));
        buffer.open(QIODevice::ReadOnly);
        CTextLines lines(buffer, ELineEnd::Feed);
        ASSERT_TRUE(lines.Next());
        EXPECT_EQ(lines.Length(), length);
        EXPECT_EQ(lines.Text().size(),
                  std::min(static_cast<std::size_t>(length), CTextLines::kLongest));
        ASSERT_TRUE(lines.Next());
        EXPECT_EQ(lines.Text(), "end");
        EXPECT_EQ(lines.Byte(), length + 1);
        ASSERT_TRUE(lines.Next());
        EXPECT_EQ(lines.Length(), length);
        EXPECT_EQ(lines.Byte(), length + 6);
        EXPECT_FALSE(lines.Next());
    }
}

} // namespace velorx::test
