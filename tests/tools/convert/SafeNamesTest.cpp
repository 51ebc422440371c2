// SPDX-License-Identifier: MIT
#include "tools/velorx/convert/SafeNames.h"

#include <gtest/gtest.h>

#include <QSet>

namespace velorx::test {

namespace {

std::string Spelled(CSafeNames& names, const char* name)
{
    return names.Of(QString::fromUtf8(name)).toStdString();
}

} // namespace

TEST(SafeNames, KeepsNamesThatProgramsTake)
{
    CSafeNames names;
    EXPECT_EQ(Spelled(names, "Дороги - главные (2)"), "Дороги - главные (2)");
    EXPECT_EQ(names.Changed(), 0);
}

TEST(SafeNames, ReplacesEachOfTheFourteenForbiddenCharacters)
{
    CSafeNames names;
    EXPECT_EQ(Spelled(names, "a`b<c>d/e\\f:g;h?i*j|k,l=m'n\"o"), "a_b_c_d_e_f_g_h_i_j_k_l_m_n_o");
    EXPECT_EQ(names.Changed(), 1);
}

TEST(SafeNames, ReplacesLettersThatTheCodePageLacks)
{
    CSafeNames names;
    EXPECT_EQ(Spelled(names, "Straße №1"), "Stra_e №1");
    EXPECT_EQ(Spelled(names, "\xF0\x9F\x98\x80"), "__");
}

TEST(SafeNames, ReplacesControlCharacters)
{
    CSafeNames names;
    EXPECT_EQ(Spelled(names, "a\tb\x01"), "a_b_");
}

TEST(SafeNames, TakesBlanksOff)
{
    CSafeNames names;
    EXPECT_EQ(Spelled(names, "  Roads "), "Roads");
    EXPECT_EQ(names.Changed(), 0);
}

TEST(SafeNames, SpellsNamesThatDifferInCaseAloneLikeTheFirst)
{
    CSafeNames names;
    EXPECT_EQ(Spelled(names, "Дороги"), "Дороги");
    EXPECT_EQ(Spelled(names, "ДОРОГИ"), "Дороги");
    EXPECT_EQ(names.Changed(), 0);
}

TEST(SafeNames, GivesTwoNamesTwoSpellings)
{
    CSafeNames names;
    EXPECT_EQ(Spelled(names, "A|B"), "A_B");
    EXPECT_EQ(Spelled(names, "A/B"), "A_B_1");
    EXPECT_EQ(Spelled(names, "a_b"), "a_b_2");
    EXPECT_EQ(Spelled(names, "A|B"), "A_B");
    EXPECT_EQ(names.Changed(), 3);
}

TEST(SafeNames, CountsANameOnceHoweverOftenItComes)
{
    CSafeNames names;
    for (const char* name : {"A|B", "a|b", " A|B "}) {
        Spelled(names, name);
    }
    EXPECT_EQ(names.Changed(), 1);
}

TEST(SafeNames, GivesAnEmptyNameALetter)
{
    CSafeNames names;
    EXPECT_EQ(Spelled(names, ""), "_");
    EXPECT_EQ(Spelled(names, "   "), "_");
    EXPECT_EQ(names.Changed(), 0);
}

TEST(SafeNames, DefinedNameHasItsSpellingInAnyCase)
{
    CSafeNames names;
    names.Define("DEFPOINTS", "Defpoints_1");
    EXPECT_EQ(Spelled(names, "defpoints"), "Defpoints_1");
    EXPECT_EQ(Spelled(names, "Defpoints_1"), "Defpoints_1_1");
}

TEST(SafeNames, ReservedSpellingGoesToNoName)
{
    CSafeNames names;
    names.Reserve("STANDARD");
    EXPECT_EQ(Spelled(names, "Standard"), "Standard_1");
}

TEST(SafeNames, HoldsTenThousandNamesApart)
{
    CSafeNames names;
    QSet<QString> spellings;
    for (int i = 0; i < 10000; ++i) {
        spellings.insert(names.Of(QStringLiteral("name?") + QString::number(i)).toCaseFolded());
    }
    EXPECT_EQ(spellings.size(), 10000);
}

TEST(SafeNames, TellsTwentyThousandNamesOfOneSpellingApartAtOnce)
{
    CSafeNames names;
    QSet<QString> spellings;
    for (ushort letter = 0x4E00; letter < 0x4E00 + 20000; ++letter) {
        spellings.insert(names.Of(QString(QChar(letter)))); // none of them has a place
    }
    EXPECT_EQ(spellings.size(), 20000);
    EXPECT_TRUE(spellings.contains("_") && spellings.contains("__19999"));
}

TEST(SafeNames, KeepsNamesOf300Letters)
{
    CSafeNames names;
    const std::string name(300, 'n');
    EXPECT_EQ(Spelled(names, name.c_str()), name);
}

} // namespace velorx::test
