// SPDX-License-Identifier: MIT
#include "VelorExchange/mif/Attribute.h"

#include "VelorExchange/mif/NormalizeName_p.h"
#include "VelorExchange/mif/Point.h"

using namespace VelorExchange::mif;

namespace {

CColumnMIF Column(const char* name)
{
    return {QString::fromUtf8(name), Char};
}

QString NameOf(const char* column)
{
    return NormalizeName(QString::fromUtf8(column), false);
}

} // namespace

TEST(NormalizeName, TrimsAndReplacesWhatIsNoLetterOrDigit)
{
    EXPECT_EQ(NameOf("  Owner's name "), QStringLiteral("Owner_s_name"));
    EXPECT_EQ(NameOf("Поле-А.1"), QStringLiteral("Поле_А_1"));
    EXPECT_EQ(NameOf("a_b"), QStringLiteral("a_b"));
}

TEST(NormalizeName, PutsUnderlineBeforeLeadingDigit)
{
    EXPECT_EQ(NameOf("1st name"), QStringLiteral("_1st_name"));
    EXPECT_EQ(NormalizeName(QStringLiteral("1st name"), true), QStringLiteral("1st_name"));
}

TEST(NormalizeName, EmptyNameStaysEmpty)
{
    EXPECT_EQ(NameOf("  "), QString());
}

TEST(AddAttribute, NamesThatDifferInCaseAreCounted)
{
    CPointMIF point;
    point.AddAttribute(Column("Name"), 1);
    point.AddAttribute(Column("NAME"), 2);
    point.AddAttribute(Column("name"), 3);
    ASSERT_EQ(point.attributes.size(), 3U);
    EXPECT_EQ(point.attributes[0].name, QStringLiteral("Name"));
    EXPECT_EQ(point.attributes[1].name, QStringLiteral("NAME_1"));
    EXPECT_EQ(point.attributes[2].name, QStringLiteral("name_2"));
}

TEST(AddAttribute, CountingPassesOverTakenCandidates)
{
    CPointMIF point;
    point.AddAttribute(Column("a_1"), 1);
    point.AddAttribute(Column("a"), 2);
    point.AddAttribute(Column("A"), 3);
    EXPECT_EQ(point.attributes[2].name, QStringLiteral("A_2"));
}

TEST(AddAttribute, EachOverloadGivesItsType)
{
    CPointMIF point;
    point.AddAttribute(Column("a"), QStringLiteral("text"));
    point.AddAttribute(Column("b"), 7);
    point.AddAttribute(Column("c"), static_cast<short>(8));
    point.AddAttribute(Column("d"), 9.5);
    point.AddAttribute(Column("e"), 1.5F);
    point.AddAttribute(Column("f"), QDate(2020, 2, 29));
    point.AddAttribute(Column("g"), true);
    const int types[] = {QMetaType::QString, QMetaType::Int,   QMetaType::Short, QMetaType::Double,
                         QMetaType::Float,   QMetaType::QDate, QMetaType::Bool};
    ASSERT_EQ(point.attributes.size(), std::size(types));
    for (std::size_t i = 0; i < std::size(types); ++i) {
        EXPECT_EQ(static_cast<int>(point.attributes[i].value.type()), types[i]) << i;
    }
    EXPECT_EQ(point.attributes[0].value.toString(), QStringLiteral("text"));
    EXPECT_EQ(point.attributes[2].value.toInt(), 8);
    EXPECT_EQ(point.attributes[4].value.toFloat(), 1.5F);
    EXPECT_EQ(point.attributes[5].value.toDate(), QDate(2020, 2, 29));
}
