// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifCodePage.h"

#include "tests/support/LocaleCodec.h"
#include "tools/velorx/HostCodec.h"

#include <gtest/gtest.h>

namespace velorx::test {

TEST(MifCodePage, KnowsTheLocalOneByAllItsNames)
{
    const VelorExchange::test::CLocaleCodec before("UTF-8");
    ASSERT_TRUE(SetCodePage("windows-1251"));
    EXPECT_TRUE(IsLocalCodePage("windows-1251"));
    EXPECT_TRUE(IsLocalCodePage("CP1251"));
    EXPECT_FALSE(IsLocalCodePage("windows-1252"));
    EXPECT_FALSE(IsLocalCodePage("unheard"));
}

TEST(MifCodePage, KnowsTheCharacterSetsOfTables)
{
    EXPECT_EQ(CodePageOfCharset("windowscyrillic"), "windows-1251");
    EXPECT_EQ(CodePageOfCharset("WindowsLatin1"), "windows-1252");
    EXPECT_EQ(CodePageOfCharset("Neutral"), "");
}

TEST(MifCodePage, EveryCharacterSetIsOneThatQtHas)
{
    for (const char* charset :
         {"WindowsLatin1", "WindowsLatin2", "WindowsCyrillic", "WindowsGreek", "WindowsTurkish",
          "WindowsHebrew", "WindowsArabic", "WindowsBalticRim", "WindowsVietnamese", "CodePage850",
          "CodePage866", "UTF-8", "ISO8859_1", "ISO8859_2", "ISO8859_5", "ISO8859_9"})
    {
        EXPECT_TRUE(IsCodePage(CodePageOfCharset(charset).toStdString())) << charset;
    }
}

TEST(MifCodePage, TellsWhatFits)
{
    const VelorExchange::test::CLocaleCodec local("windows-1251");
    EXPECT_TRUE(FitsCodePage("plain"));
    EXPECT_TRUE(FitsCodePage(QStringLiteral("Дом")));
    EXPECT_FALSE(FitsCodePage(QStringLiteral("街")));
    EXPECT_TRUE(FitsCodePage(QString()));
}

} // namespace velorx::test
