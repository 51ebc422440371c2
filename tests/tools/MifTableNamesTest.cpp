// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifTableNames.h"

#include "tests/support/LocaleCodec.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(MifTableNames, NoNameLeavesItsFolder)
{
    EXPECT_EQ(SafeFileName("../x"), "_.._x");
    EXPECT_EQ(SafeFileName("a/b"), "a_b");
    EXPECT_EQ(SafeFileName("a\\b"), "a_b");
    EXPECT_EQ(SafeFileName("/etc/passwd"), "_etc_passwd");
    EXPECT_EQ(SafeFileName("C:\\x"), "C__x");
    EXPECT_EQ(SafeFileName(".."), "_");
    EXPECT_EQ(SafeFileName("."), "_");
    EXPECT_EQ(SafeFileName(""), "_");
    EXPECT_EQ(SafeFileName("  "), "_");
}

TEST(MifTableNames, NoNameMeansADevice)
{
    EXPECT_EQ(SafeFileName("con"), "_con");
    EXPECT_EQ(SafeFileName("COM1.x"), "_COM1.x");
    EXPECT_EQ(SafeFileName("console"), "console");
}

TEST(MifTableNames, NamesThatOtherSystemsRefuseAreChanged)
{
    EXPECT_EQ(SafeFileName("a*b?c:d|e<f>g\"h"), "a_b_c_d_e_f_g_h");
    EXPECT_EQ(SafeFileName("line\nfeed"), "line_feed");
    EXPECT_EQ(SafeFileName(".hidden"), "_.hidden");
    EXPECT_EQ(SafeFileName("end. ."), "end");
    EXPECT_EQ(SafeFileName(QString(500, 'x')).size(), 110);
}

TEST(MifTableNames, LettersOfTheCodePageStay)
{
    const VelorExchange::test::CLocaleCodec local("windows-1251");
    EXPECT_EQ(SafeFileName(QString::fromUtf8("Дома 1")), QString::fromUtf8("Дома 1"));
    EXPECT_EQ(SafeFileName(QString::fromUtf8("街x")), "_x");
}

TEST(MifTableNames, LayersWhoseNamesBecomeEqualAreKeptApart)
{
    CMifTableNames names;
    EXPECT_EQ(names.Of("a/b"), "a_b");
    EXPECT_EQ(names.Of("a_b"), "a_b_1");
    EXPECT_EQ(names.Of("A:B"), "A_B_2");
    EXPECT_EQ(names.Of("a_b_1"), "a_b_1_1");
    EXPECT_EQ(names.Of("a/b"), "a_b");
    EXPECT_EQ(names.Of("A:B"), "A_B_2");
}

} // namespace velorx::test
