// SPDX-License-Identifier: MIT
#include "tools/velorx/features/MifColumns.h"

#include "tests/support/LocaleCodec.h"

#include <gtest/gtest.h>

#include <QDate>

#include <cmath>

namespace velorx::test {

namespace {

using CAttributes = std::vector<SFeatureAttribute>;

// A row as text: "NAME=Type:value" and a blank for each attribute.
std::string Row(CMifColumns& columns, const CAttributes& attributes)
{
    SMifRow row;
    columns.Add(row, attributes);
    QString text;
    for (const auto& attribute : row.attributes) {
        text += QStringLiteral("%1=%2:%3 ")
                    .arg(attribute.name, QLatin1String(attribute.value.typeName()),
                         attribute.value.toString());
    }
    return text.toStdString();
}

} // namespace

TEST(MifColumns, ValuesOfTheTypesOfTablesStayAsTheyAre)
{
    CMifColumns columns;
    EXPECT_EQ(Row(columns,
                  {{"A", QString("x")},
                   {"B", 5},
                   {"C", QVariant::fromValue<short>(6)},
                   {"D", 2.5},
                   {"E", QVariant::fromValue(0.5F)}}),
              "A=QString:x B=int:5 C=short:6 D=double:2.5 E=double:0.5 ");
    EXPECT_TRUE(columns.TakeRenamed().empty());
}

TEST(MifColumns, DatesAndLogicalValuesBecomeText)
{
    CMifColumns columns;
    EXPECT_EQ(Row(columns, {{"A", QDate(2024, 2, 29)}, {"B", true}, {"C", false}}),
              "A=QString:2024-02-29 B=QString:true C=QString:false ");
}

TEST(MifColumns, NamesBecomeLegal)
{
    CMifColumns columns;
    EXPECT_EQ(
        Row(columns,
            {{"street no.", 1}, {"2nd", 2}, {"", 3}, {QString(40, 'x'), 4}, {" trimmed ", 5}}),
        "street_no_=int:1 _2nd=int:2 _=int:3 " + std::string(31, 'x') + "=int:4 trimmed=int:5 ");
    const auto renamed = columns.TakeRenamed();
    ASSERT_EQ(renamed.size(), 5U);
    EXPECT_EQ(renamed[0].source, "street no.");
    EXPECT_EQ(renamed[0].column, "street_no_");
    EXPECT_TRUE(columns.TakeRenamed().empty());
}

TEST(MifColumns, LettersOfTheCodePageAreLegal)
{
    const VelorExchange::test::CLocaleCodec local("windows-1251");
    CMifColumns columns;
    EXPECT_EQ(Row(columns, {{QString::fromUtf8("Улица"), 1}, {QString::fromUtf8("街"), 2}}),
              "Улица=int:1 _=int:2 ");
}

TEST(MifColumns, NamesThatDifferInCaseAloneAreKeptApart)
{
    CMifColumns columns;
    EXPECT_EQ(Row(columns, {{"Name", 1}, {"NAME", 2}}), "Name=int:1 NAME_1=int:2 ");
    EXPECT_EQ(Row(columns, {{"NAME", 3}}), "NAME_1=int:3 ");
}

TEST(MifColumns, LongNamesThatAgreeInTheirStartAreKeptApart)
{
    CMifColumns columns;
    const QString start(31, 'x');
    EXPECT_EQ(Row(columns, {{start + "a", 1}, {start + "b", 2}}),
              start.toStdString() + "=int:1 " + std::string(29, 'x') + "_1=int:2 ");
}

TEST(MifColumns, SeveralAttributesOfOneNameAreAllKept)
{
    CMifColumns columns;
    EXPECT_EQ(Row(columns, {{"N", 1}, {"N", 2}}), "N=int:1 N_1=int:2 ");
    EXPECT_EQ(Row(columns, {{"N", 3}, {"N", 4}, {"N", 5}}), "N=int:3 N_1=int:4 N_2=int:5 ");
}

TEST(MifColumns, ValueGoesToAnEarlierColumnThatHoldsIt)
{
    CMifColumns columns;
    EXPECT_EQ(Row(columns, {{"A", 2.5}}), "A=double:2.5 ");
    EXPECT_EQ(Row(columns, {{"A", 7}}), "A=double:7 ");
    EXPECT_EQ(Row(columns, {{"B", QString("x")}}), "B=QString:x ");
    EXPECT_EQ(Row(columns, {{"B", 7}}), "B=QString:7 ");
    EXPECT_TRUE(columns.TakeRenamed().empty());
}

TEST(MifColumns, ValueThatNoColumnHoldsGetsOneOfItsOwn)
{
    CMifColumns columns;
    EXPECT_EQ(Row(columns, {{"A", 7}}), "A=int:7 ");
    EXPECT_EQ(Row(columns, {{"A", QString("x")}}), "A_1=QString:x ");
    EXPECT_EQ(Row(columns, {{"A", 8}}), "A=int:8 ");
    const auto renamed = columns.TakeRenamed();
    ASSERT_EQ(renamed.size(), 1U);
    EXPECT_EQ(renamed[0].column, "A_1");
    EXPECT_TRUE(renamed[0].isForType);
}

TEST(MifColumns, OwnColumnsAreNobodyElses)
{
    CMifColumns columns;
    EXPECT_EQ(Row(columns, {{"layer", 1}, {"Sxf_Code", 2}}), "layer_1=int:1 Sxf_Code_1=int:2 ");
    SMifRow row;
    columns.AddOwn(row, "LAYER", QString("say \"a\""));
    ASSERT_EQ(row.attributes.size(), 1U);
    EXPECT_EQ(row.attributes[0].name, "LAYER");
    EXPECT_EQ(row.attributes[0].value.toString(), "say \"\"a\"\"");
}

TEST(MifColumns, TextsFitIntoARow)
{
    const VelorExchange::test::CLocaleCodec local("windows-1251");
    CMifColumns columns;
    SMifRow row;
    columns.Add(row,
                {{"A", QString("say \"a\"")},
                 {"B", QString("two\r\nlines\t!")},
                 {"C", QString(300, 'x')},
                 {"D", QString::fromUtf8("街")}});
    EXPECT_EQ(row.attributes[0].value.toString(), "say \"\"a\"\"");
    EXPECT_EQ(row.attributes[1].value.toString(), "two  lines !");
    EXPECT_EQ(row.attributes[2].value.toString().size(), 254);
    EXPECT_EQ(row.inOneLine, 1);
    EXPECT_EQ(row.cut, 1);
    EXPECT_EQ(row.unknownLetters, 1);
}

TEST(MifColumns, NumbersThatAreNoneAreLeftOut)
{
    CMifColumns columns;
    SMifRow row;
    columns.Add(row, {{"A", std::nan("")}, {"B", HUGE_VAL}, {"C", 1.0}, {"D", QVariant()}});
    EXPECT_EQ(row.notFinite, 2);
    ASSERT_EQ(row.attributes.size(), 2U);
    EXPECT_EQ(row.attributes[0].name, "C");
}

TEST(MifColumns, TypesFollowTheWidestValue)
{
    CMifColumns columns;
    Row(columns, {{"A", QString(80, 'x')}, {"B", QString(81, '"')}, {"C", 1.25}, {"D", 5}});
    EXPECT_EQ(columns.TypeOf("A"), "");
    EXPECT_EQ(columns.TypeOf("B"), "CHAR(81)");
    EXPECT_EQ(columns.TypeOf("C"), "");
    EXPECT_EQ(columns.TypeOf("D"), "");
    EXPECT_EQ(columns.TypeOf("unheard"), "");
    Row(columns, {{"E", 0.5F}});
    EXPECT_EQ(columns.TypeOf("E"), "FLOAT");
    Row(columns, {{"C", 1.1234567}});
    EXPECT_EQ(columns.TypeOf("C"), "DECIMAL(20,7)");
    Row(columns, {{"C", 123456789012.5}});
    EXPECT_EQ(columns.TypeOf("C"), "DECIMAL(20,6)");
}

} // namespace velorx::test
