// SPDX-License-Identifier: MIT
#include "VelorExchange/dxf/write/Names_p.h"

using namespace VelorExchange::dxf;

namespace {

std::string Safe(const char* name)
{
    return SafeName(QString::fromUtf8(name)).toStdString();
}

std::string Layer(const char* name)
{
    return LayerName(QString::fromUtf8(name)).toStdString();
}

} // namespace

TEST(Names, EachOfTheFourteenCharactersBecomesAnUnderscore)
{
    const std::string forbidden = "`<>/\\:;?*|,='\"";
    ASSERT_EQ(forbidden.size(), 14U);
    for (const char c : forbidden) {
        EXPECT_EQ(Safe((std::string("a") + c + "b").c_str()), "a_b") << c;
    }
}

TEST(Names, OtherCharactersStay)
{
    EXPECT_EQ(Safe("a.b-c_d$e#f!g(h)[i]{j}~k@l%m^n&o+p q"), "a.b-c_d$e#f!g(h)[i]{j}~k@l%m^n&o+p q");
}

TEST(Names, WhiteSpaceAroundANameGoes)
{
    EXPECT_EQ(Safe(" \t Road 1 \n"), "Road 1");
    EXPECT_EQ(Safe("   "), "");
}

TEST(Names, LetterThatTheCodePageLacksBecomesAnUnderscore)
{
    EXPECT_EQ(Safe("caf\xC3\xA9"), "caf_");
}

TEST(Names, LeadingDigitTakesAnUnderscoreInFrontOnlyWhereItIsNotAllowed)
{
    for (const char* name : {"1a", "0", "9"}) {
        QString strict = QString::fromUtf8(name);
        SanitizeName(strict, false);
        EXPECT_EQ(strict.toStdString(), std::string("_") + name);
        QString lax = QString::fromUtf8(name);
        SanitizeName(lax, true);
        EXPECT_EQ(lax.toStdString(), name);
    }
    QString letter = QStringLiteral("a1");
    SanitizeName(letter, false);
    EXPECT_EQ(letter, QStringLiteral("a1"));
    QString empty;
    SanitizeName(empty, false);
    EXPECT_EQ(empty, QString());
}

TEST(Names, EmptyLayerNameIsZero)
{
    EXPECT_EQ(Layer(""), "0");
    EXPECT_EQ(Layer("  "), "0");
}

TEST(Names, LayerThatIsNotPlottedIsRenamed)
{
    EXPECT_EQ(Layer("Defpoints"), "Defpoints_1");
    EXPECT_EQ(Layer("defpoints"), "defpoints_1");
    EXPECT_EQ(Layer(" DEFPOINTS "), "DEFPOINTS_1");
    EXPECT_EQ(Layer("DEFPOINTS_1"), "DEFPOINTS_1");
}
