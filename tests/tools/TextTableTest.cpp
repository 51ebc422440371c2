// SPDX-License-Identifier: MIT
#include "tools/velorx/TextTable.h"

#include <gtest/gtest.h>

#include <limits>

namespace velorx {

using EAlign = CTextTable::EAlign;

TEST(TextTable, AlignsColumnsByLettersNotBytes)
{
    CTextTable table({EAlign::Left, EAlign::Right});
    table.Add({QStringLiteral("Здания"), QStringLiteral("7")});
    table.Add({QStringLiteral("0"), QStringLiteral("12")});
    EXPECT_EQ(table.ToText().toStdString(),
              "  Здания   7\n"
              "  0       12\n");
}

TEST(TextTable, EndsNoLineWithBlanks)
{
    CTextTable table({EAlign::Left, EAlign::Left});
    table.Add({QStringLiteral("long name"), QStringLiteral("x")});
    table.Add({QStringLiteral("short")});
    EXPECT_EQ(table.ToText().toStdString(),
              "  long name  x\n"
              "  short\n");
}

TEST(TextTable, ShowsControlCharactersAsCodes)
{
    EXPECT_EQ(Printable(QStringLiteral("a\x1b[31mb")).toStdString(), "a\\x1b[31mb");
    EXPECT_EQ(Printable(QString(QChar(0x9B))).toStdString(), "\\x9b");
    EXPECT_EQ(Printable(QStringLiteral("Дороги оси")).toStdString(), "Дороги оси");
}

TEST(TextTable, ShowsNumbersWithoutLossAndWithoutNoise)
{
    EXPECT_EQ(PlainNumber(0.1).toStdString(), "0.1");
    EXPECT_EQ(PlainNumber(412580.25).toStdString(), "412580.25");
    EXPECT_EQ(PlainNumber(-7).toStdString(), "-7");
    EXPECT_EQ(PlainNumber(1e20).toStdString(), "1e+20");
    EXPECT_EQ(PlainNumber(std::numeric_limits<double>::infinity()).toStdString(), "inf");
}

} // namespace velorx
